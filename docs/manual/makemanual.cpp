// Makes a PDF of a Markdown text: makemanual SOURCE.md RESULT.pdf FONTS. Pictures are looked for beside the
// source. Fonts come from a folder: text in a font of the resources is missing from the PDF.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImageReader>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextStream>
#include <QTextTable>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int Resolution = 96;
// What an A4 page leaves between the margins that the document's printing adds.
constexpr double PictureWidth = 600;
// Of pictures of the screen, so that their text is about as large as ours.
constexpr double PictureScale = 0.6;
constexpr int BodyPoints = 10;
constexpr std::array HeadingPoints = {20, 14, 11};
const QColor HeadingColor(0x11, 0x55, 0x99);
const QColor RuleColor(0xc8, 0xd0, 0xd8);

void loadFonts(const QDir &folder)
{
    const QStringList names = folder.entryList({u"*.ttf"_s});
    for (const QString &name : names)
        QFontDatabase::addApplicationFont(folder.filePath(name));
    QGuiApplication::setFont(QFont(u"Open Sans SemiCondensed"_s, BodyPoints));
}

void styleHeading(const QTextBlock &block, int level)
{
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    QTextCharFormat text;
    text.setFontPointSize(HeadingPoints[std::size_t(qBound(1, level, int(HeadingPoints.size())) - 1)]);
    text.setFontWeight(QFont::DemiBold);
    text.setForeground(HeadingColor);
    // In place of the reader's own enlargement of headings.
    cursor.setCharFormat(text);
    QTextBlockFormat format;
    format.setTopMargin(level == 1 ? 0 : 14);
    format.setBottomMargin(6);
    cursor.mergeBlockFormat(format);
}

/// Pictures are reduced, and as wide as the page at most.
void fitPictures(const QTextBlock &block, double width)
{
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (!fragment.charFormat().isImageFormat())
            continue;
        QTextImageFormat format = fragment.charFormat().toImageFormat();
        format.setWidth(std::min(QImageReader(format.name()).size().width() * PictureScale, width));
        QTextCursor cursor(block);
        cursor.setPosition(fragment.position());
        cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
}

void styleTables(const QTextFrame *frame)
{
    for (QTextFrame *child : frame->childFrames()) {
        auto *table = qobject_cast<QTextTable *>(child);
        if (!table)
            continue;
        QTextTableFormat format = table->format();
        format.setBorderCollapse(true);
        format.setBorder(1);
        format.setBorderBrush(RuleColor);
        format.setCellPadding(3);
        format.setTopMargin(4);
        format.setBottomMargin(8);
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        table->setFormat(format);
    }
}

void style(QTextDocument &document, double width)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0)
            styleHeading(block, block.blockFormat().headingLevel());
        fitPictures(block, width);
    }
    styleTables(document.rootFrame());
}

bool make(const QString &source, const QString &result)
{
    QFile text(source);
    if (!text.open(QIODevice::ReadOnly))
        return false;
    QSaveFile file(QFileInfo(result).absoluteFilePath());
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QPdfWriter writer(&file);
    writer.setResolution(Resolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({});
    writer.setCreator(u"Spinbar"_s);

    // Printing works on a copy of the document, which knows no base URL.
    QDir::setCurrent(QFileInfo(source).absolutePath());
    QTextDocument document;
    document.setDefaultFont(QGuiApplication::font());
    document.setDocumentMargin(0);
    document.setMarkdown(QString::fromUtf8(text.readAll()));
    style(document, PictureWidth);
    writer.setTitle(document.begin().text());
    document.print(&writer);
    return file.commit();
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        QTextStream(stderr) << "Usage: makemanual SOURCE.md RESULT.pdf FONTS\n";
        return 2;
    }
    loadFonts(arguments.at(3));
    if (make(arguments.at(1), arguments.at(2)))
        return 0;
    QTextStream(stderr) << "Cannot read " << arguments.at(1) << " or write " << arguments.at(2) << '\n';
    return 1;
}

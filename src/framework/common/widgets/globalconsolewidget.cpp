#include "framework/common/widgets/globalconsolewidget.h"

#include "framework/common/widgets/stylehelper.h"

#include "framework/common/globalconsole.h"

#include <QCloseEvent>
#include <QRegularExpression>
#include <QTextCursor>
#include <QTextDocument>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Of the lines that share a paragraph. With each insertion Qt lays out the paragraph anew and looks at every
/// other one, so that neither may be many.
constexpr int ParagraphLines = 100;

/// Of those that come in one pass of the event loop so many are shown at once and the others together.
constexpr int SingleEntries = 10;

/// Whether a line shows the same without the HTML parser, which is many times slower.
bool isPlain(const QString &line)
{
    return !line.contains(u'<') && !line.contains(u'&');
}

/// The colours that entries name are meant for a light ground.
QString withReadableColors(QString html)
{
    static const QRegularExpression named(u"(?<=color:) *(#?\\w+)"_s);
    const QRegularExpressionMatch match = named.match(html);
    if (const QColor color(match.captured(1)); color.isValid())
        html.replace(match.capturedStart(), match.capturedLength(), StyleHelper::ReadableColor(color).name());
    return html;
}

/// Lines as HTML shows them when a "<br>" follows each.
class LineInserter
{
public:
    explicit LineInserter(const QTextCursor &cursor)
        : m_cursor(cursor)
    {
        m_cursor.beginEditBlock();
    }

    ~LineInserter()
    {
        flush();
        m_cursor.endEditBlock();
    }
    Q_DISABLE_COPY_MOVE(LineInserter)

    void insert(const QString &line)
    {
        if (isPlain(line)) {
            // White space counts as in HTML.
            m_plain += line.simplified();
            return;
        }
        flush();
        m_cursor.insertHtml(withReadableColors(line));
    }

    void endLine() { m_plain += QChar::LineSeparator; }
    void endParagraph() { m_plain += u'\n'; }

private:
    void flush()
    {
        m_cursor.insertText(m_plain, {});
        m_plain.clear();
    }

    QTextCursor m_cursor;
    QString m_plain;
};

} // namespace

GlobalConsoleWidget::GlobalConsoleWidget(QWidget *parent)
    : QTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(NoWrap);
    setStyleSheet(u"font-family: Consolas, 'Courier New', monospace"_s);
    // Filled before it is shown, it is laid out bit by bit.
    auto *entries = new QTextDocument(this);
    entries->setUndoRedoEnabled(false);
    fill(entries, GlobalConsole::currentText());
    setDocument(entries);
    connect(GlobalConsole::Instance(), &GlobalConsole::newEntry, this, &GlobalConsoleWidget::newEntry,
            Qt::QueuedConnection);
}

QVariant GlobalConsoleWidget::loadResource(int, const QUrl &)
{
    // Anything but nothing: a document without an answer reads local files by itself.
    return QByteArray("");
}

void GlobalConsoleWidget::fill(QTextDocument *document, QString text)
{
    const QStringList lines = text.replace("\r\n\r\n"_L1, "\n"_L1).split(u'\n');
    LineInserter inserter{QTextCursor(document)};
    for (qsizetype i = 0; i < lines.size(); ++i) {
        inserter.insert(lines[i]);
        if (i + 1 == lines.size())
            break;
        if ((i + 1) % ParagraphLines == 0)
            inserter.endParagraph();
        else
            inserter.endLine();
    }
}

void GlobalConsoleWidget::newEntry(const QString &text)
{
    if (text.isEmpty())
        return;
    m_pending.append(text);
    if (++m_entriesOfPass == 1)
        QMetaObject::invokeMethod(this, &GlobalConsoleWidget::endPass, Qt::QueuedConnection);
    if (m_entriesOfPass <= SingleEntries)
        showPending();
}

void GlobalConsoleWidget::endPass()
{
    m_entriesOfPass = 0;
    showPending();
}

void GlobalConsoleWidget::showPending()
{
    const QStringList entries = std::exchange(m_pending, {});
    LineInserter inserter{QTextCursor(document())};
    for (qsizetype i = entries.size() - 1; i >= 0; --i) {
        inserter.insert(entries[i]);
        if (++m_linesShown % ParagraphLines == 0)
            inserter.endParagraph();
        else
            inserter.endLine();
    }
}

void GlobalConsoleWidget::closeEvent(QCloseEvent *event)
{
    emit closing();
    QTextEdit::closeEvent(event);
}

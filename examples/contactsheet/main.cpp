// Draws all icons and images, and one of every kind of control, in both themes into a folder for looking at.

#include "contactsheet/samplewindow.h"

#include "framework/common/widgets/applicationlook.h"
#include "framework/common/widgets/mediahelper.h"
#include "framework/common/widgets/stylehelper.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace {

constexpr int CellSize = 132;
constexpr int CellHeight = 112;
constexpr int Columns = 10;

struct Picture
{
    QString path;
    QString color; ///< of the page that shows it; empty for the natural one
};

QList<Picture> pictures(bool dark)
{
    const QString ink = dark ? u"#FFF"_s : QString();
    QList<Picture> list;
    const QFileInfoList icons = QDir(u":/icons"_s).entryInfoList();
    for (const QFileInfo &icon : icons)
        list.append({icon.filePath(), icon.baseName().endsWith("-dark"_L1) || icon.baseName() == "record"_L1
                                          ? QString()
                                          : ink});
    const QString images = u":/resources/images/"_s;
    list.append({{images + u"power_green.svg"_s, {}},
                 {images + u"power_off_red.svg"_s, {}},
                 {images + u"power_off_red.svg"_s, u"#999"_s},
                 {images + u"speed_on.svg"_s, u"#666"_s},
                 {images + u"speed_on.svg"_s, u"#FFF"_s},
                 {images + u"bolt.svg"_s, u"#666"_s},
                 {images + u"bolt.svg"_s, u"#C30"_s},
                 {images + u"warning.svg"_s, u"#ff8400"_s},
                 {images + u"rat.png"_s, {}},
                 {images + u"mouse.png"_s, {}},
                 {images + u"no-rodent.png"_s, {}},
                 {images + u"balloon.png"_s, {}},
                 {images + u"spinbar.svg"_s, {}}});
    return list;
}

QImage iconSheet()
{
    const bool dark = StyleHelper::Instance()->isDark();
    const QList<Picture> list = pictures(dark);
    const int rows = (int(list.size()) + Columns - 1) / Columns;
    QImage sheet(Columns * CellSize, rows * CellHeight, QImage::Format_RGB32);
    sheet.fill(StyleHelper::ThemeColor(u"--n-idle-bg"_s, Qt::white));
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(StyleHelper::ThemeColor(u"--n-text"_s, Qt::black));
    QFont font = painter.font();
    font.setPixelSize(11);
    painter.setFont(font);
    for (int i = 0; i < list.size(); ++i) {
        const QPoint at(i % Columns * CellSize, i / Columns * CellHeight);
        const QIcon icon = MediaHelper::iconColored(list.at(i).path, list.at(i).color, u"#000"_s);
        for (const auto &[x, size] : {std::pair{4, 72}, {80, 24}, {108, 16}})
            icon.paint(&painter, QRect(at + QPoint(x, 8), QSize(size, size)), Qt::AlignTop);
        painter.drawText(QRect(at + QPoint(4, 84), QSize(CellSize - 8, 16)), Qt::AlignLeft,
                         QFileInfo(list.at(i).path).fileName());
    }
    return sheet;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QString folder = app.arguments().value(1, u"."_s);
    if (!QDir().mkpath(folder))
        return 1;
    ApplicationLook::installFonts();
    ApplicationLook::installThemes();
    auto *styler = StyleHelper::Instance();
    bool saved = true;
    for (const QString &theme : {u"light"_s, u"dark"_s}) {
        styler->selectTheme(theme);
        saved &= iconSheet().save(u"%1/icons-%2.png"_s.arg(folder, theme));
        SampleWindow window;
        styler->setStyledBackground(&window, u"--n-bg"_s, Qt::white);
        window.resize(1100, 800);
        window.show();
        window.activateWindow();
        int number = 0;
        for (QWidget *widget : window.focusable()) {
            widget->setFocus();
            QApplication::processEvents();
            saved &= window.grab().save(u"%1/controls-%2-%3.png"_s.arg(folder, theme).arg(++number));
        }
    }
    return saved ? 0 : 1;
}

#include "ui/aboutappwidget.h"

#include "ui/aboutfacts.h"

#include "framework/common/changelog.h"
#include "framework/common/widgets/cursorhelper.h"
#include "framework/common/widgets/newversionbutton.h"
#include "framework/common/widgets/nscrollviewer.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/common/widgets/uihelper.h"
#include "framework/settings/languagecontext.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int TopMargin = 8;
constexpr int SideMargin = 8;
constexpr int Spacing = 16;
constexpr int ButtonSpacing = 8;
constexpr int LinkSpacing = 10;
constexpr int Filling = 100;
constexpr int ChangeLogMargin = 10;
constexpr QSize ChangeLogSize{640, 480};
constexpr auto Email = "info@primerov-lab.example"_L1;

struct ButtonColors
{
    QLatin1StringView text;
    QLatin1StringView background;
    QLatin1StringView hover;
};

constexpr ButtonColors ManualColors{"#FFF"_L1, "#159"_L1, "#048"_L1};
constexpr ButtonColors ApiColors{"#000"_L1, "#c9d950"_L1, "#b5c439"_L1};
constexpr ButtonColors ChangeLogColors{"#000"_L1, "#ff9900"_L1, "#cc6600"_L1};

QString generic(const char *text)
{
    return QCoreApplication::translate("Generic", text);
}

QPushButton *coloredButton(const QString &text, const QString &tooltip, const ButtonColors &colors)
{
    auto *button = new QPushButton(text);
    button->setToolTip(tooltip);
    button->setStyleSheet(
        u"QPushButton { color: %1; background: %2; text-decoration: none; border-radius: 4px; "
        "padding: 4px 8px; } QPushButton:hover { background: %3; }"_s.arg(colors.text, colors.background,
                                                                          colors.hover));
    CursorHelper::setCursor(button, Qt::PointingHandCursor);
    return button;
}

QLabel *selectableLabel(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

void addRow(QGridLayout *grid, const QString &caption, QWidget *value)
{
    const int row = grid->rowCount();
    grid->addWidget(UIHelper::GenerateLabelWithName(caption, u"graytext"_s), row, 0, Qt::AlignTop);
    grid->addWidget(value, row, 1, Qt::AlignTop);
}

/// Read once: it doesn't change while the program runs.
const QString &changeLog()
{
    static const QString text =
        ChangeLog::find(QCoreApplication::applicationDirPath(), QCoreApplication::applicationName());
    return text;
}

} // namespace

AboutAppWidget::AboutAppWidget(const QString &company, const QStringList &links, const QString &manualLink,
                               const QString &apiLink, const QMap<QString, QDateTime> &developers, bool,
                               QWidget *parent)
    : QWidget(parent)
{
    setContentsMargins({});
    auto *root = new QGridLayout(this);
    root->setContentsMargins({});
    auto *viewer = new NScrollViewer(Qt::Vertical, this);
    viewer->setTransparentBackground();
    root->addWidget(viewer, 0, 0);

    // Added before it is filled: what is moved with all its children takes on the style sheet anew.
    auto *content = new QWidget;
    viewer->add(content);
    content->setContentsMargins(0, TopMargin, 0, 0);
    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(SideMargin, 0, SideMargin, SideMargin);
    grid->setSpacing(Spacing);
    grid->setColumnStretch(1, Filling);
    addButtons(grid, manualLink, apiLink);
    addRow(grid, generic(QT_TRANSLATE_NOOP("Generic", "Version")), new QLabel(AboutFacts::version()));
    addRow(grid, generic(QT_TRANSLATE_NOOP("Generic", "OS")), new QLabel(AboutFacts::system()));
    addRow(grid, generic(QT_TRANSLATE_NOOP("Generic", "IP address")),
           selectableLabel(AboutFacts::addresses()));
    addRow(grid, generic(QT_TRANSLATE_NOOP("Generic", "Feedback")) + '\n'_L1, createContacts(company, links));
    if (!developers.isEmpty()) {
        auto *names = new QLabel(AboutFacts::developers(developers, QDate::currentDate()));
        names->setStyleSheet(u"line-height: 16px"_s);
        addRow(grid, generic(QT_TRANSLATE_NOOP("Generic", "Developers")), names);
    }
    grid->setRowStretch(grid->rowCount(), Filling);
}

void AboutAppWidget::addButtons(QGridLayout *grid, const QString &manualLink, const QString &apiLink)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(ButtonSpacing);
    for (QPushButton *button :
         {createManualButton(manualLink), createApiButton(apiLink), createChangeLogButton()}) {
        if (button)
            row->addWidget(button);
    }
    row->addWidget(
        new NewVersionButton(generic(QT_TRANSLATE_NOOP("Generic", "New version")) + ' '_L1, {}, nullptr));
    grid->addLayout(row, 0, 1, Qt::AlignLeft);
}

/// Null if there is no manual.
QPushButton *AboutAppWidget::createManualButton(const QString &manualLink)
{
    const QString file = AboutFacts::manual(AboutFacts::manualFolders(), LanguageContext::currentLanguage());
    const QUrl manual = file.isEmpty() ? QUrl(manualLink) : QUrl::fromLocalFile(file);
    if (manual.isEmpty())
        return nullptr;
    QPushButton *button =
        coloredButton(generic(QT_TRANSLATE_NOOP("Generic", "Manual")),
                      generic(QT_TRANSLATE_NOOP("Generic", "Open app manual")), ManualColors);
    connect(button, &QPushButton::clicked, this, [manual] { QDesktopServices::openUrl(manual); });
    return button;
}

QPushButton *AboutAppWidget::createApiButton(const QString &apiLink)
{
    if (apiLink.isEmpty())
        return nullptr;
    QPushButton *button = coloredButton(
        u"API"_s, generic(QT_TRANSLATE_NOOP("Generic", "Open API in browser")) + '\n'_L1 + apiLink,
        ApiColors);
    connect(button, &QPushButton::clicked, this, [apiLink] { QDesktopServices::openUrl(QUrl(apiLink)); });
    return button;
}

QPushButton *AboutAppWidget::createChangeLogButton()
{
    if (changeLog().isEmpty())
        return nullptr;
    QPushButton *button =
        coloredButton(generic(QT_TRANSLATE_NOOP("Generic", "ChangeLog")),
                      generic(QT_TRANSLATE_NOOP("Generic", "Open change log")), ChangeLogColors);
    connect(button, &QPushButton::clicked, this, &AboutAppWidget::showChangeLog);
    return button;
}

void AboutAppWidget::showChangeLog()
{
    static const QString text = ChangeLog::inLanguage(changeLog(), LanguageContext::currentLanguage());
    QDialog dialog(this);
    dialog.setWindowTitle(generic(QT_TRANSLATE_NOOP("Generic", "ChangeLog")));
    dialog.setContentsMargins({});
    dialog.resize(ChangeLogSize);
    UIHelper::ChangeBackground(&dialog, StyleHelper::ThemeColor(u"--n-bg"_s, Qt::white));
    auto *layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins({});
    auto *viewer = new NScrollViewer(Qt::Vertical);
    viewer->setTransparentBackground();
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setContentsMargins(ChangeLogMargin, ChangeLogMargin, ChangeLogMargin, ChangeLogMargin);
    viewer->add(label);
    layout->addWidget(viewer);
    dialog.exec();
}

QWidget *AboutAppWidget::createContacts(const QString &company, const QStringList &links)
{
    auto *block = new QWidget;
    auto *layout = new QVBoxLayout(block);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    QString text;
    for (const QString &line :
         {company, tr("000000, г. Образцовск, ул. Примерная, д. 1"), tr("Тел.: +7 (000) 555-01-23")})
        text += "<p>"_L1 + line.toHtmlEscaped() + "</p>"_L1;
    layout->addWidget(selectableLabel(text));
    QPushButton *mail = UIHelper::GenerateLinkButton("mailto:"_L1 + Email, Email, {}, u"link"_s);
    mail->setObjectName(u"linkButton"_s);
    layout->addWidget(mail, 0, Qt::AlignLeft);
    if (links.size() > 1)
        layout->addSpacing(LinkSpacing);
    for (const QString &link : links)
        layout->addWidget(
            UIHelper::GenerateLinkButton(link, AboutFacts::withoutScheme(link), {}, u"linkButton"_s), 0,
            Qt::AlignLeft);
    return block;
}

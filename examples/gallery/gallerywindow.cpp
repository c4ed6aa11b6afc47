#include "gallery/gallerywindow.h"

#include "gallery/chartspage.h"
#include "gallery/consolepage.h"
#include "gallery/formpage.h"
#include "gallery/kitpage.h"

#include "framework/common/widgets/cursorhelper.h"
#include "framework/common/widgets/stylehelper.h"
#include "framework/settings/languagecontext.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QPixmap>
#include <QTabBar>
#include <QTabWidget>
#include <QTranslator>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int WindowMargin = 16;

QLabel *caption(const QString &text, QWidget *buddy)
{
    auto *label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

QComboBox *choice(const QString &name)
{
    auto *box = new QComboBox;
    box->setAccessibleName(name);
    CursorHelper::setCursor(box, Qt::PointingHandCursor);
    return box;
}

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
    StyleHelper::InterlinkTheme(&m_settings, u"ColorTheme"_s);
    StyleHelper::Instance()->setStyledBackground(this, u"--n-bg"_s, Qt::white);
    build();
}

void GalleryWindow::setTheme(int theme)
{
    m_settings.setColorTheme(static_cast<StyleHelper::ColorThemeEnum>(theme));
}

void GalleryWindow::setLanguage(const QString &language)
{
    // What one language leaves to its source texts, a language still installed below it would answer.
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    LanguageContext::setLanguage(language);
    build();
}

void GalleryWindow::build()
{
    const int page = m_pages ? m_pages->currentIndex() : 0;
    // The choice of the language is still in its signal.
    for (QWidget *old : {m_bar, static_cast<QWidget *>(m_pages)}) {
        if (old) {
            old->hide();
            old->deleteLater();
        }
    }
    setWindowTitle(tr("Gallery of the widget kit"));
    m_bar = createBar();
    m_pages = createPages();
    m_layout->addWidget(m_bar);
    m_layout->addWidget(m_pages, 1);
    m_pages->setCurrentIndex(page);
}

QWidget *GalleryWindow::createBar()
{
    auto *bar = new QWidget;
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);

    auto *languages = choice(tr("Language"));
    for (const QString &language : LanguageContext::availableLanguages())
        languages->addItem(QLocale(language).nativeLanguageName(), language);
    languages->setCurrentIndex(languages->findData(LanguageContext::currentLanguage()));
    connect(languages, &QComboBox::activated, this,
            [this, languages] { setLanguage(languages->currentData().toString()); });

    auto *themes = choice(tr("Theme"));
    themes->addItems({tr("As the system"), tr("Light"), tr("Dark")});
    themes->setCurrentIndex(m_settings.getColorTheme());
    connect(themes, &QComboBox::activated, this, &GalleryWindow::setTheme);
    connect(&m_settings, &GallerySettings::changedColorTheme, themes, &QComboBox::setCurrentIndex);

    layout->addWidget(caption(tr("Language"), languages));
    layout->addWidget(languages);
    layout->addSpacing(WindowMargin);
    layout->addWidget(caption(tr("Theme"), themes));
    layout->addWidget(themes);
    layout->addStretch();
    return bar;
}

QTabWidget *GalleryWindow::createPages()
{
    auto *pages = new QTabWidget;
    CursorHelper::setCursor(pages->tabBar(), Qt::PointingHandCursor);
    const auto add = [pages](QWidget *page, const QString &objectName, const QString &title) {
        page->setObjectName(objectName);
        pages->addTab(page, title);
    };
    add(new KitPage, u"kit"_s, tr("Small widgets"));
    add(new ChartsPage, u"charts"_s, tr("Charts"));
    add(new FormPage(&m_settings), u"form"_s, tr("Property form"));
    add(new ConsolePage, u"console"_s, tr("Console"));
    return pages;
}

bool GalleryWindow::takePictures(const QString &folder)
{
    const QDir target(folder);
    if (!target.mkpath(u"."_s))
        return false;
    bool saved = true;
    for (const QString &language : LanguageContext::availableLanguages()) {
        setLanguage(language);
        for (const auto &[theme, name] :
             {std::pair{StyleHelper::Light, "light"_L1}, {StyleHelper::Dark, "dark"_L1}}) {
            setTheme(theme);
            for (int i = 0; i < m_pages->count(); ++i) {
                m_pages->setCurrentIndex(i);
                QCoreApplication::processEvents();
                const QString file = u"%1-%2-%3.png"_s.arg(m_pages->widget(i)->objectName(), language, name);
                saved &= grab().save(target.filePath(file));
            }
        }
    }
    return saved;
}

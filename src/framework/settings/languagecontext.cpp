#include "framework/settings/languagecontext.h"

#include "framework/settings/startlanguage.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QLocale>
#include <QLoggingCategory>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcLanguage, "spinbar.language")

namespace {

constexpr qsizetype LanguageNameLength = 5;
constexpr qsizetype LanguageTailLength = 8; // "en_US.qm"

bool searchesApplicationFolder = false;

} // namespace

LanguageContext *LanguageContext::Instance()
{
    static LanguageContext context;
    return &context;
}

LanguageContext::LanguageContext()
{
    findFiles(u":"_s);
    if (searchesApplicationFolder)
        findFiles(QCoreApplication::applicationDirPath());
}

void LanguageContext::setSearchesApplicationFolder(bool enabled)
{
    searchesApplicationFolder = enabled;
}

void LanguageContext::findFiles(const QString &folder)
{
    QDirIterator files(folder, {u"*.qm"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        m_files[path.right(LanguageTailLength).left(LanguageNameLength)].append(path);
    }
}

QString LanguageContext::systemLanguage()
{
    return QLocale::system().name();
}

QStringList LanguageContext::availableLanguages()
{
    return Instance()->m_files.keys();
}

bool LanguageContext::hasLanguage(const QString &language)
{
    return Instance()->m_files.contains(language);
}

QString LanguageContext::currentLanguage()
{
    return Instance()->m_currentLanguage;
}

QString LanguageContext::setLanguage(const QString &language)
{
    LanguageContext *context = Instance();
    context->install(nearestLanguage(language, systemLanguage(), availableLanguages()));
    return context->m_currentLanguage;
}

void LanguageContext::install(const QString &language)
{
    const auto files = m_files.constFind(language);
    if (files == m_files.constEnd())
        return;
    for (const QString &file : *files) {
        auto translator = std::make_unique<QTranslator>();
        if (!translator->load(file)) {
            qCWarning(lcLanguage) << "cannot load" << file;
            continue;
        }
        QTranslator *installed = translator.release();
        installed->setParent(QCoreApplication::instance());
        QCoreApplication::installTranslator(installed);
    }
    m_currentLanguage = language;
}

void LanguageContext::loadAllLanguages()
{
    for (auto it = m_files.constBegin(); it != m_files.constEnd(); ++it) {
        QList<QTranslator *> &translators = m_loadedTranslators[it.key()];
        for (const QString &file : it.value()) {
            auto translator = std::make_unique<QTranslator>(this);
            if (translator->load(file))
                translators.append(translator.release());
        }
    }
}

QString LanguageContext::translate(const QString &context, const QString &text, const QString &language)
{
    LanguageContext *self = Instance();
    if (self->m_loadedTranslators.isEmpty())
        self->loadAllLanguages();

    // A name with "-" is tried once more with "_"; there is nothing further to try for a name without one.
    QString key = language;
    if (!self->m_loadedTranslators.contains(key))
        key.replace('-'_L1, '_'_L1);

    // The catalogues are keyed by UTF-8. The local 8-bit encoding, which differs from it on Windows, would
    // miss every source text that is not ASCII.
    const QByteArray contextBytes = context.toUtf8();
    const QByteArray textBytes = text.toUtf8();
    const QList<QTranslator *> translators = self->m_loadedTranslators.value(key);
    for (const QTranslator *translator : translators) {
        const QString answer = translator->translate(contextBytes.constData(), textBytes.constData());
        if (!answer.isEmpty())
            return answer;
    }
    return text;
}

QMap<QString, QString> LanguageContext::multilingualTranslate(const QString &context, const QString &text)
{
    QMap<QString, QString> translations{{QString(), text}};
    const QStringList languages = availableLanguages();
    for (const QString &language : languages)
        translations.insert(language, translate(context, text, language));
    return translations;
}

QString LanguageContext::AutoDetectLanguage(const QString &settingsFile)
{
    const QString settings = settingsTextForLanguage(settingsFile);
    if (settings.contains("<Language>en_US</Language>"_L1))
        return u"en_US"_s;
    if (settings.contains("<Language>ru_RU</Language>"_L1))
        return u"ru_RU"_s;
    return systemLanguage().startsWith("ru"_L1) ? u"ru_RU"_s : u"en_US"_s;
}

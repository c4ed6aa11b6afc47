#include "ui/languagequestion.h"

#include "framework/settings/languagecontext.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct BothForms
{
    QString running;
    QString chosen;
};

BothForms bothForms(const char *text, const QString &language)
{
    return {QCoreApplication::translate("Generic", text),
            LanguageContext::translate(u"Generic"_s, QString::fromUtf8(text), language)};
}

QString caption(const BothForms &forms)
{
    return forms.chosen == forms.running ? forms.running : forms.running + '/'_L1 + forms.chosen;
}

} // namespace

LanguageQuestion LanguageQuestion::forLanguage(const QString &language)
{
    const BothForms title = bothForms(QT_TRANSLATE_NOOP("Generic", "Language change"), language);
    const BothForms text = bothForms(
        QT_TRANSLATE_NOOP("Generic",
                          "To translate the app to the other language a restart is required. \nRestart now?"),
        language);
    LanguageQuestion question{
        title.running + '/'_L1 + title.chosen, text.running + "\r\n\r\n"_L1 + text.chosen, {}};
    for (const char *button : {QT_TRANSLATE_NOOP("Generic", "OK"), QT_TRANSLATE_NOOP("Generic", "Not now"),
                               QT_TRANSLATE_NOOP("Generic", "Cancel")})
        question.buttons += caption(bothForms(button, language));
    return question;
}

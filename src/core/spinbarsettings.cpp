#include "core/spinbarsettings.h"

#include <QCoreApplication>
#include <QMetaEnum>

namespace {

template <typename Enumeration>
QStringList captionsOf()
{
    const QMetaEnum keys = QMetaEnum::fromType<Enumeration>();
    QStringList captions;
    for (int i = 0; i < keys.keyCount(); ++i)
        captions.append(QCoreApplication::translate(keys.enumName(), keys.key(i)));
    return captions;
}

} // namespace

SpinbarSettings::SpinbarSettings(const QString &filepath, QObject *parent)
    : NTSettings(filepath, true, parent, XML)
    , m_categoryCaptions{QCoreApplication::translate("Generic", "1.Common"),
                         QCoreApplication::translate("Generic", "2.Experiment"),
                         QCoreApplication::translate("Generic", "3.Detection")}
    , m_enumeratorCaptions(captionsOf<SpinbarLanguage>() + captionsOf<StyleHelper::ColorThemeEnum>()
                           + captionsOf<ExportBehaviorOption>() + captionsOf<CurlySpinbarDevice::RodentMode>()
                           + captionsOf<CurlySpinbar::OutputSpeedDimension>())
{
    qRegisterMetaType<SpinbarLanguage>();
    qRegisterMetaType<ExportBehaviorOption>();
}

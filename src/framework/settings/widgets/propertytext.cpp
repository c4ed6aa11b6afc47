#include "framework/settings/widgets/propertytext.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

QString PropertyText::translated(const QString &source)
{
    // An empty source would ask for the catalogue's header.
    return source.isEmpty() ? source : QCoreApplication::translate("Generic", source.toUtf8().constData());
}

QString PropertyText::suffixOrPrefix(const QString &source)
{
    if (source.startsWith("!-"_L1))
        return source.sliced(2);
    if (source.startsWith(' '_L1))
        return ' '_L1 + translated(source.sliced(1));
    return translated(source);
}

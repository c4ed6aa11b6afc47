#include "framework/common/globalconsolewriter.h"

#include "framework/common/globalconsole.h"

GlobalConsoleWriter &GlobalConsoleWriter::operator<<(char value)
{
    return *this << QString(QLatin1Char(value));
}

GlobalConsoleWriter &GlobalConsoleWriter::operator<<(short value)
{
    return *this << QString::number(value);
}

GlobalConsoleWriter &GlobalConsoleWriter::operator<<(int value)
{
    return *this << QString::number(value);
}

GlobalConsoleWriter &GlobalConsoleWriter::operator<<(float value)
{
    return *this << double(value);
}

GlobalConsoleWriter &GlobalConsoleWriter::operator<<(double value)
{
    return *this << QString::number(value, 'g', 6);
}

GlobalConsoleWriter &GlobalConsoleWriter::operator<<(const char *value)
{
    return *this << QString::fromUtf8(value);
}

GlobalConsoleWriter &GlobalConsoleWriter::operator<<(const QString &value)
{
    GlobalConsole::writeLine(value);
    return *this;
}

GlobalConsoleWriter &ntDebug()
{
    static GlobalConsoleWriter writer;
    return writer;
}

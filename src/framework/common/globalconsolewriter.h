#pragma once

#include <QString>

/// Writes to the console as to a stream. Each operand is an entry of its own, without a type.
class GlobalConsoleWriter
{
public:
    GlobalConsoleWriter &operator<<(char value);
    GlobalConsoleWriter &operator<<(short value);
    GlobalConsoleWriter &operator<<(int value);
    GlobalConsoleWriter &operator<<(float value);
    GlobalConsoleWriter &operator<<(double value);
    GlobalConsoleWriter &operator<<(const char *value);
    GlobalConsoleWriter &operator<<(const QString &value);
};

GlobalConsoleWriter &ntDebug();

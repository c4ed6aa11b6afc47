#pragma once

#include <QTest>

/// Declares the columns of a test's table and gives what adds its rows:
/// const auto row = columns<QString, int>("text", "length"); row("short", "ab", 2);
template <typename... Values, typename... Names>
auto columns(Names... names)
{
    (QTest::addColumn<Values>(names), ...);
    return [](const char *tag, const Values &...values) { (QTest::newRow(tag) << ... << values); };
}

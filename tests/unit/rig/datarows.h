// Test data, a row a line: the columns by their types, and a row by its name with a value for each.
#pragma once

#include <QtTest>

#include <initializer_list>

namespace VASK
{
template <typename... Types> void addColumns(std::initializer_list<const char *> names)
{
    Q_ASSERT(names.size() == sizeof...(Types));
    const char *const *name = names.begin();
    (QTest::addColumn<Types>(*name++), ...);
}

/// A text stands for a QString, an enumerator for its number.
template <typename Value> void addCell(QTestData &row, const Value &value)
{
    if constexpr (std::is_enum_v<Value>)
        row << int(value);
    else
        row << value;
}

template <typename... Values> void addRow(const QString &name, const Values &...values)
{
    QTestData &row = QTest::newRow(qPrintable(name));
    (addCell(row, values), ...);
}
} // namespace VASK

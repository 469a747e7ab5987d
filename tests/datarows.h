// Test data, a row a line: the columns by their types and names, a row by its name with a value for each
// column, and the values of the row that a test is made with.
#pragma once

#include <QtTest>

#include <initializer_list>
#include <tuple>

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

/// A row each, with its own name as the one cell.
template <typename Cell = QString>
void addNames(const char *column, std::initializer_list<const char *> names)
{
    QTest::addColumn<Cell>(column);
    for (const char *name : names)
        QTest::newRow(name) << Cell(name);
}

/// Columns whose rows are converted to their types.
template <typename... Types> class DataRows
{
public:
    DataRows(std::initializer_list<const char *> names) { addColumns<Types...>(names); }
    void operator()(const QString &name, const Types &...values) const
    {
        QTestData &row = QTest::newRow(qPrintable(name));
        ((row << values), ...);
    }
    /// Named by its first cell.
    void operator()(const Types &...values) const { (*this)(nameOf(values...), values...); }

private:
    template <typename First, typename... Others> static QString nameOf(const First &first, const Others &...)
    {
        if constexpr (std::is_same_v<First, QStringList>)
            return first.join(' ');
        else
            return first;
    }
};

template <typename... Types, std::size_t... At>
std::tuple<Types...> cells(const char *const *names, std::index_sequence<At...>)
{
    return {*static_cast<Types *>(QTest::qData(names[At], qMetaTypeId<Types>()))...};
}

/// Cells of the present row, by the names of their columns.
template <typename... Types> std::tuple<Types...> fetched(const char *const (&names)[sizeof...(Types)])
{
    return cells<Types...>(names, std::index_sequence_for<Types...>());
}

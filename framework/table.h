// Constant tables whose rows serve numbers, and how the row of a number is found: the one shape of the tables
// on the way of a value. Any thread.
#pragma once

#include <cstddef>
#include <map>

namespace VASK
{
/// A constant table, wherever it stands.
template <class Row> class Table
{
public:
    template <size_t count> constexpr Table(const Row (&rows)[count]) : m_begin(rows), m_end(rows + count) {}
    constexpr const Row *begin() const { return m_begin; }
    constexpr const Row *end() const { return m_end; }

private:
    const Row *m_begin;
    const Row *m_end;
};

/// The row that serves a number, null if none does, and what the number is in its span.
template <class Row> struct TableEntry {
    const Row *row = nullptr;
    int member = 0; ///< number of the layer, input, port ...
    int place = 0;  ///< in the block of that member
};

/// The rows of several tables by the numbers that they serve. A row tells them by its span.
template <class Index, class Row> class TableIndex
{
public:
    TableIndex() = default;
    template <class Tables> explicit TableIndex(const Tables &tables)
    {
        for (const Table<Row> &table : tables)
            add(table);
    }
    /// The first row that serves a number counts.
    void add(const Table<Row> &table)
    {
        for (const Row &row : table)
            row.span.forEach([this, &row](Index index, int member, int place) {
                m_entries.insert({index, {&row, member, place}});
            });
    }
    TableEntry<Row> find(Index index) const
    {
        const auto found = m_entries.find(index);
        return found == m_entries.end() ? TableEntry<Row>() : found->second;
    }

private:
    std::map<Index, TableEntry<Row>> m_entries;
};
} // namespace VASK

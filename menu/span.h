// Which numbers a row of a table serves: one, several behind each other, or the same of every member of a
// family of layers, inputs, ports or registers. Data without state; any thread.
#pragma once

#include "menu/nth.h"

namespace VASK
{
/// How the members of a family lie in a number space.
struct Family {
    int stride; ///< from one member to the next
    int count;
    int firstMember = 0; ///< number of the first of them
};

template <class Index> struct Span {
    Index first; ///< of the first member
    Index last;
    Family family = {0, 1};

    constexpr Span(Index only) : first(only), last(only) {}
    constexpr Span(Index from, Index to, Family of = {0, 1}) : first(from), last(to), family(of) {}

    /// Calls work(index, member, place) for every number in it.
    template <class Work> void forEach(Work work) const
    {
        for (int n = 0; n < family.count; ++n)
            for (int place = 0; place <= int(last - first); ++place)
                work(nth(nth(first, place), n, family.stride), family.firstMember + n, place);
    }
};

/// The numbers from one to another.
template <class Index> constexpr Span<Index> range(Index first, Index last)
{
    return {first, last};
}
/// The number of every member that corresponds to one of the first member.
template <class Index> constexpr Span<Index> each(Family family, Index ofFirst)
{
    return {ofFirst, ofFirst, family};
}
template <class Index> constexpr Span<Index> each(Family family, Index first, Index last)
{
    return {first, last, family};
}
} // namespace VASK

// How a number is found behind the first one of a family: layers, inputs, ports and rows of a kind have
// numbers at equal distances in each of the number spaces.
#pragma once

#include <type_traits>

namespace VASK
{
/// The number that stands to the n-th member, from 0, as this one stands to the first.
template <class Index> constexpr Index nth(Index ofFirst, int n, int stride = 1)
{
    static_assert(std::is_enum_v<Index>);
    return Index(ofFirst + n * stride);
}
} // namespace VASK

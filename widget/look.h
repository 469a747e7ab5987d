// The colours of the panel's look, each in one place. Any thread.
#pragma once

#include <QString>

namespace look
{
constexpr char text[] = "#b8b4cc";
constexpr char disabled[] = "#54535c";
constexpr char focus[] = "#3939ad";
constexpr char edited[] = "#ebc613";
constexpr char pass[] = "#17BC1E";
constexpr char fail[] = "#C40F0F";

inline const char *ofText(bool enabled)
{
    return enabled ? text : disabled;
}

/// A style sheet in which "$text", "$disabled", "$focus", "$edited", "$pass" and "$fail" stand for the
/// colours.
QString sheet(const char *style);
} // namespace look

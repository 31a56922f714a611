#pragma once

#include <compare>

namespace platform {

/// A moment of wall-clock time. It is what the user's clock says, so a change of the clock moves
/// the distance between two of them, and time goes on while the machine sleeps.
struct Date {
    /// Since 1 January 2001, 00:00 UTC. May be infinite; two such dates still compare.
    double seconds = 0;

    /// The present moment. The only clock of the program.
    [[nodiscard]] static Date now();

    auto operator<=>(const Date&) const = default;
};

/// Seconds from `earlier` to `later`.
[[nodiscard]] constexpr double operator-(Date later, Date earlier) {
    return later.seconds - earlier.seconds;
}

[[nodiscard]] constexpr Date operator+(Date date, double seconds) {
    return {date.seconds + seconds};
}

} // namespace platform

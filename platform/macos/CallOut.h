#pragma once

namespace platform::macos {

/// Runs a part of the program that the system called. An exception must not unwind through the
/// system's own frames, where it would leave locks held and events half handled: it ends the
/// process here.
template <typename Call>
decltype(auto) callOut(const Call& call) noexcept {
    return call();
}

} // namespace platform::macos

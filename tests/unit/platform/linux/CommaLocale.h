#pragma once

#include <string>

/// Runs the process in a locale that writes 1,5 for one and a half, for as long as it lives. Uses
/// one that is installed, or makes one.
class CommaLocale {
  public:
    CommaLocale();
    ~CommaLocale();
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    /// False when there is none and none can be made: the "locales" package is missing.
    [[nodiscard]] static bool isInForce();
};

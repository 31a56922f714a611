#pragma once

#include <string>

namespace simulated {

/// The program as it is installed.
struct Bundle {
    /// Empty where the program runs outside a bundle.
    std::string identifier = "io.github.quellbar.Quellbar";
};

} // namespace simulated

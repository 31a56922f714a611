#pragma once

#include <filesystem>
#include <string>

namespace simulated {

/// The program as it is installed. What lies in its folder is among the desktop's files.
struct Bundle {
    /// Empty where the program runs outside a bundle.
    std::string identifier = "io.github.quellbar.Quellbar";

    /// The folder of the main bundle. Its images lie directly in it.
    std::filesystem::path path = "/Applications/Quellbar";
};

} // namespace simulated

#pragma once

#include "platform/Color.h"
#include "platform/Font.h"

#include <string>
#include <string_view>

namespace simulated {

/// Whether the desktop is light or dark, which decides what its colours look like.
struct Appearance {
    bool isDark = false;
};

// How a colour and a font are written in the record of calls: "systemRed", "boldSystem 13".
[[nodiscard]] std::string_view nameOf(platform::Color color);
[[nodiscard]] std::string nameOf(platform::Font font);

} // namespace simulated

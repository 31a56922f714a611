#pragma once

#include "platform/Color.h"
#include "platform/Font.h"

#include <optional>
#include <string>

namespace platform {

/// A text (UTF-8) that looks the same from end to end. An absent attribute is the control's own.
struct AttributedString {
    std::string string;
    std::optional<Color> foregroundColor = std::nullopt;
    std::optional<Font> font = std::nullopt;
    std::optional<int> baselineOffset = std::nullopt; ///< points, upward

    bool operator==(const AttributedString&) const = default;
};

} // namespace platform

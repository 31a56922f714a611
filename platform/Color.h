#pragma once

namespace platform {

/// The desktop's own colours, by what they are for. They follow the light or dark appearance: what
/// is drawn with one looks right in the appearance of the moment of drawing.
enum class Color {
    label,
    secondaryLabel,
    white,
    systemRed,
    selectedContentBackground,
    controlBackground,
    controlAccent,
};

/// A colour frozen to what it looks like in the appearance of one moment. Components from 0 to 1.
struct CGColor {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    bool operator==(const CGColor&) const = default;
};

/// Freezes `color` as it looks now.
[[nodiscard]] CGColor cgColor(Color color);

} // namespace platform

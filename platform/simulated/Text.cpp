#include "platform/simulated/Text.h"

#include <array>
#include <charconv>

namespace simulated {

std::string text(double number) {
    std::array<char, 32> digits{};
    auto* const end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    return {digits.begin(), end};
}

std::string text(platform::Size size) {
    return text(size.width) + "x" + text(size.height);
}

std::string text(platform::Point point) {
    return "(" + text(point.x) + ", " + text(point.y) + ")";
}

std::string text(platform::Rect rect) {
    return text(rect.origin) + " " + text(rect.size);
}

} // namespace simulated

#pragma once

#include "platform/Geometry.h"

#include <string>

namespace simulated {

// How numbers and areas are written in the record of calls: "0.5", "260x22", "(5, 0)",
// "(5, 0) 250x22".
[[nodiscard]] std::string text(double number);
[[nodiscard]] std::string text(platform::Size size);
[[nodiscard]] std::string text(platform::Point point);
[[nodiscard]] std::string text(platform::Rect rect);

} // namespace simulated

#include "settings/ScreenCorner.h"

#include <algorithm>

std::string_view rawValue(ScreenCorner corner) {
    switch (corner) {
    case ScreenCorner::topLeft:
        return "topLeft";
    case ScreenCorner::topRight:
        return "topRight";
    case ScreenCorner::bottomLeft:
        return "bottomLeft";
    case ScreenCorner::bottomRight:
        return "bottomRight";
    }
    return {};
}

std::optional<ScreenCorner> screenCornerFromRawValue(std::string_view name) {
    const auto* const corner = std::ranges::find(allScreenCorners, name, rawValue);
    return corner == allScreenCorners.end() ? std::nullopt : std::optional(*corner);
}

#include "platform/Color.h"

#include "platform/macos/AppearanceConversions.h"

namespace platform {

CGColor cgColor(Color color) {
    return macos::cgColorRefToCGColor(macos::colorToNSColor(color).CGColor);
}

} // namespace platform

#include "platform/Bundle.h"

#include "platform/macos/Conversions.h"

namespace platform {

Bundle& Bundle::main() {
    static auto* const main = new Bundle;
    return *main;
}

std::string_view Bundle::bundleIdentifier() const {
    static const auto* const identifier =
        new std::string(macos::nsStringToString(NSBundle.mainBundle.bundleIdentifier));
    return *identifier;
}

} // namespace platform

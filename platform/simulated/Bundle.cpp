#include "platform/Bundle.h"

#include "platform/simulated/Desktop.h"

namespace platform {

Bundle& Bundle::main() {
    static auto* const bundle = new Bundle;
    return *bundle;
}

std::string_view Bundle::bundleIdentifier() const {
    return simulated::desktop().bundle.identifier;
}

} // namespace platform

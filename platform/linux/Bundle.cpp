#include "platform/Bundle.h"

#include "platform/linux/ApplicationId.h"

namespace platform {

Bundle& Bundle::main() {
    static Bundle instance;
    return instance;
}

std::string_view Bundle::bundleIdentifier() const {
    return linux_host::applicationId;
}

} // namespace platform

#include "platform/Screen.h"

#include "platform/linux/x11/ScreenLayout.h"

namespace platform {

std::span<const Screen> screens() {
    return linux_host::ScreenLayout::shared().screens();
}

} // namespace platform

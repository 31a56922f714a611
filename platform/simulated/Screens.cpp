#include "platform/simulated/Screens.h"

#include "platform/Pointer.h"
#include "platform/simulated/Desktop.h"

namespace platform {

using simulated::desktop;

Point mouseLocation() {
    desktop().calls.record("mouseLocation");
    return desktop().screens.pointer;
}

std::span<const Screen> screens() {
    desktop().calls.record("screens");
    return desktop().screens.screens;
}

} // namespace platform

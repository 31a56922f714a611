#include "platform/Pointer.h"

#include "platform/macos/Conversions.h"

namespace platform {

Point mouseLocation() {
    return macos::nsPointToPoint(NSEvent.mouseLocation);
}

} // namespace platform

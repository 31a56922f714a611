#include "platform/Screen.h"

#include "platform/macos/Conversions.h"

#include <vector>

namespace platform {

std::span<const Screen> screens() {
    // What the last call lent out. It keeps its memory, because this is asked at every poll.
    static auto* const lent = new std::vector<Screen>;
    lent->clear();
    for (NSScreen* screen in NSScreen.screens) {
        lent->push_back({macos::nsRectToRect(screen.frame)});
    }
    return *lent;
}

} // namespace platform

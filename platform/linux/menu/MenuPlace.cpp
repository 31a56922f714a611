#include "platform/linux/menu/MenuPlace.h"

#include <algorithm>

namespace platform::linux_host {

namespace {

// Where a length begins, so that it lies within another one; at the start if it is longer.
int clamped(int begin, int length, int outerBegin, int outerLength) {
    return std::max(outerBegin, std::min(begin, outerBegin + outerLength - length));
}

} // namespace

QPoint menuPlace(const QRect& item, QSize menu, const QRect& screen) {
    const int below = item.y() + item.height();
    const bool fitsBelow = below + menu.height() <= screen.y() + screen.height();
    return {clamped(item.x(), menu.width(), screen.x(), screen.width()),
            clamped(fitsBelow ? below : item.y() - menu.height(), menu.height(), screen.y(),
                    screen.height())};
}

} // namespace platform::linux_host

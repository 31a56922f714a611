#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace platform::linux_host {

/// The top left corner of a menu that drops from an item on a screen: under the item, above it when
/// there is no room below, and on the screen in any case. All in the same coordinates, y downward.
[[nodiscard]] QPoint menuPlace(const QRect& item, QSize menu, const QRect& screen);

} // namespace platform::linux_host

#pragma once

#include "platform/linux/statusitem/SystemTray.h"

#include <QImage>
#include <QPalette>

namespace platform::linux_host {

/// The palette for what is painted in a tray: that of the program, with the text and the ground of
/// the tray as far as they are known. `ground` is what the tray shows there; null if not known.
///
/// A tray that names no colour may be dark on a light desktop. Text that could not be read on such
/// a ground is black or white instead.
[[nodiscard]] QPalette surroundingsIn(const TrayStyle& style, const QImage& ground,
                                      const QPalette& program);

} // namespace platform::linux_host

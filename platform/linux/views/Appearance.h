#pragma once

#include "platform/Color.h"
#include "platform/Font.h"

#include <QColor>
#include <QFont>
#include <QPalette>

/// The desktop's colours and fonts, as its theme has given them to Qt.
namespace platform::linux_host {

/// Whether the palette is that of a dark appearance: its text is lighter than its ground.
[[nodiscard]] bool isDark(const QPalette& palette);

/// What the colour is in this palette.
[[nodiscard]] QColor qColor(Color color, const QPalette& palette);

/// A font in the desktop's own family. Sizes are Qt's logical pixels, which are the points of the
/// seam. The menus' standard size is the desktop's own; that of the system font is the one that the
/// frames of the windows are made for.
[[nodiscard]] QFont qFont(const Font& font);

} // namespace platform::linux_host

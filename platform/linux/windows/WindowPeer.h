#pragma once

#include "platform/Window.h"

#include <QPointer>
#include <QWidget>
#include <memory>

namespace platform {

/// A window of the program, which owns its widget, or one that belongs to somebody else, as a
/// menu's does, and that is only named.
struct Window::Peer {
    QPointer<QWidget> widget;
    std::shared_ptr<View> contentView; ///< null in a window that is only named
};

} // namespace platform

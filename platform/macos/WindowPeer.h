#pragma once

#include "platform/Window.h"
#include "platform/macos/Holder.h"

#import <AppKit/AppKit.h>

/// A window that the program made, and that can tell which one of the seam's it is.
@interface QuellbarWindow : NSWindow
/// Null when it is gone. Not called `window`, which AppKit asks many of its objects for.
@property (nonatomic, assign) platform::Window* seamWindow;
@end

struct platform::Window::Peer {
    explicit Peer(macos::Object<QuellbarWindow*> made) : window(made.get()), own(std::move(made)) {}
    /// One of the system's, such as a menu's. It is not kept: a view that kept its menu's window
    /// would keep the menu from closing it for good.
    explicit Peer(NSWindow* lent) : window(lent) {}

    NSWindow* window;
    macos::Object<QuellbarWindow*> own; // the same window; nil for one of the system's
    std::shared_ptr<View> contentView;  // of an own one
};

namespace platform::macos {

/// The seam's window, if the program made `window`; null for any other and for nil.
[[nodiscard]] Window* ownWindowOf(NSWindow* window);

} // namespace platform::macos

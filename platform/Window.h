#pragma once

#include "platform/View.h"

#include <memory>
#include <string_view>

namespace platform {

/// A titled window of fixed size that the user can close but not minimize by its own controls.
/// Closing only hides it. Stands for NSWindow (titled and closable, buffered, not deferred, not
/// released when closed) on macOS, a top-level QWidget on Linux.
class Window {
  public:
    /// Not shown yet. `contentSize` is the size of the inner area in points.
    Window(Size contentSize, std::string_view title);

    /// Puts the window into the middle of the screen.
    void center();

    /// The view that fills the window; origin at the bottom left. Null where there is none.
    [[nodiscard]] View* contentView() const;

    /// Shows the window, over the program's other windows, and gives it the keyboard.
    void makeKeyAndOrderFront();

    /// Gives the keyboard within the window to `view`, if that accepts it; answers whether it did.
    bool makeFirstResponder(View& view);

    struct Peer;
    /// For the windows that the host makes, such as a menu's.
    explicit Window(std::unique_ptr<Peer> peer);
    ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    [[nodiscard]] Peer& peer() const { return *peer_; }

  private:
    std::unique_ptr<Peer> peer_;
};

} // namespace platform

#pragma once

#include "platform/Screen.h"
#include "platform/linux/x11/ScreenSpace.h"

#include <span>
#include <vector>

namespace platform::linux_host {

/// The screens and the coordinates that they span. They are read again only when the X server or Qt
/// has said that something changed, so asking for them costs nothing.
class ScreenLayout {
  public:
    static ScreenLayout& shared();

    /// Borrowed until the next turn of the event loop.
    [[nodiscard]] std::span<const Screen> screens();
    [[nodiscard]] const ScreenSpace& space();

    ScreenLayout(const ScreenLayout&) = delete;
    ScreenLayout& operator=(const ScreenLayout&) = delete;

  private:
    ScreenLayout();
    ~ScreenLayout() = default;

    void update();

    bool isStale_ = true;
    ScreenSpace space_;
    std::vector<Screen> screens_;
};

} // namespace platform::linux_host

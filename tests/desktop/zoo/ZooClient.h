#pragma once

#include "tests/desktop/support/WindowSpec.h"
#include "tests/desktop/support/XDisplay.h"

#include <functional>
#include <vector>

namespace desktop {

/// One connection of the test application, and the windows that were opened on it.
class ZooClient {
  public:
    ZooClient() : display_("") {} // the display of the environment

    [[nodiscard]] int descriptor() const;

    xcb_window_t open(const WindowSpec& spec);
    [[nodiscard]] bool owns(xcb_window_t window) const;
    void destroy(xcb_window_t window) const;
    void sync() const { display_.sync(); }

    /// Takes the events that are here and calls `onMinimized` for every window that the manager
    /// minimized. Answers whether there were any.
    bool dispatch(const std::function<void(xcb_window_t)>& onMinimized) const;

  private:
    [[nodiscard]] xcb_window_t create(const WindowSpec& spec) const;
    void name(xcb_window_t window, const WindowSpec& spec) const;
    void hint(xcb_window_t window, const WindowSpec& spec) const;
    void classify(xcb_window_t window, const WindowSpec& spec) const;
    void setAtom(xcb_window_t window, std::string_view property, std::string_view value) const;
    [[nodiscard]] bool saysMinimized(const xcb_generic_event_t& event) const;

    XDisplay display_;
    std::vector<xcb_window_t> windows_;
};

} // namespace desktop

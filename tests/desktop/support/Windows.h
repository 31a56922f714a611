#pragma once

#include "tests/desktop/support/WindowSpec.h"
#include "tests/desktop/support/XDisplay.h"

#include <functional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace desktop {

/// The windows of a desktop as its window manager tells of them, and what a user's task bar would
/// ask of it. Waiting is done on the manager's own events and throws `TimedOut`.
class Windows {
  public:
    explicit Windows(const std::string& display);

    /// The windows that the manager looks after, oldest first.
    [[nodiscard]] std::vector<xcb_window_t> managed() const;

    /// Minimized, as the manager says. A window of another virtual desktop is not hidden.
    [[nodiscard]] bool isHidden(xcb_window_t window) const;
    [[nodiscard]] bool hasState(xcb_window_t window, std::string_view state) const;
    [[nodiscard]] bool exists(xcb_window_t window) const;
    [[nodiscard]] bool isOnScreen(xcb_window_t window) const;
    [[nodiscard]] std::uint32_t currentDesktop() const;

    [[nodiscard]] std::string title(xcb_window_t window) const;
    /// The application's name, as the window tells it (the class of WM_CLASS).
    [[nodiscard]] std::string application(xcb_window_t window) const;
    [[nodiscard]] bool hasType(xcb_window_t window, WindowType type) const;

    void waitUntilManaged(std::span<const xcb_window_t> windows) const;
    void waitUntilHidden(std::span<const xcb_window_t> windows) const;
    void waitUntilShown(std::span<const xcb_window_t> windows) const;
    void waitUntilGone(std::span<const xcb_window_t> windows) const;

    void waitUntilManaged(xcb_window_t window) const { waitUntilManaged({&window, 1}); }
    void waitUntilHidden(xcb_window_t window) const { waitUntilHidden({&window, 1}); }
    void waitUntilShown(xcb_window_t window) const { waitUntilShown({&window, 1}); }
    void waitUntilGone(xcb_window_t window) const { waitUntilGone({&window, 1}); }

    void minimize(xcb_window_t window) const;
    /// Brings a minimized window back, as a click on its task-bar entry does.
    void restore(xcb_window_t window) const;

    /// Moves a window's frame; in pixels from the top left.
    void move(xcb_window_t window, int x, int y) const;

    /// Returns when a manager that has announced itself takes windows, too.
    void waitForManager() const;

    /// Returns when the manager has carried out all that it was asked before, by anyone. It is
    /// asked to do something in turn and seen to have done it.
    void settle() const;

  private:
    using Condition = std::function<bool(const std::vector<std::uint32_t>& value)>;

    void waitForProperty(std::span<const xcb_window_t> windows, std::string_view property,
                         const Condition& isMet, const std::string& awaited) const;
    /// Has changes told from now on, and answers which windows do not meet the condition yet.
    [[nodiscard]] std::set<xcb_window_t> watch(std::span<const xcb_window_t> windows,
                                               std::string_view property,
                                               const Condition& isMet) const;
    [[nodiscard]] xcb_window_t nextChange(const std::string& awaited,
                                          const Deadline& deadline) const;
    [[nodiscard]] Condition containsState(std::string_view state) const;
    [[nodiscard]] xcb_window_t createPlainWindow() const;
    void destroy(xcb_window_t window) const;

    XDisplay display_;
};

} // namespace desktop

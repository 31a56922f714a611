#pragma once

#include "tests/desktop/support/Process.h"
#include "tests/desktop/support/VirtualDesktop.h"
#include "tests/desktop/support/Windows.h"

#include <string>
#include <vector>

namespace demo {

/// Real programs with real windows, set out on a desktop as a person might have them: two
/// terminals, a clock, a calculator, notes with a question in front of them, a calendar, a panel,
/// and one window that is minimized already.
class Stage {
  public:
    explicit Stage(const desktop::VirtualDesktop& desktop);

    /// Starts everything, one after the other, and returns when every window is in its place.
    void set();

    /// The windows of the programs, in the order in which they were opened.
    [[nodiscard]] const std::vector<xcb_window_t>& windows() const { return opened_; }

  private:
    struct Place {
        std::int16_t x;
        std::int16_t y;
    };

    void paintBackground() const;
    void openPanel();
    void openTerminals();
    void openSmallPrograms();
    void openDialogs();
    xcb_window_t open(std::vector<std::string> arguments);
    void open(std::vector<std::string> arguments, Place place);
    [[nodiscard]] xcb_window_t waitForNewWindow() const;
    [[nodiscard]] std::filesystem::path write(const std::string& name, std::string_view text) const;

    const desktop::VirtualDesktop& desktop_;
    desktop::Windows view_;
    std::vector<desktop::Process> processes_;
    std::vector<xcb_window_t> opened_;
};

} // namespace demo

#include "HiddenWatch.h"

#include "tests/desktop/support/Deadline.h"

#include <algorithm>

namespace bench {

HiddenWatch::HiddenWatch(const std::string& display, std::vector<xcb_window_t> windows)
    : display_(display), windows_(std::move(windows)) {
    for (const xcb_window_t window : windows_) {
        display_.selectEvents(window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    }
    reset();
}

void HiddenWatch::reset() {
    display_.sync();
    while (display_.pendingEvent()) {
    }
    unchanged_ = {windows_.begin(), windows_.end()};
}

HiddenWatch::Moment HiddenWatch::waitForLast() {
    while (!unchanged_.empty()) {
        noteNextChange();
    }
    // A change of state need not be the one that is waited for.
    while (!allHidden()) {
        noteNextChange();
    }
    return lastChange_;
}

void HiddenWatch::noteNextChange() {
    const auto event =
        display_.nextEvent("a window to be minimized", desktop::Deadline(std::chrono::seconds{3}));
    if (desktop::XDisplay::kindOf(*event) != XCB_PROPERTY_NOTIFY) {
        return;
    }
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
    if (change.atom == display_.atom("_NET_WM_STATE")) {
        lastChange_ = std::chrono::steady_clock::now();
        unchanged_.erase(change.window);
    }
}

bool HiddenWatch::allHidden() const {
    const xcb_atom_t hidden = display_.atom("_NET_WM_STATE_HIDDEN");
    const auto states = display_.properties(windows_, "_NET_WM_STATE");
    return std::ranges::all_of(states, [hidden](const std::vector<std::uint32_t>& state) {
        return std::ranges::count(state, hidden) > 0;
    });
}

} // namespace bench

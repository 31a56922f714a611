#include "tests/desktop/support/MinimizeRequests.h"

#include <algorithm>

namespace desktop {

// Messages to the manager are sent to whoever manages windows or watches them come and go.
MinimizeRequests::MinimizeRequests(const std::string& display)
    : display_(display), changeState_(display_.atom("WM_CHANGE_STATE")) {
    display_.selectEvents(display_.root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    display_.sync();
}

const std::vector<xcb_window_t>& MinimizeRequests::soFar() {
    display_.sync();
    while (const auto event = display_.pendingEvent()) {
        note(*event);
    }
    return windows_;
}

std::size_t MinimizeRequests::count(xcb_window_t window) {
    return static_cast<std::size_t>(std::ranges::count(soFar(), window));
}

void MinimizeRequests::waitFor(std::size_t count) {
    const Deadline deadline;
    while (soFar().size() < count) {
        note(*display_.nextEvent("requests to minimize", deadline));
    }
}

void MinimizeRequests::note(const xcb_generic_event_t& event) {
    if (XDisplay::kindOf(event) != XCB_CLIENT_MESSAGE) {
        return;
    }
    const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
    if (message.type == changeState_) {
        windows_.push_back(message.window);
    }
}

} // namespace desktop

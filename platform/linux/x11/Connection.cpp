#include "platform/linux/x11/Connection.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <xcb/randr.h>
#include <xcb/res.h>

namespace platform::linux_host {

namespace {

// Asked for ahead of the first use, so that finding out what the server can do costs no round trip
// of its own.
void prefetchExtensions(xcb_connection_t* connection) {
    for (xcb_extension_t* const extension : {&xcb_res_id, &xcb_randr_id}) {
        xcb_prefetch_extension_data(connection, extension);
    }
}

const xcb_screen_t* screenOf(const xcb_setup_t* setup, int number) {
    auto screens = xcb_setup_roots_iterator(setup);
    for (; number > 0 && screens.rem > 1; --number) {
        xcb_screen_next(&screens);
    }
    return screens.data;
}

} // namespace

Connection& Connection::shared() {
    static Connection* const connection = open();
    return *connection;
}

Connection* Connection::open() {
    int screenNumber = 0;
    xcb_connection_t* const connection = xcb_connect(nullptr, &screenNumber);
    if (xcb_connection_has_error(connection) != 0) {
        const char* const display = std::getenv("DISPLAY");
        std::fprintf(stderr, "quellbar: cannot open the X display \"%s\"\n",
                     display != nullptr ? display : "");
        std::exit(EXIT_FAILURE);
    }
    return new Connection(connection, screenNumber);
}

Connection::Connection(xcb_connection_t* connection, int screenNumber)
    : connection_(connection), screenNumber_(screenNumber), setup_(xcb_get_setup(connection)),
      screen_(screenOf(setup_, screenNumber)),
      atoms_((prefetchExtensions(connection), connection)) {}

// The server serves a client's requests in order, so an answer to any says that the earlier ones
// are done.
void Connection::synchronize() {
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
}

void Connection::subscribe(EventHandler handler) {
    lastingSubscriptions_.push_back(subscribeWhileKept(std::move(handler)));
}

// What has ended leaves its place to the next one, so that no place moves while events are told.
Connection::Subscription Connection::subscribeWhileKept(EventHandler handler) {
    auto subscription = std::make_shared<const EventHandler>(std::move(handler));
    const auto free = std::find_if(handlers_.begin(), handlers_.end(),
                                   [](const auto& each) { return each.expired(); });
    if (free == handlers_.end()) {
        handlers_.push_back(subscription);
    } else {
        *free = subscription;
    }
    return subscription;
}

void Connection::selectOnRoot(std::uint32_t eventMask) {
    rootEvents_ |= eventMask;
    xcb_change_window_attributes(connection_, root(), XCB_CW_EVENT_MASK, &rootEvents_);
}

void Connection::dispatchEvents() {
    dispatch(Reply<xcb_generic_event_t>(xcb_poll_for_event(connection_)));
    dispatchQueuedEvents();
}

bool Connection::finishTurn() {
    const bool hasToldEvents = dispatchQueuedEvents();
    flush();
    ++turn_;
    return hasToldEvents;
}

bool Connection::dispatchQueuedEvents() {
    bool hasToldEvents = false;
    while (auto event = Reply<xcb_generic_event_t>(xcb_poll_for_queued_event(connection_))) {
        dispatch(std::move(event));
        hasToldEvents = true;
    }
    return hasToldEvents;
}

void Connection::dispatch(Reply<xcb_generic_event_t> event) {
    const bool isError = event && event->response_type == 0;
    if (!event || isError) {
        return;
    }
    for (const auto& each : handlers_) { // a handler may subscribe another one
        if (const Subscription handler = each.lock()) {
            (*handler)(*event);
        }
    }
}

} // namespace platform::linux_host

#include "platform/linux/application/SingleInstance.h"

#include "platform/MainQueue.h"
#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/Reply.h"

#include <string>
#include <utility>

namespace platform::linux_host {

namespace {

constexpr std::uint8_t sentByClient = 0x80; // the bit of an event's type

xcb_atom_t selectionOf(const Connection& connection) {
    const std::string name = "_QUELLBAR_S" + std::to_string(connection.screenNumber());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection.xcb(),
        xcb_intern_atom(connection.xcb(), 0, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t ownerOf(const Connection& connection, xcb_atom_t selection) {
    const Reply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection.xcb(), xcb_get_selection_owner(connection.xcb(), selection), nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

// A selection is owned through a window; this one is never shown.
xcb_window_t createOwner(const Connection& connection) {
    const xcb_window_t window = xcb_generate_id(connection.xcb());
    xcb_create_window(connection.xcb(), XCB_COPY_FROM_PARENT, window, connection.root(), -1, -1, 1,
                      1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

// Whoever asks the owner of a selection for its value waits for an answer. There is no value, and
// the answer says so.
void refuseConversion(const Connection& connection, const xcb_selection_request_event_t& request) {
    xcb_selection_notify_event_t refusal{};
    refusal.response_type = XCB_SELECTION_NOTIFY;
    refusal.time = request.time;
    refusal.requestor = request.requestor;
    refusal.selection = request.selection;
    refusal.target = request.target;
    refusal.property = XCB_ATOM_NONE;
    xcb_send_event(connection.xcb(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&refusal));
    xcb_flush(connection.xcb());
}

// The answer waits for its turn on the main queue: whoever has it knows that what happened before
// the question has been dealt with, launching included.
void answerQuestions(Connection& connection) {
    connection.subscribe([&connection](const xcb_generic_event_t& event) {
        if (event.response_type != XCB_SELECTION_REQUEST) {
            return;
        }
        const auto& request = reinterpret_cast<const xcb_selection_request_event_t&>(event);
        dispatchAsyncOnMainQueue([&connection, request] { refuseConversion(connection, request); });
    });
}

// The message that says so has the name of the selection. The server has to have it before this
// process ends: it forgets what it has not read yet of a client that it cannot write to any more.
void tellOfSecondStart(Connection& connection, xcb_window_t owner, xcb_atom_t selection) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = owner;
    message.type = selection;
    xcb_send_event(connection.xcb(), 0, owner, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
    connection.synchronize();
}

void listenForSecondStart(Connection& connection, xcb_atom_t selection,
                          std::function<void()> onSecondStart) {
    connection.subscribe([selection, handler = std::move(onSecondStart)](const auto& event) {
        if ((event.response_type & ~sentByClient) == XCB_CLIENT_MESSAGE &&
            reinterpret_cast<const xcb_client_message_event_t&>(event).type == selection) {
            dispatchAsyncOnMainQueue(handler);
        }
    });
}

} // namespace

// Two programs that start at the same moment would both find the selection free: the server is held
// between looking and taking.
bool claimDisplay(Connection& connection, std::function<void()> onSecondStart) {
    const xcb_atom_t selection = selectionOf(connection);
    xcb_grab_server(connection.xcb());
    const xcb_window_t owner = ownerOf(connection, selection);
    const bool isFree = owner == XCB_WINDOW_NONE;
    if (isFree) {
        xcb_set_selection_owner(connection.xcb(), createOwner(connection), selection,
                                XCB_CURRENT_TIME);
        answerQuestions(connection);
        listenForSecondStart(connection, selection, std::move(onSecondStart));
    } else {
        tellOfSecondStart(connection, owner, selection);
    }
    xcb_ungrab_server(connection.xcb());
    connection.flush();
    return isFree;
}

} // namespace platform::linux_host

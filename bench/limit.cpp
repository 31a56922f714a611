// As little as can be done: reads the window manager's list once and asks for every window in it to
// be minimized, all requests in one go. What it takes is the window manager's time, not ours.
//
//   bench_limit                    one pass
//   bench_limit KEYCODE MODIFIERS  a pass at each line on standard input, and at each press of the
//                                  combination, which it grabs; prints as bench_engine does

#include "RoundTrips.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <poll.h>
#include <string>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T>
using Reply = std::unique_ptr<T, Free>;

struct Server {
    xcb_connection_t* connection = nullptr;
    xcb_window_t root = XCB_NONE;
    xcb_atom_t list = XCB_NONE;
    xcb_atom_t changeState = XCB_NONE;
};

xcb_atom_t atom(xcb_connection_t* connection, const char* name) {
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const Reply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, length, name), nullptr));
    return reply->atom;
}

Server connect() {
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    return {connection, screen->root, atom(connection, "_NET_CLIENT_LIST_STACKING"),
            atom(connection, "WM_CHANGE_STATE")};
}

void askToMinimize(const Server& server, xcb_window_t window) {
    constexpr std::uint32_t iconicState = 3;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = server.changeState;
    message.data.data32[0] = iconicState;
    std::array<char, 32> event{};
    std::memcpy(event.data(), &message, sizeof message);
    xcb_send_event(server.connection, 0, server.root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   event.data());
}

void minimizeAll(const Server& server) {
    constexpr std::uint32_t everything = 1U << 20U;
    const Reply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(server.connection,
                               xcb_get_property(server.connection, 0, server.root, server.list,
                                                XCB_ATOM_WINDOW, 0, everything),
                               nullptr));
    const auto* const windows = static_cast<xcb_window_t*>(xcb_get_property_value(reply.get()));
    const auto count = static_cast<std::size_t>(xcb_get_property_value_length(reply.get())) / 4;
    for (std::size_t i = 0; i < count; ++i) {
        askToMinimize(server, windows[i]);
    }
    xcb_flush(server.connection);
}

void report(const Server& server) {
    const std::size_t before = bench::roundTrips();
    const auto begin = std::chrono::steady_clock::now().time_since_epoch();
    minimizeAll(server);
    std::cout << begin.count() << ' ' << bench::roundTrips() - before << std::endl;
}

void handleKeys(const Server& server) {
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(server.connection)}) {
        if ((event->response_type & 0x7F) == XCB_KEY_PRESS) {
            minimizeAll(server);
        }
    }
}

void serve(const Server& server) {
    std::array<pollfd, 2> inputs{
        {{STDIN_FILENO, POLLIN, 0}, {xcb_get_file_descriptor(server.connection), POLLIN, 0}}};
    std::string line;
    while (::poll(inputs.data(), inputs.size(), -1) > 0) {
        handleKeys(server);
        if (inputs[0].revents != 0) {
            if (!std::getline(std::cin, line)) {
                return;
            }
            report(server);
        }
    }
}

void grab(const Server& server, const char* keycode, const char* modifiers) {
    xcb_grab_key(server.connection, 0, server.root,
                 static_cast<std::uint16_t>(std::strtoul(modifiers, nullptr, 0)),
                 static_cast<std::uint8_t>(std::strtoul(keycode, nullptr, 0)), XCB_GRAB_MODE_ASYNC,
                 XCB_GRAB_MODE_ASYNC);
    const Reply<xcb_get_input_focus_reply_t> taken(xcb_get_input_focus_reply(
        server.connection, xcb_get_input_focus(server.connection), nullptr));
}

} // namespace

int main(int count, char** arguments) {
    const Server server = connect();
    if (count == 3) {
        grab(server, arguments[1], arguments[2]);
        std::cout << "ready" << std::endl;
        serve(server);
    } else {
        minimizeAll(server);
    }
    xcb_disconnect(server.connection);
}

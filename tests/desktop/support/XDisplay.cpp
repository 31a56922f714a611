#include "tests/desktop/support/XDisplay.h"

#include <algorithm>
#include <stdexcept>

namespace desktop {
namespace {

constexpr std::uint32_t wholeProperty = 1U << 20U; // in units of four bytes

xcb_get_property_cookie_t askFor(const XDisplay& display, xcb_window_t window,
                                 xcb_atom_t property) {
    return xcb_get_property(display.connection(), 0, window, property, XCB_ATOM_ANY, 0,
                            wholeProperty);
}

Reply<xcb_get_property_reply_t> answerTo(const XDisplay& display,
                                         xcb_get_property_cookie_t cookie) {
    xcb_generic_error_t* error = nullptr; // a window that is gone has no properties
    Reply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(display.connection(), cookie, &error));
    std::free(error);
    return reply;
}

std::vector<std::uint32_t> valuesOf(const xcb_get_property_reply_t* reply) {
    if (reply == nullptr || reply->format != 32) {
        return {};
    }
    const auto* const values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply));
    return {values, values + reply->value_len};
}

} // namespace

XDisplay::XDisplay(const std::string& name) : connection_(xcb_connect(name.c_str(), nullptr)) {
    requireConnection();
    screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection())).data;
}

void XDisplay::requireConnection() const {
    if (xcb_connection_has_error(connection()) != 0) {
        throw std::runtime_error("no connection to the X server");
    }
}

xcb_atom_t XDisplay::atom(std::string_view name) const {
    if (const auto known = atoms_.find(name); known != atoms_.end()) {
        return known->second;
    }
    const auto cookie = xcb_intern_atom(connection(), 0, static_cast<std::uint16_t>(name.size()),
                                        std::string(name).c_str());
    const Reply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection(), cookie, nullptr));
    const xcb_atom_t atom = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    atoms_.emplace(name, atom);
    return atom;
}

xcb_window_t XDisplay::focus() const {
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection(), xcb_get_input_focus(connection()), nullptr));
    return reply ? reply->focus : xcb_window_t{XCB_WINDOW_NONE};
}

std::vector<std::uint32_t> XDisplay::property(xcb_window_t window, std::string_view name) const {
    return properties({&window, 1}, name).front();
}

std::vector<std::vector<std::uint32_t>> XDisplay::properties(std::span<const xcb_window_t> windows,
                                                             std::string_view name) const {
    const xcb_atom_t asked = atom(name);
    std::vector<xcb_get_property_cookie_t> cookies;
    cookies.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        cookies.push_back(askFor(*this, window, asked));
    }
    std::vector<std::vector<std::uint32_t>> values;
    values.reserve(windows.size());
    for (const auto cookie : cookies) {
        values.push_back(valuesOf(answerTo(*this, cookie).get()));
    }
    return values;
}

std::string XDisplay::text(xcb_window_t window, std::string_view name) const {
    const auto reply = answerTo(*this, askFor(*this, window, atom(name)));
    if (!reply || reply->format != 8) {
        return {};
    }
    const auto* const bytes = static_cast<const char*>(xcb_get_property_value(reply.get()));
    return {bytes, reply->value_len};
}

void XDisplay::setProperty(xcb_window_t window, std::string_view name, xcb_atom_t type,
                           std::span<const std::uint32_t> values) const {
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window, atom(name), type, 32,
                        static_cast<std::uint32_t>(values.size()), values.data());
}

void XDisplay::setText(xcb_window_t window, std::string_view name, std::string_view text) const {
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, window, atom(name), XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
}

void XDisplay::messageToRoot(xcb_window_t window, std::string_view type,
                             std::span<const std::uint32_t> data) const {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(type);
    std::ranges::copy(data.first(std::min<std::size_t>(data.size(), 5)),
                      std::begin(message.data.data32));
    xcb_send_event(connection(), 0, root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    flush();
}

void XDisplay::selectEvents(xcb_window_t window, std::uint32_t mask) const {
    xcb_change_window_attributes(connection(), window, XCB_CW_EVENT_MASK, &mask);
}

Reply<xcb_generic_event_t> XDisplay::nextEvent(const std::string& awaited,
                                               const Deadline& deadline) const {
    flush();
    while (true) {
        if (auto event = pendingEvent()) {
            return event;
        }
        requireConnection();
        if (!waitUntilReadable(xcb_get_file_descriptor(connection()), deadline)) {
            throw TimedOut(awaited);
        }
    }
}

Reply<xcb_generic_event_t> XDisplay::pendingEvent() const {
    return Reply<xcb_generic_event_t>(xcb_poll_for_event(connection()));
}

void XDisplay::sync() const {
    const auto cookie = xcb_get_input_focus(connection());
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection(), cookie, nullptr));
    requireConnection();
}

std::uint8_t XDisplay::kindOf(const xcb_generic_event_t& event) {
    return event.response_type & 0x7FU;
}

} // namespace desktop

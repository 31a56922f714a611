#include "platform/linux/statusitem/SystemTray.h"

#include "platform/linux/x11/Properties.h"

#include <algorithm>
#include <string>

namespace platform::linux_host {

namespace {

constexpr std::uint32_t requestDockOpcode = 0; // of _NET_SYSTEM_TRAY_OPCODE
constexpr std::uint8_t toOwner = 0;            // the request's "propagate"

// Whoever owns this selection is the tray.
xcb_atom_t traySelection(const Connection& connection) {
    const std::string name = "_NET_SYSTEM_TRAY_S" + std::to_string(connection.screenNumber());
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

bool hasAlpha(const xcb_screen_t& screen, xcb_visualid_t visual) {
    constexpr std::uint8_t depthWithAlpha = 32;
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem > 0;
         xcb_depth_next(&depth)) {
        const auto* const visuals = xcb_depth_visuals(depth.data);
        const auto* const end = visuals + xcb_depth_visuals_length(depth.data);
        if (std::any_of(visuals, end, [visual](auto& each) { return each.visual_id == visual; })) {
            return depth.data->depth == depthWithAlpha;
        }
    }
    return false;
}

// Four colours of three components in 16 bits each, the foreground first.
std::optional<std::uint32_t> foregroundIn(std::span<const std::uint32_t> colors) {
    if (colors.size() < 3) {
        return std::nullopt;
    }
    const auto byte = [&](std::size_t component) { return (colors[component] >> 8U) & 0xFFU; };
    return byte(0) << 16U | byte(1) << 8U | byte(2);
}

} // namespace

SystemTray::SystemTray(Connection& connection, std::function<void()> onChange)
    : connection_(connection), selection_(traySelection(connection)),
      onChange_(std::move(onChange)),
      events_(connection.subscribeWhileKept(
          [this](const xcb_generic_event_t& event) { handle(event); })) {
    connection_.selectOnRoot(XCB_EVENT_MASK_STRUCTURE_NOTIFY); // a new tray is announced there
    lookForOne();
}

// The server is held between asking and watching, so that a tray cannot end unseen in between.
void SystemTray::lookForOne() {
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_grab_server(connection_.xcb());
    window_ = ownerOf(connection_, selection_);
    if (window_ != XCB_WINDOW_NONE) {
        xcb_change_window_attributes(connection_.xcb(), window_, XCB_CW_EVENT_MASK, &events);
    }
    xcb_ungrab_server(connection_.xcb());
    connection_.flush();
}

TrayStyle SystemTray::style() const {
    PropertyRequest visual(connection_, window_, connection_.atom(Atom::netSystemTrayVisual),
                           XCB_ATOM_VISUALID);
    PropertyRequest colors(connection_, window_, connection_.atom(Atom::netSystemTrayColors),
                           XCB_ATOM_CARDINAL);
    const PropertyItems visuals = visual.readItems();
    return {.blends =
                !visuals.items().empty() && hasAlpha(connection_.screen(), visuals.items().front()),
            .foreground = foregroundIn(colors.readItems().items())};
}

void SystemTray::requestDock(xcb_window_t window) const {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window_;
    message.type = connection_.atom(Atom::netSystemTrayOpcode);
    message.data.data32[0] = XCB_CURRENT_TIME;
    message.data.data32[1] = requestDockOpcode;
    message.data.data32[2] = window;
    xcb_send_event(connection_.xcb(), toOwner, window_, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
    connection_.flush();
}

void SystemTray::handle(const xcb_generic_event_t& event) {
    constexpr int sentByClient = 0x80;
    switch (event.response_type & ~sentByClient) {
    case XCB_CLIENT_MESSAGE: {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.type == connection_.atom(Atom::manager) &&
            message.data.data32[1] == selection_) {
            lookForOne();
            onChange_();
        }
        return;
    }
    case XCB_DESTROY_NOTIFY:
        if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == window_) {
            lookForOne(); // the next one may already be there
            onChange_();
        }
        return;
    case XCB_PROPERTY_NOTIFY:
        if (reinterpret_cast<const xcb_property_notify_event_t&>(event).window == window_) {
            onChange_();
        }
        return;
    default:
        return;
    }
}

} // namespace platform::linux_host

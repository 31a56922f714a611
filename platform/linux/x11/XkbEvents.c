#include "platform/linux/x11/XkbEvents.h"

#include <xcb/xkb.h>

enum { keyboard_events = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY };
enum {
    map_parts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS |
                XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_VIRTUAL_MODS |
                XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP
};

void quellbar_watch_keyboard(xcb_connection_t* connection) {
    const uint16_t keyboard = XCB_XKB_ID_USE_CORE_KBD;
    const uint16_t nothing = 0;
    xcb_xkb_select_events(connection, keyboard, keyboard_events, nothing, keyboard_events,
                          map_parts, map_parts, NULL);
    const uint32_t repeats = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const xcb_xkb_per_client_flags_cookie_t cookie =
        xcb_xkb_per_client_flags(connection, keyboard, repeats, repeats, 0, 0, 0);
    xcb_discard_reply(connection, cookie.sequence);
}

bool quellbar_is_keyboard_change(const xcb_generic_event_t* event, uint8_t first_event) {
    if (event->response_type != first_event) {
        return false;
    }
    /* All events of the extension share one number; the byte after it tells them apart. */
    const uint8_t kind = event->pad0;
    return kind == XCB_XKB_NEW_KEYBOARD_NOTIFY || kind == XCB_XKB_MAP_NOTIFY;
}

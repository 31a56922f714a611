#pragma once

#include <stdbool.h>
#include <stdint.h>
#include <xcb/xcb.h>

/* The keyboard extension's own requests and events. This part is C because the extension's header
   has a member named `explicit`, which C++ does not read. */

#ifdef __cplusplus
extern "C" {
#endif

/* Has this connection told of every change of the keyboard map, and has held keys reported as
   presses alone, without a release before each repetition. The extension has to be set up on the
   connection. */
void quellbar_watch_keyboard(xcb_connection_t* connection);

/* Whether the event says that the keyboard map has changed or another keyboard is in use.
   `first_event` is the extension's. */
bool quellbar_is_keyboard_change(const xcb_generic_event_t* event, uint8_t first_event);

#ifdef __cplusplus
}
#endif

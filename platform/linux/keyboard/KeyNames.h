#pragma once

#include <stdint.h>
#include <xcb/xcb.h>

/* The names that the keyboard extension has for the keys. This part is C because the extension's
   header has a member named `explicit`, which C++ does not read. */

#ifdef __cplusplus
extern "C" {
#endif

enum { quellbar_key_name_length = 4 };

/* Told of a key: its name, filled up with zeros, and its keycode. */
typedef void (*quellbar_key_visitor)(void* context, const char* name, uint8_t keycode);

/* Asks for the names, without waiting. The extension has to be set up on the connection; 0 where
   the server has none. */
unsigned int quellbar_request_key_names(xcb_connection_t* connection);

/* Waits for the answer and visits every key that has a name, then those that have a second one.
   None where the server does not answer. */
void quellbar_visit_key_names(xcb_connection_t* connection, unsigned int request,
                              quellbar_key_visitor visit, void* context);

#ifdef __cplusplus
}
#endif

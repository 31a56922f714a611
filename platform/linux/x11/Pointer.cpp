#include "platform/Pointer.h"

#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/Reply.h"
#include "platform/linux/x11/ScreenLayout.h"

namespace platform {

using linux_host::Connection;
using linux_host::Reply;
using linux_host::ScreenLayout;

// Unchecked, because xcb keeps a record of each checked request, and an error would say no more
// than no reply. On another screen of the display, the pointer has no place among ours.
Point mouseLocation() {
    static Point lastKnown;
    const Connection& connection = Connection::shared();
    const Reply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        connection.xcb(), xcb_query_pointer_unchecked(connection.xcb(), connection.root()),
        nullptr));
    if (reply && reply->same_screen != 0) {
        lastKnown = ScreenLayout::shared().space().pointOf(reply->root_x, reply->root_y);
    }
    return lastKnown;
}

} // namespace platform

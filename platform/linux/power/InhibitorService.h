#pragma once

#include "platform/linux/dbus/MessageBus.h"

#include <span>

namespace platform::linux_host {

/// A service that can be asked, by its method "Inhibit", not to let the display sleep. It answers
/// with a number by which the hold is let go again, with a descriptor that is the hold as long as
/// it is open, or with an object that is the hold as long as it is not closed. All of them let go
/// when the connection ends that asked.
struct InhibitorService {
    BusType bus;
    const char* name;
    const char* path;
    const char* olderPath; ///< where older versions stand; null when there are none
    const char* interface;
    const char* release; ///< the method that takes the number back; null when there is none
    int (*appendArguments)(sd_bus_message& call, const char* reason);
};

/// The services of the desktops, in the order in which they are asked. Several may be there, and
/// the one that answers need not be the one that blanks, so all are to be asked.
[[nodiscard]] std::span<const InhibitorService> inhibitorServices();

} // namespace platform::linux_host

#include "tests/desktop/support/MessageBus.h"

#include "tests/desktop/support/Channel.h"

namespace desktop {

MessageBus::MessageBus(const VirtualDesktop& desktop) {
    Channel channel;
    Command bus = desktop.command({"dbus-daemon", "--session", "--nofork", "--nopidfile",
                                   "--print-address=" + std::to_string(channel.farEnd())});
    bus.inherited = {{channel.farEnd(), channel.farEnd()}};
    process_.emplace(bus);
    channel.closeFarEnd();
    address_ = channel.nextLine();
}

} // namespace desktop

#include "tests/desktop/support/XServer.h"

namespace desktop {
namespace {

// -noreset: otherwise the server starts over when its last client leaves, and the next client may
// come at just that moment and find no display.
Process startServer(ScreenSize size, const std::filesystem::path& log, Channel& channel) {
    const std::string screen = std::to_string(size.width) + "x" + std::to_string(size.height);
    const std::string descriptor = std::to_string(channel.farEnd());
    Process process({.arguments = {"Xvfb", "-displayfd", descriptor, "-noreset", "-nolisten", "tcp",
                                   "-screen", "0", screen + "x24"},
                     .environment = {{"PATH", searchPath()}},
                     .output = log,
                     .inherited = {{channel.farEnd(), channel.farEnd()}}});
    channel.closeFarEnd();
    return process;
}

} // namespace

XServer::XServer(ScreenSize size, const std::filesystem::path& log)
    : process_(startServer(size, log, channel_)), display_(":") {
    display_ += channel_.nextLine();
}

} // namespace desktop

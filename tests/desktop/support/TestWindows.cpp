#include "tests/desktop/support/TestWindows.h"

#include "tests/desktop/support/VirtualDesktop.h"

#include <sstream>

namespace desktop {
namespace {

Process startZoo(const VirtualDesktop& desktop, Channel& channel) {
    Command command = desktop.command({QUELLBAR_WINDOW_ZOO});
    command.inherited = {{channel.farEnd(), STDIN_FILENO}, {channel.farEnd(), STDOUT_FILENO}};
    Process process(command);
    channel.closeFarEnd();
    return process;
}

} // namespace

TestWindows::TestWindows(const VirtualDesktop& desktop)
    : windows_(desktop.display()), hasManager_(desktop.hasWindowManager()),
      process_(startZoo(desktop, channel_)) {}

xcb_window_t TestWindows::open(const WindowSpec& spec) {
    return open(1, spec).front();
}

std::vector<xcb_window_t> TestWindows::open(int count, const WindowSpec& spec) {
    std::ostringstream request;
    request << "open " << count << ' ' << spec;
    std::istringstream answer(ask(request.str()));
    std::vector<xcb_window_t> windows(static_cast<std::size_t>(count));
    for (xcb_window_t& window : windows) {
        answer >> window;
    }
    waitUntilTaken(windows, spec);
    return windows;
}

void TestWindows::waitUntilTaken(const std::vector<xcb_window_t>& windows,
                                 const WindowSpec& spec) const {
    if (hasManager_ && spec.isManaged) {
        windows_.waitUntilManaged(windows);
    }
    if (hasManager_ && spec.startsMinimized) {
        windows_.waitUntilHidden(windows);
    }
}

void TestWindows::destroy(const std::vector<xcb_window_t>& windows) {
    ask("destroy" + listed(windows));
}

void TestWindows::destroyWhenMinimized(xcb_window_t watched,
                                       const std::vector<xcb_window_t>& victims) {
    ask("destroy-when-minimized " + std::to_string(watched) + listed(victims));
}

void TestWindows::endWhenMinimized(xcb_window_t watched) {
    ask("end-when-minimized " + std::to_string(watched));
}

// Every request is answered with one line once the server has carried it out.
std::string TestWindows::ask(const std::string& request) {
    channel_.send(request);
    return channel_.nextLine();
}

} // namespace desktop

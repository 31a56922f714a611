#include "Contestants.h"

#include "tests/desktop/support/Deadline.h"
#include "tests/desktop/support/KeyGrabs.h"

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

namespace bench {

namespace {

desktop::Command triggered(const desktop::VirtualDesktop& desktop,
                           std::vector<std::string> arguments, const desktop::Channel& channel) {
    desktop::Command command = desktop.command(std::move(arguments));
    command.inherited = {{channel.farEnd(), STDIN_FILENO}, {channel.farEnd(), STDOUT_FILENO}};
    return command;
}

desktop::Command daemonCommand(const desktop::VirtualDesktop& desktop) {
    const auto file = desktop.configuration() / "sxhkdrc";
    std::ofstream(file) << "super + alt + 1\n  " << limitProgram() << "\n"
                        << "super + alt + q\n  " << shellLoop << "\n";
    desktop::Command command = desktop.command({"sxhkd", "-c", file.string()});
    command.environment["SHELL"] = "/bin/sh"; // it runs everything through the user's shell
    return command;
}

} // namespace

const std::string shellLoop =
    "wmctrl -l | while read -r id rest; do xdotool windowminimize $id; done";

std::string limitProgram() {
    return QUELLBAR_BENCH_LIMIT;
}

std::string engineProgram() {
    return QUELLBAR_BENCH_ENGINE;
}

TriggeredProgram::TriggeredProgram(const desktop::VirtualDesktop& desktop,
                                   std::vector<std::string> arguments)
    : process_(triggered(desktop, std::move(arguments), channel_)) {
    channel_.closeFarEnd();
    if (channel_.nextLine() != "ready") {
        throw std::runtime_error("a program to be measured did not start");
    }
}

Moment TriggeredProgram::trigger() {
    channel_.send("go");
    std::istringstream answer(channel_.nextLine());
    std::chrono::steady_clock::rep begin = 0;
    answer >> begin >> roundTrips_;
    return Moment(std::chrono::steady_clock::duration(begin));
}

Moment runCommand(const desktop::VirtualDesktop& desktop,
                  const std::vector<std::string>& arguments) {
    const auto begin = std::chrono::steady_clock::now();
    desktop::run(desktop.command(arguments));
    return begin;
}

const desktop::Chord HotKeyDaemon::runsLimit{{desktop::key::leftSuper, desktop::key::leftAlt},
                                             desktop::key::digit1};
const desktop::Chord HotKeyDaemon::runsShellLoop{{desktop::key::leftSuper, desktop::key::leftAlt},
                                                 desktop::key::q};

HotKeyDaemon::HotKeyDaemon(const desktop::VirtualDesktop& desktop)
    : process_(daemonCommand(desktop)) {
    desktop::KeyGrabs probe(desktop.display());
    desktop::waitUntil([&probe] { return probe.isTaken(runsShellLoop); },
                       "the hot-key daemon to take its keys");
}

} // namespace bench

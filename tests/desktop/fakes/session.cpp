// Stands in for what a screen saver needs of a MATE session: the presence of its user. On standard
// input, "idle" and "available" are told to the savers; on standard output "saver", "showing" and
// "gone" say that MATE's own is there and what it does. Ends with its standard input.

#include <array>
#include <cstdint>
#include <iostream>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <systemd/sd-bus.h>
#include <unistd.h>

namespace {

constexpr auto presencePath = "/org/gnome/SessionManager/Presence";
constexpr auto presenceInterface = "org.gnome.SessionManager.Presence";

void require(int status, const char* what) {
    if (status < 0) {
        throw std::runtime_error(std::string("fake session: ") + what);
    }
}

int handleActiveChanged(sd_bus_message* signal, void*, sd_bus_error*) {
    int isActive = 0;
    require(sd_bus_message_read(signal, "b", &isActive), "a signal without its argument");
    std::cout << (isActive != 0 ? "showing" : "gone") << std::endl;
    return 0;
}

int handleSaver(sd_bus_message*, void*, sd_bus_error*) {
    std::cout << "saver" << std::endl;
    return 0;
}

sd_bus* openBus() {
    sd_bus* bus = nullptr;
    require(sd_bus_open_user(&bus), "no bus");
    require(sd_bus_match_signal(bus, nullptr, nullptr, "/org/mate/ScreenSaver",
                                "org.mate.ScreenSaver", "ActiveChanged", handleActiveChanged,
                                nullptr),
            "no signals");
    require(sd_bus_add_match(bus, nullptr,
                             "type='signal',sender='org.freedesktop.DBus',"
                             "member='NameOwnerChanged',arg0='org.mate.ScreenSaver'",
                             handleSaver, nullptr),
            "no owners of names");
    require(sd_bus_request_name(bus, "org.gnome.SessionManager", 0), "no name");
    return bus;
}

void tell(sd_bus* bus, const std::string& presence) {
    constexpr std::uint32_t available = 0;
    constexpr std::uint32_t idle = 3;
    require(sd_bus_emit_signal(bus, presencePath, presenceInterface, "StatusChanged", "u",
                               presence == "idle" ? idle : available),
            "cannot tell");
}

void serve(sd_bus* bus) {
    std::array<pollfd, 2> sources{{{STDIN_FILENO, POLLIN, 0}, {sd_bus_get_fd(bus), POLLIN, 0}}};
    std::string line;
    while (::poll(sources.data(), sources.size(), -1) > 0) {
        if (sources[0].revents != 0) {
            if (!std::getline(std::cin, line)) {
                return;
            }
            tell(bus, line);
        }
        while (sd_bus_process(bus, nullptr) > 0) {
        }
    }
}

} // namespace

int main() {
    try {
        sd_bus* const bus = openBus();
        std::cout << "ready" << std::endl;
        serve(bus);
        sd_bus_flush_close_unref(bus);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}

#include "tests/desktop/zoo/Zoo.h"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <iostream>
#include <sstream>

namespace desktop {
namespace {

std::vector<xcb_window_t> windowsIn(std::istream& arguments) {
    std::vector<xcb_window_t> windows;
    for (xcb_window_t window = XCB_NONE; arguments >> window;) {
        windows.push_back(window);
    }
    return windows;
}

void waitForAny(const std::vector<int>& descriptors) {
    std::vector<pollfd> polled;
    polled.reserve(descriptors.size());
    for (const int descriptor : descriptors) {
        polled.push_back({.fd = descriptor, .events = POLLIN, .revents = 0});
    }
    poll(polled.data(), polled.size(), -1);
}

bool isReadable(int descriptor) {
    return waitUntilReadable(descriptor, Deadline(std::chrono::milliseconds{0}));
}

} // namespace

void Zoo::run() {
    while (!hasEnded_) {
        waitForAny(descriptors());
        if (isReadable(STDIN_FILENO) && !readRequests()) {
            return;
        }
        while (dispatchEvents()) {
        }
    }
}

// To be called until there are no more: whatever asks the server something on the way moves events
// from the sockets into the connections' queues, where waiting does not see them.
bool Zoo::dispatchEvents() {
    bool anyCame = false;
    for (const auto& client : clients_) {
        anyCame |= client->dispatch([this](xcb_window_t window) { onMinimized(window); });
    }
    return anyCame;
}

std::vector<int> Zoo::descriptors() const {
    std::vector<int> descriptors{STDIN_FILENO};
    for (const auto& client : clients_) {
        descriptors.push_back(client->descriptor());
    }
    return descriptors;
}

bool Zoo::readRequests() {
    std::array<char, 4096> buffer{};
    const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count <= 0) {
        return false;
    }
    unread_.append(buffer.data(), static_cast<std::size_t>(count));
    for (auto end = unread_.find('\n'); end != std::string::npos; end = unread_.find('\n')) {
        std::cout << answer(unread_.substr(0, end)) << std::endl;
        unread_.erase(0, end + 1);
    }
    return true;
}

std::string Zoo::answer(const std::string& request) {
    std::istringstream arguments(request);
    std::string verb;
    arguments >> verb;
    if (verb == "open") {
        return open(arguments);
    }
    const std::vector<xcb_window_t> windows = windowsIn(arguments);
    if (verb == "destroy") {
        destroy(windows);
    } else if (verb == "destroy-when-minimized") {
        reactions_[windows.front()].victims.assign(windows.begin() + 1, windows.end());
    } else if (verb == "end-when-minimized") {
        reactions_[windows.front()].ends = true;
    } else {
        return "unknown request";
    }
    return "done";
}

std::string Zoo::open(std::istream& arguments) {
    int count = 0;
    WindowSpec spec;
    arguments >> count >> spec;
    ZooClient& opener = client(spec.client);
    std::vector<xcb_window_t> windows(static_cast<std::size_t>(count));
    for (xcb_window_t& window : windows) {
        window = opener.open(spec);
    }
    opener.sync();
    return listed(windows);
}

ZooClient& Zoo::client(std::size_t index) {
    while (clients_.size() <= index) {
        clients_.push_back(std::make_unique<ZooClient>());
    }
    return *clients_[index];
}

void Zoo::destroy(const std::vector<xcb_window_t>& windows) {
    for (const auto& client : clients_) {
        for (const xcb_window_t window : windows) {
            if (client->owns(window)) {
                client->destroy(window);
            }
        }
        client->sync();
    }
}

void Zoo::onMinimized(xcb_window_t window) {
    const auto reaction = reactions_.find(window);
    if (reaction == reactions_.end()) {
        return;
    }
    hasEnded_ = hasEnded_ || reaction->second.ends;
    destroy(reaction->second.victims);
}

} // namespace desktop

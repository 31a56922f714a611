#include "tests/desktop/fakes/FakeInhibitor.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <iostream>
#include <poll.h>
#include <stdexcept>
#include <string_view>
#include <unistd.h>

namespace desktop {
namespace {

const std::string portalRequests = "/org/freedesktop/portal/desktop/request";

void require(int status, const char* what) {
    if (status < 0) {
        throw std::runtime_error(std::string("fake inhibitor: ") + what);
    }
}

void say(const std::string& line) {
    std::cout << line << std::endl;
}

std::string argumentsOf(sd_bus_message* call) {
    std::string text;
    const char* contents = nullptr;
    for (char type = 0; sd_bus_message_peek_type(call, &type, &contents) > 0;) {
        const char* string = "";
        std::uint32_t number = 0;
        if (type == 's') {
            sd_bus_message_read_basic(call, type, &string);
            text.append(" ").append(string);
        } else if (type == 'u') {
            sd_bus_message_read_basic(call, type, &number);
            text.append(" ").append(std::to_string(number));
        } else {
            break;
        }
    }
    return text;
}

// Answers the end that is given away; the other one tells when that is closed.
FileDescriptor openPipe(FileDescriptor& nearEnd) {
    std::array<int, 2> ends{};
    require(::pipe2(ends.data(), O_CLOEXEC), "no pipe");
    nearEnd = FileDescriptor(ends[0]);
    return FileDescriptor(ends[1]);
}

std::uint32_t numberIn(sd_bus_message* call) {
    if (sd_bus_message_is_method_call(call, nullptr, "Close") > 0) {
        const std::string object = sd_bus_message_get_path(call);
        return static_cast<std::uint32_t>(std::stoul(object.substr(portalRequests.size() + 1)));
    }
    std::uint32_t number = 0;
    sd_bus_message_read(call, "u", &number);
    return number;
}

} // namespace

FakeInhibitor::FakeInhibitor(const std::string& name, const std::string& path, Behaviour behaviour)
    : behaviour_(behaviour) {
    sd_bus* bus = nullptr;
    const bool isLogind = name == "org.freedesktop.login1";
    require(isLogind ? sd_bus_open_system(&bus) : sd_bus_open_user(&bus), "no bus");
    bus_.reset(bus);
    require(sd_bus_add_object(bus, nullptr, path.c_str(), handleCall, this), "no object");
    require(sd_bus_add_fallback(bus, nullptr, portalRequests.c_str(), handleCall, this),
            "no objects for requests");
    require(sd_bus_request_name(bus, name.c_str(),
                                SD_BUS_NAME_ALLOW_REPLACEMENT | SD_BUS_NAME_REPLACE_EXISTING),
            "no name");
    say("ready");
}

void FakeInhibitor::run() {
    while (!isEnding_) {
        while (sd_bus_process(bus_.get(), nullptr) > 0) {
        }
        wait();
    }
}

void FakeInhibitor::wait() {
    std::vector<pollfd> sources{{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0},
                                {.fd = sd_bus_get_fd(bus_.get()), .events = POLLIN, .revents = 0}};
    for (const auto& [number, hold] : holds_) {
        sources.push_back({.fd = hold.pipe.number(), .events = POLLIN, .revents = 0});
    }
    ::poll(sources.data(), sources.size(), -1);
    noticeClosedPipes();
    if (sources.front().revents != 0) {
        std::string line;
        isEnding_ = !std::getline(std::cin, line);
        if (line == "answer") {
            answerAll();
        }
    }
}

int FakeInhibitor::handleCall(sd_bus_message* call, void* self, sd_bus_error*) {
    auto& service = *static_cast<FakeInhibitor*>(self);
    const std::string_view member = sd_bus_message_get_member(call);
    if (member == "Inhibit") {
        service.handleInhibit(call);
        return 1;
    }
    if (member == "UnInhibit" || member == "Uninhibit" || member == "Close") {
        service.letGo(numberIn(call));
        return sd_bus_reply_method_return(call, nullptr);
    }
    return 0;
}

void FakeInhibitor::handleInhibit(sd_bus_message* call) {
    say("asked" + argumentsOf(call));
    switch (behaviour_) {
    case Behaviour::grant:
        grant(call);
        break;
    case Behaviour::refuse:
        sd_bus_reply_method_errorf(call, "org.example.Refused", "not today");
        say("refused");
        break;
    case Behaviour::wait:
        unanswered_.emplace_back(sd_bus_message_ref(call));
        break;
    }
}

// The kind of answer goes by the arguments, as each service has its own.
void FakeInhibitor::grant(sd_bus_message* call) {
    const std::string_view arguments = sd_bus_message_get_signature(call, 1);
    const std::uint32_t number = addHold(call);
    if (arguments == "ssss") {
        const FileDescriptor farEnd = openPipe(holds_[number].pipe);
        sd_bus_reply_method_return(call, "h", farEnd.number());
    } else if (arguments == "sua{sv}") {
        sd_bus_reply_method_return(call, "o",
                                   (portalRequests + "/" + std::to_string(number)).c_str());
    } else {
        sd_bus_reply_method_return(call, "u", number);
    }
    say("granted " + std::to_string(number));
}

std::uint32_t FakeInhibitor::addHold(sd_bus_message* call) {
    Hold& hold = holds_[++lastNumber_];
    sd_bus_track* holder = nullptr;
    require(sd_bus_track_new(bus_.get(), &holder, handleHolderLeft, this), "no track");
    hold.holder.reset(holder);
    require(sd_bus_track_add_sender(holder, call), "no sender");
    return lastNumber_;
}

void FakeInhibitor::letGo(std::uint32_t number) {
    const bool wasHeld = holds_.erase(number) == 1;
    say((wasHeld ? "let go " : "let go of nothing: ") + std::to_string(number));
}

int FakeInhibitor::handleHolderLeft(sd_bus_track* holder, void* self) {
    auto& holds = static_cast<FakeInhibitor*>(self)->holds_;
    const auto left = std::ranges::find_if(
        holds, [holder](const auto& entry) { return entry.second.holder.get() == holder; });
    if (left != holds.end()) {
        say("left " + std::to_string(left->first));
        holds.erase(left);
    }
    return 0;
}

void FakeInhibitor::answerAll() {
    for (const Message& call : std::exchange(unanswered_, {})) {
        grant(call.get());
    }
}

void FakeInhibitor::noticeClosedPipes() {
    std::vector<std::uint32_t> closed;
    for (const auto& [number, hold] : holds_) {
        pollfd state{.fd = hold.pipe.number(), .events = POLLIN, .revents = 0};
        if (::poll(&state, 1, 0) == 1) {
            closed.push_back(number);
        }
    }
    std::ranges::for_each(closed, [this](std::uint32_t number) { letGo(number); });
}

} // namespace desktop

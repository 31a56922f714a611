#pragma once

#include "tests/desktop/support/FileDescriptor.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <systemd/sd-bus.h>
#include <vector>

namespace desktop {

/// What the service does when it is asked for a hold.
enum class Behaviour { grant, refuse, wait };

/// Stands in for one of the services that keep a display awake. Says on standard output what
/// happens to it, in lines: "ready", "asked <arguments>", "granted <number>", "refused",
/// "let go <number>", and "left <number>" when the holder's connection has ended. While it is told
/// to wait it answers nothing until the line "answer" comes on standard input, which grants all
/// that was asked; it ends with its standard input.
class FakeInhibitor {
  public:
    /// Takes the name, on the system bus where it is logind's and on the session bus otherwise.
    /// Throws std::runtime_error when that fails.
    FakeInhibitor(const std::string& name, const std::string& path, Behaviour behaviour);

    void run();

  private:
    struct Unref {
        void operator()(sd_bus* bus) const { sd_bus_flush_close_unref(bus); }
        void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
        void operator()(sd_bus_track* track) const { sd_bus_track_unref(track); }
    };
    using Message = std::unique_ptr<sd_bus_message, Unref>;

    /// A hold that was granted: as a number, as an object of that number, or as a pipe.
    struct Hold {
        std::unique_ptr<sd_bus_track, Unref> holder;
        FileDescriptor pipe{};
    };

    static int handleCall(sd_bus_message* call, void* self, sd_bus_error* error);
    static int handleHolderLeft(sd_bus_track* holder, void* self);

    void handleInhibit(sd_bus_message* call);
    void grant(sd_bus_message* call);
    void letGo(std::uint32_t number);
    void answerAll();
    [[nodiscard]] std::uint32_t addHold(sd_bus_message* call);
    void noticeClosedPipes();
    void wait();

    std::unique_ptr<sd_bus, Unref> bus_;
    Behaviour behaviour_;
    std::vector<Message> unanswered_;
    std::map<std::uint32_t, Hold> holds_;
    std::uint32_t lastNumber_ = 0;
    bool isEnding_ = false;
};

} // namespace desktop

#pragma once

#include "tests/desktop/support/Channel.h"
#include "tests/desktop/support/Process.h"

#include <string>

namespace desktop {

/// A program that takes lines on its standard input and answers on its standard output.
class Conversation {
  public:
    /// Returns when the program has said "ready". Throws `ChannelClosed` when it ends before.
    explicit Conversation(Command command);

    void say(const std::string& line) { channel_.send(line); }
    [[nodiscard]] std::string nextLine(const Deadline& deadline = Deadline()) {
        return channel_.nextLine(deadline);
    }

    /// Says a line and returns the next one that comes back.
    std::string ask(const std::string& line, const Deadline& deadline = Deadline());

    [[nodiscard]] Process& process() { return process_; }

  private:
    static Command connected(Command command, const Channel& channel);

    Channel channel_;
    Process process_;
};

} // namespace desktop

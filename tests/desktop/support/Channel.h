#pragma once

#include "tests/desktop/support/Deadline.h"
#include "tests/desktop/support/FileDescriptor.h"

#include <stdexcept>
#include <string>

namespace desktop {

/// Thrown when the process at the other end is gone, or has closed its end.
class ChannelClosed : public std::runtime_error {
  public:
    explicit ChannelClosed(const std::string& unfinishedLine)
        : std::runtime_error("the other process is gone; its last words: " + unfinishedLine) {}
};

/// Lines of text to and from a process that this one starts. The far end is handed to the process
/// when it is started, and then let go here, so that either side notices when the other is gone.
class Channel {
  public:
    Channel();

    /// The end for the other process. Not inherited unless a command says so.
    [[nodiscard]] int farEnd() const { return farEnd_.number(); }
    void closeFarEnd() { farEnd_.close(); }

    /// Sends one line. Throws std::system_error when the other side is gone.
    void send(const std::string& line);

    /// The next line, without its end. Throws `TimedOut` or `ChannelClosed`.
    [[nodiscard]] std::string nextLine(const Deadline& deadline = Deadline());

  private:
    void readMore(const Deadline& deadline);

    FileDescriptor nearEnd_;
    FileDescriptor farEnd_;
    std::string unread_;
};

} // namespace desktop

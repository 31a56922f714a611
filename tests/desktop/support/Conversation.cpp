#include "tests/desktop/support/Conversation.h"

#include <unistd.h>

#include <stdexcept>

namespace desktop {

Conversation::Conversation(Command command) : process_(connected(std::move(command), channel_)) {
    channel_.closeFarEnd();
    if (const std::string line = nextLine(); line != "ready") {
        throw std::runtime_error("instead of being ready, a program says: " + line);
    }
}

std::string Conversation::ask(const std::string& line, const Deadline& deadline) {
    say(line);
    return nextLine(deadline);
}

Command Conversation::connected(Command command, const Channel& channel) {
    command.inherited = {{channel.farEnd(), STDIN_FILENO}, {channel.farEnd(), STDOUT_FILENO}};
    return command;
}

} // namespace desktop

#pragma once

#include <string>
#include <vector>

namespace simulated {

/// What the program wrote to the system's two logs.
struct Log {
    struct Message {
        std::string subsystem;
        std::string category;
        std::string text;

        bool operator==(const Message&) const = default;
    };

    std::vector<std::string> lines; ///< the plain log
    std::vector<Message> messages;  ///< the structured log
};

} // namespace simulated

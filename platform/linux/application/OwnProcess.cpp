#include "platform/linux/application/OwnProcess.h"

#include "platform/linux/x11/QtConnection.h"

#include <array>
#include <climits>
#include <unistd.h>

namespace platform::linux_host {

namespace {

ActivationPolicy appliedPolicy = ActivationPolicy::regular;

// The windows of this program are Qt's, so they are those of Qt's connection.
std::optional<std::uint32_t> clientOfQt() {
    xcb_connection_t* const connection = qtConnection();
    return connection != nullptr ? std::optional(xcb_get_setup(connection)->resource_id_base)
                                 : std::nullopt;
}

std::string hostName() {
    std::array<char, HOST_NAME_MAX + 1> name{};
    ::gethostname(name.data(), name.size() - 1);
    return name.data();
}

} // namespace

OwnProcess ownProcess(bool sharesProcessNumbers) {
    return {
        .processIdentifier = ::getpid(),
        .client = clientOfQt(),
        .machine = sharesProcessNumbers ? hostName() : std::string(),
        .activationPolicy = appliedPolicy,
    };
}

void setOwnActivationPolicy(ActivationPolicy policy) {
    appliedPolicy = policy;
}

ActivationPolicy ownActivationPolicy() {
    return appliedPolicy;
}

} // namespace platform::linux_host

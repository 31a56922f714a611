#include "platform/linux/OwnProcess.h"

#include <QGuiApplication>
#include <array>
#include <climits>
#include <unistd.h>
#include <xcb/xcb.h>

namespace platform::linux_host {

namespace {

ActivationPolicy appliedPolicy = ActivationPolicy::regular;

// The windows of this program are Qt's, so they are those of Qt's connection.
std::optional<std::uint32_t> clientOfQt() {
    if (qGuiApp == nullptr) {
        return std::nullopt;
    }
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || x11->connection() == nullptr) {
        return std::nullopt;
    }
    return xcb_get_setup(x11->connection())->resource_id_base;
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

} // namespace platform::linux_host

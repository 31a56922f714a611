#include "platform/simulated/LoginItem.h"

#include "platform/simulated/Desktop.h"

namespace simulated {

std::optional<platform::LoginItemError> LoginItem::add() {
    if (registerError) {
        return platform::LoginItemError{*registerError};
    }
    status = registeringLeadsTo;
    return std::nullopt;
}

std::optional<platform::LoginItemError> LoginItem::remove() {
    if (unregisterError) {
        return platform::LoginItemError{*unregisterError};
    }
    status = platform::LoginItemStatus::notRegistered;
    return std::nullopt;
}

} // namespace simulated

namespace platform {

using simulated::desktop;

LoginItemStatus loginItemStatus() {
    desktop().calls.record("loginItemStatus");
    return desktop().loginItem.status;
}

std::optional<LoginItemError> registerLoginItem() {
    desktop().calls.record("registerLoginItem");
    return desktop().loginItem.add();
}

std::optional<LoginItemError> unregisterLoginItem() {
    desktop().calls.record("unregisterLoginItem");
    return desktop().loginItem.remove();
}

} // namespace platform

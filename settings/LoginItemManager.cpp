#include "settings/LoginItemManager.h"

#include "platform/Log.h"
#include "platform/LoginItem.h"

namespace {

// Not symmetric, on purpose: what is not fully enabled is registered again, but a registration that
// waits for the user's approval is left in place when it is to be removed.
std::optional<platform::LoginItemError> update(bool enabled) {
    const bool isEnabled = platform::loginItemStatus() == platform::LoginItemStatus::enabled;
    if (isEnabled == enabled) {
        return std::nullopt;
    }
    return enabled ? platform::registerLoginItem() : platform::unregisterLoginItem();
}

} // namespace

void LoginItemManager::setEnabled(bool enabled) {
    if (const auto error = update(enabled)) {
        platform::systemLog("Quellbar: failed to update login item state: " + error->description);
    }
}

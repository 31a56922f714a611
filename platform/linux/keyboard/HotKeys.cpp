#include "platform/HotKeys.h"

#include "platform/linux/keyboard/HotKeyCenter.h"

#include <vector>

namespace platform {

using linux_host::HotKeyCenter;

namespace {

struct Installed {
    HotKeyPressedHandler handler;
    void* userData;
};

// The last one first.
std::vector<Installed>& installed() {
    static std::vector<Installed> instance;
    return instance;
}

// As with Carbon: the first that handles the event ends it.
void callHandlers(const EventHotKeyID& identity) {
    const HotKeyEvent event(&identity);
    const auto handlers = installed();
    for (const Installed& each : handlers) {
        if (each.handler(event, each.userData) == noErr) {
            return;
        }
    }
}

} // namespace

OSStatus HotKeyEvent::directObject(EventHotKeyID& identity) const {
    identity = *static_cast<const EventHotKeyID*>(nativeEvent_);
    return noErr;
}

InstalledHandler installHotKeyPressedHandler(HotKeyPressedHandler handler, void* userData) {
    if (installed().empty()) {
        HotKeyCenter::shared().setHandler(callHandlers);
    }
    installed().insert(installed().begin(), {.handler = handler, .userData = userData});
    return {.status = noErr, .handler = EventHandlerRef{installed().size()}};
}

RegisteredHotKey registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                     EventHotKeyID identity) {
    return HotKeyCenter::shared().registerHotKey(keyCode, modifiers, identity);
}

OSStatus unregisterEventHotKey(EventHotKeyRef hotKey) {
    return HotKeyCenter::shared().unregisterHotKey(hotKey) ? noErr : eventHotKeyInvalidErr;
}

} // namespace platform

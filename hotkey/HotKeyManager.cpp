#include "hotkey/HotKeyManager.h"

#include "platform/MainQueue.h"

namespace {

// The four-character code 'QLBR'.
constexpr std::uint32_t signature = 'Q' << 24 | 'L' << 16 | 'B' << 8 | 'R';
constexpr platform::EventHotKeyID hotKeyID{signature, 1};

} // namespace

HotKeyManager& HotKeyManager::shared() {
    // Never destroyed: the installed handler points at it until the process ends.
    static auto* const instance = new HotKeyManager;
    return *instance;
}

HotKeyManager::HotKeyManager() {
    installEventHandler();
}

void HotKeyManager::installEventHandler() {
    eventHandler_ = platform::installHotKeyPressedHandler(&handleHotKeyPressed, this).handler;
}

void HotKeyManager::registerHotKey(const KeyCombo& combo) {
    unregisterHotKey();
    // Kept whatever the status: a refused combination comes back empty, and that is all there is to
    // know about it.
    hotKeyRef_ = platform::registerEventHotKey(combo.keyCode, combo.modifiers, hotKeyID).hotKey;
}

void HotKeyManager::unregisterHotKey() {
    if (hotKeyRef_) {
        platform::unregisterEventHotKey(*hotKeyRef_);
        hotKeyRef_.reset();
    }
}

// Answers every event as handled. Only the id decides, not the signature; an identity that cannot
// be read leaves the id 0, which is nobody's.
platform::OSStatus HotKeyManager::handleHotKeyPressed(const platform::HotKeyEvent& event,
                                                      void* userData) {
    if (userData == nullptr) {
        return platform::noErr;
    }
    const auto* const manager = static_cast<HotKeyManager*>(userData);
    platform::EventHotKeyID pressed{};
    event.directObject(pressed);
    if (pressed.id == hotKeyID.id) {
        // Never run in place: the event dispatch that called us has to return first.
        platform::dispatchAsyncOnMainQueue([manager] { manager->runOnHotKey(); });
    }
    return platform::noErr;
}

void HotKeyManager::runOnHotKey() const {
    // A copy, so that the action may replace itself.
    if (const auto action = onHotKey) {
        action();
    }
}

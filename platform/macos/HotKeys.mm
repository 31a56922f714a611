#include "platform/HotKeys.h"

#include "platform/macos/CallOut.h"
#include "platform/macos/Conversions.h"

#include <memory>

namespace platform {

namespace {

// What the Event Manager hands back with every press.
struct Handler {
    HotKeyPressedHandler function;
    void* userData;
};

::OSStatus handleEvent(EventHandlerCallRef, EventRef event, void* userData) {
    const auto* const handler = static_cast<const Handler*>(userData);
    return macos::callOut([&] { return handler->function(HotKeyEvent(event), handler->userData); });
}

} // namespace

OSStatus HotKeyEvent::directObject(EventHotKeyID& identity) const {
    auto* const event = static_cast<EventRef>(const_cast<void*>(nativeEvent_));
    ::EventHotKeyID pressed{};
    const OSStatus status = GetEventParameter(event, kEventParamDirectObject, typeEventHotKeyID,
                                              nullptr, sizeof pressed, nullptr, &pressed);
    if (status == noErr) {
        identity = macos::carbonToEventHotKeyID(pressed);
    }
    return status;
}

InstalledHandler installHotKeyPressedHandler(HotKeyPressedHandler handler, void* userData) {
    const EventTypeSpec pressed{kEventClassKeyboard, kEventHotKeyPressed};
    // Never freed: handlers are never removed.
    auto* const installed = new Handler{handler, userData};
    ::EventHandlerRef reference = nullptr;
    const OSStatus status = InstallEventHandler(GetApplicationEventTarget(), &handleEvent, 1,
                                                &pressed, installed, &reference);
    return {status, macos::carbonToEventHandlerRef(reference)};
}

RegisteredHotKey registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                     EventHotKeyID identity) {
    constexpr OptionBits noOptions = 0;
    ::EventHotKeyRef reference = nullptr;
    const OSStatus status =
        RegisterEventHotKey(keyCode, modifiers, macos::eventHotKeyIDToCarbon(identity),
                            GetApplicationEventTarget(), noOptions, &reference);
    return {status, macos::carbonToEventHotKeyRef(reference)};
}

OSStatus unregisterEventHotKey(EventHotKeyRef hotKey) {
    return UnregisterEventHotKey(macos::eventHotKeyRefToCarbon(hotKey));
}

} // namespace platform

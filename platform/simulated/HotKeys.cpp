#include "platform/HotKeys.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <list>
#include <string>

namespace simulated {
namespace {

// An event that the program was handed. Kept until the process ends, so that a program that holds
// on to one too long is found out.
struct NativeEvent {
    HotKeyPress press;
    bool isBeingDelivered = true;
};

NativeEvent& newEvent(const HotKeyPress& press) {
    static auto* const events = new std::list<NativeEvent>;
    return events->emplace_back(NativeEvent{press});
}

std::string hexadecimal(std::uint32_t number) {
    std::array<char, 8> digits{};
    auto* const end = std::to_chars(digits.begin(), digits.end(), number, 16).ptr;
    return "0x" + std::string(digits.begin(), end);
}

// The four letters of a signature, where they are letters.
std::string fourCharacterCode(std::uint32_t code) {
    std::string text;
    for (const int shift : {24, 16, 8, 0}) {
        text += static_cast<char>(code >> shift & 0xFF);
    }
    const bool isPrintable = std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
    return isPrintable ? text : hexadecimal(code);
}

std::string text(const KeyCombination& combination) {
    return std::to_string(combination.keyCode) + ", " + hexadecimal(combination.modifiers);
}

} // namespace

bool HotKeys::isHeld(KeyCombination combination) const {
    return std::ranges::count(heldElsewhere_, combination) > 0 ||
           std::ranges::any_of(registrations_, [&](const auto& registered) {
               return registered.second.combination == combination;
           });
}

bool HotKeys::holdElsewhere(KeyCombination combination) {
    if (isHeld(combination)) {
        return false;
    }
    heldElsewhere_.push_back(combination);
    return true;
}

void HotKeys::releaseElsewhere(KeyCombination combination) {
    if (std::erase(heldElsewhere_, combination) == 0) {
        misuse("no other client holds " + text(combination));
    }
}

std::vector<HotKeys::Registration> HotKeys::registrations() const {
    std::vector<Registration> registrations;
    for (const auto& [ref, registration] : registrations_) {
        registrations.push_back(registration);
    }
    return registrations;
}

void HotKeys::keyDown(KeyCombination combination) {
    if (down_ == combination) {
        return;
    }
    down_ = combination;
    const auto registered = std::ranges::find_if(
        registrations_, [&](const auto& entry) { return entry.second.combination == combination; });
    if (registered != registrations_.end()) {
        deliver({.identity = registered->second.identity});
    }
}

void HotKeys::keyUp() {
    down_.reset();
}

void HotKeys::press(KeyCombination combination) {
    keyDown(combination);
    keyUp();
}

void HotKeys::deliver(const HotKeyPress& press) {
    if (handler_ == nullptr) {
        return;
    }
    NativeEvent& event = newEvent(press);
    void* const userData = press.carriesUserData ? userData_ : nullptr;
    answers_.push_back(handler_(platform::HotKeyEvent(&event), userData));
    event.isBeingDelivered = false;
}

platform::InstalledHandler HotKeys::install(platform::HotKeyPressedHandler handler,
                                            void* userData) {
    if (handler == nullptr) {
        misuse("an empty hot-key handler is installed");
    }
    if (handler_ != nullptr) {
        misuse("a second hot-key handler is installed");
    }
    if (installStatus != platform::noErr) {
        return {.status = installStatus, .handler = {}};
    }
    handler_ = handler;
    userData_ = userData;
    return {.status = platform::noErr, .handler = platform::EventHandlerRef{1}};
}

platform::RegisteredHotKey HotKeys::add(const Registration& registration) {
    if (registerStatus != platform::noErr) {
        return {.status = registerStatus, .hotKey = {}};
    }
    if (isHeld(registration.combination)) {
        return {.status = platform::eventHotKeyExistsErr, .hotKey = {}};
    }
    const platform::EventHotKeyRef ref{nextRef_++};
    registrations_.emplace(ref, registration);
    return {.status = platform::noErr, .hotKey = ref};
}

platform::OSStatus HotKeys::remove(platform::EventHotKeyRef hotKey) {
    if (find(hotKey) == nullptr) {
        if (staleRef == StaleRef::isMisuse) {
            misuse("a hot key is unregistered that is not registered");
        }
        return platform::eventHotKeyInvalidErr;
    }
    if (unregisterStatus == platform::noErr) {
        registrations_.erase(hotKey);
    }
    return unregisterStatus;
}

const KeyCombination* HotKeys::find(platform::EventHotKeyRef hotKey) const {
    const auto registered = registrations_.find(hotKey);
    return registered == registrations_.end() ? nullptr : &registered->second.combination;
}

} // namespace simulated

namespace platform {

using simulated::desktop;

OSStatus HotKeyEvent::directObject(EventHotKeyID& identity) const {
    desktop().calls.record("directObject");
    const auto& event = *static_cast<const simulated::NativeEvent*>(nativeEvent_);
    if (!event.isBeingDelivered) {
        simulated::misuse("a hot-key event is read after its handler has returned");
    }
    if (event.press.readStatus == noErr) {
        identity = event.press.identity;
    }
    return event.press.readStatus;
}

InstalledHandler installHotKeyPressedHandler(HotKeyPressedHandler handler, void* userData) {
    desktop().calls.record("installHotKeyPressedHandler");
    return desktop().hotKeys.install(handler, userData);
}

RegisteredHotKey registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                     EventHotKeyID identity) {
    const simulated::KeyCombination combination{keyCode, modifiers};
    desktop().calls.record("registerEventHotKey", {simulated::text(combination),
                                                   simulated::fourCharacterCode(identity.signature),
                                                   std::to_string(identity.id)});
    return desktop().hotKeys.add({combination, identity});
}

OSStatus unregisterEventHotKey(EventHotKeyRef hotKey) {
    const auto* const combination = desktop().hotKeys.find(hotKey);
    desktop().calls.record("unregisterEventHotKey",
                           {combination == nullptr ? "stale" : simulated::text(*combination)});
    return desktop().hotKeys.remove(hotKey);
}

} // namespace platform

#pragma once

#include "platform/HotKeys.h"

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace simulated {

/// A key with the modifier keys held with it.
struct KeyCombination {
    std::uint32_t keyCode = 0;
    std::uint32_t modifiers = 0;

    bool operator==(const KeyCombination&) const = default;
};

/// One press on its way to the program.
struct HotKeyPress {
    platform::EventHotKeyID identity;
    /// What reading the identity is answered with.
    platform::OSStatus readStatus = platform::noErr;
    /// Whether the handler is told what it was installed with.
    bool carriesUserData = true;
};

/// The keyboard, and who holds which combination.
class HotKeys {
  public:
    struct Registration {
        KeyCombination combination;
        platform::EventHotKeyID identity;

        bool operator==(const Registration&) const = default;
    };
    enum class StaleRef { isMisuse, isAnError };

    // Faults: what a call is answered with, in place of doing anything.
    platform::OSStatus installStatus = platform::noErr;
    platform::OSStatus registerStatus = platform::noErr;
    platform::OSStatus unregisterStatus = platform::noErr;
    /// Unregistering what is not registered is answered with an error by a real desktop, but no
    /// program of ours has reason to do it.
    StaleRef staleRef = StaleRef::isMisuse;

    /// Another client takes a combination. False when someone holds it already.
    bool holdElsewhere(KeyCombination combination);
    /// The other client gives it back. Misuse when it does not hold it.
    void releaseElsewhere(KeyCombination combination);

    /// What this program has registered, oldest first.
    [[nodiscard]] std::vector<Registration> registrations() const;

    /// The user presses a combination. The handler is called, once however often the key repeats
    /// before it is let go, if this program has registered exactly that.
    void keyDown(KeyCombination combination);
    void keyUp();
    /// Down and up.
    void press(KeyCombination combination);

    /// Hands the handler, if there is one, an event that no key made.
    void deliver(const HotKeyPress& press);

    /// What the handler answered to each event.
    [[nodiscard]] const std::vector<platform::OSStatus>& answers() const { return answers_; }

    // For the seam.
    platform::InstalledHandler install(platform::HotKeyPressedHandler handler, void* userData);
    platform::RegisteredHotKey add(const Registration& registration);
    platform::OSStatus remove(platform::EventHotKeyRef hotKey);
    /// The combination that a reference names, or null.
    [[nodiscard]] const KeyCombination* find(platform::EventHotKeyRef hotKey) const;

  private:
    [[nodiscard]] bool isHeld(KeyCombination combination) const;

    platform::HotKeyPressedHandler handler_ = nullptr;
    void* userData_ = nullptr;
    std::map<platform::EventHotKeyRef, Registration> registrations_;
    std::uintptr_t nextRef_ = 1;
    std::vector<KeyCombination> heldElsewhere_;
    std::optional<KeyCombination> down_;
    std::vector<platform::OSStatus> answers_;
};

} // namespace simulated

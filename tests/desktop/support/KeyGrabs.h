#pragma once

#include "tests/desktop/support/Keyboard.h"
#include "tests/desktop/support/XDisplay.h"

#include <string>

namespace desktop {

/// A client that wants key combinations for itself, as a desktop's own shortcuts do.
class KeyGrabs {
  public:
    explicit KeyGrabs(const std::string& display);

    /// Takes a combination, in every state of the lock keys, until this object ends. False, and
    /// nothing is taken, when another client holds any of it.
    bool take(const Chord& chord);
    void giveBack(const Chord& chord);

    /// Takes the whole keyboard, as an open menu does. Throws std::runtime_error when refused.
    void takeKeyboard();
    void giveBackKeyboard();

    /// Whether another client holds the combination in every state of the lock keys.
    [[nodiscard]] bool isTaken(const Chord& chord);
    /// Whether no other client holds the combination in any state of the lock keys.
    [[nodiscard]] bool isFree(const Chord& chord);

    /// How many presses of taken combinations have arrived since the last call.
    [[nodiscard]] int presses();

  private:
    [[nodiscard]] int countFreeVariants(const Chord& chord);
    [[nodiscard]] bool grab(const Chord& chord, std::uint16_t locks);
    void ungrab(const Chord& chord, std::uint16_t locks);
    [[nodiscard]] std::uint16_t maskOf(const Chord& chord) const;
    [[nodiscard]] std::uint16_t modifierBitOf(xcb_keycode_t key) const;
    [[nodiscard]] std::vector<std::uint16_t> lockVariants() const;

    XDisplay display_;
};

} // namespace desktop

#include "hotkey/ShortcutRecorderView.h"

#include "platform/FatalError.h"
#include "platform/Window.h"

#include <array>

namespace {

constexpr double cornerRadius = 6;         // points
constexpr double recordingBorderWidth = 2; // points

struct ModifierBit {
    std::uint32_t eventFlag;
    std::uint32_t carbonBit;
};

constexpr std::array<ModifierBit, 4> modifierBits{{
    {platform::modifierFlagCommand, cmdKey},
    {platform::modifierFlagOption, optionKey},
    {platform::modifierFlagControl, controlKey},
    {platform::modifierFlagShift, shiftKey},
}};

// Caps Lock and every other flag is dropped.
std::uint32_t carbonModifiers(std::uint32_t eventFlags) {
    std::uint32_t modifiers = 0;
    for (const auto& [eventFlag, carbonBit] : modifierBits) {
        if ((eventFlags & eventFlag) != 0) {
            modifiers |= carbonBit;
        }
    }
    return modifiers;
}

} // namespace

// The recognizer belongs to the view, so it never outlives what it calls.
ShortcutRecorderView::ShortcutRecorderView(const KeyCombo& combo)
    : View(platform::Rect{}), combo_(combo), label_(platform::TextField::labelWithString("")) {
    setWantsLayer();
    setLayerCornerRadius(cornerRadius);
    setLayerBackgroundColor(platform::cgColor(platform::Color::controlBackground));
    label_->setAlignment(platform::TextAlignment::center);
    label_->setFrame(bounds());
    label_->setAutoresizingMask(platform::AutoresizingMask::widthAndHeightSizable);
    addSubview(label_);
    updateLabel();
    addClickGestureRecognizer([this] { startRecording(); });
}

ShortcutRecorderView::ShortcutRecorderView(const platform::Coder&) : View(platform::Rect{}) {
    platform::fatalError("init(coder:) has not been implemented");
}

void ShortcutRecorderView::updateLabel() {
    label_->setStringValue(isRecording_ ? "Press new shortcut…" : combo_.displayString());
    setLayerBorderWidth(isRecording_ ? recordingBorderWidth : 0);
    setLayerBorderColor(platform::cgColor(platform::Color::controlAccent));
}

void ShortcutRecorderView::startRecording() {
    isRecording_ = true;
    updateLabel();
    if (window() != nullptr) {
        window()->makeFirstResponder(*this);
    }
}

void ShortcutRecorderView::keyDown(const platform::Event& event) {
    if (!isRecording_) {
        View::keyDown(event);
        return;
    }
    combo_ = {event.keyCode, carbonModifiers(event.modifierFlags)};
    isRecording_ = false;
    updateLabel();
    if (onChange) {
        onChange(combo_);
    }
}

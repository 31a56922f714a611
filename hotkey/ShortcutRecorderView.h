#pragma once

#include "platform/Coder.h"
#include "platform/TextField.h"
#include "platform/View.h"
#include "settings/KeyCombo.h"

#include <functional>
#include <memory>

/// Shows a shortcut and records a new one: after a click, the next key press, with whatever
/// modifiers are held, becomes the new combination. Every key is taken as it comes, Escape and
/// Delete too; nothing but a key press ends recording.
class ShortcutRecorderView final : public platform::View {
  public:
    /// Shows `combo`. The owner sets the frame.
    explicit ShortcutRecorderView(const KeyCombo& combo);
    /// Fatal: this view is made in code alone.
    [[noreturn]] explicit ShortcutRecorderView(const platform::Coder& coder);

    /// Hears of each recorded combination, also of one equal to the last.
    std::function<void(const KeyCombo&)> onChange;

    [[nodiscard]] bool acceptsFirstResponder() const override { return true; }
    void keyDown(const platform::Event& event) override;

  private:
    void startRecording();
    void updateLabel();

    KeyCombo combo_;
    std::shared_ptr<platform::TextField> label_;
    bool isRecording_ = false; // from a click until the next key press
};

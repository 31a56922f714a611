#pragma once

#include "platform/TextField.h"
#include "platform/simulated/View.h"

namespace simulated {

/// A text of the program: a label, or a field that the user can edit.
class TextField final : public View {
  public:
    enum class Kind { label, wrappingLabel, editable };

    TextField(Kind kind, platform::Rect frame, std::string_view text);

    [[nodiscard]] std::string name() const override { return "\"" + text_ + "\""; }

    [[nodiscard]] Kind kind() const { return kind_; }
    [[nodiscard]] const std::string& text() const { return text_; }
    // Absent where the program has left the control's own.
    [[nodiscard]] std::optional<platform::Font> font() const { return font_; }
    [[nodiscard]] std::optional<platform::Color> textColor() const { return textColor_; }
    [[nodiscard]] platform::TextAlignment alignment() const { return alignment_; }

    // What the user does. Misuse unless the field is on the screen and can be edited.

    /// Clicks into the field.
    void click() override;
    /// Replaces all of the text, without ending the edit.
    void type(std::string_view text);
    /// Ends the edit, which may have changed nothing.
    void pressReturn();

    // For the seam.
    void setText(std::string_view text) { text_ = text; }
    void setFont(platform::Font font) { font_ = font; }
    void setTextColor(platform::Color color) { textColor_ = color; }
    void setAlignment(platform::TextAlignment alignment) { alignment_ = alignment; }
    void setAction(std::function<void()> action) { action_ = std::move(action); }
    void keyDown(const platform::Event& event) override;

  private:
    ProgramWindow& requireEditable() const;

    const Kind kind_;
    std::string text_;
    std::optional<platform::Font> font_;
    std::optional<platform::Color> textColor_;
    platform::TextAlignment alignment_ = platform::TextAlignment::natural;
    std::function<void()> action_;
};

/// The number that a text begins with, as the seam's text fields read it.
[[nodiscard]] std::int64_t numberAtBeginningOf(std::string_view text);

/// What the desktop knows of `field`.
[[nodiscard]] TextField& stateOf(const platform::TextField& field);

} // namespace simulated

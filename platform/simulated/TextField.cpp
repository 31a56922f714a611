#include "platform/simulated/TextField.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"
#include "platform/simulated/Text.h"

#include <charconv>
#include <limits>

namespace simulated {
namespace {

constexpr std::uint16_t returnKey = 36;
constexpr std::uint16_t enterKey = 76; // of the number pad

std::shared_ptr<platform::TextField> makeField(TextField::Kind kind, platform::Rect frame,
                                               std::string_view text) {
    return std::make_shared<platform::TextField>(std::make_unique<platform::View::Peer>(
        platform::View::Peer{std::make_unique<TextField>(kind, frame, text)}));
}

} // namespace

TextField& stateOf(const platform::TextField& field) {
    return static_cast<TextField&>(*field.peer().view);
}

TextField::TextField(Kind kind, platform::Rect frame, std::string_view text)
    : View(frame), kind_(kind), text_(text) {}

ProgramWindow& TextField::requireEditable() const {
    if (kind_ != Kind::editable) {
        misuse("the user edits a label: " + name());
    }
    return requireOnScreen("edits");
}

void TextField::click() {
    if (kind_ == Kind::editable) {
        requireEditable().setFirstResponder(this);
    }
    View::click();
}

void TextField::type(std::string_view text) {
    requireEditable();
    click();
    text_ = text;
}

void TextField::pressReturn() {
    if (requireEditable().firstResponder() != this) {
        misuse("the user ends an edit that has not begun: " + name());
    }
    window()->pressKey({{}, 0, returnKey});
}

// The action may replace itself.
void TextField::keyDown(const platform::Event& event) {
    const auto action = action_;
    const bool endsEdit = event.keyCode == returnKey || event.keyCode == enterKey;
    if (endsEdit && action) {
        action();
    }
}

// What follows the digits does not matter; where there are none it is no number.
std::int64_t numberAtBeginningOf(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    const bool isNegative = text.starts_with('-');
    if (text.starts_with('+') || isNegative) {
        text.remove_prefix(1);
    }
    const auto digits = text.substr(0, text.find_first_not_of("0123456789"));
    const std::string number = (isNegative ? "-" : "") + std::string(digits);
    std::int64_t value = 0;
    const auto error = std::from_chars(number.data(), number.data() + number.size(), value).ec;
    if (error == std::errc::result_out_of_range) {
        using Limits = std::numeric_limits<std::int64_t>;
        return isNegative ? Limits::min() : Limits::max();
    }
    return value;
}

} // namespace simulated

namespace platform {

using simulated::desktop;
using simulated::stateOf;

TextField::TextField(std::unique_ptr<Peer> peer) : View(std::move(peer)) {}

std::shared_ptr<TextField> TextField::labelWithString(std::string_view text) {
    desktop().calls.record("labelWithString", {text});
    return simulated::makeField(simulated::TextField::Kind::label, {}, text);
}

std::shared_ptr<TextField> TextField::wrappingLabelWithString(std::string_view text) {
    desktop().calls.record("wrappingLabelWithString", {text});
    return simulated::makeField(simulated::TextField::Kind::wrappingLabel, {}, text);
}

std::shared_ptr<TextField> TextField::editable(Rect frame) {
    desktop().calls.record("TextField::editable", {simulated::text(frame)});
    return simulated::makeField(simulated::TextField::Kind::editable, frame, "");
}

std::string TextField::stringValue() const {
    return stateOf(*this).text();
}

void TextField::setStringValue(std::string_view text) {
    desktop().calls.record("setStringValue", {text});
    stateOf(*this).setText(text);
}

std::int64_t TextField::integerValue() const {
    return simulated::numberAtBeginningOf(stateOf(*this).text());
}

void TextField::setIntegerValue(std::int64_t value) {
    desktop().calls.record("setIntegerValue", {std::to_string(value)});
    stateOf(*this).setText(std::to_string(value));
}

void TextField::setFont(Font font) {
    desktop().calls.record("setFont", {simulated::nameOf(font)});
    stateOf(*this).setFont(font);
}

void TextField::setTextColor(Color color) {
    desktop().calls.record("setTextColor", {simulated::nameOf(color)});
    stateOf(*this).setTextColor(color);
}

void TextField::setAlignment(TextAlignment alignment) {
    desktop().calls.record("setAlignment",
                           {alignment == TextAlignment::center ? "center" : "natural"});
    stateOf(*this).setAlignment(alignment);
}

void TextField::setAction(std::function<void()> action) {
    desktop().calls.record("setAction");
    stateOf(*this).setAction(std::move(action));
}

} // namespace platform

#include "platform/TextField.h"

#include "platform/macos/AppearanceConversions.h"
#include "platform/macos/Conversions.h"
#include "platform/macos/ViewPeer.h"

namespace platform {

using macos::Object;

namespace {

NSTextField* fieldOf(const TextField& field) {
    return macos::controlOf<NSTextField>(field);
}

std::shared_ptr<TextField> textField(NSTextField* field) {
    return std::make_shared<TextField>(std::make_unique<View::Peer>(field));
}

} // namespace

std::shared_ptr<TextField> TextField::labelWithString(std::string_view text) {
    return textField([NSTextField labelWithString:macos::stringToNSString(text).get()]);
}

std::shared_ptr<TextField> TextField::wrappingLabelWithString(std::string_view text) {
    return textField([NSTextField wrappingLabelWithString:macos::stringToNSString(text).get()]);
}

std::shared_ptr<TextField> TextField::editable(Rect frame) {
    const auto field =
        Object<NSTextField*>::adopt([[NSTextField alloc] initWithFrame:macos::rectToNSRect(frame)]);
    return textField(field.get());
}

TextField::TextField(std::unique_ptr<Peer> peer) : View(std::move(peer)) {}

std::string TextField::stringValue() const {
    return macos::nsStringToString(fieldOf(*this).stringValue);
}

void TextField::setStringValue(std::string_view text) {
    fieldOf(*this).stringValue = macos::stringToNSString(text).get();
}

std::int64_t TextField::integerValue() const {
    return fieldOf(*this).integerValue;
}

void TextField::setIntegerValue(std::int64_t value) {
    fieldOf(*this).integerValue = static_cast<NSInteger>(value);
}

void TextField::setFont(Font font) {
    fieldOf(*this).font = macos::fontToNSFont(font);
}

void TextField::setTextColor(Color color) {
    fieldOf(*this).textColor = macos::colorToNSColor(color);
}

void TextField::setAlignment(TextAlignment alignment) {
    fieldOf(*this).alignment = macos::textAlignmentToNS(alignment);
}

void TextField::setAction(std::function<void()> action) {
    macos::setControlAction(*this, std::move(action));
}

} // namespace platform

#include "unit/windows/WindowTest.h"

#include "platform/Application.h"
#include "platform/simulated/Text.h"
#include "unit/support/Installation.h"
#include "windows/SettingsWindowController.h"

using simulated::desktop;

namespace {

std::string kindOf(const simulated::TextField& field) {
    switch (field.kind()) {
    case simulated::TextField::Kind::label:
        return "label ";
    case simulated::TextField::Kind::wrappingLabel:
        return "wrapping label ";
    case simulated::TextField::Kind::editable:
        return "field ";
    }
    return "? ";
}

std::string styleOf(const simulated::TextField& field) {
    std::string style;
    if (const auto font = field.font()) {
        style += ", " + simulated::nameOf(*font);
    }
    if (const auto color = field.textColor()) {
        style += ", " + std::string(simulated::nameOf(*color));
    }
    return style + (field.alignment() == platform::TextAlignment::center ? ", centred" : "");
}

std::string lineOf(const simulated::View& view) {
    const std::string frame = " at " + simulated::text(view.frame());
    if (const auto* const field = dynamic_cast<const simulated::TextField*>(&view)) {
        return kindOf(*field) + field->name() + frame + styleOf(*field);
    }
    if (const auto* const button = dynamic_cast<const simulated::Button*>(&view)) {
        return "checkbox \"" + button->title + "\"" + frame + ", " +
               std::string(simulated::nameOf(button->state));
    }
    if (const auto* const stepper = dynamic_cast<const simulated::Stepper*>(&view)) {
        return "stepper " + simulated::text(stepper->value()) + frame + ", " +
               simulated::text(stepper->minimum()) + " to " + simulated::text(stepper->maximum()) +
               " by " + simulated::text(stepper->increment());
    }
    if (const auto* const image = dynamic_cast<const simulated::ImageView*>(&view)) {
        return "image " + simulated::nameOf(image->image.get()) + frame;
    }
    return "view" + frame;
}

} // namespace

std::vector<std::string> contentsOf(const simulated::ProgramWindow& window) {
    std::vector<std::string> lines;
    for (const simulated::View* const view : window.contents()) {
        lines.push_back(lineOf(*view));
    }
    return lines;
}

WindowTest::WindowTest() {
    installQuellbar();
    platform::Application::shared();
    desktop().application.launch();
}

void WindowTest::store(const std::string& key, platform::DefaultsValue value) {
    desktop().userDefaults.stored[key] = std::move(value);
}

platform::DefaultsValue WindowTest::stored(const std::string& key) {
    return desktop().userDefaults.stored.at(key);
}

void SettingsTest::open() {
    SettingsWindowController::shared().window()->makeKeyAndOrderFront();
    platform::Application::shared().activateIgnoringOtherApps();
}

simulated::ProgramWindow& SettingsTest::window() {
    return desktop().windows.titled("Quellbar Settings");
}

simulated::View& SettingsTest::recorder() {
    return *window().contents().at(2);
}

const simulated::TextField& SettingsTest::recorderText() {
    return dynamic_cast<const simulated::TextField&>(*recorder().subviews().at(0));
}

void SettingsTest::record(std::uint16_t keyCode, std::uint32_t modifierFlags) {
    recorder().click();
    window().pressKey({{}, modifierFlags, keyCode});
}

void SettingsTest::enterMinutes(std::string_view text) {
    window().editableField().type(text);
    window().editableField().pressReturn();
}

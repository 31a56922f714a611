#include "platform/simulated/Appearance.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Text.h"

#include <array>

namespace simulated {
namespace {

struct Entry {
    platform::Color color;
    std::string_view name;
    platform::CGColor light;
    platform::CGColor dark;
};

// No two of them are alike but those that are white in both.
constexpr std::array<Entry, 7> colors{{
    {platform::Color::label, "label", {0, 0, 0, 0.85}, {1, 1, 1, 0.85}},
    {platform::Color::secondaryLabel, "secondaryLabel", {0, 0, 0, 0.5}, {1, 1, 1, 0.55}},
    {platform::Color::white, "white", {1, 1, 1, 1}, {1, 1, 1, 1}},
    {platform::Color::systemRed, "systemRed", {1, 0.25, 0.25, 1}, {1, 0.3, 0.3, 1}},
    {platform::Color::selectedContentBackground,
     "selectedContentBackground",
     {0, 0.4, 0.9, 1},
     {0, 0.35, 0.8, 1}},
    {platform::Color::controlBackground, "controlBackground", {1, 1, 1, 1}, {0.1, 0.1, 0.1, 1}},
    {platform::Color::controlAccent, "controlAccent", {0, 0.5, 1, 1}, {0.1, 0.55, 1, 1}},
}};

std::string_view purposeOf(platform::Font::Purpose purpose) {
    switch (purpose) {
    case platform::Font::Purpose::system:
        return "system";
    case platform::Font::Purpose::boldSystem:
        return "boldSystem";
    case platform::Font::Purpose::menu:
        return "menu";
    case platform::Font::Purpose::menuBar:
        return "menuBar";
    }
    return "?";
}

const Entry& entryOf(platform::Color color) {
    return colors.at(static_cast<std::size_t>(color));
}

} // namespace

std::string_view nameOf(platform::Color color) {
    return entryOf(color).name;
}

std::string nameOf(platform::Font font) {
    return std::string(purposeOf(font.purpose)) + " " + text(font.size);
}

} // namespace simulated

platform::CGColor platform::cgColor(Color color) {
    const simulated::Entry& entry = simulated::entryOf(color);
    simulated::desktop().calls.record("cgColor", {entry.name});
    return simulated::desktop().appearance.isDark ? entry.dark : entry.light;
}

#pragma once

#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

/// What a user finds in a window, from back to front: one line for each view, with what it is, its
/// text and its frame, and how it differs from a plain control of its kind.
std::vector<std::string> contentsOf(const simulated::ProgramWindow& window);

/// The installed program, which has launched.
class WindowTest : public testing::Test {
  protected:
    WindowTest();

    static void store(const std::string& key, platform::DefaultsValue value);
    static platform::DefaultsValue stored(const std::string& key);
};

/// The settings window as the user opens it.
class SettingsTest : public WindowTest {
  protected:
    /// Shows the window, which the first call makes.
    static void open();

    static simulated::ProgramWindow& window();
    static simulated::View& recorder();
    static const simulated::TextField& recorderText();
    static simulated::Button& checkbox(std::string_view title) { return window().checkbox(title); }

    /// Clicks on the recorder and presses a key with the modifiers of an event.
    static void record(std::uint16_t keyCode, std::uint32_t modifierFlags);
    /// Types into the duration field and presses Return.
    static void enterMinutes(std::string_view text);
};

#include "tests/desktop/support/Quellbar.h"

#include <fstream>
#include <stdexcept>

namespace desktop {
namespace {

constexpr auto instanceSelection = "_QUELLBAR_S0";

xcb_window_t ownerOf(const XDisplay& display, std::string_view selection) {
    const auto cookie = xcb_get_selection_owner(display.connection(), display.atom(selection));
    const Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(display.connection(), cookie, nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_NONE};
}

std::string base64(std::string_view bytes) {
    constexpr std::string_view digits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    unsigned bits = 0;
    int count = 0;
    for (const char byte : bytes) {
        bits = (bits << 8U) | static_cast<unsigned char>(byte);
        for (count += 8; count >= 6; count -= 6) {
            text += digits[(bits >> static_cast<unsigned>(count - 6)) & 63U];
        }
    }
    if (count > 0) {
        text += digits[(bits << static_cast<unsigned>(6 - count)) & 63U];
    }
    text.resize((text.size() + 3) / 4 * 4, '=');
    return text;
}

} // namespace

const Chord defaultShortcut{.modifiers = {key::leftSuper, key::leftAlt}, .key = key::m};

Quellbar::Quellbar(const VirtualDesktop& desktop)
    : display_(desktop.display()), log_(command(desktop).output), process_(command(desktop)) {
    waitUntilLaunched();
}

Command Quellbar::command(const VirtualDesktop& desktop) {
    return desktop.command({QUELLBAR_PROGRAM});
}

void Quellbar::waitUntilLaunched() {
    const auto isTheInstance = [this] {
        if (!process_.isRunning()) {
            throw std::runtime_error("the program ended while starting:\n" + log_.text());
        }
        return ownerOf(display_, instanceSelection) != XCB_NONE;
    };
    waitUntil(isTheInstance, "the program to start");
    settle();
}

// The owner of a selection answers whoever asks for it, from its event loop. What an event before
// the question has put off to the loop's next turn is done when a second question is answered.
void Quellbar::settle() {
    askOnce();
    askOnce();
}

void Quellbar::askOnce() {
    const xcb_window_t asker = xcb_generate_id(display_.connection());
    xcb_create_window(display_.connection(), XCB_COPY_FROM_PARENT, asker, display_.root(), 0, 0, 1,
                      1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_convert_selection(display_.connection(), asker, display_.atom(instanceSelection),
                          display_.atom("TIMESTAMP"), display_.atom("QUELLBAR_TEST"),
                          XCB_CURRENT_TIME);
    const Deadline deadline;
    while (XDisplay::kindOf(*display_.nextEvent("an answer of the program", deadline)) !=
           XCB_SELECTION_NOTIFY) {
    }
    xcb_destroy_window(display_.connection(), asker);
}

std::filesystem::path defaultsFile(const VirtualDesktop& desktop) {
    return desktop.configuration() / "quellbar" / "defaults.json";
}

void storeDefaults(const VirtualDesktop& desktop, std::string_view text) {
    std::filesystem::create_directories(defaultsFile(desktop).parent_path());
    std::ofstream(defaultsFile(desktop)) << text;
}

std::string defaultsWithShortcut(std::string_view bytes) {
    return R"({"minimizeShortcut": {"data": ")" + base64(bytes) + R"("}})";
}

} // namespace desktop

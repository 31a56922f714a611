#include "tests/desktop/support/Quellbar.h"

#include "tests/desktop/support/Base64.h"

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

// The program owns a selection, and answers whoever asks for it when it has dealt with everything
// that came before.
void Quellbar::settle() {
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
    return R"({"minimizeShortcut": {"data": ")" + base64Of(bytes) + R"("}})";
}

} // namespace desktop

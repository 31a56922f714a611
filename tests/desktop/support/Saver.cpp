#include "tests/desktop/support/Saver.h"

#include <xcb/screensaver.h>

#include <stdexcept>

namespace desktop {
namespace {

Reply<xcb_screensaver_query_info_reply_t> query(const XDisplay& display) {
    const auto cookie = xcb_screensaver_query_info(display.connection(), display.root());
    Reply<xcb_screensaver_query_info_reply_t> reply(
        xcb_screensaver_query_info_reply(display.connection(), cookie, nullptr));
    if (!reply) {
        throw std::runtime_error("the X server tells nothing of its screen saver");
    }
    return reply;
}

} // namespace

Saver::Saver(const std::string& display) : display_(display) {}

void Saver::startAfter(std::chrono::seconds idleTime) const {
    xcb_set_screen_saver(display_.connection(), static_cast<std::int16_t>(idleTime.count()), 0,
                         XCB_BLANKING_PREFERRED, XCB_EXPOSURES_ALLOWED);
    display_.sync();
}

bool Saver::isShowing() const {
    return query(display_)->state == XCB_SCREENSAVER_STATE_ON;
}

std::chrono::milliseconds Saver::idleTime() const {
    return std::chrono::milliseconds(query(display_)->ms_since_user_input);
}

void Saver::waitUntilShowing() const {
    waitUntil([this] { return isShowing(); }, "the X server's screen saver");
}

void Saver::waitUntilIdleFor(std::chrono::milliseconds time) const {
    waitUntil([&] { return idleTime() >= time; }, "the X server to be idle");
}

} // namespace desktop

#include "tests/desktop/support/Pointer.h"

#include <xcb/xtest.h>

namespace desktop {

Pointer::Pointer(const std::string& display) : display_(display) {}

void Pointer::moveTo(int x, int y) {
    fake(XCB_MOTION_NOTIFY, 0, x, y);
}

void Pointer::buttonDown(std::uint8_t button) {
    fake(XCB_BUTTON_PRESS, button, 0, 0);
}

void Pointer::buttonUp(std::uint8_t button) {
    fake(XCB_BUTTON_RELEASE, button, 0, 0);
}

void Pointer::click(std::uint8_t button) {
    buttonDown(button);
    buttonUp(button);
}

void Pointer::fake(std::uint8_t kind, std::uint8_t detail, int x, int y) const {
    xcb_test_fake_input(display_.connection(), kind, detail, XCB_CURRENT_TIME, display_.root(),
                        static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
    display_.sync();
}

} // namespace desktop

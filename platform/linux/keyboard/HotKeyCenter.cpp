#include "platform/linux/keyboard/HotKeyCenter.h"

#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/XkbEvents.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace platform::linux_host {

namespace {

// One change of the keyboard comes as several events. And as a rule the change is none, but another
// keyboard with the same map that is used for the first time: then a press follows at once, and has
// to be served before the map is read.
constexpr std::chrono::milliseconds burst{20};

// The number of the keyboard extension's events.
std::optional<std::uint8_t> watchKeyboard(Connection& connection) {
    const auto firstEvent = setUpKeyboardExtension(connection);
    if (firstEvent) {
        quellbar_watch_keyboard(connection.xcb());
    }
    return firstEvent;
}

bool overlap(const std::vector<KeyGrab>& a, const std::vector<KeyGrab>& b) {
    return std::find_first_of(a.begin(), a.end(), b.begin(), b.end()) != a.end();
}

} // namespace

HotKeyCenter& HotKeyCenter::shared() {
    static auto* const instance = new HotKeyCenter(Connection::shared());
    return *instance;
}

// Changes are listened for from before the map is read, so that none is missed in between.
HotKeyCenter::HotKeyCenter(Connection& connection)
    : connection_(connection), firstKeyboardEvent_(watchKeyboard(connection)) {
    connection_.subscribe([this](const xcb_generic_event_t& event) { handleEvent(event); });
    calm_.setSingleShot(true);
    calm_.setInterval(burst);
    QObject::connect(&calm_, &QTimer::timeout, [this] { grabAgain(); });
}

RegisteredHotKey HotKeyCenter::registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                              EventHotKeyID identity) {
    connection_.dispatchEvents();
    if (calm_.isActive()) {
        grabAgain();
    }
    auto grabs = grabsOf(keyCode, carbonModifiers, keymap());
    if (grabs.empty()) {
        return {.status = eventHotKeyInvalidErr, .hotKey = {}};
    }
    if (!take(grabs)) {
        return {.status = eventHotKeyExistsErr, .hotKey = {}};
    }
    const EventHotKeyRef hotKey{++lastHotKey_};
    registrations_.push_back({.hotKey = hotKey,
                              .identity = identity,
                              .keyCode = keyCode,
                              .carbonModifiers = carbonModifiers,
                              .grabs = std::move(grabs)});
    return {.status = noErr, .hotKey = hotKey};
}

bool HotKeyCenter::unregisterHotKey(EventHotKeyRef hotKey) {
    const auto found = std::find_if(
        registrations_.begin(), registrations_.end(),
        [hotKey](const Registration& registration) { return registration.hotKey == hotKey; });
    if (found == registrations_.end()) {
        return false;
    }
    releaseGrabs(connection_, found->grabs);
    registrations_.erase(found);
    return true;
}

// What other clients send in place of the server has one bit more and so is nothing to us.
void HotKeyCenter::handleEvent(const xcb_generic_event_t& event) {
    if (firstKeyboardEvent_ && quellbar_is_keyboard_change(&event, *firstKeyboardEvent_)) {
        if (!calm_.isActive()) {
            calm_.start();
        }
        return;
    }
    switch (event.response_type) {
    case XCB_KEY_PRESS:
        keyPressed(reinterpret_cast<const xcb_key_press_event_t&>(event));
        break;
    case XCB_KEY_RELEASE:
        keyReleased(reinterpret_cast<const xcb_key_release_event_t&>(event));
        break;
    default:
        break;
    }
}

// While a hot key is down the server sends us the whole keyboard, so other keys are none of ours,
// and more presses of the same one are its auto-repeat.
void HotKeyCenter::keyPressed(const xcb_key_press_event_t& event) {
    if (heldKey_ != 0) {
        return;
    }
    const Registration* const registration = registrationFor(event);
    if (registration == nullptr) {
        return;
    }
    heldKey_ = event.detail;
    if (handler_) {
        const EventHotKeyID identity = registration->identity; // the handler may unregister
        handler_(identity);
    }
}

void HotKeyCenter::keyReleased(const xcb_key_release_event_t& event) {
    if (event.detail == heldKey_) {
        heldKey_ = 0;
    }
}

// The server has compared the modifiers already. They are looked at again only where several hot
// keys share a key.
const HotKeyCenter::Registration*
HotKeyCenter::registrationFor(const xcb_key_press_event_t& event) const {
    constexpr std::uint16_t allModifiers =
        0xff; // the rest of the state is the mouse and the layout
    const KeyGrab exact{.keycode = event.detail,
                        .modifiers = static_cast<std::uint16_t>(event.state & allModifiers)};
    const Registration* sameKey = nullptr;
    for (const Registration& registration : registrations_) {
        for (const KeyGrab& grab : registration.grabs) {
            if (grab == exact) {
                return &registration;
            }
            if (grab.keycode == exact.keycode) {
                sameKey = &registration;
            }
        }
    }
    return sameKey;
}

// A hot key that the new keyboard lacks, or that another program holds there, is kept without a
// grab and tried again at the next change. All are given back before any is taken: what was one's
// may now be the other's.
void HotKeyCenter::grabAgain() {
    calm_.stop();
    keymap_.reset();
    const bool isSame = std::all_of(registrations_.begin(), registrations_.end(),
                                    [this](const Registration& registration) {
                                        return registration.grabs == currentGrabsOf(registration);
                                    });
    if (isSame) {
        return;
    }
    heldKey_ = 0;
    for (Registration& registration : registrations_) {
        releaseGrabs(connection_, std::exchange(registration.grabs, {}));
    }
    for (Registration& registration : registrations_) {
        if (auto grabs = currentGrabsOf(registration); take(grabs)) {
            registration.grabs = std::move(grabs);
        }
    }
}

std::vector<KeyGrab> HotKeyCenter::currentGrabsOf(const Registration& registration) {
    return grabsOf(registration.keyCode, registration.carbonModifiers, keymap());
}

const Keymap& HotKeyCenter::keymap() {
    return keymap_ ? *keymap_ : keymap_.emplace(connection_);
}

// The server lets one client take a grab twice, so our own are compared here.
bool HotKeyCenter::take(const std::vector<KeyGrab>& grabs) {
    const bool isOurs =
        std::any_of(registrations_.begin(), registrations_.end(),
                    [&grabs](const Registration& other) { return overlap(grabs, other.grabs); });
    return !isOurs && takeGrabs(connection_, grabs);
}

} // namespace platform::linux_host

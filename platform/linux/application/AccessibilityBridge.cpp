#include "platform/linux/application/AccessibilityBridge.h"

#include "platform/linux/dbus/MessageBus.h"

#include <QByteArray>
#include <chrono>

namespace platform::linux_host {

namespace {

using namespace std::chrono_literals;

constexpr auto longestWait = 250ms;
// Where the bridge looks first. It does not ask the session bus when it finds an address here.
constexpr const char* addressVariable = "AT_SPI_BUS_ADDRESS";
constexpr const char* nowhere = "disabled:"; // no known transport: the bridge stays off

// A bus that does not exist, or has ended, answers too: there is nothing to wait for.
bool answers(MessageBus& bus) {
    using std::chrono::steady_clock;
    const auto end = steady_clock::now() + longestWait;
    while (bus.isOpen() && !bus.isReady()) {
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(end - steady_clock::now());
        if (rest <= 0ms) {
            return false;
        }
        pollfd state = bus.pollState();
        ::poll(&state, 1, static_cast<int>(rest.count()));
        bus.process();
    }
    return true;
}

} // namespace

void keepBridgeFromSilentBus() {
    if (!qEnvironmentVariableIsEmpty(addressVariable)) {
        return;
    }
    const auto bus = MessageBus::connect(BusType::session);
    if (bus && !answers(*bus)) {
        qputenv(addressVariable, nowhere);
    }
}

} // namespace platform::linux_host

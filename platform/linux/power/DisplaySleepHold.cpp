#include "platform/linux/power/DisplaySleepHold.h"

#include "platform/linux/x11/Connection.h"

#include <algorithm>
#include <array>

using namespace std::chrono_literals;

namespace platform::linux_host {

namespace {

constexpr auto longestWait = 1s;
constexpr auto resetInterval = 30s; // the time-outs that desktops offer begin at a minute

// Opened when first needed, and anew when it was lost. Theirs alone, so that waiting for an answer
// runs nothing else of the program.
std::shared_ptr<MessageBus> busForInhibitors(BusType type) {
    static auto& buses = *new std::array<std::shared_ptr<MessageBus>, 2>;
    auto& bus = buses.at(static_cast<std::size_t>(type));
    if (!bus || !bus->isOpen()) {
        bus = MessageBus::connect(type);
    }
    return bus;
}

void waitForTraffic(std::chrono::milliseconds limit) {
    const std::array buses{busForInhibitors(BusType::session), busForInhibitors(BusType::system)};
    std::array<pollfd, buses.size()> states{};
    std::ranges::transform(buses, states.begin(), [](const auto& bus) {
        return bus ? bus->pollState() : pollfd{.fd = -1, .events = 0, .revents = 0};
    });
    ::poll(states.data(), states.size(), static_cast<int>(limit.count()));
    for (const auto& bus : buses) {
        if (bus) {
            bus->process();
        }
    }
}

} // namespace

DisplaySleepHold::DisplaySleepHold(const std::string& reason)
    : connection_(Connection::shared()), control_(saverControl(connection_)) {
    holdSaver();
    askServices(reason);
    waitForAnswer();
}

DisplaySleepHold::~DisplaySleepHold() {
    if (resets_) {
        resets_->invalidate();
    }
}

bool DisplaySleepHold::isHeld() const {
    return control_ != SaverControl::none ||
           std::ranges::any_of(inhibitors_, [](const auto& each) { return each->isHeld(); });
}

void DisplaySleepHold::holdSaver() {
    switch (control_) {
    case SaverControl::none:
        break;
    case SaverControl::reset:
        resets_ =
            Timer::scheduledRepeatingTimer(resetInterval, [this] { resetSaverUnlessInhibited(); });
        resetSaver(connection_);
        break;
    case SaverControl::suspend:
        suspension_.emplace(connection_);
        break;
    }
}

void DisplaySleepHold::askServices(const std::string& reason) {
    for (const InhibitorService& service : inhibitorServices()) {
        if (auto bus = busForInhibitors(service.bus)) {
            inhibitors_.push_back(std::make_unique<Inhibitor>(std::move(bus), service, reason));
        }
    }
}

// All services are asked by now, so the limit is one for all of them together.
void DisplaySleepHold::waitForAnswer() {
    using std::chrono::steady_clock;
    const auto end = steady_clock::now() + longestWait;
    const auto isPending = [](const auto& each) { return each->isPending(); };
    while (!isHeld() && std::ranges::any_of(inhibitors_, isPending)) {
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(end - steady_clock::now());
        if (rest <= 0ms) {
            return;
        }
        waitForTraffic(rest);
    }
}

// Where a service of the session holds the saver off, it also decides when it ends. Logind has no
// say over it.
void DisplaySleepHold::resetSaverUnlessInhibited() {
    const bool isInhibited = std::ranges::any_of(inhibitors_, [](const auto& each) {
        return each->isHeld() && each->service().bus == BusType::session;
    });
    if (!isInhibited) {
        resetSaver(connection_);
    }
}

} // namespace platform::linux_host

#include "contract/World.h"
#include "platform/simulated/Desktop.h"

#include <algorithm>
#include <map>

namespace {

using contract::KeyCombination;
using simulated::desktop;

simulated::KeyCombination keys(KeyCombination combination) {
    return {combination.keyCode, combination.modifiers};
}

constexpr auto patience = std::chrono::minutes(1);
constexpr auto step = std::chrono::milliseconds(5);

class SimulatedWorld final : public contract::World {
  public:
    // The suites ask for the answers that misuse gets, too.
    SimulatedWorld() {
        desktop().hotKeys.staleRef = simulated::HotKeys::StaleRef::isAnError;
        desktop().powerAssertions.staleID = simulated::PowerAssertions::StaleID::isAnError;
    }

    platform::ProcessIdentifier start(platform::ActivationPolicy policy,
                                      const std::vector<std::string>& windows) override {
        auto& program = desktop().workspace.launch("program", policy);
        for (const std::string& title : windows) {
            windows_[title] = &program.openWindow(title);
        }
        return program.processIdentifier;
    }
    void quit(platform::ProcessIdentifier program) override {
        desktop().workspace.find(program)->quit();
    }
    void close(const std::string& window) override { windows_.at(window)->close(); }
    bool isMinimized(const std::string& window) override {
        return windows_.at(window)->isMinimized;
    }

    void setTrusted(bool isTrusted) override { desktop().accessibility.isTrusted = isTrusted; }

    bool holdElsewhere(KeyCombination combination) override {
        return desktop().hotKeys.holdElsewhere(keys(combination));
    }
    void releaseElsewhere(KeyCombination combination) override {
        desktop().hotKeys.releaseElsewhere(keys(combination));
    }
    void press(KeyCombination combination) override { desktop().hotKeys.press(keys(combination)); }
    void pressLong(KeyCombination combination) override {
        for (int repeats = 0; repeats < 5; ++repeats) {
            desktop().hotKeys.keyDown(keys(combination));
        }
        desktop().hotKeys.keyUp();
    }

    void store(const std::string& key, const platform::DefaultsValue& value) override {
        desktop().userDefaults.stored[key] = value;
    }
    std::optional<platform::DefaultsValue> stored(const std::string& key) override {
        const auto& stored = desktop().userDefaults.stored;
        const auto entry = stored.find(key);
        return entry == stored.end() ? std::nullopt : std::optional(entry->second);
    }
    void loseStore() override {
        desktop().userDefaults.isReadable = false;
        desktop().userDefaults.isWritable = false;
    }

    void arrangeScreens(const std::vector<platform::Rect>& frames) override {
        desktop().screens.screens.clear();
        for (const platform::Rect& frame : frames) {
            desktop().screens.screens.push_back({frame});
        }
    }
    void movePointer(platform::Point to) override { desktop().screens.pointer = to; }

    double wallTime() override { return desktop().clock.wallTime().seconds; }

    bool displayStaysAwake() override { return desktop().powerAssertions.displayStaysAwake(); }

    bool startsAtLogin() override {
        return desktop().loginItem.status == platform::LoginItemStatus::enabled;
    }
    void turnLoginItemOff() override {
        desktop().loginItem.status = platform::LoginItemStatus::requiresApproval;
    }
    void loseLoginItems() override {
        desktop().loginItem.registerError = "the service cannot be reached";
        desktop().loginItem.unregisterError = "the service cannot be reached";
    }

    bool hasLogged(const std::string& text) override {
        const auto holdsText = [&](const std::string& line) {
            return line.find(text) != std::string::npos;
        };
        return std::ranges::any_of(desktop().log.lines, holdsText) ||
               std::ranges::any_of(desktop().log.messages, holdsText,
                                   &simulated::Log::Message::text);
    }

    bool turnUntil(const std::function<bool()>& condition) override {
        const auto end = desktop().clock.uptime() + patience;
        while (!condition()) {
            if (desktop().clock.uptime() >= end) {
                return false;
            }
            desktop().runLoop.run(step);
        }
        return true;
    }

  private:
    std::map<std::string, simulated::Window*> windows_;
};

} // namespace

std::unique_ptr<contract::World> contract::makeWorld() {
    return std::make_unique<SimulatedWorld>();
}

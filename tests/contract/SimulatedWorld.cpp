#include "contract/World.h"
#include "platform/simulated/Desktop.h"

#include <map>

namespace {

using contract::KeyCombination;
using simulated::desktop;

simulated::KeyCombination keys(KeyCombination combination) {
    return {combination.keyCode, combination.modifiers};
}

class SimulatedWorld final : public contract::World {
  public:
    // The suites ask for the answers that misuse gets, too.
    SimulatedWorld() { desktop().hotKeys.staleRef = simulated::HotKeys::StaleRef::isAnError; }

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

    bool turnUntil(const std::function<bool()>& condition) override {
        while (!condition()) {
            if (desktop().mainQueue.waiting() == 0) {
                return false;
            }
            desktop().mainQueue.turn();
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

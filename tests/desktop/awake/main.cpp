// Keeps the display awake on command, as the program's menu would. Every line on standard input is
// carried out on the main thread and answered with a line: "active" or "inactive", and the seconds
// that are left.
//
//   start [<seconds>]   as long as the settings say, unless told otherwise
//   adjust <seconds>
//   stop
//   state
//   quit

#include "keepawake/KeepAwakeManager.h"
#include "platform/Application.h"
#include "platform/MainQueue.h"

#include <iostream>
#include <sstream>
#include <string>
#include <thread>

namespace {

void answer() {
    const KeepAwakeManager& manager = KeepAwakeManager::shared();
    std::cout << (manager.isActive() ? "active " : "inactive ") << manager.remainingSeconds()
              << std::endl;
}

void carryOut(const std::string& line) {
    KeepAwakeManager& manager = KeepAwakeManager::shared();
    std::istringstream words(line);
    std::string command;
    words >> command;
    double seconds = 0;
    const bool hasSeconds = static_cast<bool>(words >> seconds);
    if (command == "start") {
        manager.start(hasSeconds ? std::optional(seconds) : std::nullopt);
    } else if (command == "adjust") {
        manager.adjust(seconds);
    } else if (command == "stop") {
        manager.stop();
    } else if (command == "quit") {
        platform::Application::shared().terminate();
    }
    answer();
}

// On a thread of its own, so that the event loop runs as it does in the program.
void readCommands() {
    for (std::string line; std::getline(std::cin, line);) {
        platform::dispatchAsyncOnMainQueue([line] { carryOut(line); });
    }
}

class Delegate final : public platform::ApplicationDelegate {
  public:
    void applicationDidFinishLaunching() override {
        std::cout << "ready" << std::endl;
        std::thread(readCommands).detach();
    }
    void applicationDidReopen() override {}
    void applicationWillTerminate() override { KeepAwakeManager::shared().stop(); }
};

} // namespace

int main() {
    Delegate delegate;
    platform::Application& application = platform::Application::shared();
    application.setDelegate(&delegate);
    application.run();
}

// The engine on the Linux host: at each line on standard input, one pass over all windows. Prints
// when the pass began (CLOCK_MONOTONIC, nanoseconds) and how many round trips it made.

#include "RoundTrips.h"
#include "minimize/WindowMinimizer.h"
#include "platform/Application.h"
#include "platform/MainQueue.h"

#include <chrono>
#include <iostream>
#include <string>

namespace {

void answerNextTrigger() {
    std::string line;
    if (!std::getline(std::cin, line)) {
        platform::Application::shared().terminate();
        return;
    }
    const std::size_t before = bench::roundTrips();
    const auto begin = std::chrono::steady_clock::now().time_since_epoch();
    WindowMinimizer::minimizeAllWindows();
    std::cout << begin.count() << ' ' << bench::roundTrips() - before << std::endl;
    platform::dispatchAsyncOnMainQueue(answerNextTrigger);
}

class Delegate final : public platform::ApplicationDelegate {
  public:
    void applicationDidFinishLaunching() override {
        platform::Application::shared().setActivationPolicy(platform::ActivationPolicy::accessory);
        std::cout << "ready" << std::endl;
        answerNextTrigger();
    }
    void applicationDidReopen() override {}
    void applicationWillTerminate() override {}
};

} // namespace

int main() {
    Delegate delegate;
    platform::Application& application = platform::Application::shared();
    application.setDelegate(&delegate);
    application.run();
}

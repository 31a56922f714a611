#include "platform/MainQueue.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"

#include <utility>

namespace simulated {
namespace {

constexpr int turnsWithoutAnEnd = 10'000;

} // namespace

void MainQueue::post(std::function<void()> task) {
    if (!task) {
        misuse("an empty task is posted to the main queue");
    }
    if (!isClosed_) {
        tasks_.push_back(std::move(task));
    }
}

void MainQueue::turn() {
    if (std::exchange(isTurning_, true)) {
        misuse("a task turns the main queue that runs it");
    }
    // A task may close the queue, and with it take away those behind it.
    for (std::size_t due = tasks_.size(); due > 0 && !tasks_.empty(); --due) {
        const auto task = std::move(tasks_.front());
        tasks_.pop_front();
        task();
    }
    isTurning_ = false;
}

void MainQueue::turnUntilIdle() {
    for (int turns = 0; !tasks_.empty(); ++turns) {
        if (turns == turnsWithoutAnEnd) {
            misuse("the main queue never becomes idle");
        }
        turn();
    }
}

void MainQueue::close() {
    isClosed_ = true;
    tasks_.clear();
}

} // namespace simulated

void platform::dispatchAsyncOnMainQueue(std::function<void()> task) {
    simulated::desktop().calls.record("dispatchAsyncOnMainQueue");
    simulated::desktop().mainQueue.post(std::move(task));
}

#pragma once

#include <cstddef>
#include <deque>
#include <functional>

namespace simulated {

/// The tasks that wait for the main run loop.
class MainQueue {
  public:
    /// Adds a task behind the others, as the program does through the seam.
    void post(std::function<void()> task);

    [[nodiscard]] std::size_t waiting() const { return tasks_.size(); }

    /// One turn of the run loop: runs the tasks that wait now. What they post waits for the next.
    void turn();

    /// Turns until nothing waits. Misuse when there is no end to it.
    void turnUntilIdle();

    /// The process ends: nothing that waits will run, nor anything posted from now on.
    void close();

  private:
    std::deque<std::function<void()>> tasks_;
    bool isTurning_ = false;
    bool isClosed_ = false;
};

} // namespace simulated

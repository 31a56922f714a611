#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace simulated {

/// What the program asked of the desktop: one line a call, in order, as the call would be written,
/// for example "registerEventHotKey(46, 0x900, QLBR, 1)". Applications and windows appear by name.
/// Reaching a process-wide object (`current()`, `standard()`, a later `shared()`) is no call, nor
/// is reading back what the program itself has set, such as a title or a frame.
class Calls {
  public:
    [[nodiscard]] const std::vector<std::string>& all() const { return calls_; }

    /// The calls of these operations alone, for example of {"setAttributeValue"}.
    [[nodiscard]] std::vector<std::string>
    of(std::initializer_list<std::string_view> operations) const;

    /// Forgets the calls so far.
    void clear() { calls_.clear(); }

    /// Has `action` run within the next call that reads `call`: after the call is recorded, before
    /// it is answered. The place to change the desktop in the middle of what the program does.
    void during(std::string call, std::function<void()> action);

    /// For the services: notes a call and runs what waits for it. Misuse outside the main thread,
    /// which is the thread that first used the desktop.
    void record(std::string_view operation, std::initializer_list<std::string_view> arguments = {});

  private:
    std::vector<std::string> calls_;
    std::multimap<std::string, std::function<void()>> awaited_;
    std::thread::id mainThread_ = std::this_thread::get_id();
};

} // namespace simulated

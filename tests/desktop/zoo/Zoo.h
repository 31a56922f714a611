#pragma once

#include "tests/desktop/zoo/ZooClient.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace desktop {

/// The test application: opens windows of every kind on request. Reads one request a line from
/// standard input and answers each with a line on standard output; ends with its input.
class Zoo {
  public:
    /// Returns when the input has ended, or when a window was minimized that is to end it all.
    void run();

  private:
    /// What to do when a window is minimized.
    struct Reaction {
        std::vector<xcb_window_t> victims{};
        bool ends = false;
    };

    [[nodiscard]] std::vector<int> descriptors() const;
    bool readRequests();
    bool dispatchEvents();
    [[nodiscard]] std::string answer(const std::string& request);
    [[nodiscard]] std::string open(std::istream& arguments);
    ZooClient& client(std::size_t index);
    void destroy(const std::vector<xcb_window_t>& windows);
    void onMinimized(xcb_window_t window);

    std::vector<std::unique_ptr<ZooClient>> clients_;
    std::map<xcb_window_t, Reaction> reactions_;
    std::string unread_;
    bool hasEnded_ = false;
};

} // namespace desktop

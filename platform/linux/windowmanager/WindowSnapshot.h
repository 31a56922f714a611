#pragma once

#include "platform/linux/windowmanager/Applications.h"

#include <memory>
#include <vector>

namespace platform::linux_host {

class Connection;

/// Every managed window and its application, as they were at one moment. Taking one costs one round
/// trip to the X server however many windows there are, one more if there are new ones since the
/// last time, and one more if the X server does not know the process of some. Reading it costs
/// nothing.
class WindowSnapshot {
  public:
    /// Takes one now.
    static std::shared_ptr<const WindowSnapshot> take();

    /// The one taken last if somebody still holds it and the event loop has not turned since, else
    /// a new one. A list of applications holds its snapshot: so a pass over all applications and
    /// their windows sees one moment, while a question outside such a pass is answered afresh.
    static std::shared_ptr<const WindowSnapshot> current();

    /// Whether a pass is under way: somebody holds the one taken last, which will send what is
    /// requested meanwhile, and the event loop has not turned since.
    static bool isHeld();

    /// Bottom of the stack first. Empty when the desktop keeps no list.
    [[nodiscard]] const std::vector<ApplicationRecord>& applications() const {
        return applications_;
    }
    [[nodiscard]] const ApplicationRecord* find(ProcessIdentifier processIdentifier) const;

    /// Sends the requests that were made while it was held.
    ~WindowSnapshot();
    WindowSnapshot(const WindowSnapshot&) = delete;
    WindowSnapshot& operator=(const WindowSnapshot&) = delete;

  private:
    explicit WindowSnapshot(std::vector<ApplicationRecord> applications);

    std::vector<ApplicationRecord> applications_;
};

} // namespace platform::linux_host

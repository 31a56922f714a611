#pragma once

#include <functional>

namespace platform::linux_host {

class Connection;

/// Makes this process the one Quellbar of the X display; false when there is one already. The claim
/// is a selection of the X server, so it ends with the process, however that ends.
///
/// The one that is there already runs its `onSecondStart`, on its main queue.
[[nodiscard]] bool claimDisplay(Connection& connection, std::function<void()> onSecondStart);

} // namespace platform::linux_host

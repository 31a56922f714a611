#pragma once

namespace platform::linux_host {

class Connection;

/// Makes this process the one Quellbar of the X display; false when there is one already. The claim
/// is a selection of the X server, so it ends with the process, however that ends.
[[nodiscard]] bool claimDisplay(Connection& connection);

} // namespace platform::linux_host

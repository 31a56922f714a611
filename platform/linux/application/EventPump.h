#pragma once

#include <functional>

namespace platform::linux_host {

class Connection;

/// Makes the main event loop serve the connection for the rest of its life. `onLoss` is called once
/// when the X server is gone. The loop (QCoreApplication) has to exist.
void serveFromEventLoop(Connection& connection, std::function<void()> onLoss);

} // namespace platform::linux_host

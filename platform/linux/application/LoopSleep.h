#pragma once

namespace platform::linux_host {

class Connection;

/// Has the main event loop fire the timers of `RunLoopTimers` for the rest of its life. The loop
/// (QCoreApplication) has to exist.
///
/// Qt's loop is GLib's wherever Qt knows GLib. There they are fired from within its sleep: the
/// corners are polled so often that a whole turn of the loop each time would cost as much again as
/// the poll.
void fireTimersFromEventLoop(Connection& connection);

} // namespace platform::linux_host

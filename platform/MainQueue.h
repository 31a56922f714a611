#pragma once

#include <functional>

namespace platform {

/// Runs `task` on the main thread on a later turn of the main run loop, never within this call.
/// Tasks run once each, in the order in which they were posted. Stands for dispatch_async on the
/// main dispatch queue on macOS, a queued invocation on Linux.
void dispatchAsyncOnMainQueue(std::function<void()> task);

} // namespace platform

#pragma once

namespace platform::linux_host {

/// Keeps Qt's bridge to screen readers away from a session bus that does not answer: the bridge
/// waits for its answers before it lets the event loop begin. To be called between the making of
/// the application object and its loop. Waits for the bus itself, a quarter of a second at most.
void keepBridgeFromSilentBus();

} // namespace platform::linux_host

#pragma once

#include "platform/Workspace.h"

#include <memory>
#include <string_view>
#include <variant>
#include <vector>

namespace platform {

/// Options of a trust query. `prompt` asks the desktop to tell the user what to do when trust is
/// missing; the query itself never waits for the user.
struct TrustedCheckOptions {
    bool prompt = false;
};

/// Whether this process may act on other programs' windows. macOS: the Accessibility privacy
/// setting. Linux: a real X server with a window manager that keeps a client list.
[[nodiscard]] bool isProcessTrusted();

/// The same question, with options. With `prompt`, macOS shows its own dialog; Linux writes one
/// line to the log for each new cause.
bool isProcessTrustedWithOptions(TrustedCheckOptions options);

/// The outcome of an accessibility call. The values are the Accessibility API's; any other value
/// that a system answers is passed through and means failure.
enum class AXError : int {
    success = 0,
    failure = -25200,
    invalidUIElement = -25202,
    cannotComplete = -25204,
    attributeUnsupported = -25205,
    apiDisabled = -25211,
    noValue = -25212,
};

class UIElement;

/// A value that is there but is not a list of elements.
struct OtherValue {};

/// What reading an attribute gave: nothing, a list of elements, or something else.
using AttributeValue = std::variant<std::monostate, std::vector<UIElement>, OtherValue>;

/// Something on the screen that belongs to an application: the application itself or one of its
/// windows. A cheap value: copies name the same thing, and outliving it is harmless (a call on an
/// element that is gone fails or does nothing). Stands for AXUIElement on macOS, a window of a
/// client on Linux.
class UIElement {
  public:
    /// The element of an application. Always succeeds, also for an application that is gone.
    [[nodiscard]] static UIElement createApplication(ProcessIdentifier processIdentifier);

    /// Reads an attribute: "AXWindows" of an application is the list of its windows. Blocks while
    /// the application answers. On any result but success, `value` is left as it was.
    [[nodiscard]] AXError copyAttributeValue(std::string_view attribute,
                                             AttributeValue& value) const;

    /// Writes an attribute: "AXMinimized" of a window asks its application to minimize it or to
    /// bring it back. Success means that the request was accepted, not that it was done.
    AXError setAttributeValue(std::string_view attribute, bool value) const;

    /// What the host knows of the element. Only hosts make and read it.
    struct Peer;
    explicit UIElement(std::shared_ptr<const Peer> peer) : peer_(std::move(peer)) {}

  private:
    std::shared_ptr<const Peer> peer_;
};

} // namespace platform

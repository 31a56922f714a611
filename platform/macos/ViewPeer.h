#pragma once

#include "platform/View.h"
#include "platform/Window.h"
#include "platform/macos/ActionTarget.h"
#include "platform/macos/ForwardingView.h"

#import <AppKit/AppKit.h>

#include <vector>

struct platform::View::Peer {
    /// A view that hears of its events.
    explicit Peer(macos::Object<QuellbarView*> forwarding)
        : view(macos::Object<NSView*>::share(forwarding.get())), forwarder(std::move(forwarding)) {}
    /// One of the system's controls, which deals with its events by itself.
    explicit Peer(NSControl* control) : view(macos::Object<NSView*>::share(control)) {}

    macos::Object<NSView*> view;
    macos::Object<QuellbarView*> forwarder; // the same view; nil for a control
    // AppKit keeps the subviews of `view`; here are the seam's views to which they belong.
    std::vector<std::shared_ptr<View>> subviews;
    macos::ActionTarget action;              // of a control
    std::vector<macos::ActionTarget> clicks; // of gesture recognizers
    std::unique_ptr<Window> systemWindow;    // see View::window()
};

namespace platform::macos {

/// The native part of a control of the seam, which is of the class `Control`.
template <typename Control>
[[nodiscard]] Control* controlOf(const View& view) {
    return static_cast<Control*>(view.peer().view.get());
}

/// Lets a control call `action`, in place of any action that it had.
void setControlAction(View& control, std::function<void()> action);

} // namespace platform::macos

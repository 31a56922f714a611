#include "platform/View.h"

#include "platform/macos/Conversions.h"
#include "platform/macos/MenuPeers.h"
#include "platform/macos/ViewPeer.h"
#include "platform/macos/WindowPeer.h"

namespace platform {

using macos::Object;

namespace {

NSTrackingArea* trackingAreaToNS(TrackingArea area) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a name was a reference once
    return reinterpret_cast<NSTrackingArea*>(area);
}

static_assert(static_cast<NSUInteger>(TrackingAreaOptions::mouseEnteredAndExitedActiveAlways) ==
              (NSTrackingMouseEnteredAndExited | NSTrackingActiveAlways));

static_assert(static_cast<NSUInteger>(AutoresizingMask::none) == NSViewNotSizable);
static_assert(static_cast<NSUInteger>(AutoresizingMask::widthAndHeightSizable) ==
              (NSViewWidthSizable | NSViewHeightSizable));

} // namespace

void macos::setControlAction(View& control, std::function<void()> action) {
    auto* const native = controlOf<NSControl>(control);
    ActionTarget target = makeActionTarget(std::move(action));
    native.target = target.get();
    native.action = @selector(performAction:);
    control.peer().action = std::move(target);
}

View::View(Rect frame)
    : View(std::make_unique<Peer>(Object<QuellbarView*>::adopt(
          [[QuellbarView alloc] initWithFrame:macos::rectToNSRect(frame) view:this]))) {}

View::View(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

View::~View() {
    [peer_->forwarder.get() forgetView];
}

Rect View::frame() const {
    return macos::nsRectToRect(peer_->view.get().frame);
}

void View::setFrame(Rect frame) {
    peer_->view.get().frame = macos::rectToNSRect(frame);
}

Rect View::bounds() const {
    return macos::nsRectToRect(peer_->view.get().bounds);
}

void View::addSubview(const std::shared_ptr<View>& subview) {
    [peer_->view.get() addSubview:subview->peer().view.get()];
    peer_->subviews.push_back(subview);
}

void View::setAutoresizingMask(AutoresizingMask mask) {
    peer_->view.get().autoresizingMask = static_cast<NSAutoresizingMaskOptions>(mask);
}

void View::constrainCenteredVertically(View& subview, double leading, double trailing) {
    NSView* const outer = peer_->view.get();
    NSView* const inner = subview.peer().view.get();
    inner.translatesAutoresizingMaskIntoConstraints = NO;
    [NSLayoutConstraint activateConstraints:@[
        [inner.leadingAnchor constraintEqualToAnchor:outer.leadingAnchor constant:leading],
        [inner.trailingAnchor constraintLessThanOrEqualToAnchor:outer.trailingAnchor
                                                       constant:-trailing],
        [inner.centerYAnchor constraintEqualToAnchor:outer.centerYAnchor],
    ]];
}

// A menu shows its views in a window of the system's own. It gets an object of the seam too, made
// here and good for as long as the view is in that window.
Window* View::window() const {
    NSWindow* const window = peer_->view.get().window;
    if (Window* const own = macos::ownWindowOf(window)) {
        return own;
    }
    auto& systemWindow = peer_->systemWindow;
    if (window == nil) {
        systemWindow.reset();
    } else if (!systemWindow || systemWindow->peer().window != window) {
        systemWindow = std::make_unique<Window>(std::make_unique<Window::Peer>(window));
    }
    return systemWindow.get();
}

// AppKit finds the item from any view within it; the seam, from the one that fills it.
MenuItem* View::enclosingMenuItem() const {
    NSView* const view = peer_->view.get();
    NSMenuItem* const item = view.enclosingMenuItem;
    return item.view == view ? macos::menuItemOf(item) : nullptr;
}

void View::setNeedsDisplay() {
    peer_->view.get().needsDisplay = YES;
}

TrackingArea View::addTrackingArea(Rect rect, TrackingAreaOptions options) {
    NSView* const view = peer_->view.get();
    const auto area = Object<NSTrackingArea*>::adopt([[NSTrackingArea alloc]
        initWithRect:macos::rectToNSRect(rect)
             options:static_cast<NSTrackingAreaOptions>(options)
               owner:view
            userInfo:nil]);
    [view addTrackingArea:area.get()]; // which keeps it
    return TrackingArea{reinterpret_cast<std::uintptr_t>(area.get())};
}

void View::removeTrackingArea(TrackingArea area) {
    [peer_->view.get() removeTrackingArea:trackingAreaToNS(area)];
}

Point View::convertFromWindow(Point point) const {
    return macos::nsPointToPoint([peer_->view.get() convertPoint:macos::pointToNSPoint(point)
                                                        fromView:nil]);
}

void View::addClickGestureRecognizer(std::function<void()> action) {
    const auto target = macos::makeActionTarget(std::move(action));
    const auto recognizer = Object<NSClickGestureRecognizer*>::adopt(
        [[NSClickGestureRecognizer alloc] initWithTarget:target.get()
                                                  action:@selector(performAction:)]);
    [peer_->view.get() addGestureRecognizer:recognizer.get()];
    peer_->clicks.push_back(target);
}

} // namespace platform

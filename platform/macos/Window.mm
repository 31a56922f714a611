#include "platform/Window.h"

#include "platform/macos/Conversions.h"
#include "platform/macos/ViewPeer.h"
#include "platform/macos/WindowPeer.h"

@implementation QuellbarWindow
@end

namespace platform {

using macos::Object;

namespace {

Object<QuellbarWindow*> makeWindow(Rect content, std::string_view title) {
    constexpr NSWindowStyleMask style = NSWindowStyleMaskTitled | NSWindowStyleMaskClosable;
    auto window = Object<QuellbarWindow*>::adopt([[QuellbarWindow alloc]
        initWithContentRect:macos::rectToNSRect(content)
                  styleMask:style
                    backing:NSBackingStoreBuffered
                      defer:NO]);
    window.get().releasedWhenClosed = NO; // its holder does that
    window.get().title = macos::stringToNSString(title).get();
    return window;
}

} // namespace

Window* macos::ownWindowOf(NSWindow* window) {
    if (![window isKindOfClass:[QuellbarWindow class]]) {
        return nullptr;
    }
    return static_cast<QuellbarWindow*>(window).seamWindow;
}

Window::Window(Size contentSize, std::string_view title)
    : Window(std::make_unique<Peer>(makeWindow({{}, contentSize}, title))) {
    peer_->own.get().seamWindow = this;
    peer_->contentView = std::make_shared<View>(Rect{{}, contentSize});
    peer_->window.contentView = peer_->contentView->peer().view.get();
}

Window::Window(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

Window::~Window() {
    peer_->own.get().seamWindow = nullptr;
    [peer_->own.get() close];
}

void Window::center() {
    [peer_->window center];
}

View* Window::contentView() const {
    return peer_->contentView.get();
}

void Window::makeKeyAndOrderFront() {
    [peer_->window makeKeyAndOrderFront:nil];
}

bool Window::makeFirstResponder(View& view) {
    return [peer_->window makeFirstResponder:view.peer().view.get()] == YES;
}

} // namespace platform

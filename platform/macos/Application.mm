#include "platform/Application.h"

#include "platform/macos/CallOut.h"
#include "platform/macos/Conversions.h"

namespace {

// Since AppKit's announcement that the process is about to end.
bool isTerminating = false;

} // namespace

/// Hands AppKit's calls on to the seam's delegate.
@interface QuellbarApplicationDelegate : NSObject <NSApplicationDelegate>
- (instancetype)initWithDelegate:(platform::ApplicationDelegate*)delegate;
@end

@implementation QuellbarApplicationDelegate {
    platform::ApplicationDelegate* delegate_;
}

- (instancetype)initWithDelegate:(platform::ApplicationDelegate*)delegate {
    self = [super init];
    if (self != nil) {
        delegate_ = delegate;
    }
    return self;
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    platform::macos::callOut([self] { delegate_->applicationDidFinishLaunching(); });
}

// With a window on the screen it is a click on the Dock icon, and AppKit itself does what is usual.
- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)hasWindows {
    if (!hasWindows) {
        platform::macos::callOut([self] { delegate_->applicationDidReopen(); });
    }
    return hasWindows;
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    isTerminating = true;
    platform::macos::callOut([self] { delegate_->applicationWillTerminate(); });
}

@end

namespace platform {

namespace {

using Adapter = macos::Object<QuellbarApplicationDelegate*>;

Adapter adapterOf(ApplicationDelegate* delegate) {
    if (delegate == nullptr) {
        return {};
    }
    return Adapter::adopt([[QuellbarApplicationDelegate alloc] initWithDelegate:delegate]);
}

} // namespace

Application& Application::shared() {
    @autoreleasepool {
        [NSApplication sharedApplication];
    }
    static auto* const application = new Application;
    return *application;
}

Application* Application::current() {
    return NSApp != nil ? &shared() : nullptr;
}

void Application::setDelegate(ApplicationDelegate* delegate) {
    // AppKit holds its delegate weakly, so the adapter is kept here.
    static Adapter kept;
    Adapter adapter = adapterOf(delegate);
    NSApp.delegate = adapter.get();
    kept = std::move(adapter);
}

void Application::run() {
    @autoreleasepool {
        [NSApp run];
    }
}

void Application::terminate() {
    // A second request must not start AppKit's sequence over from within the first.
    if (!isTerminating) {
        [NSApp terminate:nil];
    }
}

bool Application::setActivationPolicy(ActivationPolicy policy) {
    return [NSApp setActivationPolicy:macos::activationPolicyToNS(policy)] == YES;
}

void Application::activateIgnoringOtherApps() {
    [NSApp activateIgnoringOtherApps:YES];
}

} // namespace platform

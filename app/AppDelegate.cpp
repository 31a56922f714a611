#include "app/AppDelegate.h"

#include "corners/CornerHoverMonitor.h"
#include "hotkey/HotKeyManager.h"
#include "keepawake/KeepAwakeManager.h"
#include "minimize/WindowMinimizer.h"
#include "platform/Accessibility.h"
#include "platform/FatalError.h"
#include "settings/LoginItemManager.h"
#include "settings/Preferences.h"

namespace {

platform::Application& currentApplication() {
    auto* const application = platform::Application::current();
    if (application == nullptr) {
        platform::fatalError("the application object does not exist");
    }
    return *application;
}

bool setting(const char* key) {
    return Preferences::shared().defaults.boolForKey(key);
}

void applyDockIcon(platform::Application& application) {
    application.setActivationPolicy(setting(Preferences::enableDockIconKey)
                                        ? platform::ActivationPolicy::regular
                                        : platform::ActivationPolicy::accessory);
}

// Launching goes on with or without trust: each request to minimize asks again.
void requestAccessibilityTrust() {
    platform::isProcessTrustedWithOptions({.prompt = true});
}

// The action is set whether or not shortcuts are enabled; it runs only when a hot key is
// registered.
void installShortcut() {
    HotKeyManager& hotKeys = HotKeyManager::shared();
    hotKeys.onHotKey = [] { WindowMinimizer::minimizeAllWindows(); };
    if (setting(Preferences::shortcutsEnabledKey)) {
        hotKeys.registerHotKey(Preferences::shared().minimizeAllShortcut());
    }
}

// Renews the registration. Launching never removes one: without the wish, what is there stays.
void renewLoginItem() {
    if (setting(Preferences::autoLaunchAtLoginKey)) {
        LoginItemManager::setEnabled(true);
    }
}

} // namespace

void AppDelegate::applicationDidFinishLaunching() {
    applyDockIcon(currentApplication());
    requestAccessibilityTrust();
    statusItemController_ = StatusItemController::create();
    installShortcut();
    CornerHoverMonitor::shared().start();
    renewLoginItem();
}

void AppDelegate::applicationDidReopen() {
    statusItemController_->showSettings();
}

void AppDelegate::applicationWillTerminate() {
    HotKeyManager::shared().unregisterHotKey();
    CornerHoverMonitor::shared().stop();
    KeepAwakeManager::shared().stop();
}

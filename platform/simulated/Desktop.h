#pragma once

#include "platform/simulated/Accessibility.h"
#include "platform/simulated/Appearance.h"
#include "platform/simulated/Application.h"
#include "platform/simulated/Bundle.h"
#include "platform/simulated/Button.h"
#include "platform/simulated/Calls.h"
#include "platform/simulated/Clock.h"
#include "platform/simulated/Files.h"
#include "platform/simulated/HotKeys.h"
#include "platform/simulated/Image.h"
#include "platform/simulated/ImageView.h"
#include "platform/simulated/Log.h"
#include "platform/simulated/LoginItem.h"
#include "platform/simulated/MainQueue.h"
#include "platform/simulated/Menu.h"
#include "platform/simulated/PowerAssertions.h"
#include "platform/simulated/RunLoop.h"
#include "platform/simulated/Screens.h"
#include "platform/simulated/StatusItem.h"
#include "platform/simulated/Stepper.h"
#include "platform/simulated/TextField.h"
#include "platform/simulated/UserDefaults.h"
#include "platform/simulated/View.h"
#include "platform/simulated/Window.h"
#include "platform/simulated/Workspace.h"

/// A desktop in memory. The program reaches it through the seam and cannot tell it from a real one;
/// a test reaches it here, as the user, the other programs and the faults of the system. It does
/// nothing by itself: queues turn and time passes when the test says so. Using it in a way in which
/// no desktop can be used is a fatal error that says what was wrong.
namespace simulated {

/// The desktop and its services: each keeps its own state and its own fault switches.
struct Desktop {
    Calls calls;
    Clock clock;
    MainQueue mainQueue;
    UserDefaults userDefaults;
    Workspace workspace;
    Accessibility accessibility;
    HotKeys hotKeys;
    Application application;
    RunLoop runLoop;
    PowerAssertions powerAssertions;
    Screens screens;
    LoginItem loginItem;
    Files files;
    Bundle bundle;
    Appearance appearance;
    StatusBar statusBar;
    OpenMenus openMenus;
    Windows windows;
    Log log;
};

/// The one desktop of this process, made by the first call and never destroyed. Tests that share a
/// process share it, and the program's own process-wide objects with it: give each its own process.
Desktop& desktop();

} // namespace simulated

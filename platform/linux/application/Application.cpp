#include "platform/Application.h"

#include "platform/MainQueue.h"
#include "platform/linux/application/AccessibilityBridge.h"
#include "platform/linux/application/ApplicationId.h"
#include "platform/linux/application/EventPump.h"
#include "platform/linux/application/LaunchPhase.h"
#include "platform/linux/application/LoopSleep.h"
#include "platform/linux/application/OwnProcess.h"
#include "platform/linux/application/Signals.h"
#include "platform/linux/application/SingleInstance.h"
#include "platform/linux/windows/TitledWindow.h"
#include "platform/linux/x11/Connection.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QSocketNotifier>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace platform {

using linux_host::Connection;
using linux_host::TitledWindow;

namespace {

Application* instance = nullptr;
QApplication* qtApplication = nullptr;
ApplicationDelegate* theDelegate = nullptr;
int terminationSignals = -1;
bool isTerminating = false;
bool loopIsRunning = false;

void reopen() {
    if (theDelegate != nullptr && !isTerminating) {
        theDelegate->applicationDidReopen();
    }
}

void requireToBeAlone(Connection& connection) {
    if (!linux_host::claimDisplay(connection, reopen)) {
        std::fputs("quellbar: already running on this display\n", stderr);
        std::exit(EXIT_SUCCESS);
    }
}

// Qt would choose Wayland where it can, and there is nothing to be done for windows there.
void preferX11() {
    constexpr const char* platformVariable = "QT_QPA_PLATFORM";
    if (qEnvironmentVariableIsEmpty(platformVariable)) {
        qputenv(platformVariable, "xcb");
    }
}

// Trays take windows of this program and die with them, at any moment. What Qt has to say about
// that on standard error is of no use to anyone.
void silenceQtAboutX11() {
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.xcb.warning=false"));
}

// The program reads no command line, and the session has no say in when it starts: that is the
// login item's.
void createQtApplication() {
    static auto name = std::to_array("quellbar");
    static std::array<char*, 2> arguments{name.data(), nullptr};
    static int argumentCount = 1;
    QCoreApplication::setAttribute(Qt::AA_DisableSessionManager);
    silenceQtAboutX11();
    qtApplication = new QApplication(argumentCount, arguments.data());
    QGuiApplication::setDesktopFileName(QString::fromUtf8(linux_host::applicationId));
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

void tellDelegateOfTermination() {
    if (isTerminating) {
        return;
    }
    isTerminating = true;
    if (theDelegate != nullptr) {
        theDelegate->applicationWillTerminate();
    }
}

// Qt calls exit() from within the loop when it is the first to find that the X server is gone.
// Parts of Qt have been destroyed by then, so the delegate, which would show the end, is not told;
// grabs and holds end with their connections. The destruction of the other static objects is not
// fit to run inside the loop either.
void endWithServer() {
    if (loopIsRunning) {
        std::_Exit(EXIT_SUCCESS);
    }
}

// Only now do signals count: one that came while launching has waited.
void heedSignals() {
    if (terminationSignals < 0) {
        return;
    }
    auto* const notifier = new QSocketNotifier(terminationSignals, QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [notifier] {
        notifier->setEnabled(false);
        instance->terminate();
    });
}

void finishLaunching() {
    if (theDelegate != nullptr) {
        theDelegate->applicationDidFinishLaunching();
    }
    linux_host::endLaunch();
    heedSignals();
}

} // namespace

Application& Application::shared() {
    if (instance == nullptr) {
        terminationSignals = linux_host::catchTerminationSignals();
        Connection& connection = Connection::shared();
        requireToBeAlone(connection);
        preferX11();
        createQtApplication();
        instance = new Application;
        linux_host::serveFromEventLoop(connection, [] { instance->terminate(); });
        linux_host::fireTimersFromEventLoop(connection);
    }
    return *instance;
}

Application* Application::current() {
    return instance;
}

void Application::setDelegate(ApplicationDelegate* delegate) {
    theDelegate = delegate;
}

void Application::run() {
    if (isTerminating) {
        return;
    }
    std::atexit(endWithServer);
    dispatchAsyncOnMainQueue(finishLaunching);
    linux_host::keepBridgeFromSilentBus();
    loopIsRunning = true;
    QApplication::exec();
    loopIsRunning = false;
    tellDelegateOfTermination(); // if something else has ended the loop
    delete qtApplication;
}

void Application::terminate() {
    tellDelegateOfTermination();
    QCoreApplication::exit(); // unlike quit(), asks no window to close first
}

bool Application::setActivationPolicy(ActivationPolicy policy) {
    linux_host::setOwnActivationPolicy(policy);
    TitledWindow::applyActivationPolicy();
    return true;
}

void Application::activateIgnoringOtherApps() {
    TitledWindow::activateFrontmost();
}

} // namespace platform

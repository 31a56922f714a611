#include "app/Entry.h"

#include "app/AppDelegate.h"

namespace {

platform::Application* app = nullptr;
AppDelegate* delegate = nullptr; // kept here: the application does not retain its delegate

} // namespace

int runQuellbar() {
    app = &platform::Application::shared();
    delegate = new AppDelegate;
    app->setDelegate(delegate);
    app->run();
    return 0;
}

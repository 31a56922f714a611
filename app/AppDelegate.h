#pragma once

#include "menubar/StatusItemController.h"
#include "platform/Application.h"

#include <memory>

/// Wires the program together when it has launched, and gives back what would outlive the process
/// when it is about to end.
class AppDelegate final : public platform::ApplicationDelegate {
  public:
    void applicationDidFinishLaunching() override;
    /// Shows the settings: whoever starts a program that runs wants to see something of it.
    void applicationDidReopen() override;
    void applicationWillTerminate() override;

  private:
    std::shared_ptr<StatusItemController> statusItemController_; // from launch on
};

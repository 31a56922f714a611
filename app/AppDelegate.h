#pragma once

#include "platform/Application.h"

/// Wires the program together when it has launched, and gives back what would outlive the process
/// when it is about to end.
class AppDelegate final : public platform::ApplicationDelegate {
  public:
    void applicationDidFinishLaunching() override;
    void applicationWillTerminate() override;
};

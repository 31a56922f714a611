#pragma once

#include "platform/linux/windowmanager/Applications.h"

namespace platform::linux_host {

/// This process as the workspace shows it. `sharesProcessNumbers`: whether the numbers that the X
/// server and local windows give for processes are those that this process knows.
[[nodiscard]] OwnProcess ownProcess(bool sharesProcessNumbers);

/// Remembers how this process wants to be shown.
void setOwnActivationPolicy(ActivationPolicy policy);
[[nodiscard]] ActivationPolicy ownActivationPolicy();

} // namespace platform::linux_host

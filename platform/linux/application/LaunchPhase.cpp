#include "platform/linux/application/LaunchPhase.h"

namespace platform::linux_host {
namespace {

bool hasLaunched = false;

} // namespace

bool isLaunching() {
    return !hasLaunched;
}

void endLaunch() {
    hasLaunched = true;
}

} // namespace platform::linux_host

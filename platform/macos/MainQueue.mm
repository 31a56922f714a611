#include "platform/MainQueue.h"

#include "platform/macos/CallOut.h"

#include <dispatch/dispatch.h>

namespace platform {

void dispatchAsyncOnMainQueue(std::function<void()> task) {
    dispatch_async(dispatch_get_main_queue(), ^{
        macos::callOut(task);
    });
}

} // namespace platform

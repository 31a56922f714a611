#include "platform/LoginItem.h"

#include "platform/macos/Conversions.h"

namespace platform {

LoginItemStatus loginItemStatus() {
    return macos::smToLoginItemStatus(SMAppService.mainAppService.status);
}

std::optional<LoginItemError> registerLoginItem() {
    NSError* error = nil;
    if ([SMAppService.mainAppService registerAndReturnError:&error] == YES) {
        return std::nullopt;
    }
    return macos::nsErrorToLoginItemError(error);
}

std::optional<LoginItemError> unregisterLoginItem() {
    NSError* error = nil;
    if ([SMAppService.mainAppService unregisterAndReturnError:&error] == YES) {
        return std::nullopt;
    }
    return macos::nsErrorToLoginItemError(error);
}

} // namespace platform

#include "platform/Date.h"

#import <CoreFoundation/CoreFoundation.h>

namespace platform {

Date Date::now() {
    return {CFAbsoluteTimeGetCurrent()};
}

} // namespace platform

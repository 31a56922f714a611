#include "platform/macos/ActionTarget.h"

#include "platform/macos/CallOut.h"

@implementation QuellbarActionTarget {
    std::function<void()> action_;
}

- (instancetype)initWithAction:(std::function<void()>)action {
    self = [super init];
    if (self != nil) {
        action_ = std::move(action);
    }
    return self;
}

- (void)performAction:(id)sender {
    // A copy: this object may be gone before the action is done.
    const std::function<void()> action = action_;
    if (action) {
        platform::macos::callOut(action);
    }
}

@end

namespace platform {

macos::ActionTarget macos::makeActionTarget(std::function<void()> action) {
    return ActionTarget::adopt([[QuellbarActionTarget alloc] initWithAction:std::move(action)]);
}

} // namespace platform

#pragma once

#include "platform/macos/Holder.h"

#include <functional>

/// What controls and gesture recognizers send their actions to. They do not keep it, and send
/// nothing once it is gone: it lives and dies with the seam's view.
@interface QuellbarActionTarget : NSObject

/// An empty action does nothing.
- (instancetype)initWithAction:(std::function<void()>)action;
- (void)performAction:(id)sender;

@end

namespace platform::macos {

using ActionTarget = Object<QuellbarActionTarget*>;

[[nodiscard]] ActionTarget makeActionTarget(std::function<void()> action);

} // namespace platform::macos

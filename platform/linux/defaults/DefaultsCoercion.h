#pragma once

#include "platform/UserDefaults.h"

namespace platform::linux_host {

/// What `UserDefaults::boolForKey` answers for a value. Null is no value.
[[nodiscard]] bool boolFrom(const DefaultsValue* value);

/// What `UserDefaults::doubleForKey` answers for a value. Null is no value.
[[nodiscard]] double doubleFrom(const DefaultsValue* value);

} // namespace platform::linux_host

#include "platform/Date.h"

#include <chrono>

namespace platform {

Date Date::now() {
    using namespace std::chrono;
    constexpr sys_days reference = January / 1 / 2001;
    return {duration<double>(system_clock::now() - reference).count()};
}

} // namespace platform

#pragma once

#include "platform/Timer.h"

#include <chrono>

namespace platform {

enum class TimerState { idle, scheduled, invalid };

struct Timer::Peer {
    std::chrono::nanoseconds interval;
    std::function<void()> block;
    TimerState state = TimerState::idle;
};

} // namespace platform

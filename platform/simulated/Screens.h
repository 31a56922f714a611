#pragma once

#include "platform/Screen.h"

#include <vector>

namespace simulated {

/// The screens and the pointer on them. A test sets both as it likes.
struct Screens {
    /// The primary screen first.
    std::vector<platform::Screen> screens{{{{0, 0}, {1440, 900}}}};
    /// Nothing keeps it on a screen.
    platform::Point pointer{720, 450};
};

} // namespace simulated

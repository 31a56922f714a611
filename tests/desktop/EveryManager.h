#pragma once

#include "tests/desktop/support/WindowManager.h"

#include <gtest/gtest.h>

/// The window managers on which a claim has to hold, for INSTANTIATE_TEST_SUITE_P.
inline const auto everyManager =
    testing::Values(desktop::WindowManager::openbox, desktop::WindowManager::xfwm4,
                    desktop::WindowManager::metacity);

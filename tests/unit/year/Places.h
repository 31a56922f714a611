#pragma once

#include "platform/Geometry.h"
#include "platform/Screen.h"

#include <string>
#include <vector>

/// A place for the pointer, and the corner that it is in; empty when it is in none.
struct Place {
    platform::Point point;
    std::string corner;
};

/// An arrangement of screens, and places to try on it.
struct Arrangement {
    std::vector<platform::Screen> screens;
    std::vector<Place> places;
};

/// The desks that the user works at: one screen, two, a tiny one, none.
const std::vector<Arrangement>& arrangements();

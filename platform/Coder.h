#pragma once

namespace platform {

/// An archive that views could be read from. This program makes all its views in code: it never
/// has one.
struct Coder {};

} // namespace platform

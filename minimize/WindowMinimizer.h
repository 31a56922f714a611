#pragma once

/// The one action of the program. Stateless: nothing is remembered between calls, so there is no
/// restoring either.
class WindowMinimizer {
  public:
    WindowMinimizer() = delete;

    /// Asks every window of every regular application to minimize itself, and returns when all have
    /// been asked. Without Accessibility trust it lets the system ask for it and does nothing else.
    /// Whatever an application or a window refuses is passed over in silence.
    static void minimizeAllWindows();
};

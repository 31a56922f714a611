#pragma once

/// Runs the program, from the application object to the end of its event loop. Where the desktop
/// lets it come back at all, answers the exit status of the process.
int runQuellbar();

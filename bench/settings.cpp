// Reads one setting as often as it is told, and nothing else: count its system calls from outside.

#include "settings/Preferences.h"

#include <cstdlib>

int main(int count, char** arguments) {
    const long reads = count > 1 ? std::strtol(arguments[1], nullptr, 10) : 1;
    for (long i = 0; i < reads; ++i) {
        static_cast<void>(Preferences::shared().hotCorners());
    }
}

#include "demo/Demonstration.h"

#include <exception>
#include <iostream>

// quellbar_demo [folder for the pictures]
int main(int argc, char** argv) {
    try {
        return demo::Demonstration(argc > 1 ? argv[1] : "build/demo").run() ? 0 : 1;
    } catch (const std::exception& failure) {
        std::cerr << "quellbar_demo: " << failure.what() << '\n';
        return 1;
    }
}

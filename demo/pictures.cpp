#include "demo/Gallery.h"

#include <exception>
#include <iostream>

// quellbar_pictures <folder>: takes pictures of all that the program shows.
int main(int argc, char** argv) {
    try {
        for (const demo::Appearance appearance :
             {demo::Appearance::light, demo::Appearance::dark}) {
            for (const int scale : {1, 2}) {
                demo::Gallery(argc > 1 ? argv[1] : "build/pictures", appearance, scale).takeAll();
            }
        }
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "quellbar_pictures: " << failure.what() << '\n';
        return 1;
    }
}

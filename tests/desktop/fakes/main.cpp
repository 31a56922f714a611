#include "tests/desktop/fakes/FakeInhibitor.h"

#include <iostream>
#include <map>
#include <string>

// fake_inhibitor <bus name> <object path> grant|refuse|wait
int main(int argumentCount, char** arguments) {
    const std::map<std::string, desktop::Behaviour> behaviours{
        {"grant", desktop::Behaviour::grant},
        {"refuse", desktop::Behaviour::refuse},
        {"wait", desktop::Behaviour::wait},
    };
    try {
        const std::vector<std::string> words(arguments, arguments + argumentCount);
        desktop::FakeInhibitor(words.at(1), words.at(2), behaviours.at(words.at(3))).run();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}

#include "CommaLocale.h"

#include "TemporaryFolder.h"

#include <clocale>
#include <cstdlib>
#include <string_view>

namespace {

bool isAvailable() {
    for (const char* const name : {"de_DE.UTF-8", "fr_FR.UTF-8", "da_DK.UTF-8"}) {
        if (std::setlocale(LC_ALL, name) != nullptr) {
            return true;
        }
    }
    return false;
}

void make() {
    const TemporaryFolder folder;
    const std::string path = folder.path();
    const std::string command =
        "localedef -i de_DE -f UTF-8 " + path + "/de_DE.UTF-8 >" + path + "/output 2>&1";
    if (std::system(command.c_str()) == 0) {
        ::setenv("LOCPATH", path.c_str(), 1);
        std::setlocale(LC_ALL, "de_DE.UTF-8");
    }
}

} // namespace

CommaLocale::CommaLocale() {
    if (!isAvailable()) {
        make();
    }
}

CommaLocale::~CommaLocale() {
    std::setlocale(LC_ALL, "C");
}

bool CommaLocale::isInForce() {
    return std::string_view(std::localeconv()->decimal_point) == ",";
}

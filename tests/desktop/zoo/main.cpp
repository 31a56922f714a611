#include "tests/desktop/zoo/Zoo.h"

int main() {
    desktop::Zoo().run();
    return 0;
}

#include "app/Entry.h"

int main() {
    return runQuellbar();
}

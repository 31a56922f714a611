#include "platform/simulated/Desktop.h"

namespace simulated {

Desktop& desktop() {
    static auto* const instance = new Desktop;
    return *instance;
}

} // namespace simulated

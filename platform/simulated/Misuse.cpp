#include "platform/simulated/Misuse.h"

#include "platform/FatalError.h"

namespace simulated {

void misuse(const std::string& what) {
    platform::fatalError("simulated desktop: " + what);
}

} // namespace simulated

#include "platform/Drawing.h"

#include "platform/simulated/Appearance.h"
#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"
#include "platform/simulated/Text.h"

namespace simulated {
namespace {

// What is filled goes here; null while no view draws.
std::vector<FilledArea>* canvas = nullptr;

} // namespace

std::vector<FilledArea> View::display() {
    if (canvas != nullptr) {
        misuse("a view is drawn while another one draws");
    }
    std::vector<FilledArea> filled;
    needsDisplay_ = false;
    canvas = &filled;
    self_->draw(bounds());
    canvas = nullptr;
    return filled;
}

} // namespace simulated

void platform::fillRoundedRect(Rect rect, double xRadius, double yRadius, Color fillColor) {
    using simulated::text;
    simulated::desktop().calls.record("fillRoundedRect", {text(rect), text(xRadius), text(yRadius),
                                                          simulated::nameOf(fillColor)});
    if (simulated::canvas == nullptr) {
        simulated::misuse("an area is filled while no view draws");
    }
    simulated::canvas->push_back({rect, xRadius, yRadius, fillColor});
}

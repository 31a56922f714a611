#include "windows/AboutWindowController.h"

#include "app/AppResources.h"
#include "platform/ImageView.h"
#include "platform/TextField.h"

namespace {

using platform::Color;
using platform::Font;
using platform::Rect;
using platform::TextAlignment;
using platform::TextField;

constexpr platform::Size contentSize{360, 300};

// Points, from the bottom left of the content view.
constexpr Rect iconFrame{{140, 200}, {80, 80}};
constexpr Rect nameFrame{{0, 170}, {360, 24}};
constexpr Rect versionFrame{{0, 148}, {360, 18}};
constexpr Rect creditFrame{{0, 128}, {360, 18}};
constexpr Rect descriptionFrame{{24, 20}, {312, 100}};

constexpr auto description =
    "Quellbar lives in your menu bar.\n"
    "\n"
    "• Minimize every window instantly with a global shortcut\n"
    "• Hover a screen corner to reveal the desktop\n"
    "• Keep Awake keeps your Mac from sleeping, with a live countdown shown right in the menu bar\n"
    "• Configure shortcuts, login item, and dock icon visibility from the Settings menu";

std::shared_ptr<TextField> centeredLabel(std::string_view text, Rect frame) {
    auto label = TextField::labelWithString(text);
    label->setAlignment(TextAlignment::center);
    label->setFrame(frame);
    return label;
}

void addIcon(platform::View& content) {
    const auto view = platform::ImageView::withFrame(iconFrame);
    view->setImage(AppResources::image("icon_512x512"));
    content.addSubview(view);
}

void addName(platform::View& content) {
    const auto label = centeredLabel("Quellbar", nameFrame);
    label->setFont(Font::boldSystem(18));
    content.addSubview(label);
}

void addSecondaryLine(platform::View& content, std::string_view text, Rect frame) {
    const auto label = centeredLabel(text, frame);
    label->setTextColor(Color::secondaryLabel);
    content.addSubview(label);
}

void addDescription(platform::View& content) {
    const auto label = TextField::wrappingLabelWithString(description);
    label->setFont(Font::system(11));
    label->setTextColor(Color::label);
    label->setFrame(descriptionFrame);
    content.addSubview(label);
}

} // namespace

AboutWindowController& AboutWindowController::shared() {
    // Never destroyed: closing the window only hides it.
    static auto* const instance = new AboutWindowController;
    return *instance;
}

AboutWindowController::AboutWindowController()
    : window_(std::make_unique<platform::Window>(contentSize, "About Quellbar")) {
    window_->center();
    buildContent();
}

// The version and its date are a fixed text, not read from the bundle.
void AboutWindowController::buildContent() {
    platform::View* const content = window_->contentView();
    if (content == nullptr) {
        return;
    }
    addIcon(*content);
    addName(*content);
    addSecondaryLine(*content, "Version 1.0.1 (02.08.2026)", versionFrame);
    addSecondaryLine(*content, "Created by Tarvik", creditFrame);
    addDescription(*content);
}

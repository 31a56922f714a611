#include "platform/simulated/Window.h"

#include "platform/simulated/Desktop.h"
#include "platform/simulated/Misuse.h"
#include "platform/simulated/Text.h"

#include <algorithm>

namespace simulated {
namespace {

// A view that fills a window. The desktop makes it, so its making is no call of the program.
class ContentView final : public platform::View {
  public:
    explicit ContentView(platform::Size size)
        : View(std::make_unique<Peer>(
              Peer{std::make_unique<simulated::View>(platform::Rect{{0, 0}, size})})) {}
};

std::shared_ptr<platform::View> contentViewFor(platform::Window& window, platform::Size size) {
    if (!desktop().windows.haveContentView) {
        return nullptr;
    }
    auto view = std::make_shared<ContentView>(size);
    stateOf(*view).moveToWindow(&window);
    return view;
}

} // namespace

ProgramWindow& stateOf(const platform::Window& window) {
    return *window.peer().window;
}

ProgramWindow::ProgramWindow(platform::Window& self, std::string_view title,
                             platform::Size contentSize)
    : title_(title), contentSize_(contentSize), contentView_(contentViewFor(self, contentSize)) {
    desktop().windows.add(*this);
}

ProgramWindow::~ProgramWindow() {
    desktop().windows.remove(*this);
    if (shown_ != nullptr && shown_->isOpen()) {
        shown_->close();
    }
    if (contentView_ != nullptr) {
        stateOf(*contentView_).moveToWindow(nullptr);
    }
}

bool ProgramWindow::isOpen() const {
    return isMenu_ || (shown_ != nullptr && shown_->isOpen());
}

bool ProgramWindow::isVisible() const {
    return isMenu_ || (shown_ != nullptr && shown_->isVisible());
}

bool ProgramWindow::isKey() const {
    return isVisible() && desktop().windows.front() == this && desktop().application.isActive();
}

std::vector<View*> ProgramWindow::contents() const {
    return contentView_ == nullptr ? std::vector<View*>() : stateOf(*contentView_).subviews();
}

template <typename Kind>
std::vector<Kind*> ProgramWindow::contentsOfKind() const {
    std::vector<Kind*> found;
    for (View* const view : contents()) {
        if (auto* const ofKind = dynamic_cast<Kind*>(view)) {
            found.push_back(ofKind);
        }
    }
    return found;
}

Button& ProgramWindow::checkbox(std::string_view title) const {
    for (Button* const button : contentsOfKind<Button>()) {
        if (button->title == title) {
            return *button;
        }
    }
    misuse("there is no checkbox \"" + std::string(title) + "\" in the window " + title_);
}

TextField& ProgramWindow::editableField() const {
    for (TextField* const field : contentsOfKind<TextField>()) {
        if (field->kind() == TextField::Kind::editable) {
            return *field;
        }
    }
    misuse("there is no field to edit in the window " + title_);
}

Stepper& ProgramWindow::stepper() const {
    const auto steppers = contentsOfKind<Stepper>();
    if (steppers.empty()) {
        misuse("there is no stepper in the window " + title_);
    }
    return *steppers.front();
}

void ProgramWindow::requireVisible(const char* deed) const {
    if (!isVisible()) {
        misuse(std::string("the user ") + deed + " a window that is not on the screen: " + title_);
    }
}

// Whoever has the keyboard in it has it again when it is shown again.
void ProgramWindow::close() {
    requireVisible("closes");
    shown_->close();
}

void ProgramWindow::moveTo(platform::Point origin) {
    requireVisible("moves");
    origin_ = origin;
}

void ProgramWindow::pressKey(const platform::Event& event) {
    requireVisible("types into");
    if (!isKey()) {
        misuse("the user types into a window that does not have the keyboard: " + title_);
    }
    if (firstResponder_ == nullptr) {
        takeUnansweredKey(event);
    } else {
        firstResponder_->keyDown(event);
    }
}

void ProgramWindow::center() {
    const auto& screens = desktop().screens.screens;
    if (screens.empty()) {
        return;
    }
    const platform::Rect screen = screens.front().frame;
    origin_ = {screen.minX() + (screen.size.width - contentSize_.width) / 2,
               screen.minY() + (screen.size.height - contentSize_.height) / 2};
}

void ProgramWindow::makeKeyAndOrderFront() {
    if (!isOpen()) {
        shown_ = &desktop().application.self().openWindow(title_);
    }
    shown_->isMinimized = false;
    desktop().windows.bringToFront(*this);
}

bool ProgramWindow::makeFirstResponder(View& view) {
    if (view.window() != this) {
        misuse("a view gets the keyboard of a window that it is not in: " + title_);
    }
    if (desktop().windows.refuseFirstResponder || !view.self().acceptsFirstResponder()) {
        return false;
    }
    firstResponder_ = &view;
    return true;
}

void ProgramWindow::takeKeyboard() {
    if (isMenu_) {
        return;
    }
    desktop().windows.bringToFront(*this);
    desktop().application.setActive();
}

ProgramWindow& Windows::titled(std::string_view title) const {
    if (std::ranges::count(windows_, title, &ProgramWindow::title) != 1) {
        misuse("there is not one window \"" + std::string(title) + "\"");
    }
    return **std::ranges::find(windows_, title, &ProgramWindow::title);
}

const ProgramWindow* Windows::front() const {
    const auto front = std::ranges::find_if(frontToBack_, &ProgramWindow::isVisible);
    return front == frontToBack_.end() ? nullptr : *front;
}

void Windows::add(ProgramWindow& window) {
    windows_.push_back(&window);
    frontToBack_.push_back(&window);
}

void Windows::remove(ProgramWindow& window) {
    std::erase(windows_, &window);
    std::erase(frontToBack_, &window);
}

void Windows::bringToFront(ProgramWindow& window) {
    std::erase(frontToBack_, &window);
    frontToBack_.insert(frontToBack_.begin(), &window);
}

} // namespace simulated

namespace platform {

using simulated::desktop;
using simulated::stateOf;

Window::Window(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}
Window::~Window() = default;

Window::Window(Size contentSize, std::string_view title) : Window(std::make_unique<Peer>()) {
    desktop().calls.record("Window", {simulated::text(contentSize), title});
    peer_->window = std::make_unique<simulated::ProgramWindow>(*this, title, contentSize);
}

void Window::center() {
    desktop().calls.record("center", {stateOf(*this).title()});
    stateOf(*this).center();
}

View* Window::contentView() const {
    return stateOf(*this).contentView();
}

void Window::makeKeyAndOrderFront() {
    desktop().calls.record("makeKeyAndOrderFront", {stateOf(*this).title()});
    stateOf(*this).makeKeyAndOrderFront();
}

bool Window::makeFirstResponder(View& view) {
    desktop().calls.record("makeFirstResponder", {stateOf(*this).title()});
    return stateOf(*this).makeFirstResponder(stateOf(view));
}

} // namespace platform

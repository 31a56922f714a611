#pragma once

#include "platform/Event.h"
#include "platform/Window.h"
#include "platform/simulated/View.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace simulated {

class Button;
class Stepper;
class TextField;
class Window;

/// A window of this program. While it is open, and the program runs, it is among the windows of the
/// program's running application too, where other programs and this one find it.
class ProgramWindow {
  public:
    /// The window of a menu: on the screen as long as it exists.
    ProgramWindow() : isMenu_(true) {}
    ProgramWindow(platform::Window& self, std::string_view title, platform::Size contentSize);
    ~ProgramWindow();
    ProgramWindow(const ProgramWindow&) = delete;
    ProgramWindow& operator=(const ProgramWindow&) = delete;

    [[nodiscard]] const std::string& title() const { return title_; }
    [[nodiscard]] platform::Size contentSize() const { return contentSize_; }
    /// The lower left corner of the content, in points of the global screen coordinates.
    [[nodiscard]] platform::Point origin() const { return origin_; }

    /// Whether it has been shown and not closed since; it may be minimized.
    [[nodiscard]] bool isOpen() const;
    /// Whether the user can see it.
    [[nodiscard]] bool isVisible() const;
    /// Whether the keyboard writes into it: it is the front one, and its program is active.
    [[nodiscard]] bool isKey() const;
    /// The view within it that has the keyboard; null where none has.
    [[nodiscard]] View* firstResponder() const { return firstResponder_; }
    /// The keys that no view had a use for.
    [[nodiscard]] const std::vector<platform::Event>& unansweredKeys() const {
        return unansweredKeys_;
    }

    // What is in it.

    /// The views of the content view, in the order in which they were added.
    [[nodiscard]] std::vector<View*> contents() const;
    // The one with this title, or the only one of its kind. Misuse when there is none.
    [[nodiscard]] Button& checkbox(std::string_view title) const;
    [[nodiscard]] TextField& editableField() const;
    [[nodiscard]] Stepper& stepper() const;

    // What the user does. Misuse unless it is on the screen.
    void close();
    void moveTo(platform::Point origin);
    /// Presses a key while the window is key; misuse when it is not.
    void pressKey(const platform::Event& event);

    // For the seam and the other services.
    void center();
    [[nodiscard]] platform::View* contentView() const { return contentView_.get(); }
    void makeKeyAndOrderFront();
    bool makeFirstResponder(View& view);
    void setFirstResponder(View* view) { firstResponder_ = view; }
    /// The user clicks into it: it comes to the front, and its program with it.
    void takeKeyboard();
    void takeUnansweredKey(const platform::Event& event) { unansweredKeys_.push_back(event); }

  private:
    template <typename Kind>
    [[nodiscard]] std::vector<Kind*> contentsOfKind() const;
    void requireVisible(const char* deed) const;

    const bool isMenu_ = false;
    const std::string title_;
    const platform::Size contentSize_;
    platform::Point origin_;
    std::shared_ptr<platform::View> contentView_;
    Window* shown_ = nullptr; // among the application's windows; the last one if it is closed
    View* firstResponder_ = nullptr;
    std::vector<platform::Event> unansweredKeys_;
};

/// What the desktop knows of `window`.
[[nodiscard]] ProgramWindow& stateOf(const platform::Window& window);

/// The windows that this program has made.
class Windows {
  public:
    // Faults.
    /// Whether a new window has a view for its content.
    bool haveContentView = true;
    /// Whether the windows turn down each view that wants the keyboard.
    bool refuseFirstResponder = false;

    /// In the order in which they were made, open or not.
    [[nodiscard]] const std::vector<ProgramWindow*>& all() const { return windows_; }
    /// The one that is in front of the others, of those on the screen; null when there is none.
    [[nodiscard]] const ProgramWindow* front() const;
    /// The one with this title. Misuse when there is none or more than one.
    [[nodiscard]] ProgramWindow& titled(std::string_view title) const;

    // For the seam.
    void add(ProgramWindow& window);
    void remove(ProgramWindow& window);
    void bringToFront(ProgramWindow& window);

  private:
    std::vector<ProgramWindow*> windows_;
    std::vector<ProgramWindow*> frontToBack_;
};

} // namespace simulated

struct platform::Window::Peer {
    std::unique_ptr<simulated::ProgramWindow> window;
};

#pragma once

#include "platform/View.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace simulated {

class ProgramWindow;

/// The layer of a view that has one.
struct Layer {
    double cornerRadius = 0; // points
    double borderWidth = 0;  // points
    std::optional<platform::CGColor> backgroundColor;
    std::optional<platform::CGColor> borderColor;
};

/// An area that a view has filled.
struct FilledArea {
    platform::Rect rect;
    double xRadius = 0;
    double yRadius = 0;
    platform::Color color{};

    bool operator==(const FilledArea&) const = default;
};

/// A view of the program, as the desktop keeps it and the user sees it.
class View {
  public:
    struct Place {
        double leading = 0;  // points
        double trailing = 0; // points, at least

        bool operator==(const Place&) const = default;
    };

    explicit View(platform::Rect frame) : frame_(frame) {}
    virtual ~View();
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    /// How the view is written in the record of calls.
    [[nodiscard]] virtual std::string name() const { return "view"; }

    [[nodiscard]] platform::Rect frame() const { return frame_; }
    [[nodiscard]] platform::Rect bounds() const { return {{0, 0}, frame_.size}; }
    [[nodiscard]] View* superview() const { return superview_; }
    /// In the order in which they were added, which is from back to front.
    [[nodiscard]] std::vector<View*> subviews() const;
    /// How constraints place the view in its superview, at half of its height; empty where its
    /// frame alone does.
    [[nodiscard]] const std::optional<Place>& place() const { return place_; }
    [[nodiscard]] const std::optional<Layer>& layer() const { return layer_; }
    [[nodiscard]] ProgramWindow* window() const;
    /// The areas that report the pointer's coming and going.
    [[nodiscard]] std::vector<platform::Rect> trackingAreas() const;

    /// Whether the view has asked to be drawn since it was drawn last.
    [[nodiscard]] bool needsDisplay() const { return needsDisplay_; }
    /// Draws the view, without its subviews, and answers what it has filled.
    std::vector<FilledArea> display();

    // What the user does. Misuse unless the view is on the screen.

    /// Clicks on the middle of the view.
    virtual void click();
    /// Lets go of the mouse button, having pressed it on this view; the pointer need not be there
    /// any more. In window coordinates.
    void releaseMouseButton(platform::Point at);

    // For the seam and the other services.
    void attach(platform::View& self) { self_ = &self; }
    [[nodiscard]] platform::View& self() const { return *self_; }
    void setFrame(platform::Rect frame);
    void addSubview(std::shared_ptr<platform::View> subview);
    void setAutoresizingMask(platform::AutoresizingMask mask) { autoresizingMask_ = mask; }
    void setPlace(View& subview, Place place);
    void setNeedsDisplay() { needsDisplay_ = true; }
    [[nodiscard]] Layer& requireLayer();
    void addLayer();
    platform::TrackingArea addTrackingArea(platform::Rect rect);
    void removeTrackingArea(platform::TrackingArea area);
    void addClickAction(std::function<void()> action);
    [[nodiscard]] platform::Point fromWindow(platform::Point point) const;

    /// Puts the view, which has no superview, into a window or (null) out of it. `origin` is where
    /// its superview, which belongs to the desktop, has its origin in that window.
    void moveToWindow(platform::Window* window, platform::Point origin = {});
    [[nodiscard]] platform::Window* platformWindow() const;
    void setMenuItem(platform::MenuItem* item);
    [[nodiscard]] platform::MenuItem* menuItem() const;

    /// The pointer is here now, in window coordinates.
    void pointerMoved(platform::Point at);
    /// A key reaches the view.
    virtual void keyDown(const platform::Event& event);
    /// The keyboard goes to another view.
    virtual void resignFirstResponder() {}

  protected:
    ProgramWindow& requireOnScreen(const char* deed) const;

  private:
    struct Tracked {
        platform::Rect rect;
        bool hasPointer = false;
    };

    [[nodiscard]] const View& root() const;
    void announceMove();
    void resizeSubviews(platform::Size before);

    platform::View* self_ = nullptr;
    platform::Rect frame_;
    View* superview_ = nullptr;
    std::vector<std::shared_ptr<platform::View>> subviews_;
    platform::AutoresizingMask autoresizingMask_ = platform::AutoresizingMask::none;
    std::optional<Place> place_;
    std::optional<Layer> layer_;
    bool needsDisplay_ = true;
    std::map<platform::TrackingArea, Tracked> trackingAreas_;
    std::vector<std::function<void()>> clickActions_;

    // Of a view without a superview alone.
    platform::Window* window_ = nullptr;
    platform::Point originInWindow_;
    platform::MenuItem* menuItem_ = nullptr;
};

/// What the desktop knows of `view`.
[[nodiscard]] View& stateOf(const platform::View& view);

} // namespace simulated

struct platform::View::Peer {
    std::unique_ptr<simulated::View> view;
};

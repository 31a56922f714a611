#pragma once

#include "platform/Color.h"
#include "platform/Event.h"
#include "platform/Geometry.h"

#include <functional>
#include <memory>

namespace platform {

class MenuItem;
class Window;

/// An area of a view that reports the pointer's coming and going to `mouseEntered` and
/// `mouseExited`. A name for it, until it is removed.
enum class TrackingArea : std::uintptr_t {};

enum class TrackingAreaOptions : std::uint32_t {
    mouseEnteredAndExitedActiveAlways = 0x81, // 0x01 entered and exited | 0x80 active always
};

/// How a view follows its superview when that is resized. The values are AppKit's.
enum class AutoresizingMask : std::uint32_t { none = 0, widthAndHeightSizable = 2 | 16 };

/// A rectangle on the screen that draws itself and receives events. The desktop calls the virtuals,
/// on the main thread. Made with `std::make_shared`; a superview shares its subviews. Stands for
/// NSView on macOS, QWidget on Linux.
class View : public std::enable_shared_from_this<View> {
  public:
    /// A plain view. `frame` is in the coordinates of the superview to come.
    explicit View(Rect frame);
    virtual ~View();
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    [[nodiscard]] Rect frame() const;
    void setFrame(Rect frame);
    [[nodiscard]] Rect bounds() const;
    void addSubview(const std::shared_ptr<View>& subview);
    void setAutoresizingMask(AutoresizingMask mask);

    /// Places `subview` by constraints: its leading edge at `leading`, its trailing edge at least
    /// `trailing` before this view's, its vertical centre at this view's; its size is its own.
    void constrainCenteredVertically(View& subview, double leading, double trailing);

    /// The window that shows the view; null outside one.
    [[nodiscard]] Window* window() const;

    /// The menu item that the view fills; null in any other place.
    [[nodiscard]] MenuItem* enclosingMenuItem() const;

    /// Asks for `draw` soon.
    void setNeedsDisplay();

    [[nodiscard]] TrackingArea addTrackingArea(Rect rect, TrackingAreaOptions options);
    void removeTrackingArea(TrackingArea area);

    /// A point of window coordinates in this view's own.
    [[nodiscard]] Point convertFromWindow(Point point) const;

    /// Gives the view a layer, which the setters below change.
    void setWantsLayer();
    void setLayerCornerRadius(double points);
    void setLayerBorderWidth(double points);
    void setLayerBackgroundColor(CGColor color);
    void setLayerBorderColor(CGColor color);

    /// Calls `action` at each click on the view.
    void addClickGestureRecognizer(std::function<void()> action);

    /// Whether the view takes the keyboard when it is asked to.
    [[nodiscard]] virtual bool acceptsFirstResponder() const;
    /// The view came into a window or left it.
    virtual void viewDidMoveToWindow();
    /// The view's bounds changed, or its menu is about to open: time to renew its tracking areas.
    virtual void updateTrackingAreas();
    virtual void mouseEntered(const Event& event);
    virtual void mouseExited(const Event& event);
    virtual void mouseUp(const Event& event);
    /// The base passes the key on to whoever else may want it.
    virtual void keyDown(const Event& event);
    /// Draws what needs it, with the functions of "platform/Drawing.h".
    virtual void draw(Rect dirtyRect);

    struct Peer;
    [[nodiscard]] Peer& peer() const { return *peer_; }

  protected:
    /// For the controls of the seam, whose native part the host makes.
    explicit View(std::unique_ptr<Peer> peer);

  private:
    std::unique_ptr<Peer> peer_;
};

} // namespace platform

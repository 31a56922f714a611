#pragma once

#include "platform/View.h"

#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace platform {

namespace linux_host {

/// How a view is placed by constraints: see `View::constrainCenteredVertically`.
struct Centering {
    double leading = 0;
    double trailing = 0;
};

/// What is painted under a view that has asked for a layer.
struct Layer {
    double cornerRadius = 0;
    double borderWidth = 0;
    std::optional<CGColor> background;
    std::optional<CGColor> border;
};

} // namespace linux_host

/// The native part of a view: a widget, and the place of the view among others. Controls derive
/// from it.
struct View::Peer {
    /// Takes the widget over.
    Peer(QWidget* newWidget, Rect newFrame) : widget(newWidget), frame(newFrame) {}
    virtual ~Peer();
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    [[nodiscard]] double height() const { return frame.size.height; }
    /// What there is to read in the view.
    [[nodiscard]] virtual QString text() const;
    /// The size that the view needs at least.
    [[nodiscard]] QSize preferredSize() const;

    /// Puts the widget where the frame says, in the widget of the superview.
    void place();
    /// Has what is inside follow a new size of the view.
    void resizeFrom(Size oldSize);
    /// Places the view anew if it is as large as its content, and tells a menu item that it fills.
    void contentDidChange();
    /// Tells the view and all that is inside that they came into a window or left it.
    void moveToWindow();
    /// Tells the view that the pointer has come or gone, if it has asked for that.
    void setPointerInside(bool isInside);

    View* view = nullptr;     ///< whose peer this is
    QPointer<QWidget> widget; ///< null only after the widgets around it have been destroyed
    Rect frame;               ///< in the superview
    Size minimumSize;         ///< as the program last asked for it
    AutoresizingMask autoresizing = AutoresizingMask::none;
    std::optional<linux_host::Centering> centering;
    View* superview = nullptr;
    std::vector<std::shared_ptr<View>> subviews;

    Window* window = nullptr;     ///< of the outermost view alone
    MenuItem* menuItem = nullptr; ///< of the outermost view alone

    std::optional<linux_host::Layer> layer;
    std::function<void()> click;
    std::map<TrackingArea, Rect> trackingAreas;
    bool pointerIsInside = false;
    bool keyWasPassedOn = false; ///< the view has not taken the key that it was told of
};

namespace linux_host {

/// The view itself, or the one around it that nothing is around.
[[nodiscard]] View& outermost(View& view);

} // namespace linux_host

} // namespace platform

#include "platform/Window.h"

#include "platform/linux/views/ViewAccessibility.h"
#include "platform/linux/views/ViewPeer.h"
#include "platform/linux/windows/TitledWindow.h"
#include "platform/linux/windows/WindowPeer.h"

namespace platform {

using linux_host::TitledWindow;

namespace {

QSize wholePixels(Size size) {
    return {qRound(size.width), qRound(size.height)};
}

} // namespace

Window::Window(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

Window::Window(Size contentSize, std::string_view title)
    : Window(std::make_unique<Peer>(
          Peer{.widget = new TitledWindow(
                   wholePixels(contentSize),
                   QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size()))),
               .contentView = std::make_shared<View>(Rect{.origin = {}, .size = contentSize})})) {
    linux_host::describeViews();
    View::Peer& content = peer_->contentView->peer();
    content.window = this;
    content.widget->setParent(peer_->widget);
    content.place();
}

// The content may be shared with others; the widget of a menu is the menu's.
Window::~Window() {
    if (!peer_->contentView) {
        return;
    }
    View::Peer& content = peer_->contentView->peer();
    content.window = nullptr;
    content.widget->setParent(nullptr);
    content.moveToWindow();
    delete peer_->widget;
}

void Window::center() {
    static_cast<TitledWindow&>(*peer_->widget).center();
}

View* Window::contentView() const {
    return peer_->contentView.get();
}

void Window::makeKeyAndOrderFront() {
    linux_host::nameControls(*peer_->contentView);
    static_cast<TitledWindow&>(*peer_->widget).orderFront();
}

// Of the controls, Qt knows which take the keyboard.
bool Window::makeFirstResponder(View& view) {
    QWidget& widget = *view.peer().widget;
    const bool accepts = view.acceptsFirstResponder() || widget.focusPolicy() != Qt::NoFocus;
    if (view.window() != this || !accepts) {
        return false;
    }
    widget.setFocus();
    return true;
}

} // namespace platform

// The same as bench_xcbpoller in a bare Qt program with a small window, as a tray icon is one: its
// timer is Qt's, and its connection to the X server too.

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <xcb/xcb.h>

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

void poll(xcb_connection_t* connection) {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const std::unique_ptr<xcb_query_pointer_reply_t, Free> place(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, root), nullptr));
    if (!place) {
        QCoreApplication::exit(1); // the server is gone
    }
}

} // namespace

int main(int count, char** arguments) {
    const QApplication application(count, arguments);
    auto* const connection =
        application.nativeInterface<QNativeInterface::QX11Application>()->connection();
    QWidget icon(nullptr, Qt::X11BypassWindowManagerHint);
    icon.setFixedSize(24, 24);
    icon.show();
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [connection] { poll(connection); });
    timer.start(80);
    std::cout << "ready" << std::endl;
    return QApplication::exec();
}

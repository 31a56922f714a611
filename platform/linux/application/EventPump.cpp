#include "platform/linux/application/EventPump.h"

#include "platform/linux/x11/Connection.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QSocketNotifier>

namespace platform::linux_host {

namespace {

class EventPump : public QObject {
  public:
    EventPump(Connection& connection, std::function<void()> onLoss)
        : QObject(QCoreApplication::instance()), connection_(connection),
          onLoss_(std::move(onLoss)),
          readable_(xcb_get_file_descriptor(connection.xcb()), QSocketNotifier::Read) {
        connect(&readable_, &QSocketNotifier::activated, this, [this] {
            connection_.dispatchEvents();
            checkConnection();
        });
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                [this] {
                    connection_.finishTurn();
                    checkConnection();
                });
    }

  private:
    // A dead socket stays readable for ever, so it is not looked at again.
    void checkConnection() {
        if (!connection_.isBroken() || !readable_.isEnabled()) {
            return;
        }
        readable_.setEnabled(false);
        onLoss_();
    }

    Connection& connection_;
    std::function<void()> onLoss_;
    QSocketNotifier readable_;
};

} // namespace

void serveFromEventLoop(Connection& connection, std::function<void()> onLoss) {
    new EventPump(connection, std::move(onLoss)); // the application object owns it
}

} // namespace platform::linux_host

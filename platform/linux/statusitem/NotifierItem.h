#pragma once

#include "platform/linux/dbus/MessageBus.h"
#include "platform/linux/statusitem/StatusButtonFace.h"

#include <QImage>
#include <QObject>
#include <string>
#include <vector>

namespace platform::linux_host {

/// A status button that panels show by what they are told of it over the session bus: pictures,
/// texts, and calls when it is clicked (the StatusNotifierItem protocol). It has no menu on the
/// bus: panels would not show the row in it, so a click opens the program's own. Dropping the item
/// takes it out of the panels. Main thread only.
class NotifierItem : public QObject {
  public:
    /// Asks the watcher to list the item. `onPress` is called with the place that the panel names,
    /// in pixels from the top left of the X screen, when a menu should open; `onChange` when
    /// `state` may have changed. Both come from the event loop.
    NotifierItem(StatusButtonContent content, std::function<void(QPoint)> onPress,
                 std::function<void()> onChange);

    void setContent(const StatusButtonContent& content);

    /// Asked for, on the list, or refused.
    enum class State { waiting, listed, refused };
    [[nodiscard]] State state() const { return state_; }

    /// What panels read of it. The label is empty while there is nothing but the picture to see.
    [[nodiscard]] std::string spokenText() const;
    [[nodiscard]] std::string label() const;
    [[nodiscard]] std::vector<QImage> pictures() const;

    /// A panel says that it was clicked, and where.
    void press(QPoint place) const { onPress_(place); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void askToBeListed();
    void setState(State state);
    void tell(const char* signal);
    void tellLabel();
    [[nodiscard]] StatusButtonContent pictured() const;

    StatusButtonContent content_;
    std::function<void(QPoint)> onPress_;
    std::function<void()> onChange_;
    State state_ = State::waiting;
    std::shared_ptr<MessageBus> bus_; ///< its own: the item is on the list as long as this is open
    BusSubscription object_;
    BusSubscription loss_;
    std::shared_ptr<NotifierItem*> request_; ///< leads the watcher's answer here
};

} // namespace platform::linux_host

#pragma once

#include "platform/Menu.h"

#include <QMenu>

namespace platform::linux_host {

/// The widget of a menu. It tells the menu what Qt has no signal for.
class MenuPopup final : public QMenu {
  public:
    MenuPopup(Menu::Peer& peer, const QString& title);

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    Menu::Peer& peer_;
};

} // namespace platform::linux_host

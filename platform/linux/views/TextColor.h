#pragma once

#include "platform/Color.h"

#include <QObject>

class QWidget;

namespace platform::linux_host {

/// Keeps the text of a widget, which owns it, in one of the desktop's colours, also when the
/// desktop turns light or dark.
class TextColor final : public QObject {
  public:
    explicit TextColor(QWidget& widget);

    void setColor(Color color);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void apply();

    QWidget& widget_;
    Color color_ = Color::label;
};

} // namespace platform::linux_host

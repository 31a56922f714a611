#pragma once

#include "platform/linux/statusitem/StatusButtonFace.h"

#include <QAbstractButton>
#include <QImage>
#include <functional>

namespace platform::linux_host {

/// A window that is a status button. It is pressed with either mouse button, with the keys that
/// open menus, and by screen readers.
class StatusButtonView : public QAbstractButton {
  public:
    /// `onPress` is called at the moment at which a menu should open.
    explicit StatusButtonView(std::function<void()> onPress);

    /// Called when the colours of the program have changed.
    std::function<void()> onAppearanceChange;

    void setContent(const StatusButtonContent& content);
    [[nodiscard]] StatusButtonFace face() const;

    /// Paints in this form from now on, into so many pixels of the window.
    void setRoom(QSize pixels, StatusButtonFace::Form form);

    /// Paints among this text and ground from now on; over `ground`, if there is one.
    void setSurroundings(const QPalette& surroundings, const QImage& ground = {});

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void paintGround(QPainter& painter) const;

    std::function<void()> onPress_;
    StatusButtonContent content_;
    StatusButtonFace::Form form_ = StatusButtonFace::Form::full;
    QSize room_;
    QPalette surroundings_;
    QImage ground_;
};

} // namespace platform::linux_host

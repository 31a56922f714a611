#pragma once

#include "platform/View.h"

#include <QWidgetAction>
#include <memory>

namespace platform::linux_host {

/// An action of Qt's that may show a view in its menu; without one it is an action as any other.
/// Qt's own way would delete the view's widget, which is the view's.
class ViewAction final : public QWidgetAction {
  public:
    ViewAction() : QWidgetAction(nullptr) {}

    /// Counts when a menu takes the action in.
    void setView(std::shared_ptr<View> view) { view_ = std::move(view); }
    [[nodiscard]] const std::shared_ptr<View>& view() const { return view_; }

    /// Has the view be as high as the other items of the menu at least, whatever their font.
    void willShowIn(const QWidget& menu);

  protected:
    QWidget* createWidget(QWidget* parent) override;
    void deleteWidget(QWidget* widget) override;

  private:
    std::shared_ptr<View> view_;
};

} // namespace platform::linux_host

#pragma once

#include <QWidget>
#include <cstdint>

namespace platform {

class View;

namespace linux_host {

/// The widget of a plain view: tells the view what the user does, and lets it draw itself.
class ViewWidget final : public QWidget {
  public:
    ViewWidget();

    /// Whose widget this is; to be set before anything happens to it.
    void setView(View& view) { view_ = &view; }
    [[nodiscard]] View& view() const { return *view_; }

    /// What a click on it does, for those who have no pointer.
    void performClick();

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    /// A key's going up, by its scan code.
    struct Release {
        std::uint32_t key = 0;
        std::uint64_t time = 0;
        bool operator==(const Release&) const = default;
    };

    [[nodiscard]] bool isRepeat(const QKeyEvent& press) const;

    View* view_ = nullptr;
    Release lastRelease_;
};

} // namespace linux_host
} // namespace platform

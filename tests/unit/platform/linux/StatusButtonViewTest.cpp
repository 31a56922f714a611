#include "platform/linux/statusitem/StatusButtonView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <array>
#include <gmock/gmock.h>

namespace {

using platform::AttributedString;
using platform::linux_host::StatusButtonView;

class StatusButtonViewTest : public testing::Test {
  protected:
    StatusButtonViewTest() {
        static auto name = std::to_array("test");
        static std::array<char*, 2> arguments{name.data(), nullptr};
        static int count = 1;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application_ = new QApplication(count, arguments.data());
        view_ = std::make_unique<StatusButtonView>([this] { ++presses_; });
    }

    void pressButton(Qt::MouseButton button) {
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(), QPointF(), button, button,
                          Qt::NoModifier);
        QApplication::sendEvent(view_.get(), &press);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), QPointF(), button, Qt::NoButton,
                            Qt::NoModifier);
        QApplication::sendEvent(view_.get(), &release);
    }

    void pressKey(Qt::Key key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(view_.get(), &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
        QApplication::sendEvent(view_.get(), &release);
    }

    QApplication* application_ = nullptr;
    std::unique_ptr<StatusButtonView> view_;
    int presses_ = 0;
};

TEST_F(StatusButtonViewTest, IsPressedOnceByEitherMouseButton) {
    pressButton(Qt::LeftButton);
    EXPECT_EQ(presses_, 1);
    pressButton(Qt::RightButton);
    EXPECT_EQ(presses_, 2);
}

TEST_F(StatusButtonViewTest, IsPressedOnceByTheKeysThatOpenMenus) {
    int expected = 0;
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        pressKey(key);
        EXPECT_EQ(presses_, ++expected) << key;
    }
    pressKey(Qt::Key_A);
    EXPECT_EQ(presses_, expected);
}

TEST_F(StatusButtonViewTest, IsPressedByScreenReaders) {
    view_->click();
    EXPECT_EQ(presses_, 1);
}

TEST_F(StatusButtonViewTest, IsNamedByItsWholeContent) {
    view_->setContent({.title = AttributedString{.string = " 1:30:00"}});
    EXPECT_EQ(view_->accessibleName(), QStringLiteral("Quellbar, Keep Awake 1:30:00 remaining"));
}

TEST_F(StatusButtonViewTest, TellsOfOtherColors) {
    int changes = 0;
    view_->onAppearanceChange = [&] { ++changes; };
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::WindowText, Qt::cyan);
    QApplication::setPalette(palette);
    QApplication::processEvents();
    EXPECT_GE(changes, 1);
}

} // namespace

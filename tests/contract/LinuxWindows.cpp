// What the Linux host adds to the seam's promises: what screen readers find, and texts that fit.
#include "contract/World.h"
#include "platform/Menu.h"
#include "platform/TextField.h"
#include "platform/Window.h"
#include "platform/linux/menu/MenuItemPeer.h"
#include "platform/linux/views/ViewPeer.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QLabel>

namespace {

using platform::TextField;
using platform::View;
using platform::Window;

class LinuxWindows : public contract::ProgramTest {
  protected:
    static QAccessibleInterface& accessible(const View& view) {
        return *QAccessible::queryAccessibleInterface(view.peer().widget);
    }

    static bool fits(const TextField& field) {
        const auto& label = static_cast<QLabel&>(*field.peer().widget);
        return QFontMetrics(label.font()).horizontalAdvance(label.text()) <= label.width();
    }

    Window window_{{300, 200}, "window"};
    View& content_ = *window_.contentView();
};

TEST_F(LinuxWindows, AViewThatCanBeClickedIsAButtonByItsText) {
    const auto view = std::make_shared<View>(platform::Rect{{10, 10}, {120, 24}});
    const auto label = TextField::labelWithString("⌥⌘M");
    int clicks = 0;
    view->addSubview(label);
    view->addClickGestureRecognizer([&clicks] { ++clicks; });
    content_.addSubview(view);
    QAccessibleInterface& button = accessible(*view);
    EXPECT_EQ(button.role(), QAccessible::Button);
    EXPECT_EQ(button.text(QAccessible::Name).toStdString(), "⌥⌘M");
    label->setStringValue("Press new shortcut…");
    EXPECT_EQ(button.text(QAccessible::Name).toStdString(), "Press new shortcut…");
    button.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks, 1);
}

TEST_F(LinuxWindows, AFieldIsNamedAfterTheLabelToItsLeft) {
    const auto above = TextField::labelWithString("Above:");
    above->setFrame({{10, 60}, {80, 20}});
    const auto beside = TextField::labelWithString("Duration:");
    beside->setFrame({{10, 12}, {80, 20}});
    const auto field = TextField::editable({{100, 10}, {60, 24}});
    content_.addSubview(above);
    content_.addSubview(beside);
    content_.addSubview(field);
    window_.makeKeyAndOrderFront();
    EXPECT_EQ(accessible(*field).text(QAccessible::Name).toStdString(), "Duration");
}

TEST_F(LinuxWindows, TheActionOfARowHasTheTextOfItsView) {
    const auto view = std::make_shared<View>(platform::Rect{{0, 0}, {260, 22}});
    const auto label = TextField::labelWithString("Keep Awake: Off");
    view->addSubview(label);
    const auto item = std::make_shared<platform::MenuItem>("");
    item->setView(view);
    EXPECT_EQ(item->peer().action.text().toStdString(), "Keep Awake: Off");
    label->setStringValue("Keep Awake: 1:30:00 remaining");
    EXPECT_EQ(item->peer().action.text().toStdString(), "Keep Awake: 1:30:00 remaining");
}

TEST_F(LinuxWindows, ATextThatIsTooLongTakesASmallerFontUntilThereIsRoomAgain) {
    const auto label = TextField::labelWithString("Default duration (minutes):");
    const auto& widget = *label->peer().widget;
    content_.addSubview(label);
    window_.makeKeyAndOrderFront(); // a widget hears of its size when it is shown
    label->setFrame({{0, 0}, {400, 20}});
    const int wanted = widget.font().pixelSize();
    label->setFrame({{0, 0}, {140, 20}});
    EXPECT_LT(widget.font().pixelSize(), wanted);
    EXPECT_TRUE(fits(*label));
    label->setFrame({{0, 0}, {400, 20}});
    EXPECT_EQ(widget.font().pixelSize(), wanted);
}

} // namespace

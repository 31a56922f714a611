#include "contract/World.h"
#include "platform/Menu.h"
#include "platform/TextField.h"

namespace {

using platform::ControlState;
using platform::Menu;
using platform::MenuItem;
using platform::Rect;
using platform::View;

using MenuContract = contract::ProgramTest;

TEST_F(MenuContract, AnItemKeepsItsTitleToTheLetter) {
    MenuItem item("About & Help");
    EXPECT_EQ(item.title(), "About & Help");
    item.setTitle("Minimize All Windows  (⌥⌘M)");
    EXPECT_EQ(item.title(), "Minimize All Windows  (⌥⌘M)");
}

TEST_F(MenuContract, AnItemIsOffUntilItIsSet) {
    MenuItem item("title");
    EXPECT_EQ(item.state(), ControlState::off);
    item.setState(ControlState::on);
    EXPECT_EQ(item.state(), ControlState::on);
    item.setState(ControlState::mixed);
    EXPECT_EQ(item.state(), ControlState::mixed);
}

TEST_F(MenuContract, AnItemKeepsWhateverTheProgramPutsOnIt) {
    MenuItem item("title");
    EXPECT_FALSE(item.representedObject().has_value());
    item.setRepresentedObject(7);
    EXPECT_EQ(std::any_cast<int>(item.representedObject()), 7);
}

TEST_F(MenuContract, AnItemIsInTheMenuThatItWasAddedTo) {
    Menu menu;
    const auto item = std::make_shared<MenuItem>("title");
    EXPECT_EQ(item->menu(), nullptr);
    menu.addItem(item);
    EXPECT_EQ(item->menu(), &menu);
}

TEST_F(MenuContract, AnItemOutlivesItsMenu) {
    const auto item = std::make_shared<MenuItem>("title");
    {
        Menu menu;
        menu.addItem(item);
    }
    EXPECT_EQ(item->menu(), nullptr);
    item->setTitle("another");
    EXPECT_EQ(item->title(), "another");
}

TEST_F(MenuContract, AViewKnowsTheItemThatItFills) {
    const auto view = std::make_shared<View>(Rect{{0, 0}, {260, 22}});
    const auto label = platform::TextField::labelWithString("text");
    view->addSubview(label);
    {
        const auto item = std::make_shared<MenuItem>("");
        item->setView(view);
        Menu menu;
        menu.addItem(item);
        EXPECT_EQ(view->enclosingMenuItem(), item.get());
        EXPECT_EQ(label->enclosingMenuItem(), item.get());
        EXPECT_EQ(view->window(), nullptr) << "the menu is closed";
    }
    EXPECT_EQ(view->enclosingMenuItem(), nullptr);
    label->setStringValue("another text");
    view->setNeedsDisplay();
}

TEST_F(MenuContract, ClosingAMenuThatIsNotOpenChangesNothing) {
    Menu menu;
    menu.addItem(std::make_shared<MenuItem>("title"));
    menu.addItem(MenuItem::separatorItem());
    menu.cancelTracking();
}

} // namespace

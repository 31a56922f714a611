#include "platform/Application.h"
#include "platform/Button.h"
#include "platform/ImageView.h"
#include "platform/Stepper.h"
#include "platform/TextField.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using platform::Button;
using platform::ControlState;
using platform::Stepper;
using platform::TextField;
using simulated::desktop;
using simulated::stateOf;
using testing::ElementsAre;
using testing::IsEmpty;

/// A window that the user looks at, for controls to be put into.
class SimulatedControls : public testing::Test {
  protected:
    SimulatedControls() {
        platform::Application::shared();
        window.makeKeyAndOrderFront();
        platform::Application::shared().activateIgnoringOtherApps();
    }
    template <typename Control>
    std::shared_ptr<Control> add(std::shared_ptr<Control> control) {
        window.contentView()->addSubview(control);
        return control;
    }

    platform::Window window{{400, 300}, "Window"};
};

class SimulatedTextField : public SimulatedControls {
  protected:
    static std::int64_t integerValueOf(std::string_view text) {
        return TextField::labelWithString(text)->integerValue();
    }
    simulated::TextField& typeable() { return stateOf(*field); }

    std::shared_ptr<TextField> field = add(TextField::editable({{1, 2}, {60, 24}}));
    int edits = 0;
};

TEST_F(SimulatedTextField, IsWhatItWasMadeAs) {
    using Kind = simulated::TextField::Kind;
    EXPECT_EQ(stateOf(*TextField::labelWithString("text")).kind(), Kind::label);
    EXPECT_EQ(stateOf(*TextField::wrappingLabelWithString("text")).kind(), Kind::wrappingLabel);
    EXPECT_EQ(typeable().kind(), Kind::editable);
    EXPECT_EQ(TextField::labelWithString("text")->stringValue(), "text");
    EXPECT_EQ(field->stringValue(), "");
    EXPECT_EQ(field->frame(), (platform::Rect{{1, 2}, {60, 24}}));
}

TEST_F(SimulatedTextField, ReadsTheWholeNumberThatItsTextBeginsWith) {
    EXPECT_EQ(integerValueOf("45"), 45);
    EXPECT_EQ(integerValueOf(" \t\n+45 min"), 45);
    EXPECT_EQ(integerValueOf("-45.9"), -45);
    EXPECT_EQ(integerValueOf("007"), 7);
    EXPECT_EQ(integerValueOf("1e3"), 1);
    EXPECT_EQ(integerValueOf("0x1F"), 0);
}

TEST_F(SimulatedTextField, ReadsZeroWhereThereIsNoNumber) {
    for (const auto* const text : {"", " ", "soon", "a1", "-", "+-1", "- 1", ".5", "٤٥"}) {
        EXPECT_EQ(integerValueOf(text), 0) << text;
    }
}

TEST_F(SimulatedTextField, ReadsTheNearestIntegerWhereTheNumberDoesNotFit) {
    using Limits = std::numeric_limits<std::int64_t>;
    EXPECT_EQ(integerValueOf("9223372036854775807"), Limits::max());
    EXPECT_EQ(integerValueOf("9223372036854775808"), Limits::max());
    EXPECT_EQ(integerValueOf("-9223372036854775808"), Limits::min());
    EXPECT_EQ(integerValueOf("-99999999999999999999"), Limits::min());
}

TEST_F(SimulatedTextField, ShowsTheNumberThatItIsGiven) {
    field->setIntegerValue(-7);
    EXPECT_EQ(field->stringValue(), "-7");
}

TEST_F(SimulatedTextField, TellsOfAnEditWhenItEndsAndNotOfWhatTheProgramWrites) {
    field->setAction([this] { ++edits; });
    field->setStringValue("7");
    typeable().type("45");
    EXPECT_EQ(field->integerValue(), 45);
    EXPECT_EQ(edits, 0);
    typeable().pressReturn();
    EXPECT_EQ(edits, 1);
    typeable().pressReturn(); // it still has the keyboard
    EXPECT_EQ(edits, 2);
}

TEST_F(SimulatedTextField, HasTheKeyboardOnceTheUserClicksIntoIt) {
    EXPECT_EQ(stateOf(window).firstResponder(), nullptr);
    typeable().click();
    EXPECT_EQ(stateOf(window).firstResponder(), &typeable());
}

TEST_F(SimulatedTextField, MayHaveNobodyToTell) {
    typeable().type("45");
    typeable().pressReturn();
    EXPECT_EQ(field->stringValue(), "45");
}

using SimulatedTextFieldDeathTest = SimulatedTextField;

TEST_F(SimulatedTextFieldDeathTest, ThatCannotBeEditedIsMisusedByWhoTypesIntoIt) {
    const auto label = add(TextField::labelWithString("text"));
    EXPECT_DEATH(stateOf(*label).type("45"), "the user edits a label: \"text\"");
    EXPECT_DEATH(typeable().pressReturn(), "the user ends an edit that has not begun: \"\"");
    stateOf(window).close();
    EXPECT_DEATH(typeable().type("45"), "the user edits what is not on the screen: \"\"");
}

using SimulatedButton = SimulatedControls;

TEST_F(SimulatedButton, IsToggledByAClickBeforeItTellsOfIt) {
    std::vector<ControlState> states;
    const auto box = add(Button::checkboxWithTitle(
        "Box", [&](Button& sender) { states.push_back(sender.state()); }));
    EXPECT_EQ(box->state(), ControlState::off);
    stateOf(*box).click();
    stateOf(*box).click();
    EXPECT_THAT(states, ElementsAre(ControlState::on, ControlState::off));
}

TEST_F(SimulatedButton, TellsNobodyOfWhatTheProgramSets) {
    bool wasTold = false;
    const auto box = Button::checkboxWithTitle("Box", [&](Button&) { wasTold = true; });
    box->setState(ControlState::on);
    EXPECT_EQ(box->state(), ControlState::on);
    EXPECT_FALSE(wasTold);
}

class SimulatedStepper : public SimulatedControls {
  protected:
    SimulatedStepper() {
        stepper->setRange(30, 100);
        stepper->setIncrement(30);
    }
    simulated::Stepper& clickable() { return stateOf(*stepper); }

    std::vector<std::int64_t> values;
    std::shared_ptr<Stepper> stepper = add(
        Stepper::make({}, [this](Stepper& sender) { values.push_back(sender.integerValue()); }));
};

TEST_F(SimulatedStepper, StepsAndGoesOnAtTheOtherLimit) {
    clickable().clickUp();
    clickable().clickUp();
    clickable().clickUp();
    clickable().clickDown();
    clickable().clickDown();
    EXPECT_THAT(values, ElementsAre(60, 90, 30, 100, 70));
}

TEST_F(SimulatedStepper, KeepsWithinItsRangeWhatItIsGivenAndTellsNobody) {
    stepper->setIntegerValue(2000);
    EXPECT_EQ(stepper->integerValue(), 100);
    stepper->setIntegerValue(std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(stepper->integerValue(), 30);
    stepper->setRange(40, 50);
    EXPECT_EQ(stepper->integerValue(), 40);
    EXPECT_THAT(values, IsEmpty());
}

using SimulatedStepperDeathTest = SimulatedStepper;

TEST_F(SimulatedStepperDeathTest, WithoutARangeOrAStepIsMisuse) {
    EXPECT_DEATH(stepper->setRange(2, 1), "a stepper has no range");
    EXPECT_DEATH(stepper->setRange(0, std::numeric_limits<double>::infinity()),
                 "a stepper has no range");
    EXPECT_DEATH(stepper->setIncrement(0), "a stepper does not step forward");
}

TEST(SimulatedImageView, ShowsAnImageOrNothing) {
    desktop().files.addFile("/icon.png", simulated::pngFile(18, 18));
    const auto view = platform::ImageView::withFrame({{1, 2}, {80, 80}});
    const auto image = platform::Image::withContentsOfFile("/icon.png");
    EXPECT_EQ(stateOf(*view).image, nullptr);
    view->setImage(image);
    EXPECT_EQ(stateOf(*view).image, image);
    view->setImage(nullptr);
    EXPECT_EQ(stateOf(*view).image, nullptr);
}

} // namespace

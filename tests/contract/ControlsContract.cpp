#include "contract/World.h"
#include "platform/Button.h"
#include "platform/Image.h"
#include "platform/Stepper.h"
#include "platform/TextField.h"

#include <cstdint>
#include <limits>

namespace {

using platform::Button;
using platform::ControlState;
using platform::Stepper;
using platform::TextField;

using ControlsContract = contract::ProgramTest;

std::int64_t integerIn(std::string_view text) {
    const auto field = TextField::editable({{0, 0}, {60, 24}});
    field->setStringValue(text);
    return field->integerValue();
}

TEST_F(ControlsContract, ATextFieldKeepsItsText) {
    const auto label = TextField::labelWithString("first");
    EXPECT_EQ(label->stringValue(), "first");
    label->setStringValue("⌥⌘M & …");
    EXPECT_EQ(label->stringValue(), "⌥⌘M & …");
    EXPECT_EQ(TextField::wrappingLabelWithString("a\nb")->stringValue(), "a\nb");
    EXPECT_EQ(TextField::editable({})->stringValue(), "");
}

TEST_F(ControlsContract, ATextFieldShowsAnIntegerAsItsDigits) {
    const auto field = TextField::editable({});
    field->setIntegerValue(-120);
    EXPECT_EQ(field->stringValue(), "-120");
    EXPECT_EQ(field->integerValue(), -120);
}

TEST_F(ControlsContract, TheIntegerOfATextIsTheOneAtItsBeginning) {
    EXPECT_EQ(integerIn("45"), 45);
    EXPECT_EQ(integerIn("45 minutes"), 45);
    EXPECT_EQ(integerIn("-7"), -7);
    EXPECT_EQ(integerIn("+7"), 7);
    EXPECT_EQ(integerIn("30.9"), 30);
}

TEST_F(ControlsContract, TheIntegerOfATextWithoutOneIsZero) {
    EXPECT_EQ(integerIn(""), 0);
    EXPECT_EQ(integerIn("   "), 0);
    EXPECT_EQ(integerIn("minutes 45"), 0);
    EXPECT_EQ(integerIn("-"), 0);
}

TEST_F(ControlsContract, AnIntegerThatDoesNotFitIsTheNearestThatDoes) {
    EXPECT_EQ(integerIn("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(integerIn("9223372036854775808"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(integerIn("-9223372036854775809"), std::numeric_limits<std::int64_t>::min());
}

TEST_F(ControlsContract, ACheckboxIsOffUntilItIsSetAndSettingItTellsNobody) {
    int told = 0;
    const auto box = Button::checkboxWithTitle("title", [&told](Button&) { ++told; });
    EXPECT_EQ(box->state(), ControlState::off);
    box->setState(ControlState::on);
    EXPECT_EQ(box->state(), ControlState::on);
    box->setState(ControlState::off);
    EXPECT_EQ(box->state(), ControlState::off);
    EXPECT_EQ(told, 0);
}

TEST_F(ControlsContract, AStepperKeepsWithinItsRangeAndSettingItTellsNobody) {
    int told = 0;
    const auto stepper = Stepper::make({{0, 0}, {19, 24}}, [&told](Stepper&) { ++told; });
    stepper->setRange(30, 1440);
    stepper->setIncrement(30);
    stepper->setIntegerValue(120);
    EXPECT_EQ(stepper->integerValue(), 120);
    stepper->setIntegerValue(29);
    EXPECT_EQ(stepper->integerValue(), 30);
    stepper->setIntegerValue(std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(stepper->integerValue(), 1440);
    EXPECT_EQ(told, 0);
}

TEST_F(ControlsContract, WhatCannotBeReadIsNoImage) {
    EXPECT_EQ(platform::Image::withContentsOfFile("/nowhere/at all.png"), nullptr);
    EXPECT_EQ(platform::Image::withContentsOfFile("/"), nullptr);
    EXPECT_EQ(platform::Image::withContentsOfFile(""), nullptr);
}

} // namespace

#include "platform/Button.h"

#include "platform/linux/views/QStrings.h"
#include "platform/linux/views/ViewPeer.h"

#include <QCheckBox>

namespace platform {

namespace {

QCheckBox& checkBoxOf(const Button& button) {
    return static_cast<QCheckBox&>(*button.peer().widget);
}

ControlState stateOf(Qt::CheckState state) {
    switch (state) {
    case Qt::Unchecked:
        return ControlState::off;
    case Qt::PartiallyChecked:
        return ControlState::mixed;
    case Qt::Checked:
        return ControlState::on;
    }
    return ControlState::off;
}

Qt::CheckState checkStateOf(ControlState state) {
    switch (state) {
    case ControlState::off:
        return Qt::Unchecked;
    case ControlState::mixed:
        return Qt::PartiallyChecked;
    case ControlState::on:
        return Qt::Checked;
    }
    return Qt::Unchecked;
}

} // namespace

Button::Button(std::unique_ptr<Peer> peer) : View(std::move(peer)) {}

// The box belongs to the button, so it never calls what is gone.
std::shared_ptr<Button> Button::checkboxWithTitle(std::string_view title, Action action) {
    auto* const box = new QCheckBox(linux_host::titleFrom(title));
    const QSize size = box->sizeHint();
    auto button = std::make_shared<Button>(
        std::make_unique<Peer>(box, Rect{.origin = {},
                                         .size = {.width = static_cast<double>(size.width()),
                                                  .height = static_cast<double>(size.height())}}));
    QObject::connect(box, &QCheckBox::clicked, box,
                     [sender = button.get(), action = std::move(action)] {
                         if (action) {
                             action(*sender);
                         }
                     });
    return button;
}

ControlState Button::state() const {
    return stateOf(checkBoxOf(*this).checkState());
}

void Button::setState(ControlState state) {
    checkBoxOf(*this).setCheckState(checkStateOf(state));
}

} // namespace platform

#include "platform/linux/statusitem/NotifierPanel.h"

#include <QStringList>

namespace platform::linux_host {

namespace {

// True only for an answer that says so: without a watcher, the answer is an error.
bool saysYes(sd_bus_message& answer) {
    int isRegistered = 0;
    return sd_bus_message_is_method_error(&answer, nullptr) == 0 &&
           sd_bus_message_read(&answer, "v", "b", &isRegistered) >= 0 && isRegistered != 0;
}

} // namespace

NotifierPanel::NotifierPanel(std::function<void()> onChange)
    : onChange_(std::move(onChange)), bus_(MessageBus::connect(BusType::session)) {
    if (!bus_) {
        state_ = State::absent;
        return;
    }
    watch();
    ask();
}

// Before the first question: so there is no moment at which a panel could appear unseen.
void NotifierPanel::watch() {
    changes_.push_back(bus_->watchLoss([this] { setState(State::absent); }));
    changes_.push_back(bus_->watchOwner(watcher, [this](bool) { handleWatcherChange(); }));
    for (const char* const signal :
         {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        changes_.push_back(
            bus_->watchSignal(watcher, watcherPath, watcher, signal, [this] { ask(); }));
    }
}

void NotifierPanel::handleWatcherChange() {
    ++generation_;
    ask();
}

void NotifierPanel::ask() {
    BusMessage call =
        bus_->createCall(watcher, watcherPath, "org.freedesktop.DBus.Properties", "Get");
    if (!call ||
        sd_bus_message_append(call.get(), "ss", watcher, "IsStatusNotifierHostRegistered") < 0) {
        setState(State::absent);
        return;
    }
    question_ = std::make_shared<NotifierPanel*>(this);
    bus_->call(std::move(call), [question = std::weak_ptr(question_)](sd_bus_message& answer) {
        if (const auto asked = question.lock()) {
            (*asked)->setState(saysYes(answer) ? State::present : State::absent);
        }
    });
}

void NotifierPanel::setState(State state) {
    state_ = state;
    onChange_();
}

bool desktopPrefersNotifiers() {
    const auto desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    return desktops.contains(QStringLiteral("KDE"));
}

} // namespace platform::linux_host

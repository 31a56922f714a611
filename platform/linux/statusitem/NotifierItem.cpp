#include "platform/linux/statusitem/NotifierItem.h"

#include "platform/linux/statusitem/NotifierPanel.h"
#include "platform/linux/statusitem/NotifierPictures.h"
#include "platform/linux/statusitem/NotifierTable.h"

#include <QEvent>
#include <QGuiApplication>

namespace platform::linux_host {

namespace {

constexpr const char* itemPath = "/StatusNotifierItem";

// Panels that show a text beside the picture need no time in the picture.
bool showsTimeInPicture() {
    static const bool shows = desktopPrefersNotifiers();
    return shows;
}

} // namespace

NotifierItem::NotifierItem(StatusButtonContent content, std::function<void(QPoint)> onPress,
                           std::function<void()> onChange)
    : content_(std::move(content)), onPress_(std::move(onPress)), onChange_(std::move(onChange)),
      bus_(MessageBus::connect(BusType::session)) {
    if (!bus_) {
        state_ = State::refused;
        return;
    }
    object_ = bus_->exportObject(itemPath, notifierInterface, notifierTable(), this);
    loss_ = bus_->watchLoss([this] { setState(State::refused); });
    askToBeListed();
    qGuiApp->installEventFilter(this);
}

// By its path: the item is that of this connection then, and leaves the list with it.
void NotifierItem::askToBeListed() {
    BusMessage call = bus_->createCall(NotifierPanel::watcher, NotifierPanel::watcherPath,
                                       NotifierPanel::watcher, "RegisterStatusNotifierItem");
    if (!call || sd_bus_message_append(call.get(), "s", itemPath) < 0) {
        state_ = State::refused;
        return;
    }
    request_ = std::make_shared<NotifierItem*>(this);
    bus_->call(std::move(call), [request = std::weak_ptr(request_)](sd_bus_message& answer) {
        if (const auto asked = request.lock()) {
            const bool isError = sd_bus_message_is_method_error(&answer, nullptr) > 0;
            (*asked)->setState(isError ? State::refused : State::listed);
        }
    });
}

void NotifierItem::setState(State state) {
    state_ = state;
    onChange_();
}

// Panels read again only what they are told of. A picture that stays the same, as that of a
// countdown in hours does for a minute, is not read each second.
void NotifierItem::setContent(const StatusButtonContent& content) {
    const std::string oldText = spokenText();
    const std::string oldLabel = label();
    const auto picture = [this] {
        return std::pair(content_.image, StatusButtonFace(pictured(), 1).shortTitle());
    };
    const auto oldPicture = picture();
    content_ = content;
    if (picture() != oldPicture) {
        tell("NewIcon");
    }
    if (spokenText() != oldText) {
        tell("NewTitle");
        tell("NewToolTip");
    }
    if (label() != oldLabel) {
        tellLabel();
    }
}

void NotifierItem::tell(const char* signal) {
    if (bus_) {
        bus_->send(bus_->createSignal(itemPath, notifierInterface, signal));
    }
}

void NotifierItem::tellLabel() {
    if (!bus_) {
        return;
    }
    BusMessage signal = bus_->createSignal(itemPath, notifierInterface, "XAyatanaNewLabel");
    if (signal &&
        sd_bus_message_append(signal.get(), "ss", label().c_str(), notifierLabelGuide) >= 0) {
        bus_->send(std::move(signal));
    }
}

std::string NotifierItem::spokenText() const {
    return StatusButtonFace(content_, 1).spokenText().toStdString();
}

std::string NotifierItem::label() const {
    return QString::fromStdString(content_.title.string).trimmed().toStdString();
}

StatusButtonContent NotifierItem::pictured() const {
    StatusButtonContent content = content_;
    if (!showsTimeInPicture()) {
        content.title = {};
    }
    return content;
}

std::vector<QImage> NotifierItem::pictures() const {
    return notifierPictures(pictured(), QGuiApplication::palette());
}

// The symbol is in the colour of the desktop's text.
bool NotifierItem::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange) {
        tell("NewIcon");
    }
    return QObject::eventFilter(watched, event);
}

} // namespace platform::linux_host

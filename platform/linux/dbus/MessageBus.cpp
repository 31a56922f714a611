#include "platform/linux/dbus/MessageBus.h"

#include <QSocketNotifier>
#include <cstdint>
#include <limits>

namespace platform::linux_host {

namespace {

constexpr const char* description = "quellbar"; // in the tools that list connections
constexpr std::uint64_t noTimeLimit = std::numeric_limits<std::uint64_t>::max();

template <typename Handler>
void destroy(void* handler) {
    delete static_cast<Handler*>(handler);
}

// The slot owns the handler from here on.
template <typename Handler>
BusSubscription owning(sd_bus_slot* slot, std::unique_ptr<Handler> handler) {
    sd_bus_slot_set_destroy_callback(slot, destroy<Handler>);
    static_cast<void>(handler.release());
    return BusSubscription(slot);
}

int handleReply(sd_bus_message* reply, void* handler, sd_bus_error*) {
    (*static_cast<MessageBus::ReplyHandler*>(handler))(*reply);
    return 0;
}

int handleOwnerChange(sd_bus_message* change, void* handler, sd_bus_error*) {
    const char* name = nullptr;
    const char* oldOwner = nullptr;
    const char* newOwner = "";
    if (sd_bus_message_read(change, "sss", &name, &oldOwner, &newOwner) >= 0) {
        (*static_cast<MessageBus::OwnerHandler*>(handler))(*newOwner != '\0');
    }
    return 0;
}

int handleSignal(sd_bus_message*, void* handler, sd_bus_error*) {
    (*static_cast<MessageBus::SignalHandler*>(handler))();
    return 0;
}

// Without this, a bus that refuses a subscription would be left.
int ignoreAnswer(sd_bus_message*, void*, sd_bus_error*) {
    return 0;
}

std::string ownerChangesOf(const std::string& name) {
    return "type='signal',sender='org.freedesktop.DBus',path='/org/freedesktop/DBus',"
           "interface='org.freedesktop.DBus',member='NameOwnerChanged',arg0='" +
           name + "'";
}

} // namespace

struct MessageBus::Notifiers {
    QSocketNotifier readable;
    QSocketNotifier writable;
};

std::shared_ptr<MessageBus> MessageBus::connect(BusType type) {
    sd_bus* bus = nullptr;
    const int status = type == BusType::session
                           ? sd_bus_open_user_with_description(&bus, description)
                           : sd_bus_open_system_with_description(&bus, description);
    std::unique_ptr<sd_bus, UnrefBusObject> owned(bus);
    return status >= 0 ? std::shared_ptr<MessageBus>(new MessageBus(std::move(owned))) : nullptr;
}

MessageBus::MessageBus(std::unique_ptr<sd_bus, UnrefBusObject> bus)
    : bus_(std::move(bus)),
      notifiers_(
          new Notifiers{QSocketNotifier(sd_bus_get_fd(bus_.get()), QSocketNotifier::Read),
                        QSocketNotifier(sd_bus_get_fd(bus_.get()), QSocketNotifier::Write)}) {
    for (QSocketNotifier* const notifier : {&notifiers_->readable, &notifiers_->writable}) {
        QObject::connect(notifier, &QSocketNotifier::activated, notifier, [this] { process(); });
    }
    updateNotifiers();
}

MessageBus::~MessageBus() = default;

bool MessageBus::isOpen() const {
    return sd_bus_is_open(bus_.get()) > 0;
}

bool MessageBus::isReady() const {
    return sd_bus_is_ready(bus_.get()) > 0;
}

BusMessage MessageBus::createCall(const char* destination, const char* path, const char* interface,
                                  const char* member) const {
    sd_bus_message* call = nullptr;
    if (sd_bus_message_new_method_call(bus_.get(), &call, destination, path, interface, member) >=
        0) {
        sd_bus_message_set_auto_start(call, 0);
    }
    return BusMessage(call);
}

void MessageBus::call(BusMessage call, ReplyHandler handler) {
    auto kept = std::make_unique<ReplyHandler>(std::move(handler));
    sd_bus_slot* slot = nullptr;
    if (sd_bus_call_async(bus_.get(), &slot, call.get(), handleReply, kept.get(), noTimeLimit) >=
        0) {
        const BusSubscription answer = owning(slot, std::move(kept));
        sd_bus_slot_set_floating(slot, 1); // the bus keeps it until the answer comes
    }
    updateNotifiers();
}

void MessageBus::send(BusMessage call) {
    if (call) {
        sd_bus_message_set_expect_reply(call.get(), 0);
        sd_bus_send(bus_.get(), call.get(), nullptr);
        updateNotifiers();
    }
}

BusSubscription MessageBus::watchOwner(const std::string& name, OwnerHandler handler) {
    auto kept = std::make_unique<OwnerHandler>(std::move(handler));
    sd_bus_slot* slot = nullptr;
    if (sd_bus_add_match_async(bus_.get(), &slot, ownerChangesOf(name).c_str(), handleOwnerChange,
                               ignoreAnswer, kept.get()) < 0) {
        return nullptr;
    }
    updateNotifiers();
    return owning(slot, std::move(kept));
}

BusSubscription MessageBus::watchSignal(const char* sender, const char* path, const char* interface,
                                        const char* member, SignalHandler handler) {
    auto kept = std::make_unique<SignalHandler>(std::move(handler));
    sd_bus_slot* slot = nullptr;
    if (sd_bus_match_signal_async(bus_.get(), &slot, sender, path, interface, member, handleSignal,
                                  ignoreAnswer, kept.get()) < 0) {
        return nullptr;
    }
    updateNotifiers();
    return owning(slot, std::move(kept));
}

// The library itself tells of the loss, as a signal that never was on the bus.
BusSubscription MessageBus::watchLoss(SignalHandler handler) {
    return watchSignal("org.freedesktop.DBus.Local", "/org/freedesktop/DBus/Local",
                       "org.freedesktop.DBus.Local", "Disconnected", std::move(handler));
}

BusSubscription MessageBus::exportObject(const char* path, const char* interface,
                                         const sd_bus_vtable* table, void* object) {
    sd_bus_slot* slot = nullptr;
    sd_bus_add_object_vtable(bus_.get(), &slot, path, interface, table, object);
    return BusSubscription(slot);
}

BusMessage MessageBus::createSignal(const char* path, const char* interface,
                                    const char* member) const {
    sd_bus_message* signal = nullptr;
    sd_bus_message_new_signal(bus_.get(), &signal, path, interface, member);
    return BusMessage(signal);
}

void MessageBus::process() {
    while (sd_bus_process(bus_.get(), nullptr) > 0) {
    }
    updateNotifiers();
}

pollfd MessageBus::pollState() const {
    const int events = sd_bus_get_events(bus_.get()); // negative when the bus is gone
    const int descriptor = events >= 0 ? sd_bus_get_fd(bus_.get()) : -1;
    return {.fd = descriptor, .events = static_cast<short>(events >= 0 ? events : 0), .revents = 0};
}

// A socket that nobody has anything to write to would wake the loop without end, as would one that
// is closed.
void MessageBus::updateNotifiers() {
    const pollfd state = pollState();
    notifiers_->readable.setEnabled((state.events & POLLIN) != 0);
    notifiers_->writable.setEnabled((state.events & POLLOUT) != 0);
}

} // namespace platform::linux_host

#include "platform/linux/power/Inhibitor.h"

namespace platform::linux_host {

namespace {

bool saysNothingIsThere(sd_bus_message& answer) {
    const sd_bus_error* const error = sd_bus_message_get_error(&answer);
    return sd_bus_error_has_name(error, "org.freedesktop.DBus.Error.UnknownObject") > 0 ||
           sd_bus_error_has_name(error, "org.freedesktop.DBus.Error.UnknownMethod") > 0;
}

} // namespace

// Watching comes first: so there is no moment at which the service could appear unseen.
Inhibitor::Inhibitor(std::shared_ptr<MessageBus> bus, const InhibitorService& service,
                     std::string reason)
    : bus_(std::move(bus)), service_(service), reason_(std::move(reason)),
      ownerChanges_(
          bus_->watchOwner(service.name, [this](bool isOwned) { handleOwner(isOwned); })) {
    ask(service_.path);
}

void Inhibitor::ask(const char* path) {
    BusMessage call = bus_->createCall(service_.name, path, service_.interface, "Inhibit");
    if (!call || service_.appendArguments(*call, reason_.c_str()) < 0) {
        return;
    }
    request_ = std::make_shared<Inhibitor*>(this);
    bus_->call(std::move(call), [path, request = std::weak_ptr(request_), &bus = *bus_,
                                 &service = service_](sd_bus_message& answer) {
        auto hold = InhibitorHold::grantedBy(answer, bus, service, path);
        if (const auto awaited = request.lock()) {
            (*awaited)->handleAnswer(answer, std::move(hold), path);
        } // else nobody wants the hold any more, and it is let go here
    });
}

void Inhibitor::handleAnswer(sd_bus_message& answer, std::unique_ptr<InhibitorHold> hold,
                             const char* path) {
    request_.reset();
    hold_ = std::move(hold);
    if (path != service_.olderPath && service_.olderPath != nullptr && saysNothingIsThere(answer)) {
        ask(service_.olderPath);
    }
}

// A hold ends with the process that granted it. What that process has still to answer, nobody waits
// for.
void Inhibitor::handleOwner(bool isOwned) {
    request_.reset();
    hold_.reset();
    if (isOwned) {
        ask(service_.path);
    }
}

} // namespace platform::linux_host

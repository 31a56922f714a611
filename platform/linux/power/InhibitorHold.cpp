#include "platform/linux/power/InhibitorHold.h"

#include <cstdint>
#include <fcntl.h>

namespace platform::linux_host {

namespace {

bool isOf(sd_bus_message& answer, const char* signature) {
    return sd_bus_message_has_signature(&answer, signature) > 0;
}

// Sent to the very process that has granted the hold: the name may have another owner by then.
BusMessage returnNumber(sd_bus_message& answer, const MessageBus& bus,
                        const InhibitorService& service, const char* path) {
    std::uint32_t number = 0;
    sd_bus_message_read(&answer, "u", &number);
    BusMessage call = bus.createCall(sd_bus_message_get_sender(&answer), path, service.interface,
                                     service.release);
    if (call) {
        sd_bus_message_append(call.get(), "u", number);
    }
    return call;
}

BusMessage closeObject(sd_bus_message& answer, const MessageBus& bus) {
    const char* object = nullptr;
    sd_bus_message_read(&answer, "o", &object);
    return bus.createCall(sd_bus_message_get_sender(&answer), object,
                          "org.freedesktop.portal.Request", "Close");
}

// The one in the message is closed with the message.
FileDescriptor descriptorIn(sd_bus_message& answer) {
    int descriptor = -1;
    sd_bus_message_read(&answer, "h", &descriptor);
    return FileDescriptor(::fcntl(descriptor, F_DUPFD_CLOEXEC, 0));
}

} // namespace

std::unique_ptr<InhibitorHold> InhibitorHold::grantedBy(sd_bus_message& answer, MessageBus& bus,
                                                        const InhibitorService& service,
                                                        const char* path) {
    if (sd_bus_message_get_error(&answer) != nullptr) {
        return nullptr;
    }
    if (service.release != nullptr && isOf(answer, "u")) {
        return std::make_unique<InhibitorHold>(bus, returnNumber(answer, bus, service, path));
    }
    if (isOf(answer, "h")) {
        return std::make_unique<InhibitorHold>(bus, descriptorIn(answer));
    }
    if (isOf(answer, "o")) {
        return std::make_unique<InhibitorHold>(bus, closeObject(answer, bus));
    }
    return nullptr;
}

} // namespace platform::linux_host

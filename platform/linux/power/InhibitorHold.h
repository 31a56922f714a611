#pragma once

#include "platform/linux/files/FileDescriptor.h"
#include "platform/linux/power/InhibitorService.h"

#include <memory>

namespace platform::linux_host {

/// What a service has granted. Dropping it lets it go.
class InhibitorHold {
  public:
    /// The hold in the answer to a call of "Inhibit" at `path`; null when the service has refused.
    /// The bus has to outlive it.
    [[nodiscard]] static std::unique_ptr<InhibitorHold> grantedBy(sd_bus_message& answer,
                                                                  MessageBus& bus,
                                                                  const InhibitorService& service,
                                                                  const char* path);

    InhibitorHold(MessageBus& bus, BusMessage release) : bus_(bus), release_(std::move(release)) {}
    InhibitorHold(MessageBus& bus, FileDescriptor descriptor)
        : bus_(bus), descriptor_(std::move(descriptor)) {}
    ~InhibitorHold() { bus_.send(std::move(release_)); }
    InhibitorHold(const InhibitorHold&) = delete;
    InhibitorHold& operator=(const InhibitorHold&) = delete;

  private:
    MessageBus& bus_;
    BusMessage release_; ///< the call that lets go; null where closing the descriptor does
    FileDescriptor descriptor_;
};

} // namespace platform::linux_host

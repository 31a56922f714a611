#pragma once

#include "platform/linux/power/InhibitorHold.h"

#include <memory>
#include <string>

namespace platform::linux_host {

/// Asks one service for a hold, and again whenever the service returns, for as long as this lives.
/// Nothing waits for the service: it may not be there, refuse, or answer years later. What it
/// grants after this is gone is let go on arrival.
class Inhibitor {
  public:
    /// `reason` is what the desktop's tools show.
    Inhibitor(std::shared_ptr<MessageBus> bus, const InhibitorService& service, std::string reason);
    Inhibitor(const Inhibitor&) = delete;
    Inhibitor& operator=(const Inhibitor&) = delete;
    ~Inhibitor() = default;

    [[nodiscard]] bool isHeld() const { return hold_ && bus_->isOpen(); }
    /// Whether the service has still to answer.
    [[nodiscard]] bool isPending() const { return request_ && bus_->isOpen(); }
    [[nodiscard]] const InhibitorService& service() const { return service_; }

  private:
    void ask(const char* path);
    void handleAnswer(sd_bus_message& answer, std::unique_ptr<InhibitorHold> hold,
                      const char* path);
    void handleOwner(bool isOwned);

    std::shared_ptr<MessageBus> bus_;
    const InhibitorService& service_;
    std::string reason_;
    BusSubscription ownerChanges_;
    std::shared_ptr<Inhibitor*> request_; ///< leads an answer here, if it is still the awaited one
    std::unique_ptr<InhibitorHold> hold_;
};

} // namespace platform::linux_host

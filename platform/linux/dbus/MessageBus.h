#pragma once

#include <functional>
#include <memory>
#include <poll.h>
#include <string>
#include <systemd/sd-bus.h>

namespace platform::linux_host {

enum class BusType { session, system };

struct UnrefBusObject {
    void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
    void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
};

/// A message, owned. Null when it could not be made; whatever takes one then does nothing.
using BusMessage = std::unique_ptr<sd_bus_message, UnrefBusObject>;

/// What is asked of a bus for as long as this is kept.
using BusSubscription = std::unique_ptr<sd_bus_slot, UnrefBusObject>;

/// A connection to a message bus, for calls that nobody waits for: nothing here blocks, not even
/// connecting, whatever state the bus is in. The main event loop serves it. After the bus is gone,
/// everything does nothing. Main thread only.
class MessageBus {
  public:
    /// A new connection; null when there is no such bus.
    [[nodiscard]] static std::shared_ptr<MessageBus> connect(BusType type);

    /// Whether the bus is there, as far as is known.
    [[nodiscard]] bool isOpen() const;

    /// Whether the bus has answered: before, calls wait here to be sent.
    [[nodiscard]] bool isReady() const;

    /// A method call without arguments yet. It starts no service that does not run.
    [[nodiscard]] BusMessage createCall(const char* destination, const char* path,
                                        const char* interface, const char* member) const;

    using ReplyHandler = std::function<void(sd_bus_message& reply)>;
    /// Sends a call. `handler` is called once, from the event loop, with the reply or the error,
    /// however late it comes; the loss of the bus is an error. Not when the call cannot be sent.
    void call(BusMessage call, ReplyHandler handler);

    /// Sends a call whose reply is of no interest, or a signal.
    void send(BusMessage call);

    using OwnerHandler = std::function<void(bool isOwned)>;
    /// Has `handler` called whenever another connection, or none, becomes the owner of the name.
    [[nodiscard]] BusSubscription watchOwner(const std::string& name, OwnerHandler handler);

    using SignalHandler = std::function<void()>;
    /// Has `handler` called whenever the sender emits the signal.
    [[nodiscard]] BusSubscription watchSignal(const char* sender, const char* path,
                                              const char* interface, const char* member,
                                              SignalHandler handler);

    /// Has `handler` called when the bus is gone.
    [[nodiscard]] BusSubscription watchLoss(SignalHandler handler);

    /// Offers an object to the other programs on the bus: what they may call and read is in the
    /// table, which ends as sd-bus demands, and whose functions get `object`.
    [[nodiscard]] BusSubscription exportObject(const char* path, const char* interface,
                                               const sd_bus_vtable* table, void* object);

    /// A signal of an object of ours, without arguments yet; `send` emits it.
    [[nodiscard]] BusMessage createSignal(const char* path, const char* interface,
                                          const char* member) const;

    /// Handles everything that has arrived.
    void process();

    /// What there is to wait for, so that `process()` has something to do.
    [[nodiscard]] pollfd pollState() const;

    ~MessageBus();
    MessageBus(const MessageBus&) = delete;
    MessageBus& operator=(const MessageBus&) = delete;

  private:
    explicit MessageBus(std::unique_ptr<sd_bus, UnrefBusObject> bus);

    void updateNotifiers();

    std::unique_ptr<sd_bus, UnrefBusObject> bus_;
    struct Notifiers;
    std::unique_ptr<Notifiers> notifiers_;
};

} // namespace platform::linux_host

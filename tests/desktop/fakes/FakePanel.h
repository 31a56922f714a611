#pragma once

#include "tests/desktop/support/Deadline.h"
#include "tests/desktop/support/VirtualDesktop.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <systemd/sd-bus.h>
#include <vector>

namespace desktop {

/// A picture as an item has it on the bus: four bytes a pixel, opacity, red, green and blue.
struct BusPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes{};

    /// How many opaque pixels are of the red of a countdown.
    [[nodiscard]] int countRed() const;
};

/// Stands in for a panel that shows status items which it is told of over the session bus, and for
/// the watcher that keeps their list.
class FakePanel {
  public:
    enum class Behaviour { show, showNothing, refuse };

    /// Takes the watcher's name, from another one that has it, too.
    explicit FakePanel(const std::string& busAddress, Behaviour behaviour = Behaviour::show);

    [[nodiscard]] bool hasItem() const { return !item_.empty(); }
    /// Both throw `TimedOut`.
    void waitForItem();
    void waitUntilItemHasGone();
    /// Waits until a registration has come and was refused.
    void waitForRefusal();

    /// From now on items are shown.
    void beginToShow();

    /// What the item says of itself.
    [[nodiscard]] std::string text(const std::string& property) const;
    [[nodiscard]] std::string tip() const;
    [[nodiscard]] bool itemIsMenu() const;
    [[nodiscard]] std::vector<BusPicture> pictures() const;

    /// Waits until the item has emitted this signal once more. Throws `TimedOut`.
    void waitForSignal(const std::string& name);

    /// Tells the item of a click: "Activate", "SecondaryActivate" or "ContextMenu".
    void click(const std::string& method, int x, int y) const;

    void waitUntil(const std::function<bool()>& isSo, const std::string& what);

  private:
    struct Unref {
        void operator()(sd_bus* bus) const { sd_bus_flush_close_unref(bus); }
        void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
        void operator()(sd_bus_track* track) const { sd_bus_track_unref(track); }
    };
    using Message = std::unique_ptr<sd_bus_message, Unref>;

    static int handleWatcherCall(sd_bus_message* call, void* self, sd_bus_error* error);
    static int handleSignal(sd_bus_message* signal, void* self, sd_bus_error* error);
    static int handleItemLeft(sd_bus_track* track, void* self);
    int registerItem(sd_bus_message* call);
    [[nodiscard]] Message property(const std::string& name, const char* type) const;

    Behaviour behaviour_;
    std::unique_ptr<sd_bus, Unref> bus_;
    std::unique_ptr<sd_bus_track, Unref> track_;
    std::string item_; ///< the name of its connection
    std::string path_;
    int refusals_ = 0;
    std::map<std::string, int> signals_;
};

} // namespace desktop

#pragma once

#include <systemd/sd-bus.h>

namespace platform::linux_host {

constexpr const char* notifierInterface = "org.kde.StatusNotifierItem";

/// The widest text that a label may have, for panels that keep the room for it.
constexpr const char* notifierLabelGuide = "00:00:00";

/// What an item offers on the bus: its properties, methods and signals. The object that goes with
/// the table is a `NotifierItem`.
[[nodiscard]] const sd_bus_vtable* notifierTable();

} // namespace platform::linux_host

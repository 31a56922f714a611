#pragma once

#include <array>
#include <cstddef>
#include <xcb/xproto.h>

namespace platform::linux_host {

/// The names of the X protocol that this host uses beyond the predefined ones.
enum class Atom : std::size_t {
    manager,
    motifWmHints,
    netActiveWindow,
    netClientList,
    netClientListStacking,
    netSupported,
    netSupportingWmCheck,
    netSystemTrayColors,
    netSystemTrayOpcode,
    netSystemTrayVisual,
    netWmActionMinimize,
    netWmAllowedActions,
    netWmPid,
    netWmState,
    netWmStateSkipPager,
    netWmStateSkipTaskbar,
    netWmWindowType,
    netWmWindowTypeCombo,
    netWmWindowTypeDesktop,
    netWmWindowTypeDialog,
    netWmWindowTypeDnd,
    netWmWindowTypeDock,
    netWmWindowTypeDropdownMenu,
    netWmWindowTypeMenu,
    netWmWindowTypeNormal,
    netWmWindowTypeNotification,
    netWmWindowTypePopupMenu,
    netWmWindowTypeSplash,
    netWmWindowTypeToolbar,
    netWmWindowTypeTooltip,
    netWmWindowTypeUtility,
    wmChangeState,
    count,
};

/// The atoms of one X server.
class Atoms {
  public:
    /// Interns them all, in one round trip.
    explicit Atoms(xcb_connection_t* connection);

    [[nodiscard]] xcb_atom_t operator[](Atom name) const {
        return values_[static_cast<std::size_t>(name)];
    }

  private:
    std::array<xcb_atom_t, static_cast<std::size_t>(Atom::count)> values_{};
};

} // namespace platform::linux_host

#include "platform/linux/windowmanager/Applications.h"

#include <algorithm>
#include <map>
#include <variant>

namespace platform::linux_host {

namespace {

// Whose windows they are: this process's, a local process's, a remote process's, or a client's of
// which nothing more is known.
struct Own {
    auto operator<=>(const Own&) const = default;
};
using Owner = std::variant<Own, int, ClaimedProcess, std::uint32_t>;

// A window may claim to be of this process, by mistake or because it counts its processes in a name
// space of its own. Only the X server is believed about that.
bool isBelievable(const ClaimedProcess& claimed, const OwnProcess& own) {
    return !own.machine.empty() && claimed.machine == own.machine &&
           static_cast<int>(claimed.processIdentifier) != own.processIdentifier;
}

Owner ownerOf(const Client& client, const OwnProcess& own) {
    if (client.id == own.client || client.localProcess == own.processIdentifier) {
        return Own{};
    }
    if (client.localProcess) {
        return *client.localProcess;
    }
    if (!client.claimed) {
        return client.id;
    }
    if (isBelievable(*client.claimed, own)) {
        return static_cast<int>(client.claimed->processIdentifier);
    }
    return *client.claimed;
}

bool isOrdinary(const ManagedWindow& window) {
    switch (window.type) {
    case WindowType::none:
    case WindowType::normal:
    case WindowType::dialog:
        return !window.skipsTaskbar;
    case WindowType::utility:
    case WindowType::dock:
    case WindowType::desktop:
    case WindowType::splash:
    case WindowType::toolbar:
    case WindowType::menu:
    case WindowType::notification:
    case WindowType::other:
        return false;
    }
    return false;
}

ActivationPolicy policyOf(const std::vector<ManagedWindow>& windows) {
    return std::any_of(windows.begin(), windows.end(), isOrdinary) ? ActivationPolicy::regular
                                                                   : ActivationPolicy::accessory;
}

// The lowest client of the application: a number that stays the same as long as that client lives,
// whatever the order of the windows. The X server gives out 29 bits, so it fits.
ProcessIdentifier identifierWithoutProcess(const std::vector<ManagedWindow>& windows) {
    const auto lowest = std::min_element(
        windows.begin(), windows.end(),
        [](const ManagedWindow& a, const ManagedWindow& b) { return a.client < b.client; });
    return -static_cast<ProcessIdentifier>(lowest->client);
}

ApplicationRecord applicationOf(const Owner& owner, const OwnProcess& own) {
    ApplicationRecord application;
    if (std::holds_alternative<Own>(owner)) {
        application.processIdentifier = own.processIdentifier;
        application.kind = ApplicationKind::thisProcess;
    } else if (const int* const process = std::get_if<int>(&owner)) {
        application.processIdentifier = *process;
        application.kind = ApplicationKind::localProcess;
    }
    return application;
}

// What can only be said when all windows are known.
void settle(ApplicationRecord& application, const OwnProcess& own) {
    if (application.kind == ApplicationKind::thisProcess) {
        application.activationPolicy = own.activationPolicy;
        return;
    }
    application.activationPolicy = policyOf(application.windows);
    if (application.kind == ApplicationKind::clients) {
        application.processIdentifier = identifierWithoutProcess(application.windows);
    }
}

// The applications under construction, each found by its owner.
class Grouping {
  public:
    explicit Grouping(const OwnProcess& own) : own_(own) {}

    ApplicationRecord& applicationFor(const Owner& owner) {
        const auto [place, isNew] = indices_.try_emplace(owner, applications_.size());
        if (isNew) {
            applications_.push_back(applicationOf(owner, own_));
        }
        return applications_[place->second];
    }

    std::vector<ApplicationRecord> finish() {
        applicationFor(Own{});
        for (ApplicationRecord& application : applications_) {
            settle(application, own_);
        }
        return std::move(applications_);
    }

  private:
    const OwnProcess& own_;
    std::map<Owner, std::size_t> indices_;
    std::vector<ApplicationRecord> applications_;
};

} // namespace

std::vector<ApplicationRecord> applicationsOf(const std::vector<ManagedWindow>& windows,
                                              const std::vector<Client>& clients,
                                              const OwnProcess& ownProcess) {
    std::map<std::uint32_t, Owner> owners;
    for (const Client& client : clients) {
        owners.emplace(client.id, ownerOf(client, ownProcess));
    }
    Grouping grouping(ownProcess);
    for (const ManagedWindow& window : windows) {
        const Client unknown{.id = window.client, .localProcess = {}, .claimed = {}};
        const Owner& owner =
            owners.try_emplace(window.client, ownerOf(unknown, ownProcess)).first->second;
        grouping.applicationFor(owner).windows.push_back(window);
    }
    return grouping.finish();
}

bool isWindowOfApplication(const ManagedWindow& window) {
    return window.type != WindowType::dock && window.type != WindowType::desktop;
}

bool mayBeMinimized(const ManagedWindow& window) {
    switch (window.type) {
    case WindowType::splash:
    case WindowType::toolbar:
    case WindowType::menu:
    case WindowType::notification:
        return false;
    case WindowType::none:
    case WindowType::normal:
    case WindowType::dialog:
    case WindowType::utility:
    case WindowType::dock:
    case WindowType::desktop:
    case WindowType::other:
        return !window.forbidsMinimizing;
    }
    return false;
}

} // namespace platform::linux_host

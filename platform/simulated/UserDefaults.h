#pragma once

#include "platform/UserDefaults.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

namespace simulated {

/// The user's settings: what is stored, and what answers in its place.
class UserDefaults {
  public:
    using Domain = std::map<std::string, platform::DefaultsValue, std::less<>>;

    /// What every program of the user would find stored. Tests write it as another program would.
    Domain stored;
    /// Keys under which something is stored that no call can give: a date, a dictionary, an array
    /// of more than strings. Goes before `stored`.
    std::set<std::string, std::less<>> storedOtherwise;

    // Faults. Without both, what this program writes is kept for the rest of its run alone.
    bool isReadable = true;
    bool isWritable = true;

    /// The answers for keys that are not stored.
    [[nodiscard]] const Domain& registered() const { return registered_; }

    // For the seam.
    void registerDefaults(Domain values);
    /// Null when nothing answers for the key, or nothing that a call can give.
    [[nodiscard]] const platform::DefaultsValue* find(std::string_view key) const;
    void set(std::string_view key, platform::DefaultsValue value);
    /// Lends a copy, and takes back what was lent before: the address of a value that is read for
    /// too long is free memory, which a sanitizer sees.
    const platform::DefaultsValue* lend(const platform::DefaultsValue* value);

  private:
    Domain registered_;
    Domain unsaved_;
    std::unique_ptr<const platform::DefaultsValue> lent_;
};

} // namespace simulated

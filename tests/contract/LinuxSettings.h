#pragma once

#include "platform/UserDefaults.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <optional>
#include <string>

namespace contract {

/// The settings file of the Linux host, as another program reads and writes it.
class LinuxSettings {
  public:
    explicit LinuxSettings(std::filesystem::path folder) : folder_(std::move(folder)) {}

    void store(const std::string& key, const platform::DefaultsValue& value);
    [[nodiscard]] std::optional<platform::DefaultsValue> stored(const std::string& key) const;

    /// Has the folder be something that nothing can be read from or written to, not even by root.
    void lose();

  private:
    [[nodiscard]] nlohmann::json read() const;
    [[nodiscard]] std::filesystem::path file() const { return folder_ / "defaults.json"; }

    std::filesystem::path folder_;
};

} // namespace contract

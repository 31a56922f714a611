#pragma once

#include <string_view>

namespace platform {

/// The program as it is installed. Stands for NSBundle's mainBundle on macOS.
class Bundle {
  public:
    static Bundle& main();

    /// The reverse-DNS name of the program (on Linux its application id); empty on macOS when the
    /// program runs outside a bundle.
    [[nodiscard]] std::string_view bundleIdentifier() const;

    Bundle(const Bundle&) = delete;
    Bundle& operator=(const Bundle&) = delete;

  private:
    Bundle() = default;
    ~Bundle() = default;
};

} // namespace platform

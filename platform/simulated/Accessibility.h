#pragma once

namespace simulated {

/// Whether the user lets this program act on other programs' windows.
class Accessibility {
  public:
    bool isTrusted = true;

    /// How often the system has asked the user for trust.
    [[nodiscard]] int promptsShown() const { return promptsShown_; }

    /// For the seam: asks the user, unless trust is there.
    void prompt();

  private:
    int promptsShown_ = 0;
};

} // namespace simulated

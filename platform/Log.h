#pragma once

#include <string>
#include <string_view>

/// The system's logs. Nothing here fails, and a percent sign is a percent sign. Stands for NSLog
/// and the unified log on macOS, the journal (else standard error) on Linux.
namespace platform {

/// Writes one line to the plain system log.
void systemLog(std::string_view line);

/// A handle on the structured log.
class Logger {
  public:
    Logger(std::string_view subsystem, std::string_view category);

    /// Writes one message at the default level. The text is public: it is never redacted.
    void log(std::string_view message) const;

  private:
    std::string subsystem_;
    std::string category_;
};

} // namespace platform

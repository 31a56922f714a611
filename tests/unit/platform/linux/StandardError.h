#pragma once

#include "platform/linux/files/FileDescriptor.h"

#include <string>

/// Catches what this process writes to standard error, in a pipe, for as long as it lives.
class StandardError {
  public:
    StandardError();
    ~StandardError();
    StandardError(const StandardError&) = delete;
    StandardError& operator=(const StandardError&) = delete;

    /// Everything written since the last call.
    [[nodiscard]] std::string text() const;

    /// Fills the pipe until it takes not one byte more; answers what was put in.
    [[nodiscard]] std::string fill() const;

    /// Closes the reading end: the next write would raise SIGPIPE.
    void loseReader() { reading_ = {}; }

  private:
    platform::linux_host::FileDescriptor original_;
    platform::linux_host::FileDescriptor reading_;
};

#pragma once

#include <cstdlib>
#include <memory>

namespace platform::linux_host {

/// Frees what xcb hands over with `malloc`.
struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

/// A reply, an error or an event from xcb, owned. Null when the request failed or the connection is
/// gone: X errors are data here, and an absent reply says all there is to know.
template <typename T>
using Reply = std::unique_ptr<T, Free>;

} // namespace platform::linux_host

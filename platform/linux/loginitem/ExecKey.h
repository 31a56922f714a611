#pragma once

#include <string>
#include <string_view>

/// The key "Exec" of a desktop entry, which says how a program is started.
namespace platform::linux_host {

/// Whether a program of this name or path can be started by such a key, in quotes, on every
/// desktop. The characters that would have to be escaped cannot be used: the launchers differ in
/// what they undo.
[[nodiscard]] bool canBeExec(std::string_view program);

/// The name or path of the program that a value starts; empty when it starts none.
[[nodiscard]] std::string programOf(std::string_view exec);

} // namespace platform::linux_host

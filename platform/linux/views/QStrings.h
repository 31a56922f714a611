#pragma once

#include <QString>
#include <string>
#include <string_view>

/// The seam's texts are UTF-8.
namespace platform::linux_host {

[[nodiscard]] inline QString qStringFrom(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// For the titles of menu items and controls, in which Qt takes an ampersand for the mark of a
/// letter.
[[nodiscard]] inline QString titleFrom(std::string_view text) {
    return qStringFrom(text).replace(u'&', QStringLiteral("&&"));
}

} // namespace platform::linux_host

#pragma once

namespace platform {

/// One of the desktop's own fonts. A size is in points; 0 means the desktop's standard size for the
/// font's purpose.
struct Font {
    enum class Purpose { system, boldSystem, menu, menuBar };

    Purpose purpose = Purpose::system;
    double size = 0;

    [[nodiscard]] static constexpr Font system(double size) { return {Purpose::system, size}; }
    [[nodiscard]] static constexpr Font boldSystem(double size) {
        return {Purpose::boldSystem, size};
    }
    [[nodiscard]] static constexpr Font menu(double size) { return {Purpose::menu, size}; }
    [[nodiscard]] static constexpr Font menuBar(double size) { return {Purpose::menuBar, size}; }

    bool operator==(const Font&) const = default;
};

} // namespace platform

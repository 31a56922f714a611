#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string_view>

/// One of the four screen corners that can act as a hot corner.
enum class ScreenCorner : unsigned char { topLeft, topRight, bottomLeft, bottomRight };

/// Every corner, in the order in which they are listed everywhere.
inline constexpr std::array<ScreenCorner, 4> allScreenCorners{
    ScreenCorner::topLeft, ScreenCorner::topRight, ScreenCorner::bottomLeft,
    ScreenCorner::bottomRight};

/// The name under which a corner is stored: the name of its case.
[[nodiscard]] std::string_view rawValue(ScreenCorner corner);

/// The corner with exactly this name; empty when there is none.
[[nodiscard]] std::optional<ScreenCorner> screenCornerFromRawValue(std::string_view name);

/// Equal corners hash equally: the hash is that of the stored name.
template <>
struct std::hash<ScreenCorner> {
    std::size_t operator()(ScreenCorner corner) const noexcept {
        return std::hash<std::string_view>{}(rawValue(corner));
    }
};

/// A set of corners. A value of a few bits, because the corner poll reads one 12.5 times a second.
class ScreenCornerSet {
  public:
    ScreenCornerSet() = default;
    ScreenCornerSet(std::initializer_list<ScreenCorner> corners) {
        for (const ScreenCorner corner : corners) {
            insert(corner);
        }
    }

    [[nodiscard]] bool contains(ScreenCorner corner) const { return bits_.test(index(corner)); }
    [[nodiscard]] bool isEmpty() const { return bits_.none(); }
    void insert(ScreenCorner corner) { bits_.set(index(corner)); }
    void remove(ScreenCorner corner) { bits_.reset(index(corner)); }

    bool operator==(const ScreenCornerSet&) const = default;

  private:
    static std::size_t index(ScreenCorner corner) { return static_cast<std::size_t>(corner); }

    std::bitset<allScreenCorners.size()> bits_;
};

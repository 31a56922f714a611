#pragma once

#include "platform/AttributedString.h"
#include "platform/Image.h"
#include "platform/Menu.h"

#include <memory>
#include <string_view>

namespace platform {

/// Where a button's image stands beside its title. The values are AppKit's.
enum class ImagePosition { noImage = 0, imageOnly = 1, imageLeading = 7 };

/// The visible part of a status item. Lives as long as its item.
class StatusBarButton {
  public:
    /// Null takes the image away.
    void setImage(std::shared_ptr<Image> image);
    [[nodiscard]] std::shared_ptr<Image> image() const;
    void setImagePosition(ImagePosition position);
    /// Setting either title replaces what the other one shows.
    void setAttributedTitle(const AttributedString& title);
    void setTitle(std::string_view title);

    struct Peer;
    explicit StatusBarButton(std::unique_ptr<Peer> peer);
    ~StatusBarButton();
    StatusBarButton(const StatusBarButton&) = delete;
    StatusBarButton& operator=(const StatusBarButton&) = delete;
    [[nodiscard]] Peer& peer() const { return *peer_; }

  private:
    std::unique_ptr<Peer> peer_;
};

/// One place in the desktop's status bar. Dropping the last reference removes it. Stands for
/// NSStatusItem on macOS; on Linux for a window in the system tray, else a strip of its own.
class StatusItem {
  public:
    /// As wide as its image and title need.
    static constexpr double variableLength = -1;

    /// Asks the system status bar for a new item. `length` is in points.
    [[nodiscard]] static std::shared_ptr<StatusItem> inSystemStatusBar(double length);

    /// Null where the desktop shows the item in some other way.
    [[nodiscard]] StatusBarButton* button() const;
    /// The menu that a click on the button opens.
    void setMenu(std::shared_ptr<Menu> menu);

    struct Peer;
    explicit StatusItem(std::unique_ptr<Peer> peer);
    ~StatusItem();
    StatusItem(const StatusItem&) = delete;
    StatusItem& operator=(const StatusItem&) = delete;

  private:
    std::unique_ptr<Peer> peer_;
};

} // namespace platform

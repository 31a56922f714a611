#pragma once

#include "tests/desktop/MenuUser.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace demo {

enum class Appearance { light, dark };

/// A desktop of one appearance and one number of pixels a point, on which the program has its
/// picture taken in everything that it shows.
class Gallery {
  public:
    /// The pictures go to the folder, which is made if need be: "<what>-<appearance>.png" and, at
    /// two pixels a point, "<what>-<appearance>@2x.png".
    Gallery(const std::filesystem::path& folder, Appearance appearance, int scale);

    /// Takes all pictures. Throws when the program does not show what it should.
    void takeAll();

  private:
    void takeStatusItems();
    void takeMenus();
    void takeSubmenus();
    void takeWindows();

    void prepare();
    void startTray(desktop::TrayProgram program);
    void start();
    void end();
    void startCounting();
    void waitForCountdown() const;
    void takeItem(const std::string& what);
    void takeMenu(const std::string& what);
    void takeWindow(std::size_t opener, const std::string& what);
    void startRecording(const desktop::Geometry& window);
    [[nodiscard]] desktop::Geometry waitForWindow() const;
    void take(const std::string& what, const std::vector<desktop::Geometry>& parts) const;
    [[nodiscard]] std::filesystem::path fileFor(const std::string& what) const;

    std::filesystem::path folder_;
    Appearance appearance_;
    int scale_;
    desktop::Session session_;
    desktop::XDisplay display_;
    std::optional<desktop::Tray> tray_;
    std::optional<desktop::MenuUser> user_;
};

} // namespace demo

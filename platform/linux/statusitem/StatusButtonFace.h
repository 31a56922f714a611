#pragma once

#include "platform/StatusItem.h"

#include <QPalette>
#include <QSize>
#include <QString>
#include <memory>

class QPainter;

namespace platform::linux_host {

/// What a status button shows.
struct StatusButtonContent {
    std::shared_ptr<Image> image{};
    ImagePosition imagePosition = ImagePosition::imageLeading;
    AttributedString title{};
};

/// The look of a status button, wherever it is shown: how wide it has to be, and how it is painted
/// in the room that it gets. All lengths are pixels of the X server, so that nothing is blurred by
/// a size that is not a whole number of points.
class StatusButtonFace {
  public:
    /// `scale`: pixels a point.
    StatusButtonFace(StatusButtonContent content, double scale);

    /// How wide the full form is at this height: image and title side by side. A digit counts as
    /// the widest one, so that a countdown keeps its width and its neighbours their places.
    [[nodiscard]] int fullWidth(int height) const;

    /// `compact` is for room that is too narrow for the full form: the title, cut short, at the
    /// bottom of the image.
    enum class Form { full, compact };

    /// Paints into the rectangle from the origin to `size`. `surroundings`: the text and the ground
    /// among which the button stands.
    void paint(QPainter& painter, QSize size, Form form, const QPalette& surroundings) const;

    /// The title as short as it can be told: hours and minutes, else minutes and seconds.
    [[nodiscard]] QString shortTitle() const;

    /// The whole content as a sentence, for tool tips and screen readers.
    [[nodiscard]] QString spokenText() const;

  private:
    [[nodiscard]] const Image* image() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] QFont titleFont(int height) const;
    [[nodiscard]] double titleWidth(int height) const;
    [[nodiscard]] int margin(int height) const;
    [[nodiscard]] int imageSide(int height) const;
    void paintFull(QPainter& painter, QSize size, const QPalette& surroundings) const;
    void paintCompact(QPainter& painter, QSize size, const QPalette& surroundings) const;
    void paintImage(QPainter& painter, QRect square, const QPalette& surroundings) const;
    void paintTitle(QPainter& painter, int left, int height, const QPalette& surroundings) const;
    void paintShortTitle(QPainter& painter, QSize size, const QPalette& surroundings) const;
    [[nodiscard]] QColor titleColor(const QPalette& surroundings) const;

    StatusButtonContent content_;
    double scale_;
};

} // namespace platform::linux_host

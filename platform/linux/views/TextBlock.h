#pragma once

#include <QSizeF>
#include <QTextLayout>

namespace platform::linux_host {

/// A text of several lines, broken to fit the width of an area, with its lines as far apart as the
/// area allows and the font wants. Fonts that have letters for many scripts want more than these
/// texts need, so the lines may also be closer, down to what still reads well.
class TextBlock {
  public:
    TextBlock(const QString& text, const QFont& font, QSizeF area);

    [[nodiscard]] double height() const { return layout_.lineCount() * spacing_; }

    /// Draws it in the painter's pen.
    void draw(QPainter& painter) const { layout_.draw(&painter, {}); }

  private:
    void placeLines(const QFont& font);

    QTextLayout layout_;
    double spacing_ = 0; ///< from line to line
};

} // namespace platform::linux_host

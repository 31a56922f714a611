#pragma once

#include <QLabel>

namespace platform::linux_host {

enum class Lines { one, wrapped };

/// A label that is never cut: where its text is too large for it, as it is with some desktops'
/// fonts, it takes a smaller font.
class FittedLabel final : public QLabel {
  public:
    FittedLabel(const QString& text, Lines lines);

    void showText(const QString& text);
    /// The font to use where there is room for it.
    void setWantedFont(const QFont& font);

    /// The size of the text in the wanted font; of one that wraps, at the present width.
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] bool fits(const QFont& font) const;
    void fit();

    QFont wantedFont_;
};

} // namespace platform::linux_host

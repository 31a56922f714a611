#pragma once

#include "platform/Color.h"
#include "platform/Font.h"
#include "platform/View.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace platform {

enum class TextAlignment { natural, center };

/// A text, in a field that the user can edit or as a label. Stands for NSTextField on macOS, QLabel
/// and QLineEdit on Linux.
class TextField : public View {
  public:
    /// A text of one line that the user can neither edit nor select.
    [[nodiscard]] static std::shared_ptr<TextField> labelWithString(std::string_view text);
    /// A text that breaks its lines to fit its width.
    [[nodiscard]] static std::shared_ptr<TextField> wrappingLabelWithString(std::string_view text);
    /// A field that the user can edit, on one line.
    [[nodiscard]] static std::shared_ptr<TextField> editable(Rect frame);

    [[nodiscard]] std::string stringValue() const;
    void setStringValue(std::string_view text);

    /// The whole number that the text begins with: after any white space a sign, or none, and the
    /// digits 0 to 9, of no other script; what follows them does not matter ("45.9" and "45 min"
    /// are 45, "1e3" is 1). 0 where there is none ("", "soon", "- 45", ".5"); the nearest 64-bit
    /// integer where it does not fit. While the user edits, the text is what the field shows.
    [[nodiscard]] std::int64_t integerValue() const;
    void setIntegerValue(std::int64_t value);

    void setFont(Font font);
    void setTextColor(Color color);
    void setAlignment(TextAlignment alignment);

    /// What to do when the user ends an edit, for example with Return.
    void setAction(std::function<void()> action);

    explicit TextField(std::unique_ptr<Peer> peer);
};

} // namespace platform

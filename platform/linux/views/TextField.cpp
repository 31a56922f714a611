#include "platform/TextField.h"

#include "platform/linux/defaults/NumberText.h"
#include "platform/linux/views/Appearance.h"
#include "platform/linux/views/FittedLabel.h"
#include "platform/linux/views/QStrings.h"
#include "platform/linux/views/TextColor.h"
#include "platform/linux/views/ViewPeer.h"

#include <QLineEdit>
#include <utility>

namespace platform {

using linux_host::FittedLabel;
using linux_host::Lines;
using linux_host::qStringFrom;

namespace {

/// What labels and editable fields have in common.
struct TextPeer : View::Peer {
    TextPeer(QWidget* newWidget, Rect newFrame)
        : Peer(newWidget, newFrame), color(*new linux_host::TextColor(*newWidget)) {}

    virtual void setText(const QString& text) = 0;
    virtual void setFont(const QFont& font) = 0;
    virtual void setAlignment(Qt::Alignment horizontal) = 0;

    linux_host::TextColor& color;
    std::function<void()> action;
};

struct LabelPeer final : TextPeer {
    explicit LabelPeer(FittedLabel* newLabel)
        : TextPeer(newLabel, sizedFor(*newLabel)), label(*newLabel) {}

    static Rect sizedFor(const FittedLabel& label) {
        if (label.text().isEmpty()) {
            return {};
        }
        const QSize size = label.sizeHint();
        return {.origin = {},
                .size = {.width = static_cast<double>(size.width()),
                         .height = static_cast<double>(size.height())}};
    }

    [[nodiscard]] QString text() const override { return label.text(); }
    void setText(const QString& text) override {
        label.showText(text);
        contentDidChange();
    }
    void setFont(const QFont& font) override {
        label.setWantedFont(font);
        contentDidChange();
    }
    void setAlignment(Qt::Alignment horizontal) override {
        label.setAlignment(horizontal | (label.alignment() & Qt::AlignVertical_Mask));
    }

    FittedLabel& label; ///< owned by the base
};

/// An edit ends with Return, which always counts, or with the keyboard's going elsewhere, which
/// counts only if something was typed.
struct FieldPeer final : TextPeer {
    FieldPeer(QLineEdit* newField, Rect newFrame) : TextPeer(newField, newFrame), field(*newField) {
        QObject::connect(&field, &QLineEdit::textEdited, &field, [this] { hasEdit = true; });
        QObject::connect(&field, &QLineEdit::returnPressed, &field, [this] { hasEdit = true; });
        QObject::connect(&field, &QLineEdit::editingFinished, &field, [this] {
            if (std::exchange(hasEdit, false) && action) {
                action();
            }
        });
    }

    [[nodiscard]] QString text() const override { return field.text(); }
    void setText(const QString& text) override {
        field.setText(text);
        hasEdit = false;
    }
    void setFont(const QFont& font) override { field.setFont(font); }
    void setAlignment(Qt::Alignment horizontal) override {
        field.setAlignment(horizontal | Qt::AlignVCenter);
    }

    QLineEdit& field; ///< owned by the base
    bool hasEdit = false;
};

TextPeer& peerOf(const TextField& field) {
    return static_cast<TextPeer&>(field.peer());
}

std::shared_ptr<TextField> labelOf(std::string_view text, Lines lines) {
    return std::make_shared<TextField>(
        std::make_unique<LabelPeer>(new FittedLabel(qStringFrom(text), lines)));
}

} // namespace

TextField::TextField(std::unique_ptr<Peer> peer) : View(std::move(peer)) {}

std::shared_ptr<TextField> TextField::labelWithString(std::string_view text) {
    return labelOf(text, Lines::one);
}

std::shared_ptr<TextField> TextField::wrappingLabelWithString(std::string_view text) {
    return labelOf(text, Lines::wrapped);
}

std::shared_ptr<TextField> TextField::editable(Rect frame) {
    return std::make_shared<TextField>(std::make_unique<FieldPeer>(new QLineEdit, frame));
}

std::string TextField::stringValue() const {
    return peerOf(*this).text().toStdString();
}

void TextField::setStringValue(std::string_view text) {
    peerOf(*this).setText(qStringFrom(text));
}

std::int64_t TextField::integerValue() const {
    return linux_host::leadingIntegerFrom(stringValue());
}

void TextField::setIntegerValue(std::int64_t value) {
    setStringValue(linux_host::textFrom(value));
}

void TextField::setFont(Font font) {
    peerOf(*this).setFont(linux_host::qFont(font));
}

void TextField::setTextColor(Color color) {
    peerOf(*this).color.setColor(color);
}

void TextField::setAlignment(TextAlignment alignment) {
    peerOf(*this).setAlignment(alignment == TextAlignment::center ? Qt::AlignHCenter
                                                                  : Qt::AlignLeft);
}

void TextField::setAction(std::function<void()> action) {
    peerOf(*this).action = std::move(action);
}

} // namespace platform

#include "tests/desktop/support/Base64.h"

namespace desktop {
namespace {

constexpr std::string_view digits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// Takes bits in portions of one size and gives them back in portions of another.
template <unsigned In, unsigned Out>
class BitQueue {
  public:
    void put(unsigned portion) {
        bits_ = (bits_ << In) | portion;
        count_ += In;
    }
    [[nodiscard]] bool isFull() const { return count_ >= Out; }
    [[nodiscard]] bool isEmpty() const { return count_ == 0; }
    unsigned take() {
        count_ -= Out;
        return (bits_ >> count_) & ((1U << Out) - 1);
    }

  private:
    unsigned bits_ = 0;
    unsigned count_ = 0;
};

} // namespace

std::string base64Of(std::string_view bytes) {
    std::string text;
    BitQueue<8, 6> queue;
    for (const char byte : bytes) {
        queue.put(static_cast<unsigned char>(byte));
        while (queue.isFull()) {
            text += digits[queue.take()];
        }
    }
    if (!queue.isEmpty()) {
        queue.put(0);
        text += digits[queue.take()];
    }
    text.resize((text.size() + 3) / 4 * 4, '=');
    return text;
}

std::string bytesOf(std::string_view base64) {
    std::string bytes;
    BitQueue<6, 8> queue;
    for (const char digit : base64.substr(0, base64.find('='))) {
        queue.put(static_cast<unsigned>(digits.find(digit)));
        if (queue.isFull()) {
            bytes += static_cast<char>(queue.take());
        }
    }
    return bytes;
}

} // namespace desktop

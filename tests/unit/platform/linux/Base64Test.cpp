#include "platform/linux/defaults/Base64.h"

#include <gtest/gtest.h>

namespace {

using platform::linux_host::base64Decoded;
using platform::linux_host::base64Encoded;

using Bytes = std::vector<std::uint8_t>;

Bytes bytes(std::string_view text) {
    return {text.begin(), text.end()};
}

TEST(Base64, EncodesTheExamplesOfItsStandard) {
    EXPECT_EQ(base64Encoded(bytes("")), "");
    EXPECT_EQ(base64Encoded(bytes("f")), "Zg==");
    EXPECT_EQ(base64Encoded(bytes("fo")), "Zm8=");
    EXPECT_EQ(base64Encoded(bytes("foo")), "Zm9v");
    EXPECT_EQ(base64Encoded(bytes("foob")), "Zm9vYg==");
    EXPECT_EQ(base64Encoded(bytes("fooba")), "Zm9vYmE=");
    EXPECT_EQ(base64Encoded(bytes("foobar")), "Zm9vYmFy");
    EXPECT_EQ(base64Encoded(Bytes{0xfb, 0xff, 0xfe}), "+//+");
}

TEST(Base64, EveryByteAtEveryPlaceComesBack) {
    for (std::size_t length = 0; length < 6; ++length) {
        for (unsigned value = 0; value < 256; ++value) {
            const Bytes original(length, static_cast<std::uint8_t>(value));
            EXPECT_EQ(base64Decoded(base64Encoded(original)), original);
        }
    }
}

TEST(Base64, RefusesWhatIsNotBase64) {
    for (const char* const text : {"Z", "Zg", "Zg=", "Zg===", "Z===", "=", "====", "Zg==Zg==",
                                   "Z=g=", "Zm9\n", " Zg==", "Zm8*", "Zm9_", "Z\xc3\xa4=="}) {
        EXPECT_EQ(base64Decoded(text), std::nullopt) << text;
    }
}

} // namespace

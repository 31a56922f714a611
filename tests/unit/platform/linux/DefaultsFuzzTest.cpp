#include "platform/linux/defaults/DefaultsStore.h"

#include "TemporaryFolder.h"

#include "platform/linux/defaults/JsonObject.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <random>

namespace {

using nlohmann::json;
using platform::DefaultsValue;
using platform::linux_host::DefaultsStore;
using platform::linux_host::JsonObject;

constexpr auto name = "defaults.json";
constexpr auto newKey = "a key that no example has";

unsigned long numberIn(const char* variable, unsigned long otherwise) {
    const char* const text = std::getenv(variable);
    return text == nullptr ? otherwise : std::strtoul(text, nullptr, 10);
}

/// Makes texts that are settings files, nearly are, or are nothing at all.
class TextMaker {
  public:
    explicit TextMaker(unsigned long seed) : random_(seed) {}

    std::string next() {
        if (below(20) == 0) {
            return randomBytes(below(200));
        }
        std::string text = oneOf(examples);
        for (std::size_t count = below(4); count > 0; --count) {
            damage(text);
        }
        return text;
    }

  private:
    static inline const std::vector<std::string> examples{
        "{}",
        "{\n}\n",
        R"({"hotCorners": ["bottomRight", "topLeft"], "enableDockIcon": false})",
        R"({"minimizeShortcut": {"data": "eyJrZXlDb2RlIjo0Nn0="}, "seconds": 7200.0})",
        R"( {"a":{"b":[{"c":[[]]},null,-0.5e-7]},"d":"\u00e9\"\\","e":1e999 , "a": true} )",
    };
    static inline const std::vector<std::string> pieces{
        "{",       "}", "[", "]",    "\"",   "\\",     ",",    ":",    "\n",   " ",
        "null",    "0", "-", "true", "1e99", "1e9999", "\\u0", "/**/", "\xff", "\xef\xbb\xbf",
        "\"a\":1",
    };

    std::size_t below(std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
    }
    const std::string& oneOf(const std::vector<std::string>& texts) {
        return texts[below(texts.size())];
    }
    std::string randomBytes(std::size_t count) {
        std::string bytes(count, '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(below(256));
        }
        return bytes;
    }

    void damage(std::string& text) {
        const std::size_t place = below(text.size() + 1);
        const std::size_t length = below(text.size() - place + 1);
        switch (below(5)) {
        case 0:
            text.resize(place);
            break;
        case 1:
            text.erase(place, length);
            break;
        case 2:
            text.insert(place, text.substr(place, length));
            break;
        case 3:
            text.insert(place, randomBytes(1));
            break;
        default:
            text.insert(place, oneOf(pieces));
            break;
        }
    }

    std::mt19937_64 random_;
};

/// The same texts every time, unless QUELLBAR_FUZZ_SEED is set; QUELLBAR_FUZZ_ROUNDS makes it long.
class DefaultsFuzz : public testing::Test {
  protected:
    void forEachText(unsigned long usualRounds,
                     const std::function<void(const std::string&)>& check) {
        const unsigned long seed = numberIn("QUELLBAR_FUZZ_SEED", 20'240'607);
        const unsigned long rounds = numberIn("QUELLBAR_FUZZ_ROUNDS", usualRounds);
        std::printf("QUELLBAR_FUZZ_SEED=%lu QUELLBAR_FUZZ_ROUNDS=%lu\n", seed, rounds);
        TextMaker texts(seed);
        for (unsigned long round = 0; round < rounds && !HasFailure(); ++round) {
            const std::string text = texts.next();
            SCOPED_TRACE(testing::PrintToString(text));
            check(text);
        }
    }
};

/// Whether the text is an object to the library; empty when it cannot tell, because it gives up at
/// a number that is too large for it.
std::optional<bool> isObjectToTheLibrary(const std::string& text) {
    if (text.find('\0') != std::string::npos) {
        return false; // it would take this for the end of the text
    }
    try {
        return json::parse(text).is_object();
    } catch (const json::out_of_range&) {
        return std::nullopt;
    } catch (const json::parse_error&) {
        return false;
    }
}

TEST_F(DefaultsFuzz, ATextIsAnObjectExactlyWhenTheLibrarySaysSo) {
    int objects = 0;
    int others = 0;
    forEachText(4'000, [&](const std::string& text) {
        const bool isObject = JsonObject::parse(text).has_value();
        (isObject ? objects : others) += 1;
        if (const auto expected = isObjectToTheLibrary(text)) {
            EXPECT_EQ(isObject, *expected);
        }
    });
    EXPECT_GT(objects, 0);
    EXPECT_GT(others, 0);
}

using Members = std::vector<std::pair<std::string, std::string>>;

Members membersOf(const JsonObject& object) {
    Members members;
    for (const auto& member : object.members()) {
        members.emplace_back(member.name, object.valueOf(member));
    }
    return members;
}

/// What must be in the folder after a change, for what was in the file before.
void expectNothingLost(const std::string& before, const TemporaryFolder& folder) {
    const auto object = JsonObject::parse(before);
    const auto changed = JsonObject::parse(folder.read(name));
    ASSERT_TRUE(changed);
    Members expected = object ? membersOf(*object) : Members();
    expected.emplace_back(newKey, "true");
    EXPECT_EQ(membersOf(*changed), expected);
    EXPECT_EQ(folder.names().size(), object ? 1 : 2);
    if (!object) {
        EXPECT_TRUE(folder.read("defaults.json.bad") == before);
    }
}

TEST_F(DefaultsFuzz, WhateverTheFileHoldsNothingIsLostByAChange) {
    forEachText(60, [](const std::string& text) {
        const TemporaryFolder folder;
        folder.write(name, text);
        DefaultsStore store(folder.path() / name);
        for (const char* const key : {"hotCorners", "minimizeShortcut", "seconds", "a", ""}) {
            static_cast<void>(store.valueForKey(key));
        }
        store.setValue(true, newKey);
        EXPECT_EQ(*store.valueForKey(newKey), DefaultsValue(true));
        expectNothingLost(text, folder);
    });
}

TEST_F(DefaultsFuzz, AFileThatChangesUnderTheStoreIsReadAsItIsNow) {
    const TemporaryFolder folder;
    DefaultsStore store(folder.path() / name);
    forEachText(500, [&](const std::string& text) {
        folder.write(name, text);
        DefaultsStore fresh(folder.path() / name);
        for (const char* const key : {"hotCorners", "minimizeShortcut", "seconds", "a", ""}) {
            const auto* const value = store.valueForKey(key);
            const auto* const expected = fresh.valueForKey(key);
            ASSERT_EQ(value == nullptr, expected == nullptr) << key;
            EXPECT_TRUE(value == nullptr || *value == *expected) << key;
        }
    });
}

} // namespace

#include "platform/linux/loginitem/ExecKey.h"

#include <gtest/gtest.h>

namespace {

using platform::linux_host::canBeExec;
using platform::linux_host::programOf;

TEST(ExecKey, StartsAnyOrdinaryProgram) {
    for (const std::string program : {"quellbar", "/opt/my programs/quellbar",
                                      "/~me/*?#(x)<y>;a&b|c=d", "/gr\xc3\xbc\xc3\x9f"}) {
        EXPECT_TRUE(canBeExec(program)) << program;
        EXPECT_EQ(programOf('"' + program + '"'), program);
    }
}

TEST(ExecKey, CannotHoldWhatLaunchersReadDifferently) {
    for (const std::string program :
         {"", "/opt/100%/a", "/opt/a\"b", "/opt/a'b", "/opt/a`b", "/opt/$a", "/opt/a\\b",
          "/opt/a\nb", "/opt/a\tb", "/opt/a\x7f", "/opt/a "}) {
        EXPECT_FALSE(canBeExec(program)) << program;
    }
}

TEST(ExecKey, ArgumentsAreNotTheProgram) {
    EXPECT_EQ(programOf("quellbar --quiet"), "quellbar");
    EXPECT_EQ(programOf("  /opt/quellbar\t%U"), "/opt/quellbar");
    EXPECT_EQ(programOf(R"("/opt/my programs/quellbar" "--quiet")"), "/opt/my programs/quellbar");
}

TEST(ExecKey, EscapesInQuotesAreUndone) {
    EXPECT_EQ(programOf(R"("/a\"b\`c\$d\\e" x)"), R"(/a"b`c$d\e)");
}

TEST(ExecKey, AValueThatIsEmptyOrBrokenStartsWhatIsThere) {
    EXPECT_EQ(programOf(""), "");
    EXPECT_EQ(programOf("   "), "");
    EXPECT_EQ(programOf("\""), "");
    EXPECT_EQ(programOf("\"/opt/quellbar"), "/opt/quellbar");
    EXPECT_EQ(programOf("\"/opt/quellbar\\"), "/opt/quellbar\\");
}

} // namespace

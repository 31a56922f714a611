#include "StandardError.h"

#include "platform/linux/log/Log.h"
#include "platform/linux/log/LogEntry.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <filesystem>
#include <map>
#include <sys/socket.h>
#include <sys/un.h>

namespace {

using platform::linux_host::FileDescriptor;
using platform::linux_host::LogEntry;
using platform::linux_host::LogPriority;
using platform::linux_host::sendToJournal;
using platform::linux_host::writeToStandardError;

using Fields = std::map<std::string, std::string>;

std::string lineFor(const LogEntry& entry) {
    const StandardError standardError;
    writeToStandardError(entry);
    return standardError.text();
}

std::size_t sizeIn(std::string_view eightBytes) {
    std::size_t size = 0;
    for (std::size_t index = 8; index-- > 0;) {
        size = size << 8 | static_cast<unsigned char>(eightBytes[index]);
    }
    return size;
}

/// Stands in for the journal, in a folder of its own.
class Journal : public testing::Test {
  protected:
    void SetUp() override {
        std::string folder = testing::TempDir() + "journalXXXXXX";
        ASSERT_NE(::mkdtemp(folder.data()), nullptr);
        folder_ = folder;
        path = folder + "/socket";
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        path.copy(address.sun_path, sizeof address.sun_path - 1);
        ASSERT_EQ(::bind(socket_.get(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    void stop() { socket_ = {}; }

    /// The fields of the next entry that has arrived; none when there is no further entry.
    Fields nextEntry() {
        std::array<char, 65536> buffer{};
        const ssize_t size = ::recv(socket_.get(), buffer.data(), buffer.size(), MSG_DONTWAIT);
        std::string_view rest(buffer.data(), size < 0 ? 0 : static_cast<std::size_t>(size));
        Fields fields;
        while (!rest.empty()) {
            const std::string name(rest.substr(0, rest.find('\n')));
            rest.remove_prefix(name.size() + 1);
            const std::size_t length = sizeIn(rest);
            fields[name] = rest.substr(8, length);
            EXPECT_EQ(rest.at(8 + length), '\n');
            rest.remove_prefix(8 + length + 1);
        }
        return fields;
    }

    std::string path;

  private:
    std::string folder_;
    FileDescriptor socket_{::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)};
};

TEST_F(Journal, ReceivesAPlainEntryUnderTheNameOfTheProgram) {
    EXPECT_TRUE(sendToJournal({.text = "hello"}, path));
    EXPECT_EQ(nextEntry(),
              (Fields{{"MESSAGE", "hello"}, {"PRIORITY", "5"}, {"SYSLOG_IDENTIFIER", "quellbar"}}));
}

TEST_F(Journal, ReceivesSubsystemAndCategoryAsFields) {
    EXPECT_TRUE(sendToJournal({LogPriority::warning, "hello", "org.example", "Corner"}, path));
    EXPECT_EQ(nextEntry(), (Fields{{"MESSAGE", "hello"},
                                   {"PRIORITY", "4"},
                                   {"SYSLOG_IDENTIFIER", "quellbar"},
                                   {"SUBSYSTEM", "org.example"},
                                   {"CATEGORY", "Corner"}}));
}

TEST_F(Journal, ReceivesLineBreaksPercentAndEqualsSignsAsText) {
    const std::string text = "one\nPRIORITY=0\n100%s%n";
    EXPECT_TRUE(sendToJournal({.text = text}, path));
    EXPECT_EQ(nextEntry()["MESSAGE"], text);
}

TEST_F(Journal, ALongTextKeepsItsLength) {
    const std::string text(20'000, 'x');
    EXPECT_TRUE(sendToJournal({.text = text}, path));
    EXPECT_EQ(nextEntry()["MESSAGE"], text);
}

TEST_F(Journal, ThatDoesNotReadIsNotWaitedFor) {
    int sent = 0;
    while (sendToJournal({.text = "again"}, path)) {
        ASSERT_LT(++sent, 1'000'000);
    }
    EXPECT_GT(sent, 0);
}

TEST_F(Journal, ThatHasStoppedTakesNothing) {
    stop();
    EXPECT_FALSE(sendToJournal({.text = "hello"}, path));
}

TEST_F(Journal, ThatIsNotThereTakesNothing) {
    EXPECT_FALSE(sendToJournal({.text = "hello"}, path + "elsewhere"));
    EXPECT_FALSE(sendToJournal({.text = "hello"}, path + std::string(300, 'x')));
}

TEST(LogLine, IsTheTextAndALineBreak) {
    EXPECT_EQ(lineFor({.text = "Quellbar: 100%s"}), "Quellbar: 100%s\n");
}

TEST(LogLine, NamesSubsystemAndCategory) {
    EXPECT_EQ(lineFor({LogPriority::notice, "hello", "org.example", "Corner"}),
              "[org.example:Corner] hello\n");
}

TEST(LogLine, StaysOneLineWhateverTheText) {
    EXPECT_EQ(lineFor({.text = "one\ntwo\r\033[31mthree\x7f é"}), "one two  [31mthree  é\n");
}

TEST(LogLine, IsCutToWhatAPipeTakesAtOnce) {
    const std::string line = lineFor({.text = std::string(100'000, 'x')});
    EXPECT_EQ(line, std::string(PIPE_BUF - 1, 'x') + "\n");
}

TEST(LogLine, IsDroppedRatherThanWaitedFor) {
    const StandardError standardError;
    const std::string filling = standardError.fill();
    writeToStandardError({.text = "hello"});
    EXPECT_EQ(standardError.text(), filling);
}

TEST(LogLine, WithoutAReaderOrWithoutStandardErrorIsDropped) {
    StandardError standardError;
    standardError.loseReader();
    writeToStandardError({.text = "hello"});
    ::close(STDERR_FILENO);
    writeToStandardError({.text = "hello"});
}

/// The log as the program uses it. A journal that runs here would take the entries.
class Log : public testing::Test {
  protected:
    void SetUp() override {
        if (std::filesystem::exists(platform::linux_host::journalSocket)) {
            GTEST_SKIP() << "the journal of this machine takes the entries";
        }
    }
    StandardError standardError;
};

TEST_F(Log, WithoutAJournalEachEntryIsALineOnStandardError) {
    platform::linux_host::systemLog("one");
    platform::linux_host::structuredLog("org.example", "Corner", "two");
    EXPECT_EQ(standardError.text(), "one\n[org.example:Corner] two\n");
}

TEST_F(Log, ACauseIsToldOnce) {
    platform::linux_host::logOnce("disk", "disk full");
    platform::linux_host::logOnce("home", "no home");
    platform::linux_host::logOnce("disk", "disk still full");
    EXPECT_EQ(standardError.text(), "disk full\nno home\n");
}

} // namespace

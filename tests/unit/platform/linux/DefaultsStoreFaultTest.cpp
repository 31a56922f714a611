#include "platform/linux/defaults/DefaultsStore.h"

#include "ChildProcess.h"
#include "StandardError.h"
#include "TemporaryFolder.h"

#include "platform/linux/log/LogEntry.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fstream>
#include <memory>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>

namespace {

namespace fs = std::filesystem;
using platform::Data;
using platform::DefaultsValue;
using platform::StringArray;
using platform::linux_host::DefaultsFile;
using platform::linux_host::DefaultsStore;

using Names = std::vector<std::string>;
using namespace std::string_literals;

constexpr auto name = "defaults.json";
constexpr auto badName = "defaults.json.bad";

/// A settings file in a folder of its own, with everything that can be wrong with either.
class DefaultsStoreFault : public testing::Test {
  protected:
    TemporaryFolder folder;
    fs::path file = folder.path() / name;

    static bool boolIn(DefaultsStore& store, std::string_view key) {
        const DefaultsValue* const value = store.valueForKey(key);
        return value != nullptr && *value == DefaultsValue(true);
    }

    [[nodiscard]] bool isStored(std::string_view key) const {
        DefaultsStore other(file);
        return boolIn(other, key);
    }

    /// A change works for the rest of the run, and is not stored.
    static void expectInMemoryOnly(const fs::path& path) {
        DefaultsStore store(path);
        store.registerDefaults({{"registered", true}});
        store.setValue(true, "key");
        EXPECT_TRUE(boolIn(store, "key"));
        EXPECT_TRUE(boolIn(store, "registered"));
        DefaultsStore afterRestart(path);
        EXPECT_EQ(afterRestart.valueForKey("key"), nullptr);
    }

    /// A file that cannot be understood reads as empty, and keeps its bytes under another name when
    /// a change makes a new one.
    void expectSetAside(const std::string& text) {
        folder.write(name, text);
        DefaultsStore store(file);
        store.registerDefaults({{"registered", true}});
        EXPECT_TRUE(boolIn(store, "registered"));
        EXPECT_EQ(folder.names(), Names{name});
        store.setValue(true, "key");
        EXPECT_EQ(folder.names(), (Names{name, badName}));
        EXPECT_TRUE(folder.read(badName) == text);
        EXPECT_EQ(folder.read(name), "{\n  \"key\": true\n}\n");
        fs::remove(folder.path() / badName);
    }
};

using DefaultsFileMalformed = DefaultsStoreFault;
using DefaultsFileUnreadable = DefaultsStoreFault;
using DefaultsFileUnwritable = DefaultsStoreFault;

TEST_F(DefaultsFileMalformed, IsSetAsideByTheNextChange) {
    for (const std::string& text :
         {""s, "\n"s, "{"s, "{\"key\":"s, "[]"s, "null"s, "7200"s, "\"text\""s, "not JSON"s,
          "{\"registered\":false}}"s, "{\"registered\":false,}"s, "{\"registered\":fals}"s,
          "{\"registered\":false}\0\0\0\0"s, "\0\0\0\0"s,
          "\x7f"
          "ELF\x02"s,
          "{\"registered\":\"\xff\"}"s, "<?xml version=\"1.0\"?><plist/>"s}) {
        SCOPED_TRACE(text);
        expectSetAside(text);
    }
}

TEST_F(DefaultsFileMalformed, IsWhatIsLeftOfAFileCutAnywhere) {
    const std::string whole = R"({"registered": false, "a": ["b", "c"], "d": {"data": "AQI="}})";
    for (std::size_t length = 0; length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        expectSetAside(whole.substr(0, length));
    }
}

TEST_F(DefaultsFileMalformed, IsAFileTooLongToBeOurs) {
    const std::string key = R"({"registered": false})";
    expectSetAside(key + std::string(DefaultsFile::mostBytes, ' '));
    expectSetAside(std::string(4 << 20, '['));
}

TEST_F(DefaultsFileMalformed, IsNotAFileOfTheGreatestLength) {
    const std::string key = R"({"key": true})";
    folder.write(name, key + std::string(DefaultsFile::mostBytes - key.size(), ' '));
    EXPECT_TRUE(isStored("key"));
}

TEST_F(DefaultsFileMalformed, NeverTakesTheNameOfAnEarlierOne) {
    for (const char* const text : {"first", "second"}) {
        folder.write(name, text);
        DefaultsStore(file).setValue(true, "key");
    }
    EXPECT_EQ(folder.names(), (Names{name, badName, "defaults.json.bad.2"}));
    EXPECT_EQ(folder.read(badName), "first");
    EXPECT_EQ(folder.read("defaults.json.bad.2"), "second");
}

TEST_F(DefaultsFileMalformed, IsReadAgainWhenItIsMended) {
    folder.write(name, R"({"key": true)");
    DefaultsStore store(file);
    EXPECT_FALSE(boolIn(store, "key"));
    folder.write(name, R"({"key": true})");
    EXPECT_TRUE(boolIn(store, "key"));
}

TEST_F(DefaultsFileMalformed, BehindALinkIsSetAsideWhereItIs) {
    fs::create_directory(folder.path() / "dotfiles");
    folder.write("dotfiles/settings", "not JSON");
    fs::create_symlink("dotfiles/settings", file);
    DefaultsStore(file).setValue(true, "key");
    EXPECT_TRUE(fs::is_symlink(fs::symlink_status(file)));
    EXPECT_TRUE(isStored("key"));
    EXPECT_EQ(folder.read("dotfiles/settings.bad"), "not JSON");
}

TEST_F(DefaultsFileMalformed, IsNotMadeByAChangeThatIsTooLong) {
    DefaultsStore store(file);
    store.setValue(true, "key");
    const Data data(DefaultsFile::mostBytes, 0);
    store.setValue(data, "data");
    EXPECT_EQ(*store.valueForKey("data"), DefaultsValue(data));
    EXPECT_EQ(folder.read(name), "{\n  \"key\": true\n}\n");
}

TEST_F(DefaultsFileUnreadable, IsAFolderOfThatName) {
    fs::create_directory(file);
    expectInMemoryOnly(file);
    EXPECT_EQ(folder.names(), Names{name});
}

TEST_F(DefaultsFileUnreadable, IsAPipeWhichIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    expectInMemoryOnly(file);
    EXPECT_TRUE(fs::is_fifo(file));
}

TEST_F(DefaultsFileUnreadable, IsASocket) {
    const platform::linux_host::FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    file.native().copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(socket.get(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    expectInMemoryOnly(file);
    EXPECT_TRUE(fs::is_socket(file));
}

// Devices of its own, never those in /dev: a program that fails this as root would rename them.
TEST_F(DefaultsFileUnreadable, IsADeviceWhichIsNotReplaced) {
    constexpr unsigned memoryDevices = 1;
    constexpr std::array<unsigned, 3> nullZeroAndFull{3, 5, 7};
    for (const unsigned minor : nullZeroAndFull) {
        if (::mknod(file.c_str(), S_IFCHR | 0600, makedev(memoryDevices, minor)) != 0) {
            GTEST_SKIP() << "this user may not make devices";
        }
        expectInMemoryOnly(file);
        EXPECT_TRUE(fs::is_character_file(file));
        EXPECT_EQ(folder.names(), Names{name});
        fs::remove(file);
    }
}

TEST_F(DefaultsFileUnreadable, IsACircleOfLinks) {
    fs::create_symlink("other", file);
    fs::create_symlink(name, folder.path() / "other");
    expectInMemoryOnly(file);
    EXPECT_EQ(folder.names(), (Names{name, "other"}));
}

TEST_F(DefaultsFileUnreadable, IsAFileOfSomebodyElse) {
    inChild([this] {
        becomeOrdinaryUser();
        folder.write(name, R"({"precious": true})");
        fs::permissions(file, fs::perms::none);
        expectInMemoryOnly(file);
        fs::permissions(file, fs::perms::owner_read);
        EXPECT_EQ(folder.read(name), R"({"precious": true})");
        EXPECT_EQ(folder.names(), Names{name});
    });
}

TEST_F(DefaultsFileUnreadable, IsAFileInAClosedFolder) {
    inChild([this] {
        becomeOrdinaryUser();
        fs::create_directory(folder.path() / "closed");
        folder.write("closed/file", R"({"precious": true})");
        fs::permissions(folder.path() / "closed", fs::perms::none);
        expectInMemoryOnly(folder.path() / "closed" / "file");
        fs::permissions(folder.path() / "closed", fs::perms::all);
        EXPECT_EQ(folder.read("closed/file"), R"({"precious": true})");
    });
}

// A change of permissions does not change the time of a file.
TEST_F(DefaultsFileUnreadable, IsReadAsSoonAsItMayBe) {
    inChild([this] {
        becomeOrdinaryUser();
        folder.write(name, R"({"key": true})");
        fs::permissions(file, fs::perms::none);
        DefaultsStore store(file);
        EXPECT_FALSE(boolIn(store, "key"));
        store.setValue(true, "changed");
        fs::permissions(file, fs::perms::owner_all);
        EXPECT_TRUE(boolIn(store, "key"));
        store.setValue(true, "also changed");
        EXPECT_TRUE(isStored("key") && isStored("changed") && isStored("also changed"));
    });
}

TEST_F(DefaultsFileUnwritable, IsAFileWhoseFolderIsAFile) {
    folder.write("file", "content");
    expectInMemoryOnly(folder.path() / "file" / name);
    expectInMemoryOnly(folder.path() / "file" / "quellbar" / name);
    EXPECT_EQ(folder.read("file"), "content");
}

TEST_F(DefaultsFileUnwritable, IsAFileWithANameTooLong) {
    expectInMemoryOnly(folder.path() / std::string(255, 'x'));
    expectInMemoryOnly(folder.path() / std::string(300, 'x'));
    EXPECT_EQ(folder.names(), Names{});
}

TEST_F(DefaultsFileUnwritable, IsAFileInAFolderThatIsReadOnly) {
    inChild([this] {
        becomeOrdinaryUser();
        const fs::path inner = folder.path() / "inner";
        fs::create_directory(inner);
        folder.write("inner/defaults.json", R"({"precious": true})");
        fs::permissions(inner, fs::perms::owner_read | fs::perms::owner_exec);
        expectInMemoryOnly(inner / name);
        DefaultsStore store(inner / name);
        EXPECT_TRUE(boolIn(store, "precious"));
        EXPECT_EQ(folder.read("inner/defaults.json"), R"({"precious": true})");
        fs::permissions(inner, fs::perms::all);
    });
}

TEST_F(DefaultsFileUnwritable, IsAnyFileWithoutAPath) {
    DefaultsStore store{{}};
    store.registerDefaults({{"registered", true}});
    store.setValue(true, "key");
    EXPECT_TRUE(boolIn(store, "key"));
    EXPECT_TRUE(boolIn(store, "registered"));
}

TEST_F(DefaultsFileUnwritable, IsWrittenInFullAsSoonAsItCanBe) {
    folder.write("quellbar", "a file where the folder should be");
    const fs::path inner = folder.path() / "quellbar" / name;
    DefaultsStore store(inner);
    store.setValue(true, "one");
    store.setValue(true, "two");
    fs::remove(folder.path() / "quellbar");
    fs::create_directory(folder.path() / "quellbar");
    folder.write("quellbar/defaults.json", R"({"one": false, "precious": true})");
    EXPECT_TRUE(boolIn(store, "one")) << "the change of this run wins over the file";
    store.setValue(true, "three");
    EXPECT_EQ(folder.read("quellbar/defaults.json"),
              "{\"one\": true, \"precious\": true,\n  \"three\": true,\n  \"two\": true}");
    folder.write("quellbar/defaults.json", R"({"one": false})");
    EXPECT_FALSE(boolIn(store, "one")) << "once stored, the file is what counts";
}

TEST_F(DefaultsFileUnwritable, LosesNothingWhenFilesMayNotGrow) {
    inChild([this] {
        const std::string text = R"({"precious": true})";
        folder.write(name, text);
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{.rlim_cur = 20, .rlim_max = RLIM_INFINITY};
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
        expectInMemoryOnly(file);
        EXPECT_EQ(folder.read(name), text);
        EXPECT_EQ(folder.names(), Names{name});
    });
}

/// Runs its story on a file system of a few pages, in a process of its own.
class DefaultsDisk : public DefaultsStoreFault {
  protected:
    void onSmallDisk(const std::function<void()>& story) {
        inChild([this, &story] {
            constexpr int pages = 8;
            if (!mountSmallFileSystem(folder.path(), pages)) {
                std::puts("[  SKIPPED ] this machine lets no test mount a file system");
                return;
            }
            story();
        });
    }

    void fill() const { std::ofstream(folder.path() / "filling") << std::string(1 << 20, 'x'); }
    void makeRoom() const { fs::remove(folder.path() / "filling"); }
};

TEST_F(DefaultsDisk, ThatIsFullLosesNothing) {
    onSmallDisk([this] {
        const std::string text = R"({"precious": true})";
        folder.write(name, text);
        fill();
        expectInMemoryOnly(file);
        EXPECT_EQ(folder.read(name), text);
        EXPECT_EQ(folder.names(), (Names{name, "filling"}));
    });
}

TEST_F(DefaultsDisk, ThatIsFullKeepsAMalformedFileInItsPlace) {
    onSmallDisk([this] {
        folder.write(name, "not JSON");
        fill();
        expectInMemoryOnly(file);
        EXPECT_EQ(folder.read(name), "not JSON");
        EXPECT_EQ(folder.names(), (Names{name, "filling"}));
    });
}

TEST_F(DefaultsDisk, ThatHasRoomAgainTakesWhatWasKept) {
    onSmallDisk([this] {
        folder.write(name, R"({"precious": true})");
        fill();
        DefaultsStore store(file);
        store.setValue(true, "one");
        makeRoom();
        store.setValue(true, "two");
        EXPECT_TRUE(isStored("precious") && isStored("one") && isStored("two"));
    });
}

TEST_F(DefaultsDisk, ThatIsReadOnlyLosesNothing) {
    onSmallDisk([this] {
        folder.write(name, R"({"precious": true})");
        ASSERT_TRUE(remountReadOnly(folder.path()));
        expectInMemoryOnly(file);
        DefaultsStore store(file);
        EXPECT_TRUE(boolIn(store, "precious"));
    });
}

/// What the user is told. A journal that runs here would take the entries.
class DefaultsLog : public DefaultsStoreFault {
  protected:
    void SetUp() override {
        if (fs::exists(platform::linux_host::journalSocket)) {
            GTEST_SKIP() << "the journal of this machine takes the entries";
        }
    }

    /// What a store on the file says on standard error while it is read and changed several times.
    [[nodiscard]] std::string logOf(const fs::path& path) const {
        const StandardError standardError;
        DefaultsStore store(path);
        for (const char* const key : {"one", "two", "three"}) {
            boolIn(store, key);
            store.setValue(true, key);
        }
        return standardError.text();
    }
};

TEST_F(DefaultsLog, SaysNothingWhileAllIsWell) {
    EXPECT_EQ(logOf(file), "");
}

TEST_F(DefaultsLog, SaysOnceThatTheFileIsMalformed) {
    folder.write(name, "not JSON");
    EXPECT_EQ(logOf(file), "Quellbar: the settings file " + file.native() +
                               " is not a JSON object of at most 1 MiB. The factory settings "
                               "apply, and the next change puts this file aside as " +
                               badName + ".\n");
}

TEST_F(DefaultsLog, SaysOnceThatTheFileCannotBeRead) {
    fs::create_directory(file);
    EXPECT_EQ(logOf(file), "Quellbar: the settings file " + file.native() +
                               " cannot be read (Is a directory). The factory settings apply, and "
                               "changes last until Quellbar ends.\n");
}

TEST_F(DefaultsLog, SaysOnceThatTheFileCannotBeWritten) {
    folder.write("quellbar", "");
    const fs::path inner = folder.path() / "quellbar" / name;
    EXPECT_EQ(logOf(inner), "Quellbar: the settings file " + inner.native() +
                                " cannot be written (Not a directory). Changes last until "
                                "Quellbar ends, or until one can be written.\n");
}

} // namespace

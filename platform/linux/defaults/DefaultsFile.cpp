#include "platform/linux/defaults/DefaultsFile.h"

#include "platform/linux/defaults/PropertyList.h"
#include "platform/linux/files/FileContent.h"
#include "platform/linux/files/FileReplacement.h"
#include "platform/linux/files/FolderLock.h"
#include "platform/linux/files/SystemError.h"
#include "platform/linux/log/Log.h"

#include <cerrno>

namespace platform::linux_host {
namespace {

namespace fs = std::filesystem;

void tell(const std::string& text) {
    logOnce(text, "Quellbar: " + text);
}

void tellUnreadable(const fs::path& path, std::error_code error) {
    tell("the settings file " + path.native() + " cannot be read (" + error.message() +
         "). The factory settings apply, and changes last until Quellbar ends.");
}

void tellMalformed(const fs::path& path) {
    tell("the settings file " + path.native() +
         " is not a JSON object of at most 1 MiB. The factory settings apply, and the next change "
         "puts this file aside as " +
         path.filename().native() + ".bad.");
}

void tellUnwritable(const fs::path& path, std::error_code error) {
    tell("the settings file " + path.native() + " cannot be written (" + error.message() +
         "). Changes last until Quellbar ends, or until one can be written.");
}

// A file, or a folder above it, that is not there. A file in the place of a folder is one more way
// of not being there.
bool isAbsence(std::error_code error) {
    return error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
}

DefaultsFile::Values valuesOf(const JsonObject& object) {
    DefaultsFile::Values values;
    for (const JsonObject::Member& member : object.members()) {
        const std::string_view json = object.valueOf(member);
        if (json == "null") {
            values.erase(member.name);
        } else {
            values.insert_or_assign(member.name, defaultsValueFrom(json));
        }
    }
    return values;
}

} // namespace

const DefaultsFile::Values& DefaultsFile::values() {
    refresh();
    return values_;
}

bool DefaultsFile::store(const DefaultsValues& changes) {
    if (path_.empty()) {
        return false;
    }
    try {
        const fs::path target = linkTarget(path_);
        createFolders(target.parent_path());
        const FolderLock lock(target.parent_path());
        refresh();
        // What cannot be read may hold settings all the same.
        if (state_ == State::unreadable) {
            return false;
        }
        replace(target, changes);
        return true;
    } catch (const std::system_error& error) {
        tellUnwritable(path_, error.code());
        return false;
    }
}

void DefaultsFile::replace(const fs::path& target, const DefaultsValues& changes) {
    JsonObject object = object_;
    for (const auto& [key, value] : changes) {
        object.set(key, jsonFrom(value));
    }
    if (object.text().size() > mostBytes) {
        throw std::system_error(std::make_error_code(std::errc::file_too_large));
    }
    FileReplacement replacement(target);
    replacement.write(object.text());
    if (state_ == State::malformed) {
        setAside(target);
    }
    const FileIdentity identity(replacement.status());
    replacement.commit();
    adopt(std::move(object), identity);
}

void DefaultsFile::refresh() {
    struct stat status {};
    if (::stat(path_.c_str(), &status) == 0) {
        if (identity_ != FileIdentity(status)) {
            load(status);
        }
    } else if (state_ != State::absent || errno != ENOENT) { // else it is as absent as before
        lose(lastError());
    }
}

void DefaultsFile::load(const struct stat& status) {
    try {
        requireRegularFile(status);
        FileContent content = readFile(path_, mostBytes + 1);
        const bool isTooLong = content.text.size() > mostBytes;
        auto object = isTooLong ? std::nullopt : JsonObject::parse(std::move(content.text));
        if (object) {
            adopt(*std::move(object), content.identity);
            return;
        }
        forget(State::malformed);
        keepIdentity(content.identity);
        tellMalformed(path_);
    } catch (const std::system_error& error) {
        lose(error.code());
    }
}

void DefaultsFile::adopt(JsonObject object, const FileIdentity& identity) {
    values_ = valuesOf(object);
    object_ = std::move(object);
    state_ = State::understood;
    keepIdentity(identity);
}

void DefaultsFile::lose(std::error_code error) {
    forget(isAbsence(error) ? State::absent : State::unreadable);
    if (state_ == State::unreadable) {
        tellUnreadable(path_, error);
    }
}

void DefaultsFile::forget(State state) {
    state_ = state;
    identity_.reset();
    object_ = {};
    values_.clear();
}

void DefaultsFile::keepIdentity(const FileIdentity& identity) {
    identity_ = identity.isSettled() ? std::optional(identity) : std::nullopt;
}

} // namespace platform::linux_host

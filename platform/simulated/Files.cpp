#include "platform/simulated/Files.h"

#include "platform/simulated/Misuse.h"

#include <algorithm>

namespace simulated {
namespace {

bool liesIn(const std::filesystem::path& path, const std::filesystem::path& folder) {
    return std::ranges::mismatch(folder, path).in1 == folder.end();
}

} // namespace

void Files::addFolder(const std::filesystem::path& folder) {
    if (!folder.is_absolute()) {
        misuse("the path of a file is not absolute: " + folder.string());
    }
    if (contentOf(folder) != nullptr) {
        misuse("a folder takes the place of a file: " + folder.string());
    }
    entries_.try_emplace(folder);
    if (folder != folder.root_path()) {
        addFolder(folder.parent_path());
    }
}

void Files::addFile(const std::filesystem::path& file, std::string content) {
    if (isFolder(file)) {
        misuse("a file takes the place of a folder: " + file.string());
    }
    addFolder(file.parent_path());
    entries_.insert_or_assign(file, std::move(content));
}

void Files::remove(const std::filesystem::path& path) {
    const auto removed =
        std::erase_if(entries_, [&](const auto& entry) { return liesIn(entry.first, path); });
    if (removed == 0) {
        misuse("what is not there is removed: " + path.string());
    }
}

bool Files::contains(const std::filesystem::path& path) const {
    return entries_.contains(path);
}

bool Files::isFolder(const std::filesystem::path& path) const {
    const auto entry = entries_.find(path);
    return entry != entries_.end() && !entry->second;
}

const std::string* Files::contentOf(const std::filesystem::path& path) const {
    const auto entry = entries_.find(path);
    return entry == entries_.end() || !entry->second ? nullptr : &*entry->second;
}

} // namespace simulated

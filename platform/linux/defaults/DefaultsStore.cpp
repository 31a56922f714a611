#include "platform/linux/defaults/DefaultsStore.h"

namespace platform::linux_host {
namespace {

const DefaultsValue* find(const DefaultsValues& values, std::string_view key) {
    const auto entry = values.find(key);
    return entry == values.end() ? nullptr : &entry->second;
}

const DefaultsValue* pointerTo(const std::optional<DefaultsValue>& value) {
    return value ? &*value : nullptr;
}

} // namespace

void DefaultsStore::registerDefaults(DefaultsValues values) {
    values.merge(registered_); // what is there already stays
    registered_ = std::move(values);
}

const DefaultsValue* DefaultsStore::valueForKey(std::string_view key) {
    if (const auto* const unsaved = find(unsaved_, key)) {
        return unsaved;
    }
    const DefaultsFile::Values& stored = file_.values();
    const auto entry = stored.find(key);
    return entry == stored.end() ? find(registered_, key) : pointerTo(entry->second);
}

void DefaultsStore::setValue(DefaultsValue value, std::string_view key) {
    if (isStored(value, key)) {
        return;
    }
    unsaved_.insert_or_assign(std::string(key), std::move(value));
    if (file_.store(unsaved_)) {
        unsaved_.clear();
    }
}

bool DefaultsStore::isStored(const DefaultsValue& value, std::string_view key) {
    if (!unsaved_.empty()) {
        return false;
    }
    const DefaultsFile::Values& stored = file_.values();
    const auto entry = stored.find(key);
    return entry != stored.end() && entry->second == value;
}

} // namespace platform::linux_host

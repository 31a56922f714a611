#include "platform/UserDefaults.h"

#include "platform/linux/defaults/DefaultsCoercion.h"
#include "platform/linux/defaults/DefaultsStore.h"
#include "platform/linux/files/XdgDirectories.h"
#include "platform/linux/log/Log.h"

namespace platform {
namespace {

using linux_host::DefaultsStore;

std::filesystem::path defaultsFile() {
    const auto folder = linux_host::configHome();
    if (folder.empty()) {
        linux_host::logOnce("no home", "Quellbar: neither XDG_CONFIG_HOME nor HOME is an absolute "
                                       "path. Changed settings last until Quellbar ends.");
        return {};
    }
    return folder / "quellbar" / "defaults.json";
}

DefaultsStore& store() {
    // Never destroyed: whatever runs while the process ends may still read a setting.
    static auto* const instance = new DefaultsStore(defaultsFile());
    return *instance;
}

template <typename Type>
const Type* valueForKey(std::string_view key) {
    return std::get_if<Type>(store().valueForKey(key)); // null for null
}

} // namespace

UserDefaults& UserDefaults::standard() {
    static auto* const instance = new UserDefaults;
    return *instance;
}

void UserDefaults::registerDefaults(std::map<std::string, DefaultsValue, std::less<>> values) {
    store().registerDefaults(std::move(values));
}

bool UserDefaults::boolForKey(std::string_view key) const {
    return linux_host::boolFrom(store().valueForKey(key));
}

double UserDefaults::doubleForKey(std::string_view key) const {
    return linux_host::doubleFrom(store().valueForKey(key));
}

const Data* UserDefaults::dataForKey(std::string_view key) const {
    return valueForKey<Data>(key);
}

const StringArray* UserDefaults::stringArrayForKey(std::string_view key) const {
    return valueForKey<StringArray>(key);
}

void UserDefaults::setBool(bool value, std::string_view key) {
    setObject(value, key);
}

void UserDefaults::setDouble(double value, std::string_view key) {
    setObject(value, key);
}

void UserDefaults::setObject(DefaultsValue value, std::string_view key) {
    store().setValue(std::move(value), key);
}

} // namespace platform

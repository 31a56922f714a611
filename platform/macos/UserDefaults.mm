#include "platform/UserDefaults.h"

#include "platform/macos/Conversions.h"

namespace platform {

namespace {

// What the last read lent out.
struct Lent {
    Data data;
    StringArray strings;
};

Lent& lent() {
    static auto* const lent = new Lent;
    return *lent;
}

NSUserDefaults* defaults() {
    return NSUserDefaults.standardUserDefaults;
}

} // namespace

UserDefaults& UserDefaults::standard() {
    static auto* const standard = new UserDefaults;
    return *standard;
}

void UserDefaults::registerDefaults(std::map<std::string, DefaultsValue, std::less<>> values) {
    [defaults() registerDefaults:macos::defaultsValuesToNSDictionary(values).get()];
}

bool UserDefaults::boolForKey(std::string_view key) const {
    return [defaults() boolForKey:macos::stringToNSString(key).get()] == YES;
}

double UserDefaults::doubleForKey(std::string_view key) const {
    return [defaults() doubleForKey:macos::stringToNSString(key).get()];
}

const Data* UserDefaults::dataForKey(std::string_view key) const {
    NSData* const data = [defaults() dataForKey:macos::stringToNSString(key).get()];
    if (data == nil) {
        return nullptr;
    }
    lent().data = macos::nsDataToData(data);
    return &lent().data;
}

const StringArray* UserDefaults::stringArrayForKey(std::string_view key) const {
    NSArray* const strings = [defaults() stringArrayForKey:macos::stringToNSString(key).get()];
    if (strings == nil) {
        return nullptr;
    }
    lent().strings = macos::nsArrayToStringArray(strings);
    return &lent().strings;
}

void UserDefaults::setBool(bool value, std::string_view key) {
    [defaults() setBool:value forKey:macos::stringToNSString(key).get()];
}

void UserDefaults::setDouble(double value, std::string_view key) {
    [defaults() setDouble:value forKey:macos::stringToNSString(key).get()];
}

void UserDefaults::setObject(DefaultsValue value, std::string_view key) {
    [defaults() setObject:macos::defaultsValueToObject(value).get()
                   forKey:macos::stringToNSString(key).get()];
}

} // namespace platform

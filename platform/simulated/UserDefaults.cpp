#include "platform/UserDefaults.h"

#include "platform/simulated/Desktop.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <utility>

namespace simulated {
namespace {

const platform::DefaultsValue* findIn(const UserDefaults::Domain& domain, std::string_view key) {
    const auto entry = domain.find(key);
    return entry == domain.end() ? nullptr : &entry->second;
}

} // namespace

void UserDefaults::registerDefaults(Domain values) {
    values.merge(registered_);
    registered_ = std::move(values);
}

const platform::DefaultsValue* UserDefaults::find(std::string_view key) const {
    if (const auto* const value = findIn(unsaved_, key)) {
        return value;
    }
    if (isReadable && storedOtherwise.contains(key)) {
        return nullptr;
    }
    const auto* const value = isReadable ? findIn(stored, key) : nullptr;
    return value == nullptr ? findIn(registered_, key) : value;
}

void UserDefaults::set(std::string_view key, platform::DefaultsValue value) {
    const std::string name(key);
    if (!isReadable || !isWritable) {
        unsaved_.insert_or_assign(name, std::move(value));
        return;
    }
    unsaved_.erase(name);
    storedOtherwise.erase(name);
    stored.insert_or_assign(name, std::move(value));
}

const platform::DefaultsValue* UserDefaults::lend(const platform::DefaultsValue* value) {
    lent_ = value == nullptr ? nullptr : std::make_unique<const platform::DefaultsValue>(*value);
    return lent_.get();
}

} // namespace simulated

namespace platform {
namespace {

using simulated::desktop;

std::string lowercase(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

// The decimal number that the text begins with. What strtod would take besides, hexadecimal digits
// and names such as "inf", is no number here.
double numberAtBeginning(const std::string& text) {
    const auto begin = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    const auto end = text.find_first_not_of("0123456789+-.eE", begin);
    return std::strtod(text.substr(begin, end - begin).c_str(), nullptr);
}

struct AsBool {
    bool operator()(bool value) const { return value; }
    bool operator()(std::int64_t value) const { return value != 0; }
    bool operator()(double value) const { return value != 0; }
    bool operator()(const std::string& value) const {
        const std::string text = lowercase(value);
        return text == "yes" || text == "true" || text == "1";
    }
    bool operator()(const auto&) const { return false; }
};

struct AsDouble {
    double operator()(bool value) const { return value ? 1 : 0; }
    double operator()(std::int64_t value) const { return static_cast<double>(value); }
    double operator()(double value) const { return value; }
    double operator()(const std::string& value) const { return numberAtBeginning(value); }
    double operator()(const auto&) const { return 0; }
};

// How a value is written in the record of calls.
struct AsText {
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const {
        std::string text(32, '\0');
        text.resize(static_cast<std::size_t>(
            std::to_chars(text.data(), text.data() + text.size(), value).ptr - text.data()));
        return text;
    }
    std::string operator()(const std::string& value) const { return '"' + value + '"'; }
    std::string operator()(const Data& value) const {
        return '<' + std::string(value.begin(), value.end()) + '>';
    }
    std::string operator()(const StringArray& value) const {
        std::string text;
        for (const std::string& element : value) {
            text += (text.empty() ? "" : ", ") + (*this)(element);
        }
        return '[' + text + ']';
    }
};

// Each call takes back what an earlier one has lent.
const DefaultsValue* read(std::string_view operation, std::string_view key) {
    desktop().calls.record(operation, {key});
    return desktop().userDefaults.lend(desktop().userDefaults.find(key));
}

void write(std::string_view operation, DefaultsValue value, std::string_view key) {
    desktop().calls.record(operation, {std::visit(AsText{}, value), key});
    desktop().userDefaults.lend(nullptr);
    desktop().userDefaults.set(key, std::move(value));
}

} // namespace

UserDefaults& UserDefaults::standard() {
    static auto* const instance = new UserDefaults;
    return *instance;
}

void UserDefaults::registerDefaults(std::map<std::string, DefaultsValue, std::less<>> values) {
    std::string text;
    for (const auto& [key, value] : values) {
        text += (text.empty() ? "" : ", ") + key + ": " + std::visit(AsText{}, value);
    }
    desktop().calls.record("registerDefaults", {text});
    desktop().userDefaults.lend(nullptr);
    desktop().userDefaults.registerDefaults(std::move(values));
}

bool UserDefaults::boolForKey(std::string_view key) const {
    const DefaultsValue* const value = read("boolForKey", key);
    return value != nullptr && std::visit(AsBool{}, *value);
}

double UserDefaults::doubleForKey(std::string_view key) const {
    const DefaultsValue* const value = read("doubleForKey", key);
    return value == nullptr ? 0 : std::visit(AsDouble{}, *value);
}

const Data* UserDefaults::dataForKey(std::string_view key) const {
    return std::get_if<Data>(read("dataForKey", key));
}

const StringArray* UserDefaults::stringArrayForKey(std::string_view key) const {
    return std::get_if<StringArray>(read("stringArrayForKey", key));
}

void UserDefaults::setBool(bool value, std::string_view key) {
    write("setBool", value, key);
}

void UserDefaults::setDouble(double value, std::string_view key) {
    write("setDouble", value, key);
}

void UserDefaults::setObject(DefaultsValue value, std::string_view key) {
    write("setObject", std::move(value), key);
}

} // namespace platform

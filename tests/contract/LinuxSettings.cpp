#include "contract/LinuxSettings.h"

#include "tests/desktop/support/Base64.h"

#include <fstream>

namespace contract {
namespace {

using nlohmann::json;
using platform::Data;
using platform::DefaultsValue;
using platform::StringArray;

constexpr auto dataMember = "data";

struct ToJson {
    json operator()(const Data& data) const {
        return {{dataMember, desktop::base64Of(std::string(data.begin(), data.end()))}};
    }
    template <typename T>
    json operator()(const T& value) const {
        return value;
    }
};

DefaultsValue dataFrom(const json& value) {
    const std::string bytes = desktop::bytesOf(value.at(dataMember).get<std::string>());
    return Data(bytes.begin(), bytes.end());
}

DefaultsValue valueFrom(const json& value) {
    switch (value.type()) {
    case json::value_t::boolean:
        return value.get<bool>();
    case json::value_t::string:
        return value.get<std::string>();
    case json::value_t::number_float:
        return value.get<double>();
    case json::value_t::array:
        return value.get<StringArray>();
    case json::value_t::object:
        return dataFrom(value);
    default:
        return value.get<std::int64_t>();
    }
}

} // namespace

void LinuxSettings::store(const std::string& key, const DefaultsValue& value) {
    json settings = read();
    settings[key] = std::visit(ToJson{}, value);
    std::filesystem::create_directories(folder_);
    // A file of its own in the old one's place: nobody reads half of it.
    const std::filesystem::path fresh = folder_ / "defaults.json.new";
    std::ofstream(fresh) << settings;
    std::filesystem::rename(fresh, file());
}

std::optional<DefaultsValue> LinuxSettings::stored(const std::string& key) const {
    const json settings = read();
    const auto value = settings.find(key);
    return value == settings.end() ? std::nullopt : std::optional(valueFrom(*value));
}

void LinuxSettings::lose() {
    std::filesystem::remove_all(folder_);
    std::ofstream(folder_) << "a file where a folder should be";
}

json LinuxSettings::read() const {
    std::ifstream stream(file());
    return stream ? json::parse(stream) : json::object();
}

} // namespace contract

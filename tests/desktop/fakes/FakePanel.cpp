#include "tests/desktop/fakes/FakePanel.h"

#include <stdexcept>
#include <string_view>

namespace desktop {
namespace {

constexpr auto watcher = "org.kde.StatusNotifierWatcher";
constexpr auto watcherPath = "/StatusNotifierWatcher";
constexpr auto itemInterface = "org.kde.StatusNotifierItem";

void require(int status, const std::string& what) {
    if (status < 0) {
        throw std::runtime_error("fake panel: " + what);
    }
}

sd_bus* openBus(const std::string& address) {
    sd_bus* bus = nullptr;
    require(sd_bus_new(&bus), "no memory");
    require(sd_bus_set_address(bus, address.c_str()), "no address");
    require(sd_bus_set_bus_client(bus, 1), "no client");
    require(sd_bus_start(bus), "no bus");
    return bus;
}

} // namespace

int BusPicture::countRed() const {
    int count = 0;
    for (std::size_t i = 0; i + 3 < bytes.size(); i += 4) {
        const bool isOpaque = bytes[i] > 200;
        const bool isRed = bytes[i + 1] > 200 && bytes[i + 2] > 30 && bytes[i + 2] < 110 &&
                           bytes[i + 3] > 30 && bytes[i + 3] < 110;
        count += isOpaque && isRed ? 1 : 0;
    }
    return count;
}

FakePanel::FakePanel(const std::string& busAddress, Behaviour behaviour)
    : behaviour_(behaviour), bus_(openBus(busAddress)) {
    require(sd_bus_add_object(bus_.get(), nullptr, watcherPath, handleWatcherCall, this),
            "no object");
    require(sd_bus_match_signal(bus_.get(), nullptr, nullptr, nullptr, itemInterface, nullptr,
                                handleSignal, this),
            "no signals");
    require(sd_bus_request_name(bus_.get(), watcher,
                                SD_BUS_NAME_ALLOW_REPLACEMENT | SD_BUS_NAME_REPLACE_EXISTING),
            "no name");
}

void FakePanel::waitUntil(const std::function<bool()>& isSo, const std::string& what) {
    const Deadline deadline;
    while (true) {
        while (sd_bus_process(bus_.get(), nullptr) > 0) {
        }
        if (isSo()) {
            return;
        }
        if (deadline.hasPassed()) {
            throw TimedOut(what);
        }
        constexpr std::uint64_t microseconds = 20'000;
        sd_bus_wait(bus_.get(), microseconds);
    }
}

void FakePanel::waitForItem() {
    waitUntil([this] { return hasItem(); }, "an item on the list");
}

void FakePanel::waitUntilItemHasGone() {
    waitUntil([this] { return !hasItem(); }, "the item to leave the list");
}

void FakePanel::waitForRefusal() {
    waitUntil([this] { return refusals_ > 0; }, "an item to refuse");
}

void FakePanel::beginToShow() {
    behaviour_ = Behaviour::show;
    require(sd_bus_emit_signal(bus_.get(), watcherPath, watcher, "StatusNotifierHostRegistered",
                               nullptr),
            "cannot tell");
}

int FakePanel::handleWatcherCall(sd_bus_message* call, void* self, sd_bus_error*) {
    auto& panel = *static_cast<FakePanel*>(self);
    const std::string_view member = sd_bus_message_get_member(call);
    if (member == "RegisterStatusNotifierItem") {
        return panel.registerItem(call);
    }
    if (member == "Get") {
        const bool shows = panel.behaviour_ != Behaviour::showNothing;
        return sd_bus_reply_method_return(call, "v", "b", static_cast<int>(shows));
    }
    return 0;
}

int FakePanel::registerItem(sd_bus_message* call) {
    if (behaviour_ == Behaviour::refuse) {
        ++refusals_;
        return sd_bus_reply_method_errorf(call, "org.example.Refused", "no room");
    }
    const char* path = "";
    require(sd_bus_message_read(call, "s", &path), "a registration without a name");
    path_ = path;
    item_ = sd_bus_message_get_sender(call);
    sd_bus_track* track = nullptr;
    require(sd_bus_track_new(bus_.get(), &track, handleItemLeft, this), "no track");
    track_.reset(track);
    require(sd_bus_track_add_sender(track, call), "no sender");
    return sd_bus_reply_method_return(call, nullptr);
}

int FakePanel::handleSignal(sd_bus_message* signal, void* self, sd_bus_error*) {
    ++static_cast<FakePanel*>(self)->signals_[sd_bus_message_get_member(signal)];
    return 0;
}

int FakePanel::handleItemLeft(sd_bus_track*, void* self) {
    auto& panel = *static_cast<FakePanel*>(self);
    panel.item_.clear();
    panel.track_.reset(); // an empty one tells of it again and again
    return 0;
}

FakePanel::Message FakePanel::property(const std::string& name, const char* type) const {
    sd_bus_message* reply = nullptr;
    require(sd_bus_get_property(bus_.get(), item_.c_str(), path_.c_str(), itemInterface,
                                name.c_str(), nullptr, &reply, type),
            "no property " + name);
    return Message(reply);
}

std::string FakePanel::text(const std::string& name) const {
    const Message reply = property(name, "s");
    const char* text = "";
    require(sd_bus_message_read(reply.get(), "s", &text), "no text");
    return text;
}

std::string FakePanel::tip() const {
    const Message reply = property("ToolTip", "(sa(iiay)ss)");
    const char* title = "";
    require(sd_bus_message_enter_container(reply.get(), 'r', "sa(iiay)ss"), "no tip");
    require(sd_bus_message_skip(reply.get(), "sa(iiay)"), "no pictures in the tip");
    require(sd_bus_message_read(reply.get(), "s", &title), "no title in the tip");
    return title;
}

bool FakePanel::itemIsMenu() const {
    const Message reply = property("ItemIsMenu", "b");
    int isMenu = 0;
    require(sd_bus_message_read(reply.get(), "b", &isMenu), "no answer");
    return isMenu != 0;
}

std::vector<BusPicture> FakePanel::pictures() const {
    const Message reply = property("IconPixmap", "a(iiay)");
    require(sd_bus_message_enter_container(reply.get(), 'a', "(iiay)"), "no pictures");
    std::vector<BusPicture> pictures;
    while (sd_bus_message_enter_container(reply.get(), 'r', "iiay") > 0) {
        BusPicture picture;
        const void* bytes = nullptr;
        std::size_t size = 0;
        require(sd_bus_message_read(reply.get(), "ii", &picture.width, &picture.height), "no size");
        require(sd_bus_message_read_array(reply.get(), 'y', &bytes, &size), "no bytes");
        const auto* const first = static_cast<const std::uint8_t*>(bytes);
        picture.bytes.assign(first, first + size);
        pictures.push_back(std::move(picture));
        require(sd_bus_message_exit_container(reply.get()), "no end of a picture");
    }
    return pictures;
}

void FakePanel::waitForSignal(const std::string& name) {
    const int before = signals_[name];
    waitUntil([&] { return signals_[name] > before; }, "the signal " + name);
}

void FakePanel::click(const std::string& method, int x, int y) const {
    require(sd_bus_call_method(bus_.get(), item_.c_str(), path_.c_str(), itemInterface,
                               method.c_str(), nullptr, nullptr, "ii", x, y),
            method + " failed");
}

} // namespace desktop

#include "platform/linux/statusitem/NotifierTable.h"

#include "platform/linux/statusitem/NotifierItem.h"

#include <array>

namespace platform::linux_host {

namespace {

const NotifierItem& item(void* object) {
    return *static_cast<NotifierItem*>(object);
}

int appendPicture(sd_bus_message* reply, const QImage& picture) {
    const auto size = static_cast<std::size_t>(picture.sizeInBytes());
    sd_bus_message_open_container(reply, 'r', "iiay");
    sd_bus_message_append(reply, "ii", picture.width(), picture.height());
    sd_bus_message_append_array(reply, 'y', picture.constBits(), size);
    return sd_bus_message_close_container(reply);
}

int appendPictures(sd_bus_message* reply, const std::vector<QImage>& pictures) {
    sd_bus_message_open_container(reply, 'a', "(iiay)");
    for (const QImage& picture : pictures) {
        appendPicture(reply, picture);
    }
    return sd_bus_message_close_container(reply);
}

int getTitle(sd_bus*, const char*, const char*, const char*, sd_bus_message* reply, void* object,
             sd_bus_error*) {
    return sd_bus_message_append(reply, "s", item(object).spokenText().c_str());
}

int getLabel(sd_bus*, const char*, const char*, const char*, sd_bus_message* reply, void* object,
             sd_bus_error*) {
    return sd_bus_message_append(reply, "s", item(object).label().c_str());
}

int getIconPixmap(sd_bus*, const char*, const char*, const char*, sd_bus_message* reply,
                  void* object, sd_bus_error*) {
    return appendPictures(reply, item(object).pictures());
}

// A tip has an icon's name, pictures, a title and a text. There is no more to say than the title.
int getToolTip(sd_bus*, const char*, const char*, const char*, sd_bus_message* reply, void* object,
               sd_bus_error*) {
    sd_bus_message_open_container(reply, 'r', "sa(iiay)ss");
    sd_bus_message_append(reply, "s", "");
    appendPictures(reply, {});
    sd_bus_message_append(reply, "ss", item(object).spokenText().c_str(), "");
    return sd_bus_message_close_container(reply);
}

int press(sd_bus_message* call, void* object, sd_bus_error*) {
    int x = 0;
    int y = 0;
    const int status = sd_bus_message_read(call, "ii", &x, &y);
    if (status < 0) {
        return status;
    }
    item(object).press({x, y});
    return sd_bus_reply_method_return(call, nullptr);
}

// The wheel means nothing to the item. Panels complain in their logs where the method is missing.
int ignoreScroll(sd_bus_message* call, void*, sd_bus_error*) {
    return sd_bus_reply_method_return(call, nullptr);
}

// A property that never changes: the bus reads it where it is.
template <typename Value>
sd_bus_vtable constant(const char* name, const char* signature, const Value& value) {
    constexpr std::uint64_t flags = SD_BUS_VTABLE_PROPERTY_CONST | SD_BUS_VTABLE_ABSOLUTE_OFFSET;
    return SD_BUS_PROPERTY(name, signature, nullptr, reinterpret_cast<std::size_t>(&value), flags);
}

constexpr const char* category = "ApplicationStatus";
constexpr const char* id = "quellbar";
constexpr const char* status = "Active";
constexpr const char* iconName = ""; // so that panels take the pictures
constexpr int noWindow = 0;
constexpr int itemIsMenu = 0; // so that panels tell of clicks

} // namespace

const sd_bus_vtable* notifierTable() {
    constexpr std::uint64_t anyone = SD_BUS_VTABLE_UNPRIVILEGED;
    static const std::array<sd_bus_vtable, 21> table{{
        SD_BUS_VTABLE_START(0),
        constant("Category", "s", category),
        constant("Id", "s", id),
        constant("Status", "s", status),
        constant("IconName", "s", iconName),
        constant("WindowId", "i", noWindow),
        constant("ItemIsMenu", "b", itemIsMenu),
        constant("XAyatanaLabelGuide", "s", notifierLabelGuide),
        SD_BUS_PROPERTY("Title", "s", getTitle, 0, 0),
        SD_BUS_PROPERTY("ToolTip", "(sa(iiay)ss)", getToolTip, 0, 0),
        SD_BUS_PROPERTY("XAyatanaLabel", "s", getLabel, 0, 0),
        SD_BUS_PROPERTY("IconPixmap", "a(iiay)", getIconPixmap, 0, 0),
        SD_BUS_METHOD("Activate", "ii", "", press, anyone),
        SD_BUS_METHOD("SecondaryActivate", "ii", "", press, anyone),
        SD_BUS_METHOD("ContextMenu", "ii", "", press, anyone),
        SD_BUS_METHOD("Scroll", "is", "", ignoreScroll, anyone),
        SD_BUS_SIGNAL("NewTitle", "", 0),
        SD_BUS_SIGNAL("NewToolTip", "", 0),
        SD_BUS_SIGNAL("NewIcon", "", 0),
        SD_BUS_SIGNAL("XAyatanaNewLabel", "ss", 0),
        SD_BUS_VTABLE_END,
    }};
    return table.data();
}

} // namespace platform::linux_host

#include "platform/linux/x11/XWayland.h"

#include "platform/linux/x11/Connection.h"
#include "platform/linux/x11/Reply.h"

#include <string_view>
#include <vector>
#include <xcb/randr.h>

namespace platform::linux_host {

namespace {

constexpr std::string_view serverName = "XWAYLAND";

// Newer servers say it with an extension.
bool hasExtension(xcb_connection_t* connection) {
    const Reply<xcb_query_extension_reply_t> reply(xcb_query_extension_reply(
        connection,
        xcb_query_extension(connection, static_cast<std::uint16_t>(serverName.size()),
                            serverName.data()),
        nullptr));
    return reply && reply->present != 0;
}

bool hasRandr(xcb_connection_t* connection) {
    const auto* const extension = xcb_get_extension_data(connection, &xcb_randr_id);
    return extension != nullptr && extension->present != 0;
}

std::vector<xcb_randr_get_output_info_cookie_t> askForOutputs(Connection& connection) {
    const Reply<xcb_randr_get_screen_resources_current_reply_t> resources(
        xcb_randr_get_screen_resources_current_reply(
            connection.xcb(),
            xcb_randr_get_screen_resources_current(connection.xcb(), connection.root()), nullptr));
    std::vector<xcb_randr_get_output_info_cookie_t> cookies;
    if (!resources) {
        return cookies;
    }
    const auto* const outputs = xcb_randr_get_screen_resources_current_outputs(resources.get());
    for (int i = 0; i < resources->num_outputs; ++i) {
        cookies.push_back(
            xcb_randr_get_output_info(connection.xcb(), outputs[i], resources->config_timestamp));
    }
    return cookies;
}

bool isNamedAfterServer(xcb_connection_t* connection, xcb_randr_get_output_info_cookie_t cookie) {
    const Reply<xcb_randr_get_output_info_reply_t> output(
        xcb_randr_get_output_info_reply(connection, cookie, nullptr));
    if (!output) {
        return false;
    }
    const auto* const bytes =
        reinterpret_cast<const char*>(xcb_randr_get_output_info_name(output.get()));
    return std::string_view(bytes, output->name_len).starts_with(serverName);
}

// All servers of that kind name their outputs XWAYLAND0, XWAYLAND1 and so on.
bool hasOutput(Connection& connection) {
    if (!hasRandr(connection.xcb())) {
        return false;
    }
    bool found = false;
    for (const auto cookie : askForOutputs(connection)) {
        found = isNamedAfterServer(connection.xcb(), cookie) || found;
    }
    return found;
}

} // namespace

bool isXWayland(Connection& connection) {
    return hasExtension(connection.xcb()) || hasOutput(connection);
}

} // namespace platform::linux_host

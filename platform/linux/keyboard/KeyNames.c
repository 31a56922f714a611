#include "platform/linux/keyboard/KeyNames.h"

#include <stdlib.h>
#include <string.h>
#include <xcb/xkb.h>

static void visit_names(const xcb_xkb_key_name_t* names, unsigned first_keycode, unsigned count,
                        quellbar_key_visitor visit, void* context) {
    for (unsigned i = 0; i < count; ++i) {
        if (names[i].name[0] != '\0') {
            visit(context, names[i].name, (uint8_t)(first_keycode + i));
        }
    }
}

static void visit_alias(const xcb_xkb_key_alias_t* alias, const xcb_xkb_key_name_t* names,
                        unsigned first_keycode, unsigned count, quellbar_key_visitor visit,
                        void* context) {
    for (unsigned i = 0; i < count; ++i) {
        if (memcmp(names[i].name, alias->real, quellbar_key_name_length) == 0) {
            visit(context, alias->alias, (uint8_t)(first_keycode + i));
            return;
        }
    }
}

/* A request of an extension that the server lacks would end the connection. */
static int has_extension(xcb_connection_t* connection) {
    const xcb_query_extension_reply_t* const data = xcb_get_extension_data(connection, &xcb_xkb_id);
    return data != NULL && data->present;
}

unsigned int quellbar_request_key_names(xcb_connection_t* connection) {
    if (!has_extension(connection)) {
        return 0;
    }
    const uint32_t parts = XCB_XKB_NAME_DETAIL_KEY_NAMES | XCB_XKB_NAME_DETAIL_KEY_ALIASES;
    return xcb_xkb_get_names(connection, XCB_XKB_ID_USE_CORE_KBD, parts).sequence;
}

void quellbar_visit_key_names(xcb_connection_t* connection, unsigned int request,
                              quellbar_key_visitor visit, void* context) {
    const xcb_xkb_get_names_cookie_t cookie = {request};
    xcb_xkb_get_names_reply_t* const reply =
        request != 0 ? xcb_xkb_get_names_reply(connection, cookie, NULL) : NULL;
    if (reply == NULL) {
        return;
    }
    xcb_xkb_get_names_value_list_t list;
    memset(&list, 0, sizeof list);
    xcb_xkb_get_names_value_list_unpack(xcb_xkb_get_names_value_list(reply), reply->nTypes,
                                        reply->indicators, reply->virtualMods, reply->groupNames,
                                        reply->nKeys, reply->nKeyAliases, reply->nRadioGroups,
                                        reply->which, &list);
    if ((reply->which & XCB_XKB_NAME_DETAIL_KEY_NAMES) != 0) {
        visit_names(list.keyNames, reply->firstKey, reply->nKeys, visit, context);
        for (unsigned i = 0; i < reply->nKeyAliases; ++i) {
            visit_alias(&list.keyAliases[i], list.keyNames, reply->firstKey, reply->nKeys, visit,
                        context);
        }
    }
    free(reply);
}

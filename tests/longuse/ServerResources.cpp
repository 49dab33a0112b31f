#include "tests/longuse/ServerResources.h"

#include <X11/Xlib.h>
#include <X11/extensions/XRes.h>
#include <memory>
#include <unistd.h>
#include <vector>

namespace {

using Connection = std::unique_ptr<Display, int (*)(Display*)>;

/** The X server's clients that are connections of this process. */
std::vector<XID> ownClients(Display* display) {
    XResClientIdSpec everyClient{None, XRES_CLIENT_ID_PID_MASK};
    long count = 0;
    XResClientIdValue* ids = nullptr;
    XResQueryClientIds(display, 1, &everyClient, &count, &ids);
    std::vector<XID> own;
    for (long i = 0; i < count; ++i) {
        if (XResGetClientPid(&ids[i]) == getpid()) {
            own.push_back(ids[i].spec.client);
        }
    }
    XResClientIdsDestroy(count, ids);
    return own;
}

} // namespace

std::map<std::string, unsigned int> countServerResources() {
    const Connection display(XOpenDisplay(nullptr), XCloseDisplay);
    std::map<std::string, unsigned int> counts;
    for (const XID client : ownClients(display.get())) {
        int typeCount = 0;
        XResType* types = nullptr;
        XResQueryClientResources(display.get(), client, &typeCount, &types);
        for (int i = 0; i < typeCount; ++i) {
            char* name = XGetAtomName(display.get(), types[i].resource_type);
            counts[name] += types[i].count;
            XFree(name);
        }
        XFree(types);
    }
    return counts;
}

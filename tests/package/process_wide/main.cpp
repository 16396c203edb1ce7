// process_wide PLUGIN application|plugin: succeeds when the program and the plug-in, which ask in that order, see the
// same objects.
#include "SharedObjects.h"

#include <cstdio>
#include <cstring>

#include <dlfcn.h>

int main(int argc, char *argv[])
{
    if (argc != 3)
        return 2;
    void *plugin = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
    void *symbol = plugin ? dlsym(plugin, "pluginSharedObjects") : nullptr;
    if (!symbol) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 2;
    }
    const auto askPlugin = reinterpret_cast<SharedObjectsFunction>(symbol);

    SharedObjects ours {};
    SharedObjects theirs {};
    if (std::strcmp(argv[2], "plugin") == 0) {
        askPlugin(&theirs);
        ours = sharedObjects();
    } else {
        ours = sharedObjects();
        askPlugin(&theirs);
    }

    int different = 0;
    for (std::size_t i = 0; i < ours.size(); ++i) {
        std::printf("%-32s %p in the program, %p in the plug-in\n", ours[i].name, ours[i].address, theirs[i].address);
        if (!ours[i].address || ours[i].address != theirs[i].address)
            ++different;
    }
    return different == 0 ? 0 : 1;
}

#include "services.h"

#include <dlfcn.h>

#include <cstdio>

int main(int argc, char *argv[])
{
    void *plugin = argc == 2 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
    if (!plugin) {
        std::fprintf(stderr, "cannot load the plug-in: %s\n", dlerror());
        return 1;
    }
    std::array<const void *, 5> theirs {};
    reinterpret_cast<ServicesFunction>(dlsym(plugin, "services"))(&theirs);
    const std::array<const void *, 5> ours = servicesOfThisModule();
    for (std::size_t i = 0; i < ours.size(); ++i)
        std::printf("%zu: %p %p\n", i, ours[i], theirs[i]);
    return ours == theirs ? 0 : 1;
}

#include "desktop/early_fonts.h"

#include <dlfcn.h>

namespace quillfern::desktop {

std::jthread read_fonts_early()
{
    // Nothing of the toolkit may be used here: it takes the first thread that it sees for the main one.
    return std::jthread([] {
        void* fontconfig = dlopen("libfontconfig.so.1", RTLD_LAZY);
        if (fontconfig == nullptr)
            return;
        // https://www.freedesktop.org/software/fontconfig/fontconfig-devel/fcinit.html: may be called again, and from
        // several threads.
        if (const auto initialise = reinterpret_cast<int (*)()>(dlsym(fontconfig, "FcInit")))
            initialise();
    });
}

} // namespace quillfern::desktop

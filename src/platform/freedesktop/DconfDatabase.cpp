#include "DconfDatabase.h"

#include <dlfcn.h>

std::unique_ptr<DconfDatabase> DconfDatabase::make()
{
    // Looked for where the program says that its libraries lie.
    static void *const library = dlopen("libcorvane-dconf.so", RTLD_LAZY);
    using Make = DconfDatabase *();
    static auto *const make = library ? reinterpret_cast<Make *>(dlsym(library, "makeDconfDatabase")) : nullptr;
    if (!make)
        qFatal("%s", dlerror());
    return std::unique_ptr<DconfDatabase>(make());
}

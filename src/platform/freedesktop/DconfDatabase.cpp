#include "DconfDatabase.h"

#include <dlfcn.h>

std::filesystem::path DconfDatabase::library(const std::filesystem::path &program)
{
    const char *const name = "libcorvane-dconf.so";
    for (auto folder = program.parent_path(); folder.has_relative_path(); folder = folder.parent_path()) {
        const std::filesystem::path file = folder / "Frameworks" / name;
        std::error_code error;
        if (folder.filename() == "Contents" && std::filesystem::exists(file, error))
            return file;
    }
    return name;
}

std::unique_ptr<DconfDatabase> DconfDatabase::make()
{
    std::error_code error;
    static void *const opened =
        dlopen(library(std::filesystem::read_symlink("/proc/self/exe", error)).c_str(), RTLD_LAZY);
    using Make = DconfDatabase *();
    static auto *const make = opened ? reinterpret_cast<Make *>(dlsym(opened, "makeDconfDatabase")) : nullptr;
    if (!make)
        qFatal("%s", dlerror());
    return std::unique_ptr<DconfDatabase>(make());
}

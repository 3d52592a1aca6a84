#include "DconfDatabase.h"

#include <QDir>
#include <QFileInfo>

#include <dlfcn.h>

namespace {

const QString name = QStringLiteral("libcorvane-dconf.so");

/// The library in a bundle that the program lies in, or its name, for the loader to look for. A program that told the
/// loader of the bundle would have it look there for every library that it is linked with, before it starts.
QString libraryFile()
{
    const QString program = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
    for (QDir folder(program); !folder.isRoot(); folder = QFileInfo(folder.path()).dir()) {
        const QString file = folder.filePath(QStringLiteral("Frameworks/") + name);
        if (folder.dirName() == u"Contents" && QFileInfo::exists(file))
            return file;
    }
    return name;
}

}

std::unique_ptr<DconfDatabase> DconfDatabase::make()
{
    static void *const library = dlopen(QFile::encodeName(libraryFile()).constData(), RTLD_LAZY);
    using Make = DconfDatabase *();
    static auto *const make = library ? reinterpret_cast<Make *>(dlsym(library, "makeDconfDatabase")) : nullptr;
    if (!make)
        qFatal("%s", dlerror());
    return std::unique_ptr<DconfDatabase>(make());
}

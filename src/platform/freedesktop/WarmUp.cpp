#include "WarmUp.h"

#include <QLibrary>

#include <fontconfig/fontconfig.h>

// The engine would find the libraries by itself, but only when it meets the imports, one after the other. One that
// is missing here is still looked for there.
std::future<void> WarmUp::begin()
{
    return std::async(std::launch::async, [] {
        FcInit();
        for (const char *library : {"Qt6QuickTemplates2", "Qt6QmlWorkerScript"})
            QLibrary(QString::fromLatin1(library), QT_VERSION_MAJOR).load();
    });
}

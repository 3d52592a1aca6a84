#include "WarmUp.h"

#include "DconfDatabase.h"

#include <QLibrary>

#include <fontconfig/fontconfig.h>

// The engine would find the library by itself, but only when it meets the import. If it is missing here it is still
// looked for there.
std::future<void> WarmUp::begin()
{
    return std::async(std::launch::async, [] {
        FcInit();
        QLibrary(QStringLiteral("Qt6QmlWorkerScript"), QT_VERSION_MAJOR).load();
        DconfDatabase::make();
    });
}

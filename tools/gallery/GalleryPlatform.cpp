#include "GalleryPlatform.h"

#include "EBKitFonts.h"
#include "FakePlatform.h"

#include <QDir>

FakePlatform &installGalleryPlatform(const QString &fontsFolder)
{
    FakePlatform &platform = FakePlatform::install();
    for (const QString &face : {EBKitFonts::display, EBKitFonts::mono}) {
        const QString file = face + QStringLiteral(".ttf");
        platform.main.resources.insert(file, QUrl::fromLocalFile(QDir(fontsFolder).filePath(file)));
    }
    EBKitFonts::registerFonts();
    return platform;
}

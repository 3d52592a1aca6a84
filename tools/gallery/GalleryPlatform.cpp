#include "GalleryPlatform.h"

#include "EBKitFonts.h"
#include "FakePlatform.h"
#include "ProductIcon.h"

#include <QDir>

namespace {

/// The gallery uses the real clock, so that what a scene has delayed happens.
class GalleryPlatform : public FakePlatform {
public:
    MainQueue &mainQueue() override { return m_queue; }

private:
    MainQueue m_queue;
};

}

FakePlatform &installGalleryPlatform(const QString &fontsFolder)
{
    Platform::install(std::make_unique<GalleryPlatform>());
    auto &platform = static_cast<FakePlatform &>(Platform::current());
    for (const QString &face : {EBKitFonts::display, EBKitFonts::mono}) {
        const QString file = face + QStringLiteral(".ttf");
        platform.main.resources.insert(file, QUrl::fromLocalFile(QDir(fontsFolder).filePath(file)));
    }
    platform.space.fileIcons.insert(QStringLiteral("/Applications/Corvane.app"), ProductIcon::icon());
    EBKitFonts::registerFonts();
    return platform;
}

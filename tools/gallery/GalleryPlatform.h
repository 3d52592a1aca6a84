#pragma once

#include <QString>

class FakePlatform;

/// Installs a desktop that exists in memory only, so that a scene shows what it asks for whatever the real desktop
/// says, and registers the kit's two faces from the files in `fontsFolder`. To be called after the application object
/// is made.
FakePlatform &installGalleryPlatform(const QString &fontsFolder);

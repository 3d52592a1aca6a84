#pragma once

#include "EBKitFonts.h"
#include "FakeBundle.h"

/// Puts the kit's faces into a bundle, from where EBKitFonts::registerFonts() takes them.
inline void addFaces(FakeBundle &bundle)
{
    for (const QString &face : {EBKitFonts::display, EBKitFonts::mono}) {
        const QString file = face + QStringLiteral(".ttf");
        bundle.resources.insert(file, QUrl::fromLocalFile(QStringLiteral(CORVANE_FONTS_FOLDER) + file));
    }
}

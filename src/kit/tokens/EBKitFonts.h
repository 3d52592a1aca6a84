#pragma once

#include <QFont>
#include <QString>

/// The two faces the kit brings along, from the application's resources.
namespace EBKitFonts {

inline const QString display = QStringLiteral("InstrumentSans-SemiBold");
inline const QString mono = QStringLiteral("GeistMono-Medium");

/// Registers both faces for this process; called once, before any window is made, and again it does nothing.
/// A file the bundle lacks is logged in one line, and its texts fall back to what the platform substitutes.
void registerFonts();

/// A font of that face; of the platform's substitute when the face is not registered.
QFont face(const QString &name);

}

#include "EBKitFonts.h"

#include "Platform.h"

#include <QFontDatabase>
#include <QHash>

namespace {

bool registered = false;

/// What the platform calls the faces once they are registered.
QHash<QString, QString> &families()
{
    static QHash<QString, QString> byFace;
    return byFace;
}

}

void EBKitFonts::registerFonts()
{
    if (registered)
        return;
    registered = true;
    for (const QString &name : {display, mono}) {
        const QUrl url = Platform::current().mainBundle().urlForResource(name, QStringLiteral("ttf"));
        if (url.isEmpty()) {
            qWarning("Embera: font %s.ttf is missing from the bundle", qPrintable(name));
            continue;
        }
        const int id = QFontDatabase::addApplicationFont(url.toLocalFile());
        const QStringList found = QFontDatabase::applicationFontFamilies(id);
        if (!found.isEmpty())
            families().insert(name, found.constFirst());
    }
}

QFont EBKitFonts::face(const QString &name)
{
    return QFont(families().value(name, name));
}

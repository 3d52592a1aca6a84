#include "QuickTypes.h"

#ifdef CORVANE_QML_PRIVATE

#include <QString>

#include <private/qqmlmetatype_p.h>

// Qt Quick exports it for its plugin.
void qml_register_types_QtQuick();

void QuickTypes::registerNow()
{
    const QString module = QStringLiteral("QtQuick");
    qml_register_types_QtQuick();
    // The import calls what it finds there, and would register everything a second time.
    QQmlMetaType::qmlRemoveModuleRegistration(module);
    QQmlMetaType::qmlInsertModuleRegistration(module, [] {});
}

#else

void QuickTypes::registerNow() { }

#endif

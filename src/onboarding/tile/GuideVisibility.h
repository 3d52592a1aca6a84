#pragma once

#include "NotificationCenter.h"

#include <functional>

/// The notice on the default notification centre by which the guide window is asked to show itself, or to step aside.
namespace GuideVisibility {

inline const QString notification = QStringLiteral("cv.guide.visible");

inline void post(bool visible)
{
    NotificationCenter::defaultCenter().post(notification, visible);
}

/// Calls `observer` for each such notice for as long as `context` lives and the connection stands. One that carries no
/// Boolean asks to show the window.
inline QMetaObject::Connection observe(QObject *context, std::function<void(bool visible)> observer)
{
    const auto hear = [observer = std::move(observer)](const QString &name, const QVariant &object) {
        if (name == notification)
            observer(object.typeId() != QMetaType::Bool || object.toBool());
    };
    return QObject::connect(&NotificationCenter::defaultCenter(), &NotificationCenter::posted, context, hear);
}

}

#pragma once

#include "NotificationCenter.h"

#include <functional>

/// The notification on the default center that asks the guide window to show itself or to hide.
namespace GuideVisibility {

inline const QString notification = QStringLiteral("cv.guide.visible");

inline void post(bool visible)
{
    NotificationCenter::defaultCenter().post(notification, visible);
}

/// Calls `observer` for each of these notifications while `context` lives and the connection stands. One without a
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

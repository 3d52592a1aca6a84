#pragma once

#include "EBKit.h"

#include <QObject>
#include <qqmlregistration.h>

/// The palette for QML, one property a token. Every value follows the desktop's appearance while it is shown.
class EB : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool reduceMotion READ reduceMotion NOTIFY appearanceChanged)
#define EB_TOKEN(name, ...) Q_PROPERTY(QColor name READ name NOTIFY appearanceChanged)
    EB_COLOR_TOKENS(EB_TOKEN, EB_TOKEN)
#undef EB_TOKEN
public:
    explicit EB(QObject *parent = nullptr);

#define EB_TOKEN(name, ...)                                                                                            \
    QColor name() const                                                                                                \
    {                                                                                                                  \
        return EBKit::name().current();                                                                                \
    }
    EB_COLOR_TOKENS(EB_TOKEN, EB_TOKEN)
#undef EB_TOKEN

    bool reduceMotion() const;

signals:
    void appearanceChanged();
};

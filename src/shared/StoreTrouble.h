#pragma once

#include "UserDefaults.h"

#include <QObject>
#include <qqmlregistration.h>

/// What a person is told while changes cannot be saved.
class StoreTrouble : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// One or two sentences; empty while everything is saved.
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
public:
    explicit StoreTrouble(QObject *parent = nullptr);

    static QString text();

    /// The same of any reason.
    static QString text(UserDefaults::Trouble trouble);

signals:
    void textChanged();
};

#pragma once

#include "Hotkey.h"

#include <QAbstractListModel>
#include <qqmlregistration.h>

/// The agent's shortcuts in their order, each with its label, its keys, whether it is on and whether that can be
/// changed. It follows the store, whoever writes there. Switching one is stored and nothing more: the agent follows the
/// store too.
class ShortcutsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
public:
    enum Role { LabelRole = Qt::UserRole, KeysRole, OnRole, WritableRole };

    explicit ShortcutsModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Switches the shortcut in that row; a row that is none changes nothing.
    Q_INVOKABLE void setOn(int row, bool on);

private:
    void storeChanged(const QString &key);
};

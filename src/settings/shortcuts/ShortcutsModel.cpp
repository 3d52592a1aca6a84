#include "ShortcutsModel.h"

#include "Shared.h"
#include "UserDefaults.h"

#include <QCoreApplication>

namespace {

constexpr std::array labels = {
    QT_TRANSLATE_NOOP("ShortcutsModel", "Close window"),
    QT_TRANSLATE_NOOP("ShortcutsModel", "Close all windows of the app"),
    QT_TRANSLATE_NOOP("ShortcutsModel", "Minimize window"),
    QT_TRANSLATE_NOOP("ShortcutsModel", "Full screen / maximize window"),
    QT_TRANSLATE_NOOP("ShortcutsModel", "Hide app"),
    QT_TRANSLATE_NOOP("ShortcutsModel", "Hide other apps"),
    QT_TRANSLATE_NOOP("ShortcutsModel", "Force-quit app"),
};
static_assert(labels.size() == Hotkeys::allCases.size());

Hotkey hotkeyAt(int row)
{
    return Hotkeys::allCases[std::size_t(row)];
}

bool isOn(Hotkey hotkey)
{
    return !Shared::value(Shared::Key::hotkeyDisabled(hotkey)).toBool();
}

}

ShortcutsModel::ShortcutsModel(QObject *parent) : QAbstractListModel(parent)
{
    connect(&Shared::store(), &UserDefaults::changed, this, &ShortcutsModel::storeChanged);
}

int ShortcutsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(labels.size());
}

QVariant ShortcutsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case LabelRole:
        return QCoreApplication::translate("ShortcutsModel", labels[std::size_t(index.row())]);
    case KeysRole:
        return Hotkeys::shownAs(hotkeyAt(index.row()));
    case OnRole:
        return isOn(hotkeyAt(index.row()));
    case WritableRole:
        return Shared::store().isWritable(Shared::Key::hotkeyDisabled(hotkeyAt(index.row())));
    default:
        return {};
    }
}

QHash<int, QByteArray> ShortcutsModel::roleNames() const
{
    return {{LabelRole, "label"}, {KeysRole, "keys"}, {OnRole, "on"}, {WritableRole, "writable"}};
}

void ShortcutsModel::setOn(int row, bool on)
{
    if (row >= 0 && row < rowCount())
        Shared::store().setValue(Shared::Key::hotkeyDisabled(hotkeyAt(row)), !on);
}

void ShortcutsModel::storeChanged(const QString &key)
{
    for (int row = 0; row < rowCount(); ++row) {
        if (key.isEmpty() || key == Shared::Key::hotkeyDisabled(hotkeyAt(row)))
            emit dataChanged(index(row), index(row), {OnRole});
    }
}

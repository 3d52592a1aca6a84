#include "ButtonsActions.h"

#include "Shared.h"
#include "UserDefaults.h"

namespace {

/// True when it made a difference.
bool store(const QString &key, const QVariant &value)
{
    UserDefaults &store = Shared::store();
    const QVariant stored = store.value(key);
    const QVariant before = stored.isValid() ? stored : Contract::defaultValue(key);
    if (before == value && before.metaType() == value.metaType())
        return false;
    store.setValue(key, value);
    return true;
}

void storeAndTell(const QString &key, const QVariant &value)
{
    if (store(key, value))
        Shared::send(Shared::Command::applySettings);
}

}

void ButtonsActions::setTheme(const QString &rawValue)
{
    storeAndTell(Shared::Key::buttonTheme, rawValue);
}

void ButtonsActions::setSize(const QString &rawValue)
{
    storeAndTell(Shared::Key::buttonSizeOption, rawValue);
}

void ButtonsActions::setMinimizeShown(bool shown)
{
    storeAndTell(Shared::Key::showMinimizeButton, shown);
}

void ButtonsActions::setMaximizeShown(bool shown)
{
    storeAndTell(Shared::Key::showMaximizeButton, shown);
}

void ButtonsActions::setMaximizeMode(const QString &mode)
{
    store(Shared::Key::maximizeMode, mode);
}

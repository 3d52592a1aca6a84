#pragma once

#include <QString>
#include <QVariant>

/// Settings in the words of the pages on which they stand, translated with them.
namespace SettingWords {

/// What the page calls the setting.
QString title(const QString &key);

/// What the page shows for that value; an invalid one reads as the default.
QString value(const QString &key, const QVariant &value);

}

#pragma once

#include <QStringList>

/// The languages that the windows speak.
namespace Language {

/// The first of the wished languages that there are texts in, by its code: "de". Empty for English, in which they are
/// written, and when there is none. Languages are named as by `QLocale::uiLanguages()`; a name without a meaning is
/// passed over.
QString chosen(const QStringList &wished);

/// From now on texts are made in that language, and windows are laid out in its direction. Nothing happens for an empty
/// code or one that `chosen()` does not give.
void use(const QString &code);

}

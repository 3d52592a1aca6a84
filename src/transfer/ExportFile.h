#pragma once

#include "Contract.h"

#include <QByteArray>
#include <QMap>

/// The file that a person's settings are taken along in: JSON, sorted and indented.
///
///     {
///       "format": 1,
///       "settings": {
///         "buttonSizeOption": null,
///         "buttonTheme": "soft",
///         "layouts.saved": [
///           …
namespace ExportFile {

/// The version of the form: the one that is written, and the newest that is read.
constexpr unsigned format = 1;

/// The largest file that anybody reads, in bytes.
constexpr qint64 largest = 16 << 20;

/// Values by the names of their keys; an invalid value says that the key is not set. The saved layouts are the text
/// that is stored, in its normal form.
using Settings = QMap<QString, QVariant>;

/// Why a file is refused.
struct Fault {
    /// From 1.
    int line = 0;
    QString reason;

    bool operator==(const Fault &) const = default;
};

struct Reading {
    Settings settings;
    /// In the order of the file, at most twenty. With one of them the file is refused, and the settings mean nothing.
    QList<Fault> faults;
};

/// The text of the file, which ends with a line end. The layouts must be in their normal form.
QByteArray write(const Settings &settings);

/// Reads a file with all that `keys` declare. Refused are other keys, those that hold the agent's state, a key that
/// stands twice, values that the key cannot hold, a layout that cannot be read, and files of a newer form. A whole
/// number is a number; layouts without an id, a name or a date are given one.
Reading read(const QByteArray &file, const QList<Contract::StoreKey> &keys);

}

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// A desktop entry, read as a launcher does.
class EntryFile {
public:
    /// A file that is missing holds nothing.
    explicit EntryFile(const QString &path);

    /// The text of `key`, in the entry's own group or in that of an action.
    QString value(const QString &key, const QString &action = {}) const;

    /// The program and its arguments that "Exec" names, its quotes and doubled per cents undone.
    QStringList command(const QString &action = {}) const;

private:
    /// Each line as "group/key".
    QMap<QString, QString> m_values;
};

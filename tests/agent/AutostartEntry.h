#pragma once

#include <QString>
#include <QStringList>

/// A desktop entry file as a desktop reads it.
class AutostartEntry {
public:
    explicit AutostartEntry(const QString &path);

    /// Whether there is such a file and it can be read as a desktop entry.
    bool isValid() const { return m_isValid; }

    /// The text under a key of the entry, its escapes resolved; null when the key is absent or its text is damaged.
    QString text(const QString &key) const;

    /// The program and its arguments that the entry starts; empty when its command line cannot be read.
    QStringList command() const;

    bool isHidden() const;

private:
    QString m_path;
    bool m_isValid;
};

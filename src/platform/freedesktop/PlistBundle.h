#pragma once

#include "Bundle.h"

#include <memory>
#include <optional>

/// A bundle as a folder: Contents/Info.plist (XML or binary), Contents/MacOS and Contents/Resources.
///
/// The Info.plist is read once, when it is first asked for. One that is missing, damaged, far too large or no
/// dictionary is no info dictionary.
class PlistBundle : public Bundle {
public:
    explicit PlistBundle(const QString &folder);

    /// The bundle around an executable, symbolic links followed. One that lies in no bundle has its own
    /// folder for it.
    static PlistBundle around(const QString &executable);

    QUrl bundleURL() const override { return QUrl::fromLocalFile(m_folder); }
    bool hasInfoDictionary() const override;
    QVariant objectForInfoDictionaryKey(const QString &key) const override;
    QUrl urlForResource(const QString &name, const QString &extension) const override;

    /// The file to start the application with, "CFBundleExecutable" in Contents/MacOS; empty when there is
    /// none.
    QString executable() const;

private:
    void *infoDictionary() const;

    QString m_folder;
    QString m_executable;
    mutable std::optional<std::shared_ptr<void>> m_info;
};

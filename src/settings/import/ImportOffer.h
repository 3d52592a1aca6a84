#pragma once

#include "ExportFile.h"

#include <QObject>
#include <QVariantList>
#include <qqmlregistration.h>

/// An export file that a person may import.
class ImportOffer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A file that is dropped makes one")
    /// The name of the file, without its folder.
    Q_PROPERTY(QString fileName READ fileName CONSTANT)
    /// What the import changes for a person: a list of {title, before, after}, in the words of the pages.
    Q_PROPERTY(QVariantList changes READ changes CONSTANT)
    /// The settings could not be stored, and everything is as it was.
    Q_PROPERTY(bool hasFailed READ hasFailed NOTIFY hasFailedChanged)
public:
    ImportOffer(QString fileName, ExportFile::Settings settings);

    QString fileName() const { return m_fileName; }
    QVariantList changes() const;
    bool hasFailed() const { return m_hasFailed; }

    /// Stores the settings and has the agent apply them. False when that failed; it can be tried again.
    bool accept();

signals:
    void hasFailedChanged();

private:
    const QString m_fileName;
    const ExportFile::Settings m_settings;
    bool m_hasFailed = false;
};

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
    /// Why the settings could not be stored, in a person's words; everything is as it was then. Empty before an attempt
    /// has failed, and during the next one.
    Q_PROPERTY(QString failure READ failure NOTIFY failureChanged)
public:
    ImportOffer(QString fileName, ExportFile::Settings settings);

    QString fileName() const { return m_fileName; }
    QVariantList changes() const;
    QString failure() const { return m_failure; }

    /// Stores the settings and has the agent apply them. False when that failed; it can be tried again.
    bool accept();

signals:
    void failureChanged();

private:
    void setFailure(const QString &failure);

    const QString m_fileName;
    const ExportFile::Settings m_settings;
    QString m_failure;
};

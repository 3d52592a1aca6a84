#pragma once

#include "EBSettingsWindowController.h"

#include <qqmlregistration.h>

/// The selection of the settings window, and what it shows of the page that is selected.
class EBSettingsWindowController::Model : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(SettingsModel)
    QML_UNCREATABLE("The settings window's controller makes the model")
    /// The id of the selected page. An id that no page has shows the first page.
    Q_PROPERTY(QString selection READ selection WRITE setSelection NOTIFY selectionChanged)
    Q_PROPERTY(QString title READ title NOTIFY selectionChanged)
    Q_PROPERTY(QUrl content READ content NOTIFY selectionChanged)
    /// The shown page's position among all pages, from 1.
    Q_PROPERTY(int number READ number NOTIFY selectionChanged)
    /// What the person is told whatever page is shown; usually nothing.
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    /// What the person can answer to that, if anything.
    Q_PROPERTY(QList<QString> answers READ answers NOTIFY noticeChanged)
public:
    Model(QList<EBSettingsPage> pages, const std::optional<QString> &initial, QObject *parent);

    QString selection() const { return m_selection; }
    void setSelection(const QString &id);
    QString title() const { return m_pages.at(current()).title; }
    QUrl content() const { return m_pages.at(current()).content; }
    int number() const { return int(current()) + 1; }
    QString notice() const { return m_notice; }
    QStringList answers() const { return m_answers; }
    void setNotice(const QString &notice, const QStringList &answers = {});

signals:
    void selectionChanged();
    void noticeChanged();

    /// The person gave the answer of that index.
    void answered(int index);

private:
    qsizetype current() const;

    const QList<EBSettingsPage> m_pages;
    QString m_selection;
    QString m_notice;
    QStringList m_answers;
};

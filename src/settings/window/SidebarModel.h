#pragma once

#include "EBSettingsPage.h"

#include <QAbstractListModel>
#include <qqmlregistration.h>

/// The pages of the window as the sidebar lists them: all of them, or those the search text finds.
class SidebarModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The settings window's controller makes the sidebar's model")
    /// Part of the view's state: what stands in the search field.
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
public:
    enum Role { IdRole = Qt::UserRole, TitleRole, GlyphRole };

    explicit SidebarModel(QList<EBSettingsPage> pages, QObject *parent = nullptr);

    QString search() const { return m_search; }
    void setSearch(const QString &search);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The title of the page with that id; empty when there is none.
    Q_INVOKABLE QString title(const QString &id) const;

    /// The id of the listed page `step` places below the page `id`, stopping at both ends. A page that is not
    /// listed counts as standing above the first; in an empty list the id itself.
    Q_INVOKABLE QString neighbour(const QString &id, int step) const;

signals:
    void searchChanged();

private:
    const QList<EBSettingsPage> m_pages;
    QList<EBSettingsPage> m_shown;
    QString m_search;
};

#include "SettingsModel.h"

EBSettingsWindowController::Model::Model(QList<EBSettingsPage> pages, const std::optional<QString> &initial,
                                         QObject *parent)
    : QObject(parent), m_pages(std::move(pages)), m_selection(initial.value_or(QString()))
{
    Q_ASSERT(!m_pages.isEmpty());
    m_selection = m_pages.at(current()).id;
}

void EBSettingsWindowController::Model::setSelection(const QString &id)
{
    if (m_selection == id)
        return;
    m_selection = id;
    emit selectionChanged();
}

void EBSettingsWindowController::Model::setNotice(const QString &notice, const QStringList &answers)
{
    if (m_notice == notice && m_answers == answers)
        return;
    m_notice = notice;
    m_answers = answers;
    emit noticeChanged();
}

qsizetype EBSettingsWindowController::Model::current() const
{
    for (qsizetype i = 0; i < m_pages.size(); ++i) {
        if (m_pages.at(i).id == m_selection)
            return i;
    }
    return 0;
}

#include "ImportOffer.h"

#include "SettingWords.h"
#include "SettingsTransfer.h"
#include "Shared.h"
#include "UserDefaults.h"

using namespace std::chrono_literals;

ImportOffer::ImportOffer(QString fileName, ExportFile::Settings settings)
    : m_fileName(std::move(fileName)), m_settings(std::move(settings))
{
}

QVariantList ImportOffer::changes() const
{
    QVariantList list;
    for (const SettingsTransfer::Change &change : SettingsTransfer::changes(m_settings, Shared::store())) {
        list.append(QVariantMap{{QStringLiteral("title"), SettingWords::title(change.key)},
                                {QStringLiteral("before"), SettingWords::value(change.key, change.before)},
                                {QStringLiteral("after"), SettingWords::value(change.key, change.after)}});
    }
    return list;
}

bool ImportOffer::accept()
{
    const bool isDone =
        SettingsTransfer::apply(SettingsTransfer::changes(m_settings, Shared::store()), Shared::store(), 2s);
    if (m_hasFailed == isDone) {
        m_hasFailed = !isDone;
        emit hasFailedChanged();
    }
    return isDone;
}

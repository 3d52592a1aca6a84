#include "ImportOffer.h"

#include "SettingWords.h"
#include "SettingsTransfer.h"
#include "Shared.h"

using namespace std::chrono_literals;

ImportOffer::ImportOffer(QString fileName, ExportFile::Settings settings)
    : m_fileName(std::move(fileName)), m_settings(std::move(settings))
{
}

QVariantList ImportOffer::changes() const
{
    QVariantList list;
    for (const SettingsTransfer::Change &change : SettingsTransfer::changes(m_settings, Shared::store())) {
        const QString before = SettingWords::value(change.key, change.before);
        QString after = SettingWords::value(change.key, change.after);
        if (before == after) {
            // A default that is stored is the same to a person. Layouts may have their names and other windows.
            if (change.key != Shared::Key::layoutsSaved || !change.before.isValid() || !change.after.isValid())
                continue;
            //: %1 is the names of saved layouts. They stay, but what they put back is another.
            after = tr("Changed: %1").arg(after);
        }
        list.append(QVariantMap{{QStringLiteral("title"), SettingWords::title(change.key)},
                                {QStringLiteral("before"), before},
                                {QStringLiteral("after"), after}});
    }
    return list;
}

bool ImportOffer::accept()
{
    setFailure({});
    const auto trouble =
        SettingsTransfer::apply(SettingsTransfer::changes(m_settings, Shared::store()), Shared::store(), 2s);
    if (trouble == UserDefaults::Trouble::none)
        return true;
    setFailure(SettingsTransfer::failure(trouble));
    return false;
}

void ImportOffer::setFailure(const QString &failure)
{
    if (m_failure == failure)
        return;
    m_failure = failure;
    emit failureChanged();
}

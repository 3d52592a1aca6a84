#include "StoreKeeper.h"

#include "LayoutArchive.h"
#include "Platform.h"
#include "Shared.h"
#include "StoreCopy.h"
#include "UserDefaults.h"

#include <QPointer>

#include <utility>

namespace {

constexpr double delay = 2; // seconds

const QString copyName = QStringLiteral("settings.copy");
const QString lostName = QStringLiteral("settings.lost");

std::optional<QVariantMap> valuesIn(const StateFile &file)
{
    const auto content = file.read();
    return content ? StoreCopy::decode(*content) : std::nullopt;
}

bool hasValues(const StateFile &file)
{
    const auto values = valuesIn(file);
    return values && !values->isEmpty();
}

}

StoreKeeper::StoreKeeper() : m_copy(copyName), m_lost(lostName), m_writer(m_copy)
{
    m_hasLost = hasValues(m_lost);
    if (!m_hasLost && values().isEmpty() && hasValues(m_copy))
        m_hasLost = m_copy.rename(lostName);

    const UserDefaults &store = Shared::store();
    connect(&store, &UserDefaults::changed, this, &StoreKeeper::schedule);
    connect(&store, &UserDefaults::troubleChanged, this, &StoreKeeper::schedule);
    // The store may have changed while nobody copied it.
    write();
}

void StoreKeeper::finish(std::chrono::milliseconds limit)
{
    if (m_isDue)
        write();
    m_writer.finish(limit);
}

void StoreKeeper::restore()
{
    const auto values = valuesIn(m_lost);
    // Another process may have decided by now.
    if (!values) {
        startFresh();
        return;
    }
    UserDefaults &store = Shared::store();
    for (auto value = values->cbegin(); value != values->cend(); ++value) {
        LayoutArchive::beforeReplacing(value.key(), store);
        store.setValue(value.key(), *value);
    }
    store.afterWrites(lostName, [keeper = QPointer(this)] {
        if (keeper)
            keeper->startFresh();
        Shared::send(Shared::Command::applySettings);
    });
}

void StoreKeeper::startFresh()
{
    m_lost.remove();
    m_hasLost = false;
    emit lostChanged();
}

void StoreKeeper::schedule()
{
    if (!std::exchange(m_isDue, true))
        Platform::current().mainQueue().after(delay, this, [this] { write(); });
}

void StoreKeeper::write()
{
    m_isDue = false;
    if (Shared::store().trouble() == UserDefaults::Trouble::none)
        m_writer.write(values());
}

QVariantMap StoreKeeper::values()
{
    QVariantMap values;
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        const QVariant value = Shared::store().value(key.name);
        if (value.isValid() && !key.name.startsWith(QStringLiteral("agent.")))
            values.insert(key.name, value);
    }
    return values;
}

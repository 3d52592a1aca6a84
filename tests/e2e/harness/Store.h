#pragma once

#include <QVariantMap>

#include <memory>

struct _DConfClient;

/// What the agent reports, by the names of the keys.
namespace AgentKey {

inline const QString launchAtLogin = QStringLiteral("agent.launchAtLogin");
inline const QString trusted = QStringLiteral("agent.accessibilityTrusted");

}

/// The store the program shares with its agent, read and written as another process does. Keys are those of
/// the contract, such as "agent.launchAtLogin"; values are bool, double and QString.
class Store {
public:
    Store();

    /// The stored value; invalid when the key is absent.
    QVariant read(const QString &key) const;

    /// Every key that is stored, with its value.
    QVariantMap readAll() const;

    /// Stored once the call returns.
    void write(const QString &key, const QVariant &value) const;
    void remove(const QString &key) const;
    void removeAll() const;

    /// Waits until the key has that value; an invalid `value` waits until the key is gone.
    bool waitFor(const QString &key, const QVariant &value, int milliseconds = 5000) const;

private:
    std::shared_ptr<_DConfClient> m_client;
};

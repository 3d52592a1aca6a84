#pragma once

#include <QString>

/// A service that the session's bus has started, such as "ca.desrt.dconf".
class Service {
public:
    explicit Service(const QString &name);
    ~Service();
    Service(const Service &) = delete;
    Service &operator=(const Service &) = delete;

    /// Makes the service stand still: what is asked of it waits until it is released, here or with this object.
    bool hold();
    bool release();

    /// Ends the service and waits until it is gone. The bus starts a new one when it is asked for something.
    bool end() const;

private:
    bool signal(int number) const;

    QString m_name;
    qint64 m_processId;
    bool m_isHeld = false;
};

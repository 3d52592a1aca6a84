#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QFileSystemWatcher>
#include <QObject>

#include <chrono>
#include <future>
#include <memory>
#include <optional>

struct DBusConnection;

/// The message bus of the person's session, used only where one is already there.
///
/// A bus may accept connections and then say nothing, and Qt would wait for it for ever. So a thread of its own, which
/// ends with the attempt, first finds out whether it answers. A bus that comes late, or comes back, is found when its
/// socket appears or the connection is asked for again.
class SessionBus : public QObject {
    Q_OBJECT
public:
    inline static const QString busName = QStringLiteral("org.freedesktop.DBus");
    inline static const QString busPath = QStringLiteral("/org/freedesktop/DBus");

    static SessionBus &instance();

    /// Begins to find out whether the bus answers; an application object need not exist yet.
    void begin();

    /// Makes the connection on a thread of its own as soon as the bus has answered, if it does until half a second
    /// after the first attempt began. `connection` then finds it made. An application object must exist.
    void connectAhead();

    /// Whether the bus answers, which is waited for until half a second after the first attempt began. An application
    /// object need not exist yet.
    static bool hasAnswered();

    /// To be called before the first view is made: Qt then asks for the bus on behalf of assistive technologies. Where
    /// the bus has not answered half a second after the first attempt began, Qt is given none, for good, and assistive
    /// technologies do not hear of this process.
    static void guardToolkit();

    /// Whether the environment names a bus. If not, no library may be asked for one: it would launch one.
    static bool isPresent();

    /// The connection; none while there is no bus that answers. Waits for the first one of the process, at most until
    /// half a second after it was begun.
    static std::optional<QDBusConnection> connection();

    /// The connection; none while there is no bus that answers, and where it is still being made.
    static std::optional<QDBusConnection> connectionNow();

    /// Waits for the connection as long as that and no longer.
    static std::optional<QDBusConnection> connectionWithin(std::chrono::milliseconds limit);

    /// Ends a connection.
    struct Close {
        void operator()(DBusConnection *bus) const;
    };
    using OwnConnection = std::unique_ptr<DBusConnection, Close>;

    /// A connection of the caller's own; null where the bus cannot be spoken to. One that does not answer is waited for
    /// as long as it likes. An application object need not exist yet.
    static OwnConnection connectApart();

    /// A call that any bus answers, after it has taken everything sent before.
    static QDBusMessage question();

    /// What came back, or no reply once that long has passed. Qt's own waiting has no end where the bus dies in the
    /// moment of the call.
    static QDBusMessage answer(const QDBusConnection &bus, const QDBusMessage &call, std::chrono::milliseconds limit);
    /// Waits until the call has ended, at most that long.
    static void waitFor(QDBusPendingCall call, std::chrono::milliseconds limit);

signals:
    /// There is a connection, after there was none.
    void connected();

    /// There is no connection any more.
    void lost();

private slots:
    void disconnected();
    void look();

private:
    SessionBus() = default;

    std::chrono::milliseconds left() const;
    void take();
    void watchSocket();
    std::optional<QDBusConnection> current() const;

    /// When the first attempt began.
    std::optional<std::chrono::steady_clock::time_point> m_begun;
    QByteArray m_address;
    /// Whether the bus there answers.
    std::shared_future<bool> m_attempt;
    std::optional<QDBusConnection> m_bus;
    /// Exists while there is no connection.
    std::unique_ptr<QFileSystemWatcher> m_socketFolder;
    /// Something has happened in the socket's folder since the attempt began.
    bool m_hasNews = false;
};

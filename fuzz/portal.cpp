#include "PortalSettings.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusServer>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QThread>

#include <cstdint>
#include <cstdlib>

namespace {

/// The input as a source of numbers and texts; 0 and "" once it is used up.
class Bytes {
public:
    Bytes(const std::uint8_t *data, std::size_t size) : m_next(data), m_end(data + size) { }

    bool atEnd() const { return m_next == m_end; }
    std::uint8_t byte() { return atEnd() ? 0 : *m_next++; }
    QString text()
    {
        static const QStringList known = {QStringLiteral("org.freedesktop.appearance"),
                                          QStringLiteral("org.gnome.desktop.interface"),
                                          QStringLiteral("org.gnome.desktop.a11y.interface"),
                                          QStringLiteral("color-scheme"),
                                          QStringLiteral("contrast"),
                                          QStringLiteral("reduced-motion"),
                                          QStringLiteral("high-contrast"),
                                          QStringLiteral("enable-animations")};
        const std::uint8_t choice = byte();
        if (choice < 200)
            return known.at(choice % known.size());
        QString text;
        for (int length = choice - 200; length > 0 && !atEnd(); --length)
            text += QChar(byte() + 1);
        return text;
    }

private:
    const std::uint8_t *m_next;
    const std::uint8_t *m_end;
};

/// A value of any type that a portal could send, wrapped up to thirty times.
QVariant value(Bytes &bytes, int depth = 0)
{
    switch (bytes.byte() % 12) {
    case 0:
        return bytes.byte() % 2 == 0;
    case 1:
        return bytes.text();
    case 2:
        return double(bytes.byte());
    case 3:
        return int(bytes.byte());
    case 4:
        return QVariant::fromValue(quint64(bytes.byte()));
    case 5:
        return QByteArray(bytes.byte(), 'x');
    case 6:
        return QStringList{bytes.text(), bytes.text()};
    case 7:
        return QVariantMap{{bytes.text(), depth < 8 ? value(bytes, depth + 1) : QVariant(0)}};
    case 8:
        return QVariantList{bytes.byte(), bytes.text()};
    case 9:
    case 10:
        if (depth < 30)
            return QVariant::fromValue(QDBusVariant(value(bytes, depth + 1)));
        [[fallthrough]];
    default:
        return uint(bytes.byte());
    }
}

/// The part of a portal's answer that the input describes; a group and a key may be there twice.
QDBusArgument answer(Bytes &bytes)
{
    QDBusArgument groups;
    groups.beginMap(QMetaType::fromType<QString>(), QMetaType::fromType<QVariantMap>());
    while (!bytes.atEnd()) {
        groups.beginMapEntry();
        groups << bytes.text();
        groups.beginMap(QMetaType::fromType<QString>(), QMetaType::fromType<QDBusVariant>());
        for (int count = bytes.byte() % 8; count > 0; --count) {
            groups.beginMapEntry();
            groups << bytes.text() << QDBusVariant(value(bytes));
            groups.endMapEntry();
        }
        groups.endMap();
        groups.endMapEntry();
    }
    groups.endMap();
    return groups;
}

/// Who gets the question, and answers as the input says.
class Portal : public QDBusVirtualObject {
public:
    QVariantList answer;

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &question, const QDBusConnection &connection) override
    {
        QDBusMessage reply = question.createReply();
        reply.setArguments(answer);
        return connection.send(reply);
    }
};

/// Both ends of a connection without a bus.
class Peers {
public:
    Peers()
    {
        m_server.setAnonymousAuthenticationAllowed(true);
        m_portal.moveToThread(&m_thread);
        QObject::connect(
            &m_server, &QDBusServer::newConnection, &m_portal,
            [this](QDBusConnection connection) {
                connection.registerVirtualObject(QStringLiteral("/"), &m_portal);
                m_theirs = std::make_unique<QDBusConnection>(connection);
            },
            Qt::DirectConnection);
        m_ours = std::make_unique<QDBusConnection>(
            QDBusConnection::connectToPeer(m_server.address(), QStringLiteral("ours")));
        while (!m_theirs)
            QCoreApplication::processEvents();
        m_thread.start();
        // The new connection is only heard once the server's thread, which is this one, has run some more events.
        const QDBusPendingCall first = m_ours->asyncCall(question());
        while (!first.isFinished())
            QCoreApplication::processEvents();
    }

    QDBusMessage ask(const QVariantList &answer)
    {
        m_portal.answer = answer;
        return m_ours->call(question());
    }

private:
    static QDBusMessage question()
    {
        return QDBusMessage::createMethodCall(QString(), QStringLiteral("/"), QStringLiteral("a.b"),
                                              QStringLiteral("Ask"));
    }

    QThread m_thread;
    Portal m_portal;
    QDBusServer m_server{QStringLiteral("unix:tmpdir=/tmp")};
    std::unique_ptr<QDBusConnection> m_theirs;
    std::unique_ptr<QDBusConnection> m_ours;
};

}

/// Whatever the portal answers or says has changed, no more than what is used is kept, and the desktop has one look.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzzer";
    static char *argv[] = {name, nullptr};
    static QCoreApplication application(argc, argv);
    static Peers &peers = *new Peers;

    Bytes bytes(data, size);
    PortalSettings settings;
    for (int change = bytes.byte() % 4; change > 0; --change) {
        const QString group = bytes.text();
        settings.take(group, bytes.text(), value(bytes));
    }
    const bool isWhole = bytes.byte() % 8 != 0;
    const QVariant groups = isWhole ? QVariant::fromValue(answer(bytes)) : value(bytes);
    const QDBusMessage reply = peers.ask({groups});
    // What Qt has put off until an event loop runs.
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (settings.takeAnswer(reply) != (reply.signature() == QStringLiteral("a{sa{sv}}")))
        std::abort();
    if (settings.count() > 5 || (settings.isDark(true) != settings.isDark(false) && settings.isDark(false)))
        std::abort();
    (void)settings.isHighContrast();
    (void)settings.reducesMotion();
    return 0;
}

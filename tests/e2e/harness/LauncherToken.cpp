#include "LauncherToken.h"

#include <QLocalSocket>

#include <optional>

namespace {

/// The objects of the connection, by the numbers that this side gives them.
enum Object : quint32 { display = 1, registry, activation, token };

// The requests, and the events of the registry and of the token, by their numbers in the protocol.
constexpr quint16 getRegistry = 1;
constexpr quint16 bind = 0;
constexpr quint16 getToken = 1;
constexpr quint16 commit = 3;
constexpr quint16 global = 0;
constexpr quint16 done = 0;

constexpr const char *activationInterface = "xdg_activation_v1";
constexpr qsizetype wordSize = sizeof(quint32);

struct Event {
    quint32 object;
    quint16 code;
    QByteArray arguments;
};

QByteArray word(quint32 number)
{
    return {reinterpret_cast<const char *>(&number), wordSize};
}

quint32 wordAt(const QByteArray &bytes, qsizetype at)
{
    quint32 number = 0;
    std::memcpy(&number, bytes.constData() + at, sizeof number);
    return number;
}

/// With its length and a final zero, filled up to whole words.
QByteArray packed(QByteArray text)
{
    text.append('\0');
    const QByteArray length = word(quint32(text.size()));
    return length + text.append((wordSize - text.size() % wordSize) % wordSize, '\0');
}

QByteArray unpacked(const QByteArray &arguments, qsizetype at)
{
    return arguments.mid(at + wordSize, wordAt(arguments, at) - 1);
}

void send(QLocalSocket &socket, Object object, quint16 request, const QByteArray &arguments = {})
{
    const auto size = quint32(2 * wordSize + arguments.size());
    socket.write(word(object) + word(size << 16 | request) + arguments);
}

std::optional<QByteArray> read(QLocalSocket &socket, qint64 count)
{
    while (socket.bytesAvailable() < count) {
        if (!socket.waitForReadyRead())
            return std::nullopt;
    }
    return socket.read(count);
}

std::optional<Event> next(QLocalSocket &socket)
{
    const auto head = read(socket, 2 * wordSize);
    if (!head)
        return std::nullopt;
    const quint32 sizeAndCode = wordAt(*head, wordSize);
    const auto arguments = read(socket, (sizeAndCode >> 16) - 2 * wordSize);
    return arguments ? std::optional(Event{wordAt(*head, 0), quint16(sizeAndCode), *arguments}) : std::nullopt;
}

}

QByteArray launcherToken(const QString &path)
{
    QLocalSocket socket;
    socket.connectToServer(path);
    send(socket, display, getRegistry, word(registry));
    while (const auto event = next(socket)) {
        if (event->object == token && event->code == done)
            return unpacked(event->arguments, 0);
        const bool isOffer = event->object == registry && event->code == global;
        if (!isOffer || unpacked(event->arguments, wordSize) != activationInterface)
            continue;
        constexpr quint32 version = 1;
        send(socket, registry, bind,
             event->arguments.left(wordSize) + packed(activationInterface) + word(version) + word(activation));
        send(socket, activation, getToken, word(token));
        send(socket, token, commit);
    }
    return {};
}

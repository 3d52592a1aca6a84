#pragma once

#include <QByteArray>
#include <QString>

#include <string>

/// JSON text, read event by event and written value by value; no tree of values is built.
namespace Json {

/// Is told what a text holds, in order. Each call returns whether it is worth to read on. Texts are UTF-8.
class Listener {
public:
    virtual bool null() = 0;
    virtual bool boolean(bool value) = 0;
    /// Minus zero keeps its sign.
    virtual bool number(double value) = 0;
    virtual bool string(const std::string &text) = 0;
    virtual bool startObject() = 0;
    virtual bool key(const std::string &text) = 0;
    virtual bool endObject() = 0;
    virtual bool startArray() = 0;
    virtual bool endArray() = 0;
    /// The text is no JSON. `reason` is for a person and no longer than a line.
    virtual void fault(const QString &reason) = 0;

protected:
    ~Listener() = default;
};

/// Reads `text`, which must hold no zero byte: that counts as its end. `last` is the byte that was read last, also
/// during the listener's calls. A leading byte-order mark is passed over. False when the listener wanted no more or the
/// text is no JSON.
bool read(const QByteArray &text, Listener &listener, const char *&last);

/// The line that `place` stands in, from 1.
int lineOf(const char *begin, const char *place);

/// The value as JSON; a number that is not finite becomes null.
QByteArray written(double number);
QByteArray written(const QString &text);

}

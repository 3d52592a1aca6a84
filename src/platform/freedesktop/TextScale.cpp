#include "TextScale.h"

#include "SessionBus.h"

#include <dbus/dbus.h>

#include <memory>

namespace {

constexpr int answerLimit = 50; // milliseconds
// What desktops offer.
constexpr double smallest = 0.5;
constexpr double largest = 3;

struct Unref {
    void operator()(DBusMessage *message) const { dbus_message_unref(message); }
};
using Message = std::unique_ptr<DBusMessage, Unref>;

/// The portal's answer, which is null where it gives none. Qt's own connection wants an application object.
Message askPortal()
{
    const SessionBus::OwnConnection bus = SessionBus::connectApart();
    if (!bus)
        return nullptr;
    const Message question(dbus_message_new_method_call("org.freedesktop.portal.Desktop",
                                                        "/org/freedesktop/portal/desktop",
                                                        "org.freedesktop.portal.Settings", "Read"));
    const char *const group = "org.gnome.desktop.interface";
    const char *const key = "text-scaling-factor";
    dbus_message_append_args(question.get(), DBUS_TYPE_STRING, &group, DBUS_TYPE_STRING, &key, DBUS_TYPE_INVALID);
    dbus_message_set_auto_start(question.get(), FALSE);
    return Message(dbus_connection_send_with_reply_and_block(bus.get(), question.get(), answerLimit, nullptr));
}

/// The number in the answer, which the portal wraps more than once; 0 where there is none.
double numberIn(const Message &answer)
{
    if (!answer || !dbus_message_has_signature(answer.get(), "v"))
        return 0;
    DBusMessageIter value;
    dbus_message_iter_init(answer.get(), &value);
    while (dbus_message_iter_get_arg_type(&value) == DBUS_TYPE_VARIANT) {
        DBusMessageIter inside;
        dbus_message_iter_recurse(&value, &inside);
        value = inside;
    }
    double number = 0;
    if (dbus_message_iter_get_arg_type(&value) == DBUS_TYPE_DOUBLE)
        dbus_message_iter_get_basic(&value, &number);
    return number;
}

}

double TextScale::read()
{
    if (!SessionBus::hasAnswered())
        return 1;
    const double scale = numberIn(askPortal());
    return scale >= smallest && scale <= largest ? scale : 1;
}

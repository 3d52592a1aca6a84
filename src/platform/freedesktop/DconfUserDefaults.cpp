#include "DconfUserDefaults.h"

#include "SessionBus.h"

// GIO has members named like the Qt keyword.
#pragma push_macro("signals")
#undef signals
#include <dconf.h>
#pragma pop_macro("signals")

#include <thread>

namespace {

QByteArray folderOf(const QString &suiteName)
{
    const QByteArray folder = '/' + suiteName.toUtf8().replace('.', '/') + '/';
    return dconf_is_dir(folder.constData(), nullptr) && !folder.contains('\0') ? folder : QByteArray();
}

// A database that cannot be read reads as empty; the library's warnings about it help nobody.
void silenceLibrary()
{
    [[maybe_unused]] static const guint handler = g_log_set_handler(
        "dconf", static_cast<GLogLevelFlags>(G_LOG_LEVEL_MASK | G_LOG_FLAG_FATAL | G_LOG_FLAG_RECURSION),
        [](const gchar *, GLogLevelFlags, const gchar *, gpointer) {}, nullptr);
}

// The library uses GLib's shared bus connection, which by default ends the process when the bus goes away. A thread
// waits for the connection, so that a start does not, and then ends. The reference is kept, so that the library never
// gets another connection.
void outliveBus()
{
    std::thread([] {
        static GDBusConnection *const bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
        if (bus)
            g_dbus_connection_set_exit_on_close(bus, FALSE);
    }).detach();
}

QVariant fromGVariant(GVariant *value)
{
    switch (g_variant_classify(value)) {
    case G_VARIANT_CLASS_BOOLEAN:
        return g_variant_get_boolean(value) != FALSE;
    case G_VARIANT_CLASS_STRING:
        return QString::fromUtf8(g_variant_get_string(value, nullptr));
    case G_VARIANT_CLASS_DOUBLE:
        return g_variant_get_double(value);
    case G_VARIANT_CLASS_BYTE:
        return static_cast<double>(g_variant_get_byte(value));
    case G_VARIANT_CLASS_INT16:
        return static_cast<double>(g_variant_get_int16(value));
    case G_VARIANT_CLASS_UINT16:
        return static_cast<double>(g_variant_get_uint16(value));
    case G_VARIANT_CLASS_INT32:
        return static_cast<double>(g_variant_get_int32(value));
    case G_VARIANT_CLASS_UINT32:
        return static_cast<double>(g_variant_get_uint32(value));
    case G_VARIANT_CLASS_INT64:
        return static_cast<double>(g_variant_get_int64(value));
    case G_VARIANT_CLASS_UINT64:
        return static_cast<double>(g_variant_get_uint64(value));
    default:
        return {};
    }
}

GVariant *toGVariant(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return g_variant_new_boolean(value.toBool());
    case QMetaType::QString:
        return g_variant_new_string(value.toString().toUtf8().constData());
    case QMetaType::Double:
        return g_variant_new_double(value.toDouble());
    default:
        return nullptr;
    }
}

}

DconfUserDefaults::DconfUserDefaults(const QString &suiteName) : m_folder(folderOf(suiteName))
{
    if (m_folder.isEmpty())
        return;
    silenceLibrary();
    m_client = dconf_client_new();
    m_hasBus = SessionBus::isPresent();
    if (m_hasBus)
        watch();
}

DconfUserDefaults::~DconfUserDefaults()
{
    if (!m_client)
        return;
    g_signal_handlers_disconnect_by_data(m_client, this);
    g_object_unref(m_client);
}

bool DconfUserDefaults::canOpen(const QString &suiteName)
{
    return !folderOf(suiteName).isEmpty();
}

void DconfUserDefaults::watch()
{
    g_signal_connect(m_client, "changed", G_CALLBACK(&DconfUserDefaults::heard), this);
    dconf_client_watch_fast(m_client, m_folder.constData());
    outliveBus();
}

std::optional<QByteArray> DconfUserDefaults::path(const QString &key) const
{
    const QByteArray path = m_folder + key.toUtf8();
    if (m_folder.isEmpty() || path.contains('\0') || !dconf_is_key(path.constData(), nullptr))
        return std::nullopt;
    return path;
}

QVariant DconfUserDefaults::value(const QString &key) const
{
    const auto unstored = m_unstored.constFind(key);
    if (unstored != m_unstored.cend())
        return *unstored;
    const auto path = this->path(key);
    GVariant *stored = path ? dconf_client_read(m_client, path->constData()) : nullptr;
    if (!stored)
        return {};
    QVariant value = fromGVariant(stored);
    g_variant_unref(stored);
    return value;
}

void DconfUserDefaults::setValue(const QString &key, const QVariant &value)
{
    const auto typed = storable(value);
    if (!typed)
        return;
    const bool isNew = !isSame(this->value(key), *typed);
    if (!isNew && !m_unstored.contains(key))
        return;
    const auto path = this->path(key);
    if (path && store(*path, *typed))
        m_unstored.remove(key);
    else
        m_unstored.insert(key, *typed);
    if (isNew)
        emit changed(key);
}

bool DconfUserDefaults::store(const QByteArray &path, const QVariant &value)
{
    if (!m_hasBus)
        return false;
    gchar *mark = nullptr;
    const gboolean isStored =
        dconf_client_write_sync(m_client, path.constData(), toGVariant(value), &mark, nullptr, nullptr);
    if (isStored && mark && *mark)
        m_ownWrites.insert(mark);
    g_free(mark);
    return isStored;
}

void DconfUserDefaults::heard(DConfClient *, const char *prefix, char **changes, const char *tag, void *self)
{
    auto *defaults = static_cast<DconfUserDefaults *>(self);
    if (tag && defaults->m_ownWrites.remove(tag))
        return;
    for (char **change = changes; *change; ++change)
        defaults->pathChanged(QByteArray(prefix) + *change);
}

void DconfUserDefaults::pathChanged(const QByteArray &path)
{
    const bool isFolder = path.endsWith('/');
    if (isFolder && (m_folder.startsWith(path) || path.startsWith(m_folder))) {
        everythingChanged();
    } else if (!isFolder && path.startsWith(m_folder)) {
        const QString key = QString::fromUtf8(path.mid(m_folder.size()));
        m_unstored.remove(key);
        emit changed(key);
    }
}

void DconfUserDefaults::everythingChanged()
{
    m_unstored.removeIf([this](const auto &entry) { return path(entry.key()).has_value(); });
    emit changed(QString());
}

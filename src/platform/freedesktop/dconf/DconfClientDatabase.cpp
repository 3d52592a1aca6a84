#include "DconfClientDatabase.h"

#include "DconfProfile.h"

#include <QFile>

// GIO has members named like the Qt keyword.
#pragma push_macro("signals")
#undef signals
#include <dconf.h>
#pragma pop_macro("signals")

#include <sys/stat.h>

#include <utility>

namespace {

/// In bytes.
constexpr gsize longValue = 256 * 1024;

// A database that cannot be read reads as empty; the library's warnings about it help nobody.
void silenceLibrary()
{
    [[maybe_unused]] static const guint handler = g_log_set_handler(
        "dconf", static_cast<GLogLevelFlags>(G_LOG_LEVEL_MASK | G_LOG_FLAG_FATAL | G_LOG_FLAG_RECURSION),
        [](const gchar *, GLogLevelFlags, const gchar *, gpointer) {}, nullptr);
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

/// A new reference, or null for an invalid value.
GVariant *toGVariant(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return g_variant_ref_sink(g_variant_new_boolean(value.toBool()));
    case QMetaType::QString:
        return g_variant_ref_sink(g_variant_new_string(value.toString().toUtf8().constData()));
    case QMetaType::Double:
        return g_variant_ref_sink(g_variant_new_double(value.toDouble()));
    default:
        return nullptr;
    }
}

}

void DconfClientDatabase::Unref::operator()(GVariant *value) const
{
    g_variant_unref(value);
}

DconfClientDatabase::DconfClientDatabase()
{
    silenceLibrary();
    const QString database = DconfProfile::firstDatabase();
    const QString name = database.section(u':', 1);
    if (database.startsWith(QStringLiteral("user-db:"))) {
        m_writer = QStringLiteral("/ca/desrt/dconf/Writer/") + name;
        m_file = QByteArray(g_get_user_config_dir()) + "/dconf/" + QFile::encodeName(name);
    } else if (database.startsWith(QStringLiteral("service-db:"))) {
        m_writer = QStringLiteral("/ca/desrt/dconf/") + name;
        m_file = QByteArray(g_get_user_runtime_dir()) + "/dconf-service/" + QFile::encodeName(name);
    }
}

DconfClientDatabase::~DconfClientDatabase()
{
    if (m_client)
        g_object_unref(m_client);
}

DconfClientDatabase::Mark DconfClientDatabase::mark() const
{
    struct stat status = {};
    if (stat(m_file.constData(), &status) != 0)
        return {};
    return {status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

DConfClient *DconfClientDatabase::client() const
{
    const Mark mark = this->mark();
    if (m_client && mark == m_mark)
        return m_client;
    if (m_client)
        g_object_unref(m_client);
    m_client = dconf_client_new();
    m_mark = mark;
    return m_client;
}

DconfClientDatabase::Value DconfClientDatabase::read(const QByteArray &path) const
{
    Value stored(dconf_client_read(client(), path.constData()));
    // What was read stays in memory as long as the client.
    if (stored && g_variant_get_size(stored.get()) > longValue)
        g_object_unref(std::exchange(m_client, nullptr));
    return stored;
}

QVariant DconfClientDatabase::value(const QByteArray &path) const
{
    const Value stored = read(path);
    return stored ? fromGVariant(stored.get()) : QVariant();
}

bool DconfClientDatabase::holds(const QByteArray &path, const QVariant &value) const
{
    const Value stored = read(path);
    const Value wanted(toGVariant(value));
    return stored && wanted ? g_variant_equal(stored.get(), wanted.get()) != FALSE : !stored && !wanted;
}

bool DconfClientDatabase::isWritable(const QByteArray &path) const
{
    return dconf_client_is_writable(client(), path.constData()) != FALSE;
}

QByteArray DconfClientDatabase::change(const QByteArray &path, const QVariant &value) const
{
    const Value wanted(toGVariant(value));
    DConfChangeset *changes = dconf_changeset_new_write(path.constData(), wanted.get());
    Value bytes(g_variant_ref_sink(dconf_changeset_serialise(changes)));
    dconf_changeset_unref(changes);
    // The service reads the smaller end first.
    if constexpr (G_BYTE_ORDER == G_BIG_ENDIAN)
        bytes.reset(g_variant_byteswap(bytes.get()));
    return {static_cast<const char *>(g_variant_get_data(bytes.get())), qsizetype(g_variant_get_size(bytes.get()))};
}

extern "C" Q_DECL_EXPORT DconfDatabase *makeDconfDatabase()
{
    return new DconfClientDatabase;
}

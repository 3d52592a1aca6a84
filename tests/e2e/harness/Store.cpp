#include <dconf.h>

#include "Store.h"

#include <QTest>

namespace {

const QByteArray folder = "/com/vexmoor/corvane/";

QByteArray path(const QString &key)
{
    return folder + key.toUtf8();
}

GVariant *stored(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return g_variant_new_boolean(value.toBool());
    case QMetaType::Double:
        return g_variant_new_double(value.toDouble());
    case QMetaType::Int:
        return g_variant_new_int32(value.toInt());
    default:
        return g_variant_new_string(value.toString().toUtf8().constData());
    }
}

QVariant loaded(GVariant *value)
{
    if (g_variant_is_of_type(value, G_VARIANT_TYPE_BOOLEAN))
        return bool(g_variant_get_boolean(value));
    if (g_variant_is_of_type(value, G_VARIANT_TYPE_DOUBLE))
        return g_variant_get_double(value);
    if (g_variant_is_of_type(value, G_VARIANT_TYPE_INT32))
        return g_variant_get_int32(value);
    return QString::fromUtf8(g_variant_get_string(value, nullptr));
}

void put(DConfClient *client, const QByteArray &path, GVariant *value)
{
    GError *error = nullptr;
    if (!dconf_client_write_sync(client, path.constData(), value, nullptr, nullptr, &error)) {
        QTest::qFail(error->message, __FILE__, __LINE__);
        g_error_free(error);
    }
}

}

Store::Store() : m_client(dconf_client_new(), g_object_unref) { }

QVariant Store::read(const QString &key) const
{
    GVariant *value = dconf_client_read(m_client.get(), path(key).constData());
    if (!value)
        return {};
    const QVariant result = loaded(value);
    g_variant_unref(value);
    return result;
}

QVariantMap Store::readAll() const
{
    QVariantMap values;
    char **keys = dconf_client_list(m_client.get(), folder.constData(), nullptr);
    for (char **key = keys; *key; ++key) {
        const QString name = QString::fromUtf8(*key);
        if (const QVariant value = read(name); value.isValid())
            values.insert(name, value);
    }
    g_strfreev(keys);
    return values;
}

void Store::write(const QString &key, const QVariant &value) const
{
    put(m_client.get(), path(key), stored(value));
}

void Store::remove(const QString &key) const
{
    put(m_client.get(), path(key), nullptr);
}

void Store::removeAll() const
{
    put(m_client.get(), folder, nullptr);
}

bool Store::waitFor(const QString &key, const QVariant &value, int milliseconds) const
{
    return QTest::qWaitFor([&] { return read(key) == value; }, milliseconds);
}

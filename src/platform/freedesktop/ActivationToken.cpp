#include "ActivationToken.h"

namespace {

constexpr const char *tokenVariable = "XDG_ACTIVATION_TOKEN";
constexpr const char *startupIdVariable = "DESKTOP_STARTUP_ID";

const QString tokenField = QStringLiteral("activation-token");
const QString startupIdField = QStringLiteral("desktop-startup-id");

void putOrTakeAway(const char *variable, const QByteArray &value)
{
    if (value.isEmpty())
        qunsetenv(variable);
    else
        qputenv(variable, value);
}

}

ActivationToken ActivationToken::inEnvironment()
{
    return {qgetenv(tokenVariable), qgetenv(startupIdVariable)};
}

ActivationToken ActivationToken::in(const QVariantMap &platformData)
{
    const QByteArray token = platformData.value(tokenField).toString().toUtf8();
    const QByteArray startupId = platformData.value(startupIdField).toString().toUtf8();
    return {token.isEmpty() ? startupId : token, startupId.isEmpty() ? token : startupId};
}

QVariantMap ActivationToken::platformData() const
{
    QVariantMap fields;
    if (!token.isEmpty())
        fields.insert(tokenField, QString::fromUtf8(token));
    if (!startupId.isEmpty())
        fields.insert(startupIdField, QString::fromUtf8(startupId));
    return fields;
}

void ActivationToken::putIntoEnvironment() const
{
    putOrTakeAway(tokenVariable, token);
    putOrTakeAway(startupIdVariable, startupId);
}

void ActivationToken::clearEnvironment()
{
    ActivationToken().putIntoEnvironment();
}

#include "Agent.h"

#include "AgentKeys.h"
#include "Platform.h"
#include "Shared.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace {

void print(const QVariantMap &userInfo)
{
    const QByteArray line = QJsonDocument(QJsonObject::fromVariantMap(userInfo)).toJson(QJsonDocument::Compact);
    std::printf("%s\n", line.constData());
    std::fflush(stdout);
}

}

Agent::Agent(LoginItem &loginItem) : m_loginItem(loginItem)
{
    Platform::current().distributedNotificationCenter().observe(
        Shared::Command::name, this, [this](const QVariantMap &userInfo) { perform(userInfo); });
    connect(&m_loginItem, &LoginItem::changed, this, &Agent::reportLoginItem);
    reportLoginItem();
}

void Agent::perform(const QVariantMap &userInfo)
{
    print(userInfo);
    const QString command = userInfo.value(QStringLiteral("command")).toString();
    const QVariant value = userInfo.value(QStringLiteral("value"));
    if (command == Shared::Command::setLaunchAtLogin && value.typeId() == QMetaType::Bool)
        m_loginItem.setRegistered(value.toBool());
    else if (command == Shared::Command::requestAccessibility)
        emit accessibilityRequested();
}

void Agent::reportLoginItem()
{
    const LoginItem::State state = m_loginItem.state();
    const auto reportEnabled = [&] {
        AgentKeys::report(Shared::Key::agentLaunchAtLogin, state == LoginItem::State::Enabled);
    };
    const auto reportWaiting = [&] {
        AgentKeys::report(Shared::Key::agentLaunchAtLoginNeedsApproval, state == LoginItem::State::NeedsApproval);
    };
    // What becomes true goes first: with both false in between, the switch would show off for a moment.
    if (state == LoginItem::State::NeedsApproval) {
        reportWaiting();
        reportEnabled();
    } else {
        reportEnabled();
        reportWaiting();
    }
}

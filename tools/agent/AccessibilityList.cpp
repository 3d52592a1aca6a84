#include "AccessibilityList.h"

#include "AgentKeys.h"
#include "Platform.h"
#include "Shared.h"
#include "UserDefaults.h"

#include <QFileInfo>

namespace {

/// Where the file really lies; empty when there is none.
QString place(const QUrl &url)
{
    return url.isLocalFile() ? QFileInfo(url.toLocalFile()).canonicalFilePath() : QString();
}

bool hasPermission()
{
    const QVariant trusted = Shared::store().value(Shared::Key::agentAccessibilityTrusted);
    return trusted.typeId() == QMetaType::Bool && trusted.toBool();
}

}

AccessibilityList::AccessibilityList(bool listed) : m_listed(listed || hasPermission()) { }

bool AccessibilityList::takes(const QList<QUrl> &urls) const
{
    if (urls.size() != 1)
        return false;
    const QString dragged = place(urls.constFirst());
    return !dragged.isEmpty() && dragged == place(Platform::current().mainBundle().bundleURL());
}

bool AccessibilityList::take(const QList<QUrl> &urls)
{
    if (!takes(urls))
        return false;
    setTrusted(true);
    return true;
}

void AccessibilityList::setTrusted(bool trusted)
{
    if (!m_listed) {
        m_listed = true;
        emit listedChanged();
    }
    AgentKeys::report(Shared::Key::agentAccessibilityTrusted, trusted);
}

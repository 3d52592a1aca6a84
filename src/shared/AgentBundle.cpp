#include "AgentBundle.h"

#include "Platform.h"

namespace {

constexpr qsizetype publicKeyLength = 44;

/// The URL without its last path component.
QUrl parent(const QUrl &url)
{
    return url.adjusted(QUrl::StripTrailingSlash).adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash);
}

}

std::optional<QUrl> AgentBundle::url()
{
    const QUrl own = Platform::current().mainBundle().bundleURL();
    if (!own.path().contains(QStringLiteral("/Contents/Helpers/")))
        return std::nullopt;
    // This application's folder, then "Helpers", then "Contents".
    return parent(parent(parent(own)));
}

std::unique_ptr<Bundle> AgentBundle::bundle()
{
    const auto found = url();
    return found ? Platform::current().bundle(*found) : nullptr;
}

bool AgentBundle::updatesAvailable()
{
    const auto agent = bundle();
    return agent && agent->string(QStringLiteral("SUPublicEDKey")).size() == publicKeyLength;
}

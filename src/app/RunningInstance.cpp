#include "RunningInstance.h"

#include "LaunchFlags.h"
#include "Platform.h"
#include "SettingsAppDelegate.h"

namespace {

/// The name that desktops know this application by. The other roles are told apart below it.
const QString applicationName = QStringLiteral("com.vexmoor.corvane.settings");

QString nameOfRole()
{
    if (LaunchFlags::onboarding())
        return applicationName + QStringLiteral(".guide");
    return LaunchFlags::about() ? applicationName + QStringLiteral(".about") : applicationName;
}

/// A start that names a page wants to be there.
Instances::Request request()
{
    const QString page = qEnvironmentVariable("CV_TAB");
    return page.isEmpty() ? Instances::Request() : Instances::Request{SettingsAppDelegate::pageAction, page};
}

}

bool RunningInstance::takesOver()
{
    Instances &instances = Platform::current().instances();
    // An instance that is about to end refuses, and another start may come before this one again.
    constexpr int attempts = 3;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (instances.claim(nameOfRole()))
            return false;
        if (LaunchFlags::service() || instances.ask(nameOfRole(), request()))
            return true;
    }
    return false;
}

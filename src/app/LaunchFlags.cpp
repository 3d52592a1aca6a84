#include "LaunchFlags.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

bool isGiven(QLatin1String flag)
{
    return QCoreApplication::arguments().contains(flag);
}

}

bool LaunchFlags::onboarding()
{
    static const bool given = isGiven(QLatin1String("--onboarding"));
    return given;
}

bool LaunchFlags::about()
{
    static const bool given = isGiven(QLatin1String("--about"));
    return given;
}

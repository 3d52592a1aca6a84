#include "LaunchFlags.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace {

std::span<char *const> processArguments;

bool isGiven(std::string_view flag)
{
    return std::find(processArguments.begin(), processArguments.end(), flag) != processArguments.end();
}

}

void LaunchFlags::setArguments(int argc, char *argv[])
{
    processArguments = {argv, std::size_t(argc)};
}

bool LaunchFlags::onboarding()
{
    static const bool given = isGiven("--onboarding");
    return given;
}

bool LaunchFlags::about()
{
    static const bool given = isGiven("--about");
    return given;
}

bool LaunchFlags::replay()
{
    static const bool given = isGiven("--replay");
    return given;
}

bool LaunchFlags::service()
{
    static const bool given = isGiven("--service");
    return given;
}

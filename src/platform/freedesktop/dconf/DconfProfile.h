#pragma once

#include <QString>

/// Which database the person's settings are written to. dconf(7) says how that is found.
namespace DconfProfile {

/// The description in the first line of the profile, such as "user-db:user"; empty where the profile cannot be read.
QString firstDatabase();

}

#pragma once

#include "ColorTokens.h"
#include "EBKitColor.h"

/// The palette for C++: one function a token, named like it. Each token is made on first use and never
/// released.
namespace EBKit {

#define EB_TOKEN(name, ...) const EBKitColor &name();
EB_COLOR_TOKENS(EB_TOKEN, EB_TOKEN)
#undef EB_TOKEN

}

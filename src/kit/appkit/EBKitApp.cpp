#include "EBKitApp.h"

EBKitApp EBKitApps::of(EBApp app)
{
    const EBApps::Family &family = EBApps::family(app);
    return {EBApps::displayName(app), EBKitMarks::of(app), family.accent, family.onAccent};
}

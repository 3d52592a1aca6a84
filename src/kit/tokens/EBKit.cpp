#include "EBKit.h"

#define EB_ADAPTIVE(name, lr, lg, lb, la, dr, dg, db, da)                                                              \
    const EBKitColor &EBKit::name()                                                                                    \
    {                                                                                                                  \
        static const EBKitColor color = EBKitColor::eb({lr, lg, lb, la}, {dr, dg, db, da});                            \
        return color;                                                                                                  \
    }
#define EB_FIXED(name, r, g, b, a)                                                                                     \
    const EBKitColor &EBKit::name()                                                                                    \
    {                                                                                                                  \
        static const EBKitColor color = EBKitColor::eb({r, g, b, a}, {r, g, b, a});                                    \
        return color;                                                                                                  \
    }
EB_COLOR_TOKENS(EB_ADAPTIVE, EB_FIXED)

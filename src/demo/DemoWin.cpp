#include "DemoWin.h"

QString rawValue(DemoState state)
{
    switch (state) {
#define STATE(name)                                                                                                    \
    case DemoState::name:                                                                                              \
        return QStringLiteral(#name);
        DEMO_STATES(STATE)
#undef STATE
    }
    Q_UNREACHABLE();
}

#include "StartEnvironment.h"

#include "TextScale.h"

namespace {

constexpr int usualDotsPerInch = 96;

/// Where Qt will connect to, which it does not tell before it has.
bool isOnWayland()
{
    const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
    return chosen.isEmpty() ? qgetenv("XDG_SESSION_TYPE") == "wayland" : chosen.startsWith("wayland");
}

}

StartEnvironment::StartEnvironment()
{
    if (!isOnWayland())
        return;
    // To find out whether it could draw a frame, Qt would load the graphics driver, which takes half of all memory.
    set("QT_WAYLAND_DISABLE_WINDOWDECORATION", "1");
    // An X server tells Qt itself.
    const int dotsPerInch = qRound(usualDotsPerInch * TextScale::read());
    if (dotsPerInch != usualDotsPerInch && !qEnvironmentVariableIsSet("QT_SCALE_FACTOR"))
        set("QT_FONT_DPI", QByteArray::number(dotsPerInch));
}

StartEnvironment::~StartEnvironment()
{
    for (const QByteArray &variable : std::as_const(m_set))
        qunsetenv(variable.constData());
}

void StartEnvironment::set(const char *variable, const QByteArray &value)
{
    if (!qEnvironmentVariableIsSet(variable) && qputenv(variable, value))
        m_set.append(variable);
}

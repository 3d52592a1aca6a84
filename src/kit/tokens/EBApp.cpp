#include "EBApp.h"

#include "EBKit.h"

QString EBApps::displayName(EBApp app)
{
    switch (app) {
    case EBApp::quiller:
        return QStringLiteral("Quiller");
    case EBApp::corvane:
        return QStringLiteral("Corvane");
    case EBApp::parcelo:
        return QStringLiteral("Parcelo");
    }
    Q_UNREACHABLE();
}

const EBApps::Family &EBApps::family(EBApp app)
{
    using namespace EBKit;
    static const std::array families = {
        Family{coral(), onCoral(), loudCoral(), onLoudCoral(), loudCoralDot()},
        Family{indigo(), onIndigo(), loudIndigo(), onLoudIndigo(), loudIndigoDot()},
        Family{teal(), onTeal(), loudTeal(), onLoudTeal(), loudTealDot()},
    };
    return families[static_cast<std::size_t>(app)];
}

#include "EBApp.h"

#include "EBKit.h"

namespace {

struct Product {
    EBApp app;
    const char *rawValue;
    const char *displayName;
};

constexpr std::array products = {
    Product{EBApp::quiller, "quiller", "Quiller"},
    Product{EBApp::corvane, "corvane", "Corvane"},
    Product{EBApp::parcelo, "parcelo", "Parcelo"},
};

const Product &product(EBApp app)
{
    return products[static_cast<std::size_t>(app)];
}

}

std::optional<EBApp> EBApps::fromRawValue(QStringView rawValue)
{
    for (const Product &candidate : products) {
        if (rawValue == QLatin1String(candidate.rawValue))
            return candidate.app;
    }
    return std::nullopt;
}

QString EBApps::rawValue(EBApp app)
{
    return QString::fromLatin1(product(app).rawValue);
}

QString EBApps::displayName(EBApp app)
{
    return QString::fromLatin1(product(app).displayName);
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

#include "KitEnvironment.h"

#include <QVariant>
#include <QWidget>

namespace {

constexpr char property[] = "ebApp";

}

EBApp KitEnvironment::ebApp(const QWidget &view)
{
    for (const QWidget *around = &view; around; around = around->parentWidget()) {
        if (const auto app = EBApps::fromRawValue(around->property(property).toString()))
            return *app;
    }
    return EBApp::quiller;
}

void KitEnvironment::setEbApp(QWidget &view, EBApp app)
{
    view.setProperty(property, EBApps::rawValue(app));
}

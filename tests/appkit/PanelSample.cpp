#include "EBKit.h"
#include "EBKitButton.h"
#include "EBKitIconButton.h"
#include "EBKitKeyRow.h"
#include "EBKitMenuRow.h"
#include "EBKitPanelHeader.h"
#include "EBKitRow.h"
#include "EBKitSectionLabel.h"
#include "EBKitSeparator.h"
#include "EBKitStatusPanel.h"
#include "KitText.h"
#include "NativePlatform.h"
#include "Platform.h"

#include <QApplication>
#include <QPushButton>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void say(const char *what)
{
    std::puts(what);
    std::fflush(stdout);
}

EBKitText text(const QString &string)
{
    return KitText::make(string, EBTypeRole::body, EBKit::ink());
}

QList<EBKitView *> views()
{
    const EBKitApp product = EBKitApps::of(EBApp::corvane);
    auto *toggle = new EBKitSwitch(false, product, u"Close windows"_s, [](bool on) { say(on ? "on" : "off"); });
    return {new EBKitPanelHeader(product, {}, text(u"Corvane"_s)),
            new EBKitSectionLabel(text(u"Windows"_s)),
            new EBKitRow(product, EBKitGlyph::wins, true, text(u"Overview"_s), text(u"Is open"_s)),
            new EBKitKeyRow(text(u"⌘W"_s), text(u"Close"_s), toggle),
            new EBKitButton(text(u"Open"_s), EBKitButton::Variant::secondary, 32, [] { say("Open"); }),
            new EBKitSeparator,
            new EBKitMenuRow(EBKitGlyph::gear, text(u"Settings"_s), {}, [] { say("Settings"); }),
            new EBKitMenuRow(EBKitGlyph::power, text(u"Quit"_s), text(u"⌘Q"_s), [] { say("Quit"); })};
}

}

/// A bar with a status button, from which a panel drops down. It prints what happens, a line each.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Platform::install(NativePlatform::make());
    QWidget bar;
    bar.setWindowTitle(u"Bar"_s);
    bar.setGeometry(200, 0, 600, 40);
    QPushButton button(u"Status"_s, &bar);
    button.setGeometry(300, 0, 80, 30);

    EBKitStatusPanel panel;
    panel.build = views;
    panel.onOpen = [] { say("opened"); };
    panel.onClose = [] { say("closed"); };
    QObject::connect(&button, &QPushButton::clicked, &panel, [&] { panel.toggle(button); });
    bar.show();
    return QApplication::exec();
}

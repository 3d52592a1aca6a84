#pragma once

#include "GlyphName.h"

#include <QObject>
#include <qqmlregistration.h>

/// What can become of a pretend window.
enum class DemoState { normal, closed, minimized, hidden, full };

using DemoStates = NamedCases<DemoState>;

/// One pretend window.
struct DemoWin {
    Q_GADGET
    QML_VALUE_TYPE(demoWin)
    /// Stable, and equal to the place in the list at first.
    Q_PROPERTY(int id MEMBER id)
    /// The pretend application's name; windows of one application share it exactly.
    Q_PROPERTY(QString app MEMBER app)
    Q_PROPERTY(QString title MEMBER title)
    /// The application's icon, and what has become of the window, both by their raw strings.
    Q_PROPERTY(QString glyph READ glyphName)
    Q_PROPERTY(QString state READ stateName)
    Q_PROPERTY(bool isVisible READ isVisible)
public:
    int id = -1;
    QString app;
    QString title;
    GlyphName glyph = GlyphName::wins;
    DemoState state = DemoState::normal;

    QString glyphName() const { return GlyphNames::rawValue(glyph); }
    QString stateName() const { return DemoStates::rawValue(state); }
    bool isVisible() const { return state == DemoState::normal || state == DemoState::full; }
    bool operator==(const DemoWin &other) const = default;
};

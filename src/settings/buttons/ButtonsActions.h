#pragma once

#include "OverlayLook.h"

/// The look of the buttons for the Buttons page. For as long as it lives it has the agent read the store again after
/// each change of the look, whoever made it. The values that the page opens with are no change.
class ButtonsActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(OverlayLook *look READ look CONSTANT)
public:
    explicit ButtonsActions(QObject *parent = nullptr);

    OverlayLook *look() { return &m_look; }

private:
    OverlayLook m_look;
};

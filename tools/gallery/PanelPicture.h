#pragma once

#include "CrispItem.h"

#include <memory>

class EBKitPanelView;

/// A picture of a whole panel of hand-drawn views, each kind in its states: one menu row is under the pointer, one
/// switch has the keyboard focus.
class PanelPicture : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// The product's raw string.
    Q_PROPERTY(QString app MEMBER m_app NOTIFY changed)
    Q_PROPERTY(bool mirrored MEMBER m_mirrored NOTIFY changed)
public:
    explicit PanelPicture(QQuickItem *parent = nullptr);
    ~PanelPicture() override;

protected:
    void paint(QPainter *painter) override;

private:
    void build();

    QString m_app = QStringLiteral("corvane");
    bool m_mirrored = false;
    std::unique_ptr<EBKitPanelView> m_panel;
};

#pragma once

#include "CrispItem.h"
#include "EBApp.h"

#include <memory>

class EBKitPanelView;

/// A picture of a whole panel of hand-drawn views, each kind in its states: one menu row is under the pointer, one
/// switch has the keyboard focus.
class PanelPicture : public CrispItem {
    Q_OBJECT
    QML_ELEMENT
    /// The product's raw string.
    Q_PROPERTY(QString app READ app WRITE setApp NOTIFY changed)
    Q_PROPERTY(bool mirrored READ mirrored WRITE setMirrored NOTIFY changed)
public:
    explicit PanelPicture(QQuickItem *parent = nullptr);
    ~PanelPicture() override;

    QString app() const { return EBApps::rawValue(m_app); }
    void setApp(const QString &rawValue);
    bool mirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

signals:
    void changed();

protected:
    void paint(QPainter *painter) override;

private:
    void build();

    EBApp m_app = EBApp::corvane;
    bool m_mirrored = false;
    std::unique_ptr<EBKitPanelView> m_panel;
};

#pragma once

#include "EBApp.h"

#include <QObject>
#include <qqmlregistration.h>

class FakeAppearance;

/// How the scenes are drawn: the appearance of a pretended desktop, and the product.
class GalleryLook : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The gallery makes the one look there is")
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY changed)
    Q_PROPERTY(bool highContrast READ highContrast WRITE setHighContrast NOTIFY changed)
    /// "quiller", "corvane" or "parcelo"; any other text is ignored.
    Q_PROPERTY(QString app READ rawApp WRITE setRawApp NOTIFY changed)
public:
    explicit GalleryLook(FakeAppearance &appearance, QObject *parent = nullptr);

    bool dark() const { return m_dark; }
    void setDark(bool dark);
    bool highContrast() const { return m_highContrast; }
    void setHighContrast(bool highContrast);
    EBApp app() const { return m_app; }
    void setApp(EBApp app);
    QString rawApp() const { return EBApps::rawValue(m_app); }
    void setRawApp(const QString &rawValue);

signals:
    void changed();

private:
    void apply();

    FakeAppearance &m_appearance;
    bool m_dark = false;
    bool m_highContrast = false;
    EBApp m_app = EBApp::corvane;
};

#pragma once

#include "EBApp.h"

#include <QPointer>
#include <QQuickItem>
#include <qqmlregistration.h>

/// The current product, handed down the item tree: an item that sets `ebApp` sets it for everything inside
/// it. Without any ancestor that sets one, the product is `quiller`. Attached to items only.
class EBEnvironment : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("EBEnvironment is read and set as an attached property")
    QML_ATTACHED(EBEnvironment)
    /// "quiller", "corvane" or "parcelo"; any other text is ignored.
    Q_PROPERTY(QString ebApp READ rawApp WRITE setRawApp NOTIFY changed)
    Q_PROPERTY(QString displayName READ displayName NOTIFY changed)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed)
    Q_PROPERTY(QColor onAccent READ onAccent NOTIFY changed)
    Q_PROPERTY(QColor loud READ loud NOTIFY changed)
    Q_PROPERTY(QColor onLoud READ onLoud NOTIFY changed)
    Q_PROPERTY(QColor loudDot READ loudDot NOTIFY changed)
public:
    explicit EBEnvironment(QObject *parent = nullptr);
    static EBEnvironment *qmlAttachedProperties(QObject *object);

    /// The environment of an item, made on first use. Null until Embera.Tokens was imported for the first
    /// time.
    static EBEnvironment *of(QQuickItem *item);

    EBApp ebApp() const { return m_app; }
    void setEbApp(EBApp app);

    QString rawApp() const { return EBApps::rawValue(m_app); }
    void setRawApp(const QString &rawValue);
    QString displayName() const { return EBApps::displayName(m_app); }
    QColor accent() const { return EBApps::family(m_app).accent.current(); }
    QColor onAccent() const { return EBApps::family(m_app).onAccent.current(); }
    QColor loud() const { return EBApps::family(m_app).loud.current(); }
    QColor onLoud() const { return EBApps::family(m_app).onLoud.current(); }
    QColor loudDot() const { return EBApps::family(m_app).loudDot.current(); }

signals:
    /// The product, or the appearance its colours resolve against.
    void changed();

private:
    void followParent();
    void inherit();

    EBApp m_app = EBApp::quiller;
    bool m_isOwn = false;
    QPointer<EBEnvironment> m_parent;
};

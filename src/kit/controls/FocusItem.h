#pragma once

#include <QQuickItem>

/// An item that can have the keyboard focus, and knows whether the keyboard has brought it.
class FocusItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The Tab key stops here; true unless set. Where it does not it still goes on from here.
    Q_PROPERTY(bool tabStop READ tabStop WRITE setTabStop NOTIFY tabStopChanged)
    /// It has the focus, and the keyboard has brought it.
    Q_PROPERTY(bool visualFocus READ visualFocus NOTIFY visualFocusChanged)
public:
    explicit FocusItem(QQuickItem *parent = nullptr);

    bool tabStop() const { return m_tabStop; }
    void setTabStop(bool tabStop);
    bool visualFocus() const { return m_visualFocus; }

signals:
    void tabStopChanged();
    void visualFocusChanged();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void setVisualFocus(bool visualFocus);

    bool m_tabStop = true;
    bool m_visualFocus = false;
};

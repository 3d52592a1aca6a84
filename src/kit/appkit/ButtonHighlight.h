#pragma once

#include <QPointer>
#include <QWidget>

/// Keeps a button highlighted for as long as it lives: one that can be down is down, also when the focus leaves it, and
/// any other widget has the property "highlighted". The button may go first.
class ButtonHighlight : public QObject {
    Q_OBJECT
public:
    explicit ButtonHighlight(QWidget &button);
    ~ButtonHighlight() override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void set(bool highlighted) const;

    QPointer<QWidget> m_button;
};

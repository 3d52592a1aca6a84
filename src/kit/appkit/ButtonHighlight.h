#pragma once

#include <QPointer>
#include <QWidget>

/// Keeps a button highlighted while it lives: a button of Qt's is held down, also when it loses the focus, and any
/// other widget gets the property "highlighted". The button may be destroyed first.
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

#pragma once

#include "EBKitText.h"
#include "EBKitView.h"

/// A small label in capitals above a section. Its text is written in natural case, and that is how it is read aloud.
class EBKitSectionLabel : public EBKitView {
    Q_OBJECT
public:
    explicit EBKitSectionLabel(EBKitText text, QWidget *parent = nullptr);

    const EBKitText &text() const { return m_text; }

    QMargins panelMargins() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void draw(QPainter &painter) override;

private:
    EBKitText m_text;
    /// What is drawn.
    EBKitText m_capitals;
};

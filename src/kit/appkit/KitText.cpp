#include "KitText.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <cmath>

namespace {

constexpr qreal unlimited = 1 << 20;

/// A paragraph in lines, as many as fit into `extent` but at least one.
class Setting {
public:
    Setting(EBKitText::Attributed text, qreal kern, QSizeF extent)
        : m_text(std::move(text)), m_kern(kern), m_extent(extent), m_layout(broken(m_text.string))
    {
        m_layout.setFont(m_text.characters.font());
        m_layout.setFormats({{0, int(m_layout.text().size()), m_text.characters}});
        m_layout.setTextOption(m_text.paragraph);
        m_layout.beginLayout();
        while (addLine()) { }
        m_layout.endLayout();
    }

    QSize size() const
    {
        qreal width = 0;
        for (int i = 0; i < m_lines; ++i)
            width = std::max(width, m_layout.lineAt(i).naturalTextWidth() - m_kern);
        return {int(std::ceil(width)), int(m_height)};
    }

    void draw(QPainter &painter, const QPointF &at) const
    {
        for (int i = 0; i < (m_isCut ? m_lines - 1 : m_lines); ++i)
            m_layout.lineAt(i).draw(&painter, at);
        if (m_isCut)
            drawCutLine(painter, at);
    }

private:
    static QString broken(QString text)
    {
        return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\n', QChar::LineSeparator);
    }

    // Tracking is also added behind the last letter, where it must neither break the line nor shift it.
    qreal lineWidth() const { return std::min(m_extent.width() + m_kern, unlimited); }

    bool addLine()
    {
        QTextLine line = m_layout.createLine();
        if (!line.isValid())
            return false;
        line.setLeadingIncluded(true);
        line.setLineWidth(lineWidth());
        const qreal height = std::ceil(line.height());
        m_isCut = m_lines > 0 && m_height + height > m_extent.height();
        if (m_isCut)
            return false;
        line.setPosition(QPointF(0, m_height));
        m_height += height;
        ++m_lines;
        return true;
    }

    void drawCutLine(QPainter &painter, const QPointF &at) const
    {
        const QTextLine line = m_layout.lineAt(m_lines - 1);
        const QString rest = m_layout.text().mid(line.textStart());
        const qsizetype end = rest.indexOf(QChar::LineSeparator);
        EBKitText::Attributed cut = m_text;
        cut.string = QFontMetricsF(m_text.characters.font())
                         .elidedText(end < 0 ? rest : QString(rest.left(end) + u'…'), Qt::ElideRight, lineWidth());
        cut.paragraph.setWrapMode(QTextOption::NoWrap);
        Setting(cut, m_kern, m_extent).draw(painter, at + line.position());
    }

    EBKitText::Attributed m_text;
    qreal m_kern;
    QSizeF m_extent;
    QTextLayout m_layout;
    int m_lines = 0;
    qreal m_height = 0;
    bool m_isCut = false;
};

Setting set(const EBKitText &text, QSizeF extent, Qt::LayoutDirection direction)
{
    EBKitText::Attributed attributed = text.attributed();
    QTextOption &paragraph = attributed.paragraph;
    paragraph.setAlignment(QStyle::visualAlignment(direction, paragraph.alignment()));
    // A word that is longer than a line goes on in the next one.
    if (paragraph.wrapMode() == QTextOption::WordWrap)
        paragraph.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return Setting(std::move(attributed), text.kern, extent);
}

}

EBKitText KitText::make(const QString &string, EBTypeRole role, const EBKitColor &color)
{
    return {string, EBTypes::font(role), color, EBTypes::tracking(int(role))};
}

EBKitText KitText::capitals(const EBKitText &text)
{
    EBKitText capitals = text;
    capitals.string = QLocale().toUpper(text.string);
    return capitals;
}

QSize KitText::size(const EBKitText &text, qreal width)
{
    return set(text, QSizeF(width, unlimited), Qt::LeftToRight).size();
}

QSize KitText::size(const EBKitText &text)
{
    return size(text, unlimited);
}

void KitText::draw(QPainter &painter, const EBKitText &text, const QRectF &rect, Qt::LayoutDirection direction)
{
    set(text, rect.size(), direction).draw(painter, rect.topLeft());
}

QFont KitText::font(const EBKitText &text)
{
    QFont font = text.font;
    font.setLetterSpacing(QFont::AbsoluteSpacing, text.kern);
    return font;
}

#include "EBType.h"

#include "EBKitFonts.h"

#include <QGuiApplication>
#include <QTextLayout>

#include <cmath>

namespace {

enum class Face { Display, Mono, System };

struct Role {
    Face face;
    int size;
    QFont::Weight weight;
    qreal tracking;
};

// In the order of the roles.
constexpr std::array roles = {
    Role{Face::Display, 160, QFont::DemiBold, -9.6}, Role{Face::Display, 44, QFont::DemiBold, -1.54},
    Role{Face::Display, 34, QFont::DemiBold, -1.19}, Role{Face::Display, 27, QFont::DemiBold, -0.81},
    Role{Face::Display, 22, QFont::DemiBold, -0.55}, Role{Face::System, 15, QFont::DemiBold, 0},
    Role{Face::System, 13, QFont::Normal, 0},        Role{Face::System, 13, QFont::DemiBold, 0},
    Role{Face::System, 12, QFont::Normal, 0},        Role{Face::System, 11, QFont::Normal, 0},
    Role{Face::Mono, 10, QFont::Medium, 1.4},        Role{Face::Mono, 9, QFont::Medium, 1.26},
};
static_assert(roles.size() == EBTypes::allCases.size());

const Role &entry(EBTypeRole role)
{
    return roles[static_cast<std::size_t>(role)];
}

/// A desktop that names one of these leaves the choice to the font configuration.
bool isGeneric(const QString &family)
{
    static const QStringList generic = {QStringLiteral("Sans"), QStringLiteral("Sans Serif"),
                                        QStringLiteral("sans-serif"), QStringLiteral("system-ui")};
    return generic.contains(family, Qt::CaseInsensitive);
}

/// The family only: the desktop's size, weight and slant do not apply here.
QStringList systemFamilies()
{
    QStringList families = QGuiApplication::font().families();
    if (families.isEmpty() || isGeneric(families.constFirst()))
        families.prepend(QStringLiteral("Inter"));
    return families;
}

/// Tracking is a fraction of a point: on a desktop that hints letters onto whole pixels, words would run together.
QFont withFinePlaces(QFont font)
{
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

QFont faceFont(Face face)
{
    switch (face) {
    case Face::Display:
        return withFinePlaces(EBKitFonts::face(EBKitFonts::display));
    case Face::Mono:
        return withFinePlaces(EBKitFonts::face(EBKitFonts::mono));
    case Face::System:
        break;
    }
    return QFont(systemFamilies());
}

}

QFont EBTypes::font(EBTypeRole role)
{
    const Role &values = entry(role);
    QFont font = faceFont(values.face);
    font.setPixelSize(values.size);
    font.setWeight(values.weight);
    font.setLetterSpacing(QFont::AbsoluteSpacing, values.tracking);
    return font;
}

qreal EBTypes::tracking(int role)
{
    return role >= 0 && role < int(roles.size()) ? roles[std::size_t(role)].tracking : 0;
}

QFont EBTypes::systemFont(qreal size, QFont::Weight weight)
{
    QFont font = faceFont(Face::System);
    font.setPixelSize(qRound(size));
    font.setWeight(weight);
    return font;
}

namespace {

/// A text as `EBText` wraps it, in one width after the other.
class Wrapping {
public:
    Wrapping(const QString &text, const QFont &font) : m_layout(text, font)
    {
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        option.setUseDesignMetrics(true);
        m_layout.setTextOption(option);
    }

    int lineCount(qreal width)
    {
        m_layout.beginLayout();
        for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine())
            line.setLineWidth(width);
        m_layout.endLayout();
        return m_layout.lineCount();
    }

    /// The last of several lines is a single word.
    bool endsInALoneWord() const
    {
        const int lines = m_layout.lineCount();
        return lines > 1 && !m_layout.text().mid(m_layout.lineAt(lines - 1).textStart()).trimmed().contains(u' ');
    }

private:
    QTextLayout m_layout;
};

}

qreal EBType::balancedWidth(const QString &text, const QFont &font, qreal width) const
{
    Wrapping wrapping(text, font);
    const int lines = width > 0 ? wrapping.lineCount(width) : 0;
    if (!wrapping.endsInALoneWord())
        return width;
    int tooNarrow = 0;
    int wide = int(std::ceil(width));
    while (wide - tooNarrow > 1) {
        const int middle = (tooNarrow + wide) / 2;
        (wrapping.lineCount(middle) > lines ? tooNarrow : wide) = middle;
    }
    return std::min(width, qreal(wide));
}

int EBType::lineCount(const QString &text, const QFont &font, qreal width) const
{
    return Wrapping(text, font).lineCount(width);
}

QFont EBType::font(const QString &role, int weight, qreal size) const
{
    const EBTypeRole parsed = EBTypes::fromRawValue(role).value_or(EBTypeRole::body);
    QFont font = EBTypes::font(parsed);
    if (weight > 0)
        font.setWeight(QFont::Weight(weight));
    if (size > 0) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, font.letterSpacing() * size / font.pixelSize());
        font.setPixelSize(qRound(size));
    }
    return font;
}

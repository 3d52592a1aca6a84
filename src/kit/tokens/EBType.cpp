#include "EBType.h"

#include "EBKitFonts.h"

#include <QGuiApplication>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <algorithm>
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

/// The family only: the desktop's size, weight and slant do not apply here. Where Inter is missing, or lacks a letter,
/// the font configuration finds another by itself. Naming the generic family too would have it sort all fonts first.
QStringList systemFamilies()
{
    const QStringList families = QGuiApplication::font().families();
    return families.isEmpty() || isGeneric(families.constFirst()) ? QStringList(QStringLiteral("Inter")) : families;
}

/// Tracking is a fraction of a point: on a desktop that hints letters onto whole pixels, words would run together.
QFont withFinePlaces(QFont font)
{
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

/// Whether its letters join, so that tracking would tear them apart.
bool joins(const QString &text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar character) { return character.script() == QChar::Script_Arabic; });
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

QFont EBTypes::font(EBTypeRole role, const QString &text)
{
    const Role &values = entry(role);
    QFont font = faceFont(values.face);
    font.setPixelSize(values.size);
    font.setWeight(values.weight);
    const bool isTracked = values.tracking != 0 && !joins(text);
    font.setLetterSpacing(QFont::AbsoluteSpacing, isTracked ? values.tracking : 0);
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

struct Wrapped {
    int lines = 1;
    /// The last line's first piece.
    qsizetype lastStart = 0;
};

Wrapped wrapped(const QList<EBType::Piece> &pieces, qreal width)
{
    Wrapped result;
    for (qsizetype i = 1; i < pieces.size(); ++i) {
        if (std::abs(pieces[i].end - pieces[result.lastStart].start) <= width)
            continue;
        ++result.lines;
        result.lastStart = i;
    }
    return result;
}

}

QList<EBType::Piece> EBType::pieces(const QString &text, const QFont &font) const
{
    const auto key = std::pair(text, font);
    if (const QList<Piece> *known = m_pieces.object(key))
        return *known;
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    QList<Piece> pieces;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    for (qsizetype from = 0, to = finder.toNextBoundary(); line.isValid() && to > from; to = finder.toNextBoundary()) {
        qsizetype end = to;
        while (end > from && text[end - 1].isSpace())
            --end;
        pieces.append({line.cursorToX(int(from)), line.cursorToX(int(end))});
        from = to;
    }
    m_pieces.insert(key, new QList<Piece>(pieces));
    return pieces;
}

qreal EBType::balancedWidth(const QString &text, const QFont &font, qreal width) const
{
    if (!(width > 0))
        return width;
    const QList<Piece> all = pieces(text, font);
    const Wrapped unbalanced = wrapped(all, width);
    if (unbalanced.lines == 1 || unbalanced.lastStart < all.size() - 1)
        return width;
    int tooNarrow = 0;
    for (const Piece &piece : all)
        tooNarrow = std::max(tooNarrow, int(std::abs(piece.end - piece.start)));
    int wide = int(std::ceil(width));
    while (wide - tooNarrow > 1) {
        const int middle = (tooNarrow + wide) / 2;
        (wrapped(all, middle).lines > unbalanced.lines ? tooNarrow : wide) = middle;
    }
    return std::min(width, qreal(wide));
}

int EBType::lineCount(const QString &text, const QFont &font, qreal width) const
{
    return wrapped(pieces(text, font), width).lines;
}

QFont EBType::font(const QString &role, int weight, qreal size, const QString &text) const
{
    const EBTypeRole parsed = EBTypes::fromRawValue(role).value_or(EBTypeRole::body);
    QFont font = EBTypes::font(parsed, text);
    if (weight > 0)
        font.setWeight(QFont::Weight(weight));
    if (size > 0) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, font.letterSpacing() * size / font.pixelSize());
        font.setPixelSize(qRound(size));
    }
    return font;
}

#pragma once

#include "CaseNames.h"

#include <QCache>
#include <QFont>
#include <QObject>
#include <qqmlregistration.h>

/// The twelve type roles. The first five and the last two are set in the kit's own faces, the others in the
/// desktop's general font.
enum class EBTypeRole {
    hero,
    display,
    title,
    heading,
    subheading,
    lead,
    body,
    bodyStrong,
    small,
    caption,
    mono,
    monoSmall
};

struct EBTypes : NamedCases<EBTypeRole> {
    /// The role's face, size (points, set as pixels) and weight, tracking included. A text whose letters join, as in
    /// Arabic, is not tracked.
    static QFont font(EBTypeRole role, const QString &text = {});

    /// Extra space after each letter in points; 0 for a number that is no role.
    static qreal tracking(int role);

    /// The desktop's general font; Inter, where it is installed, for a desktop that names only a generic family.
    static QFont systemFont(qreal size, QFont::Weight weight = QFont::Normal);
};

/// The type roles for QML, by their names: `EBType.font("body")`. An unknown name reads as "body".
class EBType : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    /// A weight of 0 keeps the role's own; a size of 0 too. The tracking grows with the size. For what is set in it see
    /// `EBTypes::font()`.
    Q_INVOKABLE QFont font(const QString &role, int weight = 0, qreal size = 0, const QString &text = {}) const;

    /// `width`, where the text wraps without leaving a single word for its last line; else the smallest width, in whole
    /// points, that takes no more lines: they are about equally long there.
    Q_INVOKABLE qreal balancedWidth(const QString &text, const QFont &font, qreal width) const;

    /// How many lines the text wraps onto in this width.
    Q_INVOKABLE int lineCount(const QString &text, const QFont &font, qreal width) const;

    /// Part of a text that stays in one line, from where to where it reaches when all of it does. Points; leftward
    /// where text runs from right to left.
    struct Piece {
        qreal start;
        qreal end;
    };

private:
    QList<Piece> pieces(const QString &text, const QFont &font) const;

    // A text is asked about at every change of its width, and measuring it is what takes time.
    mutable QCache<std::pair<QString, QFont>, QList<Piece>> m_pieces;
};

#include "GlyphPaths.h"

#include "ContinuousRect.h"

#include <span>

namespace {

enum class Verb { move, line, curve, ellipse, roundedRect, close, closeIfContinuous };

struct Step {
    Verb verb;
    qreal a = 0;
    qreal b = 0;
    qreal c = 0;
    qreal d = 0;
    qreal e = 0;
    qreal f = 0;
};

constexpr Step M(qreal x, qreal y)
{
    return {Verb::move, x, y};
}

constexpr Step L(qreal x, qreal y)
{
    return {Verb::line, x, y};
}

// The end point comes first, then the two control points.
constexpr Step C(qreal x, qreal y, qreal x1, qreal y1, qreal x2, qreal y2)
{
    return {Verb::curve, x, y, x1, y1, x2, y2};
}

constexpr Step E(qreal x, qreal y, qreal width, qreal height)
{
    return {Verb::ellipse, x, y, width, height};
}

constexpr Step R(qreal x, qreal y, qreal width, qreal height, qreal radius)
{
    return {Verb::roundedRect, x, y, width, height, radius};
}

constexpr Step Z{Verb::close};

// The hand-drawn views leave this outline open, which their round caps hide.
constexpr Step ZIfContinuous{Verb::closeIfContinuous};

// One outline a glyph, under the glyph's own name: a name without an outline does not compile.
// Most points lie on half or whole units; those that do not keep an arc round or an outline smooth.
namespace outlines {

constexpr Step apps[] = {
    R(4, 4, 6.5, 6.5, 1.8),
    R(13.5, 4, 6.5, 6.5, 1.8),
    R(4, 13.5, 6.5, 6.5, 1.8),
    R(13.5, 13.5, 6.5, 6.5, 1.8),
};

constexpr Step arrow[] = {M(5, 12), L(19, 12), M(13, 6), L(19, 12), L(13, 18)};

// Each bud is a round head that runs down into a narrow stem.
constexpr Step buds[] = {
    M(9, 7.25),
    C(5.75, 4, 9, 5.455, 7.545, 4),
    C(2.5, 7.25, 3.955, 4, 2.5, 5.455),
    C(5.25, 10.5, 2.5, 9.045, 3.7312, 10.5),
    C(6, 11.25, 5.6642, 10.5, 6, 10.8358),
    L(6, 18.5),
    C(7.5, 20, 6, 19.3285, 6.6715, 20),
    C(9, 18.5, 8.3285, 20, 9, 19.3285),
    Z,
    M(15, 7.25),
    C(18.25, 4, 15, 5.455, 16.455, 4),
    C(21.5, 7.25, 20.045, 4, 21.5, 5.455),
    C(18.75, 10.5, 21.5, 9.045, 20.2688, 10.5),
    C(18, 11.25, 18.3358, 10.5, 18, 10.8358),
    L(18, 18.5),
    C(16.5, 20, 18, 19.3285, 17.3285, 20),
    C(15, 18.5, 15.6715, 20, 15, 19.3285),
    Z,
};

constexpr Step call[] = {R(3, 7, 12.5, 10, 2.5), M(15.5, 10.5), L(20.5, 8), L(20.5, 16), L(15.5, 13.5)};

constexpr Step check[] = {M(5, 12.5), L(9.5, 17), L(19, 7.5)};

constexpr Step chevrons[] = {M(8.5, 9.5), L(12, 6), L(15.5, 9.5), M(8.5, 14.5), L(12, 18), L(15.5, 14.5)};

constexpr Step clock[] = {E(3.5, 3.5, 17, 17), M(12, 7.5), L(12, 12), L(15, 14)};

constexpr Step close[] = {M(7, 7), L(17, 17), M(17, 7), L(7, 17)};

constexpr Step cmd[] = {
    M(9, 9),
    L(15, 9),
    M(9, 9),
    L(9, 15),
    M(15, 9),
    L(15, 15),
    M(15, 15),
    L(9, 15),
    M(9, 9),
    L(9, 6.5),
    C(6.5, 4, 9, 5.1193, 7.8807, 4),
    C(4, 6.5, 5.1193, 4, 4, 5.1193),
    C(6.5, 9, 4, 7.8807, 5.1193, 9),
    L(9, 9),
    Z,
    M(15, 9),
    L(15, 6.5),
    C(17.5, 4, 15, 5.1193, 16.1193, 4),
    C(20, 6.5, 18.8807, 4, 20, 5.1193),
    C(17.5, 9, 20, 7.8807, 18.8807, 9),
    L(15, 9),
    Z,
    M(15, 15),
    L(15, 17.5),
    C(17.5, 20, 15, 18.8807, 16.1193, 20),
    C(20, 17.5, 18.8807, 20, 20, 18.8807),
    C(17.5, 15, 20, 16.1193, 18.8807, 15),
    L(15, 15),
    Z,
    M(9, 15),
    L(9, 17.5),
    C(6.5, 20, 9, 18.8807, 7.8807, 20),
    C(4, 17.5, 5.1193, 20, 4, 18.8807),
    C(6.5, 15, 4, 16.1193, 5.1193, 15),
    L(9, 15),
    Z,
};

constexpr Step cursor[] = {M(6, 3.5), L(6, 17.5), L(10, 14), L(16.5, 14), Z, M(11, 14.5), L(13.5, 20)};

constexpr Step dock[] = {R(3, 4, 18, 16, 2.5), M(6.5, 16.5), L(17.5, 16.5)};

constexpr Step dots[] = {E(2.9, 9.4, 5.2, 5.2), E(9.4, 9.4, 5.2, 5.2), E(15.9, 9.4, 5.2, 5.2)};

constexpr Step download[] = {
    M(12, 4), L(12, 15), M(7, 10), L(12, 15), L(17, 10), M(5, 19.5), L(19, 19.5),
};

constexpr Step eye[] = {
    M(2.5, 12),
    C(12, 5.5, 2.5, 12, 6, 5.5),
    C(21.5, 12, 18, 5.5, 21.5, 12),
    C(12, 18.5, 21.5, 12, 18, 18.5),
    C(2.5, 12, 6, 18.5, 2.5, 12),
    Z,
    E(9.2, 9.2, 5.6, 5.6),
};

constexpr Step flag[] = {
    M(5.5, 20.5),
    L(5.5, 4.5),
    C(12, 4.5, 7.5, 3, 9.5, 3),
    C(18.5, 4.5, 14.5, 6, 16.5, 6),
    L(18.5, 13.5),
    C(12, 13.5, 16.5, 15, 14.5, 15),
    C(5.5, 13.5, 9.5, 12, 7.5, 12),
};

constexpr Step gear[] = {
    E(8.8, 8.8, 6.4, 6.4), M(12, 2.8),   L(12, 5.4),   M(12, 18.6), L(12, 21.2),   M(2.8, 12),    L(5.4, 12),
    M(18.6, 12),           L(21.2, 12),  M(5.5, 5.5),  L(7.3, 7.3), M(16.7, 16.7), L(18.5, 18.5), M(5.5, 18.5),
    L(7.3, 16.7),          M(16.7, 7.3), L(18.5, 5.5),
};

constexpr Step globe[] = {
    E(3.5, 3.5, 17, 17),
    M(3.5, 12),
    L(20.5, 12),
    M(12, 3.5),
    C(8.25, 12, 9.6, 5.9, 8.25, 8.8),
    C(12, 20.5, 8.25, 15.2, 9.6, 18.1),
    M(12, 3.5),
    C(15.75, 12, 14.4, 5.9, 15.75, 8.8),
    C(12, 20.5, 15.75, 15.2, 14.4, 18.1),
};

// One line: around the left cup, up its outer edge into the band, and around the right cup.
constexpr Step head[] = {
    M(3.5, 13.5),
    L(5.5, 13.5),
    C(7, 15, 6.3285, 13.5, 7, 14.1716),
    L(7, 19),
    C(5.5, 20.5, 7, 19.8285, 6.3285, 20.5),
    L(4.5, 20.5),
    C(3, 19, 3.6716, 20.5, 3, 19.8285),
    L(3, 12),
    C(12, 3, 3, 7.0293, 7.0293, 3),
    C(21, 12, 16.9707, 3, 21, 7.0293),
    L(21, 19),
    C(19.5, 20.5, 21, 19.8285, 20.3285, 20.5),
    L(18.5, 20.5),
    C(17, 19, 17.6716, 20.5, 17, 19.8285),
    L(17, 15),
    C(18.5, 13.5, 17, 14.1716, 17.6716, 13.5),
    L(20.5, 13.5),
};

constexpr Step info[] = {E(3, 3, 18, 18), M(12, 11), L(12, 16.5), M(12, 7.8), L(12, 7.9)};

constexpr Step key[] = {
    E(4.4, 8.4, 7.2, 7.2), M(11.6, 12), L(21, 12), L(21, 15.5), M(17, 12), L(17, 15),
};

constexpr Step levels[] = {
    M(4, 10.5), L(4, 13.5), M(8, 8), L(8, 16), M(12, 5), L(12, 19), M(16, 8), L(16, 16), M(20, 10.5), L(20, 13.5),
};

constexpr Step mic[] = {
    R(9, 3, 6, 11, 3),
    M(5.5, 11.5),
    C(12, 18, 5.5, 15.09, 8.41, 18),
    C(18.5, 11.5, 15.59, 18, 18.5, 15.09),
    M(12, 18),
    L(12, 21),
    M(9, 21),
    L(15, 21),
};

constexpr Step minus[] = {M(5.5, 12), L(18.5, 12)};

constexpr Step mute[] = {
    M(3, 9.5), L(6.5, 9.5), L(11, 5.5), L(11, 18.5), L(6.5, 14.5), L(3, 14.5),
    Z,         M(15, 9),    L(21, 15),  M(21, 9),    L(15, 15),
};

constexpr Step note[] = {
    E(4, 15.5, 5, 5), E(14, 13.5, 5, 5), M(9, 18), L(9, 6), L(19, 4), L(19, 16),
};

constexpr Step play[] = {M(7.5, 5), L(18.5, 12), L(7.5, 19), Z};

constexpr Step playpause[] = {
    M(4, 6.5), L(12, 12), L(4, 17.5), Z, M(15.5, 6.5), L(15.5, 17.5), M(19.5, 6.5), L(19.5, 17.5),
};

constexpr Step plus[] = {M(12, 5.5), L(12, 18.5), M(5.5, 12), L(18.5, 12)};

constexpr Step power[] = {
    M(12, 3),
    L(12, 11.5),
    M(16.5, 7),
    C(19.5, 13, 18.389, 8.416, 19.5, 10.639),
    C(12, 20.5, 19.5, 17.142, 16.142, 20.5),
    C(4.5, 13, 7.858, 20.5, 4.5, 17.142),
    C(7.5, 7, 4.5, 10.639, 5.611, 8.416),
};

constexpr Step refresh[] = {
    M(19, 16),
    C(9.931, 19.792, 17.186, 19.174, 13.464, 20.73),
    C(3.938, 12, 6.397, 18.854, 3.938, 15.656),
    C(9.931, 4.208, 3.938, 8.344, 6.397, 5.146),
    C(19, 8, 13.464, 3.27, 17.186, 4.826),
    M(19, 3),
    L(19, 8),
    L(14, 8),
};

constexpr Step search[] = {E(4.5, 4.5, 13, 13), M(16, 16), L(20.5, 20.5)};

constexpr Step share[] = {
    M(12, 15),     L(12, 3.5),
    M(7, 8.5),     L(12, 3.5),
    L(17, 8.5),    M(5, 14),
    L(5, 18),      C(7.5, 20.5, 5, 19.3807, 6.1193, 20.5),
    L(16.5, 20.5), C(19, 18, 17.8807, 20.5, 19, 19.3807),
    L(19, 14),
};

constexpr Step sliders[] = {
    M(4, 7), L(13, 7), M(17, 7), L(20, 7), E(13, 5, 4, 4), M(4, 17), L(7, 17), M(11, 17), L(20, 17), E(7, 15, 4, 4),
};

constexpr Step spark[] = {
    M(12, 3),
    C(20, 11, 12.6, 7.6, 15.4, 10.4),
    C(12, 19, 15.4, 11.6, 12.6, 14.4),
    C(4, 11, 11.4, 14.4, 8.6, 11.6),
    C(12, 3, 8.6, 10.4, 11.4, 7.6),
    ZIfContinuous,
};

constexpr Step speaker[] = {R(6, 3, 12, 18, 3), E(9, 11.5, 6, 6), M(12, 7.2), L(12, 7.3)};

constexpr Step terminal[] = {
    R(3, 4.5, 18, 15, 2.5), M(7, 9.5), L(10, 12), L(7, 14.5), M(12.5, 15), L(17, 15),
};

constexpr Step undo[] = {
    M(9, 4.5),
    L(4.5, 9),
    L(9, 13.5),
    M(4.5, 9),
    L(14, 9),
    C(19, 14, 16.7615, 9, 19, 11.2385),
    C(14, 19, 19, 16.7615, 16.7615, 19),
    L(9, 19),
};

constexpr Step volume[] = {
    M(3, 9.5),
    L(6.5, 9.5),
    L(11, 5.5),
    L(11, 18.5),
    L(6.5, 14.5),
    L(3, 14.5),
    Z,
    M(15, 9),
    C(15, 15, 16.657, 10.657, 16.657, 13.343),
    M(18, 6),
    C(18, 18, 21.314, 9.314, 21.314, 14.686),
};

constexpr Step warning[] = {
    M(12, 4.5), L(20.5, 19.5), L(3.5, 19.5), Z, M(12, 10.5), L(12, 14.5), M(12, 17.2), L(12, 17.3),
};

constexpr Step wifi[] = {
    M(2.5, 9.5),  C(21.5, 9.5, 7.78, 4.33, 16.22, 4.33),     M(5.5, 12.5), C(18.5, 12.5, 9.12, 8.99, 14.88, 8.99),
    M(8.5, 15.5), C(15.5, 15.5, 10.46, 13.64, 13.54, 13.64), M(12, 19.2),  L(12, 19.3),
};

constexpr Step wins[] = {R(3, 4, 12, 9, 2), R(9, 10, 12, 9, 2)};

}

std::span<const Step> outline(GlyphName name)
{
    switch (name) {
#define GLYPH(name)                                                                                                    \
    case GlyphName::name:                                                                                              \
        return outlines::name;
        KIT_GLYPHS(GLYPH)
#undef GLYPH
    }
    return {};
}

}

QPainterPath glyphPath(GlyphName name, CornerStyle corners)
{
    QPainterPath path;
    for (const auto &[verb, a, b, c, d, e, f] : outline(name)) {
        switch (verb) {
        case Verb::move:
            path.moveTo(a, b);
            break;
        case Verb::line:
            path.lineTo(a, b);
            break;
        case Verb::curve:
            path.cubicTo(c, d, e, f, a, b);
            break;
        case Verb::ellipse:
            path.addEllipse(QRectF(a, b, c, d));
            break;
        case Verb::roundedRect:
            if (corners == CornerStyle::continuous)
                path.addPath(continuousRect(QRectF(a, b, c, d), e));
            else
                path.addRoundedRect(QRectF(a, b, c, d), e, e);
            break;
        case Verb::close:
            path.closeSubpath();
            break;
        case Verb::closeIfContinuous:
            if (corners == CornerStyle::continuous)
                path.closeSubpath();
            break;
        }
    }
    return path;
}

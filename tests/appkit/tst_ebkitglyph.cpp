#include "EBKitGlyph.h"
#include "GlyphPaths.h"
#include "TestProgram.h"

class EBKitGlyphTest : public QObject {
    Q_OBJECT
private slots:
    void everyGlyphHasTheOutlineOfTheSameNameWithCircularCorners();
};

void EBKitGlyphTest::everyGlyphHasTheOutlineOfTheSameNameWithCircularCorners()
{
    for (const EBKitGlyph glyph : EBKitGlyphs::allCases) {
        const GlyphName name = GlyphNames::fromRawValue(EBKitGlyphs::rawValue(glyph)).value();
        QCOMPARE(EBKitGlyphs::path(glyph), glyphPath(name, CornerStyle::circular));
    }
}

CORVANE_TEST(EBKitGlyphTest, runBare)
#include "tst_ebkitglyph.moc"

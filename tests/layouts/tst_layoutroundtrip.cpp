#include "LayoutCoder.h"
#include "RandomLayouts.h"
#include "TestProgram.h"

#include <algorithm>
#include <bit>

namespace {

/// The same numbers to the last bit, the sign of zero included.
bool isSameNumber(double one, double other)
{
    return std::bit_cast<quint64>(one) == std::bit_cast<quint64>(other);
}

bool haveSameNumbers(const QList<SavedLayout> &some, const QList<SavedLayout> &others)
{
    return std::ranges::equal(some, others, [](const SavedLayout &one, const SavedLayout &other) {
        return isSameNumber(one.created, other.created)
            && std::ranges::equal(one.windows, other.windows, [](const auto &window, const auto &otherWindow) {
                   const UnitRect &a = window.rect;
                   const UnitRect &b = otherWindow.rect;
                   return isSameNumber(a.x, b.x) && isSameNumber(a.y, b.y) && isSameNumber(a.w, b.w)
                       && isSameNumber(a.h, b.h);
               });
    });
}

/// The text with white space wherever a person may put it.
QString spread(const QString &text)
{
    QString spread;
    bool isInString = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (isInString && character == u'\\') {
            spread += text.sliced(i++, 2);
            continue;
        }
        if (character == u'"')
            isInString = !isInString;
        spread += character;
        if (!isInString && QStringView(u"[]{},:").contains(character))
            spread += QStringLiteral(" \n\t");
    }
    return spread;
}

}

class LayoutRoundTripTest : public QObject {
    Q_OBJECT

private slots:
    void whatIsEncodedDecodesToTheSame_data() { seeds(); }
    void whatIsEncodedDecodesToTheSame();
    void theEncodedFormIsAFixedPoint_data() { seeds(); }
    void theEncodedFormIsAFixedPoint();
    void anyOtherFormOfAListEndsInTheOneForm_data() { seeds(); }
    void anyOtherFormOfAListEndsInTheOneForm();
    void aDamagedTextNeverMakesAListWithoutAForm_data() { seeds(); }
    void aDamagedTextNeverMakesAListWithoutAForm();

private:
    static constexpr quint32 listsOfASeed = 250;

    static void seeds()
    {
        QTest::addColumn<quint32>("seed");
        for (const quint32 seed : {1U, 20010101U, 0xc0ffeeU, 4242U})
            QTest::addRow("seed %u", seed) << seed;
    }
};

void LayoutRoundTripTest::whatIsEncodedDecodesToTheSame()
{
    QFETCH(quint32, seed);
    RandomLayouts random(seed);
    for (quint32 i = 0; i < listsOfASeed; ++i) {
        const QList<SavedLayout> layouts = random.list();
        const auto text = LayoutCoder::encode(layouts);
        QVERIFY(text);
        const auto decoded = LayoutCoder::decode(*text);
        QVERIFY2(decoded && *decoded == layouts && haveSameNumbers(*decoded, layouts), qPrintable(*text));
    }
}

void LayoutRoundTripTest::theEncodedFormIsAFixedPoint()
{
    QFETCH(quint32, seed);
    RandomLayouts random(seed);
    for (quint32 i = 0; i < listsOfASeed; ++i) {
        const auto text = LayoutCoder::encode(random.list());
        QVERIFY(text);
        QCOMPARE(LayoutCoder::encode(LayoutCoder::decode(*text).value()), text);
    }
}

void LayoutRoundTripTest::anyOtherFormOfAListEndsInTheOneForm()
{
    QFETCH(quint32, seed);
    RandomLayouts random(seed);
    for (quint32 i = 0; i < listsOfASeed; ++i) {
        const auto text = LayoutCoder::encode(random.list());
        QVERIFY(text);
        const auto decoded = LayoutCoder::decode(spread(*text));
        QVERIFY2(decoded, qPrintable(spread(*text)));
        QCOMPARE(LayoutCoder::encode(*decoded), text);
    }
}

void LayoutRoundTripTest::aDamagedTextNeverMakesAListWithoutAForm()
{
    QFETCH(quint32, seed);
    RandomLayouts random(seed);
    QRandomGenerator damage(seed);
    for (quint32 i = 0; i < listsOfASeed; ++i) {
        QString text = LayoutCoder::encode(random.list()).value();
        const auto place = static_cast<qsizetype>(damage.bounded(static_cast<quint32>(text.size())));
        text[place] = QChar(static_cast<char16_t>(damage.bounded(0x80)));
        const auto layouts = LayoutCoder::decode(text);
        QVERIFY2(!layouts || LayoutCoder::encode(*layouts), qPrintable(text));
    }
}

CORVANE_TEST(LayoutRoundTripTest, runInCore)
#include "tst_layoutroundtrip.moc"

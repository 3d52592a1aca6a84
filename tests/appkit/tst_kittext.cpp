#include "FakePlatform.h"
#include "Picture.h"
#include "TestProgram.h"

#include <QFontMetricsF>

namespace {

/// A view that draws one text.
class Label : public QWidget {
public:
    Label(EBKitText text, QRectF place, Qt::LayoutDirection direction = Qt::LeftToRight)
        : m_text(std::move(text)), m_place(place), m_direction(direction)
    {
        resize(300, 100);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        KitText::draw(painter, m_text, m_place, m_direction);
    }

private:
    EBKitText m_text;
    QRectF m_place;
    Qt::LayoutDirection m_direction;
};

Picture drawn(const QString &string, const QRectF &place)
{
    Label label(titleText(string), place);
    return Picture(label, Qt::white);
}

QRectF inked(const EBKitText &text, const QRectF &place, Qt::LayoutDirection direction = Qt::LeftToRight)
{
    Label label(text, place, direction);
    return Picture(label, Qt::white).inked(QRectF(0, 0, 300, 100), Qt::white);
}

const QString sentence = QStringLiteral("Shows the close button on every window of the overview");

}

class TestKitText : public QObject {
    Q_OBJECT

private slots:
    void aRoleGivesFontKernAndColor()
    {
        const EBKitText text = KitText::make(QStringLiteral("Keys"), EBTypeRole::mono, EBKit::inkMuted());
        QCOMPARE(text.string, QStringLiteral("Keys"));
        QCOMPARE(text.font, EBTypes::font(EBTypeRole::mono));
        QCOMPARE(text.kern, 1.4);
        QCOMPARE(text.color.current(), EBKit::inkMuted().current());
        QCOMPARE(KitText::font(text), EBTypes::font(EBTypeRole::mono));
    }

    void aTextIsAsLargeAsItsLines()
    {
        const QSize one = KitText::size(titleText(sentence));
        const QSize wrapped = KitText::size(titleText(sentence), one.width() / 2.0 + 20);
        QCOMPARE(wrapped.height(), 2 * one.height());
        QVERIFY(wrapped.width() <= one.width() / 2 + 20);
        QCOMPARE(KitText::size(titleText(QStringLiteral("a\nb"))).height(), 2 * one.height());
        QCOMPARE(KitText::size(titleText(sentence), one.width()).height(), one.height());
    }

    void theKernBehindTheLastLetterDoesNotCount()
    {
        EBKitText text = titleText(QStringLiteral("Keys"));
        const int plain = KitText::size(text).width();
        text.kern = 5;
        QCOMPARE(KitText::size(text).width(), plain + 3 * 5);
        QCOMPARE(KitText::size(text, KitText::size(text).width()).height(), KitText::size(text).height());
        text.alignment = Qt::AlignHCenter;
        const QRectF found = inked(text, QRectF(0, 0, 300, 30));
        QVERIFY2(std::abs(found.center().x() - 150) < 1, qPrintable(QString::number(found.center().x())));
    }

    void aTextIsDrawnFromTheTopLeftCornerInItsColor()
    {
        const EBKitText text = titleText(QStringLiteral("HHH"));
        const QRectF found = inked(text, QRectF(40, 30, 200, 40));
        const QSize size = KitText::size(text);
        QVERIFY(QRectF(QPointF(39, 30), size).adjusted(0, 0, 1, 0).contains(found));
        Label label(text, QRectF(40, 30, 200, 40));
        COMPARE_COLOR(Picture(label, Qt::white).at(found.left() + 1, found.center().y()), EBKit::ink().current());
    }

    void leadingFollowsTheDirection()
    {
        const EBKitText text = titleText(QStringLiteral("Keys"));
        QVERIFY(inked(text, QRectF(40, 0, 200, 40)).left() < 45);
        QVERIFY(inked(text, QRectF(40, 0, 200, 40), Qt::RightToLeft).right() > 235);
    }

    void aWordLongerThanTheLineIsBroken()
    {
        const EBKitText text = titleText(QStringLiteral("Donaudampfschifffahrtsgesellschaft"));
        QVERIFY(KitText::size(text, 80).width() <= 80);
        QVERIFY(KitText::size(text, 80).height() > KitText::size(text).height());
    }

    void theLastVisibleLineIsCutShort()
    {
        const int line = KitText::size(titleText(sentence)).height();
        const QFontMetricsF metrics(titleText({}).font);
        const QRectF oneLine(0, 0, 120, line);
        QVERIFY(drawn(sentence, oneLine) == drawn(metrics.elidedText(sentence, Qt::ElideRight, 120), oneLine));
        QVERIFY(!(drawn(sentence, oneLine) == drawn(sentence, QRectF(0, 0, 120, 100))));

        // In the second of two lines there is an ellipsis, and the first one is whole.
        const QString words = QStringLiteral("Shows the\nclose button on every window");
        const QString cut = metrics.elidedText(QStringLiteral("close button on every window"), Qt::ElideRight, 120);
        QVERIFY(cut.endsWith(u'…'));
        QVERIFY(drawn(words, QRectF(0, 0, 120, 2.5 * line))
                == drawn(QStringLiteral("Shows the\n") + cut, QRectF(0, 0, 120, 100)));
    }

    void aHardBreakBehindTheLastVisibleLineLeavesAnEllipsisToo()
    {
        const int line = KitText::size(titleText(sentence)).height();
        QVERIFY(drawn(QStringLiteral("One\nTwo"), QRectF(0, 0, 120, line))
                == drawn(QStringLiteral("One…"), QRectF(0, 0, 120, line)));
    }

    void thereIsAlwaysRoomForOneLine()
    {
        QVERIFY(drawn(QStringLiteral("One"), QRectF(0, 0, 120, 2)) == drawn(QStringLiteral("One"), {0, 0, 120, 100}));
    }

    void anEmptyTextIsNothing()
    {
        QCOMPARE(KitText::size(titleText({})).width(), 0);
        QVERIFY(inked(titleText({}), QRectF(0, 0, 100, 100)).isEmpty());
    }

private:
    FakePlatform &m_platform = FakePlatform::install();
};

CORVANE_TEST(TestKitText, runInWidgets)
#include "tst_kittext.moc"

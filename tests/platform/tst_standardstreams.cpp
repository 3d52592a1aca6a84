#include "StandardStreams.h"
#include "TestProgram.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

class StandardStreamsTest : public QObject {
    Q_OBJECT
private slots:
    void aClosedStreamIsOpened_data();
    void aClosedStreamIsOpened();
    void openStreamsStayAsTheyAre();
    void aReaderThatGoesAwayEndsNothing();
};

void StandardStreamsTest::aClosedStreamIsOpened_data()
{
    QTest::addColumn<QList<int>>("closed");
    QTest::newRow("input") << QList<int>{0};
    QTest::newRow("output") << QList<int>{1};
    QTest::newRow("errors") << QList<int>{2};
    QTest::newRow("all") << QList<int>{0, 1, 2};
}

void StandardStreamsTest::aClosedStreamIsOpened()
{
    QFETCH(const QList<int>, closed);
    std::array<int, 3> kept = {dup(0), dup(1), dup(2)};
    for (const int stream : closed)
        close(stream);
    StandardStreams::secure();
    QStringList opened;
    for (const int stream : closed)
        opened << QFileInfo(QStringLiteral("/proc/self/fd/%1").arg(stream)).symLinkTarget();
    const int next = open("/dev/null", O_RDONLY);
    for (int stream = 0; stream < 3; ++stream) {
        dup2(kept.at(stream), stream);
        close(kept.at(stream));
    }
    close(next);
    QCOMPARE(opened, QStringList(closed.size(), QStringLiteral("/dev/null")));
    QVERIFY(next > 2);
}

void StandardStreamsTest::openStreamsStayAsTheyAre()
{
    const auto target = [] { return QFileInfo(QStringLiteral("/proc/self/fd/1")).symLinkTarget(); };
    const QString before = target();
    StandardStreams::secure();
    QCOMPARE(target(), before);
}

void StandardStreamsTest::aReaderThatGoesAwayEndsNothing()
{
    const auto before = std::signal(SIGPIPE, SIG_DFL);
    const auto restored = qScopeGuard([before] { std::signal(SIGPIPE, before); });
    StandardStreams::secure();
    std::array<int, 2> ends = {};
    QCOMPARE(pipe(ends.data()), 0);
    close(ends.at(0));
    QCOMPARE(write(ends.at(1), "a", 1), -1);
    QCOMPARE(errno, EPIPE);
    close(ends.at(1));
}

CORVANE_TEST(StandardStreamsTest, runBare)

#include "tst_standardstreams.moc"

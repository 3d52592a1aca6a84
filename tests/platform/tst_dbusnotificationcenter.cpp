#include "DBusNotificationCenter.h"
#include "PrivateSession.h"
#include "TestProgram.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QProcess>
#include <QXmlStreamReader>

#include <unistd.h>

namespace {

const QString name = QStringLiteral("com.vexmoor.corvane.command");

/// What the written description of the interface says.
struct Description {
    QString path;
    QString interface;
    QString signal;
    QStringList types;
};

Description description()
{
    QFile file(QStringLiteral(INTERFACE_FILE));
    if (!file.open(QFile::ReadOnly))
        return {};
    Description result;
    QXmlStreamReader xml(&file);
    while (xml.readNextStartElement() || !xml.atEnd()) {
        if (!xml.isStartElement())
            continue;
        const QString value = xml.attributes().value(QStringLiteral("name")).toString();
        if (xml.name() == QStringLiteral("node"))
            result.path = value;
        else if (xml.name() == QStringLiteral("interface"))
            result.interface = value;
        else if (xml.name() == QStringLiteral("signal"))
            result.signal = value;
        else if (xml.name() == QStringLiteral("arg"))
            result.types.append(xml.attributes().value(QStringLiteral("type")).toString());
    }
    return result;
}

/// Another process on the bus: it keeps every command as it came.
class Listener : public QObject {
    Q_OBJECT
public:
    QList<QDBusMessage> messages;

    Listener()
    {
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("listener"));
        bus.connect(QString(), QString(), QStringLiteral("com.vexmoor.corvane"), QStringLiteral("command"), this,
                    SLOT(receive(QDBusMessage)));
    }
    ~Listener() override { QDBusConnection::disconnectFromBus(QStringLiteral("listener")); }

    QVariantMap userInfo() const { return qdbus_cast<QVariantMap>(messages.constLast().arguments().constFirst()); }

public slots:
    void receive(const QDBusMessage &message) { messages.append(message); }
};

}

class DBusNotificationCenterTest : public QObject {
    Q_OBJECT
public:
    explicit DBusNotificationCenterTest(PrivateSession &) { }

private slots:
    void aNotificationHasTheFormThatIsWrittenDown();
    void aBooleanAndATextArriveAsWhatTheyAre();
    void anAbsentValueIsNoEntry();
    void aNotificationIsOnTheBusWhenThePostReturns();
    void anObserverHearsThisProcessAndOthers();
    void anObserverHearsNothingElse();
    void aNameThatIsNoSignalIsLost_data();
    void aNameThatIsNoSignalIsLost();
};

void DBusNotificationCenterTest::aNotificationHasTheFormThatIsWrittenDown()
{
    const Description written = description();
    QCOMPARE(written.interface + u'.' + written.signal, name);
    Listener listener;
    DBusNotificationCenter().post(name, {{QStringLiteral("command"), QStringLiteral("applySettings")}});
    QTRY_COMPARE(listener.messages.size(), 1);
    const QDBusMessage message = listener.messages.first();
    QCOMPARE(message.type(), QDBusMessage::SignalMessage);
    QCOMPARE(message.path(), written.path);
    QCOMPARE(message.interface(), written.interface);
    QCOMPARE(message.member(), written.signal);
    QCOMPARE(message.signature(), written.types.join(QString()));
    QCOMPARE(message.signature(), QStringLiteral("a{sv}"));
}

void DBusNotificationCenterTest::aBooleanAndATextArriveAsWhatTheyAre()
{
    Listener listener;
    const QVariantMap sent = {{QStringLiteral("command"), QStringLiteral("setLaunchAtLogin")},
                              {QStringLiteral("value"), false},
                              {QStringLiteral("extra"), QStringLiteral("⌘")}};
    DBusNotificationCenter().post(name, sent);
    QTRY_COMPARE(listener.messages.size(), 1);
    QCOMPARE(listener.userInfo(), sent);
    QCOMPARE(listener.userInfo()[QStringLiteral("value")].typeId(), QMetaType::Bool);
    QCOMPARE(listener.userInfo()[QStringLiteral("command")].typeId(), QMetaType::QString);
}

void DBusNotificationCenterTest::anAbsentValueIsNoEntry()
{
    Listener listener;
    DBusNotificationCenter().post(name, {{QStringLiteral("command"), QStringLiteral("applySettings")}});
    QTRY_COMPARE(listener.messages.size(), 1);
    QCOMPARE(listener.userInfo().keys(), QStringList(QStringLiteral("command")));
}

// The other process ends without any tidying up as soon as the call has returned.
void DBusNotificationCenterTest::aNotificationIsOnTheBusWhenThePostReturns()
{
    Listener listener;
    for (int round = 1; round <= 5; ++round) {
        QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(),
                                   {QStringLiteral("tst_dbusnotificationcenter"), QStringLiteral("--post")}),
                 0);
        QTRY_COMPARE(listener.messages.size(), round);
    }
}

void DBusNotificationCenterTest::anObserverHearsThisProcessAndOthers()
{
    DBusNotificationCenter center;
    QObject context;
    QList<QVariantMap> heard;
    center.observe(name, &context, [&](const QVariantMap &userInfo) { heard.append(userInfo); });
    const QVariantMap sent = {{QStringLiteral("command"), QStringLiteral("setLaunchAtLogin")},
                              {QStringLiteral("value"), true}};
    center.post(name, sent);
    QTRY_COMPARE(heard.size(), 1);
    QCOMPARE(heard.first(), sent);
    QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(),
                               {QStringLiteral("tst_dbusnotificationcenter"), QStringLiteral("--post")}),
             0);
    QTRY_COMPARE(heard.size(), 2);
    QCOMPARE(heard.last().value(QStringLiteral("command")), QVariant(QStringLiteral("fromOutside")));
}

void DBusNotificationCenterTest::anObserverHearsNothingElse()
{
    DBusNotificationCenter center;
    QObject context;
    QList<QVariantMap> heard;
    center.observe(name, &context, [&](const QVariantMap &userInfo) { heard.append(userInfo); });
    QDBusMessage otherForm = QDBusMessage::createSignal(
        QStringLiteral("/com/vexmoor/corvane"), QStringLiteral("com.vexmoor.corvane"), QStringLiteral("command"));
    otherForm << QStringLiteral("applySettings");
    QDBusConnection::sessionBus().send(otherForm);
    center.post(QStringLiteral("com.vexmoor.corvane.other"), {});
    center.post(name, {{QStringLiteral("command"), QStringLiteral("last")}});
    QTRY_VERIFY(!heard.isEmpty());
    QCOMPARE(heard.size(), 1);
    QCOMPARE(heard.first().value(QStringLiteral("command")), QVariant(QStringLiteral("last")));
}

void DBusNotificationCenterTest::aNameThatIsNoSignalIsLost_data()
{
    QTest::addColumn<QString>("badName");
    QTest::newRow("empty") << QString();
    QTest::newRow("one part") << QStringLiteral("command");
    QTest::newRow("two parts") << QStringLiteral("corvane.command");
    QTest::newRow("empty part") << QStringLiteral("com..command");
    QTest::newRow("digit first") << QStringLiteral("com.vexmoor.1command");
    QTest::newRow("dash") << QStringLiteral("com.vex-moor.command");
    QTest::newRow("letter of another script") << QStringLiteral("com.vexmoor.cömmand");
    QTest::newRow("too long") << QStringLiteral("com.vexmoor.") + QString(300, u'a');
}

void DBusNotificationCenterTest::aNameThatIsNoSignalIsLost()
{
    QFETCH(QString, badName);
    DBusNotificationCenter center;
    center.observe(badName, this, [](const QVariantMap &) { QFAIL("heard"); });
    center.post(badName, {});
}

static int runDBusNotificationCenter(int argc, char **argv)
{
    if (argc == 2 && qstrcmp(argv[1], "--post") == 0) {
        const QCoreApplication application(argc, argv);
        DBusNotificationCenter().post(name, {{QStringLiteral("command"), QStringLiteral("fromOutside")}});
        _exit(0);
    }
    return runInPrivateSession<DBusNotificationCenterTest>(argc, argv);
}

CORVANE_TEST_MAIN(runDBusNotificationCenter)

#include "tst_dbusnotificationcenter.moc"

#include "DropWindow.h"
#include "ExportFile.h"
#include "OnDesktop.h"
#include "TestProgram.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// The notifications that came up, by name.
QStringList spoken;

void hear(QAccessibleEvent *event)
{
    const QAccessibleInterface *about = event->accessibleInterface();
    if (event->type() == QAccessible::ObjectShow && about && about->role() == QAccessible::Notification)
        spoken.append(about->text(QAccessible::Name));
}

}

/// What an assistive technology reads out of an import.
class ImportVoiceTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QTRY_VERIFY_WITH_TIMEOUT(QAccessible::isActive(), 20000); }
    void init() { spoken.clear(); }
    void cleanup() { QAccessible::installUpdateHandler(nullptr); }

    void everyAttemptThatFailsIsReadOut();
    void theEndIsReadOut();

private:
    QList<QUrl> exported(const QString &theme) const;

    QTemporaryDir m_folder;
};

QList<QUrl> ImportVoiceTest::exported(const QString &theme) const
{
    QFile file(m_folder.filePath(theme));
    const QByteArray bytes = ExportFile::write({{u"buttonTheme"_s, theme}});
    REQUIRE(file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size());
    return {QUrl::fromLocalFile(file.fileName())};
}

void ImportVoiceTest::everyAttemptThatFailsIsReadOut()
{
    DropWindow window;
    QVERIFY(window.drag(exported(u"soft"_s)) && window.drop());
    QAccessible::installUpdateHandler(hear);
    window.store.obstacle = UserDefaults::Trouble::noRoom;
    const QString reason = u"Changes can't be saved: the disk is full or read-only. Nothing was imported."_s;
    window.pressKey(Qt::Key_Return);
    window.pressKey(Qt::Key_Return);
    QTRY_COMPARE(spoken, QStringList({reason, reason}));
}

void ImportVoiceTest::theEndIsReadOut()
{
    DropWindow window;
    QAccessible::installUpdateHandler(hear);
    for (const QString &theme : {u"soft"_s, u"mono"_s}) {
        QVERIFY(window.drag(exported(theme)) && window.drop());
        window.pressKey(Qt::Key_Escape);
        QVERIFY(window.drag(exported(theme)) && window.drop());
        window.pressKey(Qt::Key_Return);
    }
    const QString end = u"The settings were imported."_s;
    QTRY_COMPARE(spoken, QStringList({end, end}));
}

CORVANE_TEST(ImportVoiceTest, runOnAccessibleDesktop)
#include "tst_importvoice.moc"

#include "OnDesktop.h"
#include "SettingsModel.h"
#include "SettingsWindow.h"
#include "TestProgram.h"

#include <QAccessible>

namespace {

/// The notifications that came up, by name.
QStringList noticesReadOut;

void recordNotices(QAccessibleEvent *event)
{
    const QAccessibleInterface *about = event->accessibleInterface();
    if (event->type() == QAccessible::ObjectShow && about && about->role() == QAccessible::Notification)
        noticesReadOut.append(about->text(QAccessible::Name));
}

}

/// What a person who does not see the line in the sidebar's foot hears of it.
class TestNotice : public QObject {
    Q_OBJECT

private slots:
    void itIsReadOutWheneverItComesUp()
    {
        QTRY_VERIFY_WITH_TIMEOUT(QAccessible::isActive(), 20000);
        SettingsWindow settings;
        const QAccessible::UpdateHandler before = QAccessible::installUpdateHandler(recordNotices);
        for (const char *notice : {"One.", "Two.", "", "Two."})
            settings.controller.model()->setNotice(notice);
        QAccessible::installUpdateHandler(before);
        QCOMPARE(noticesReadOut, (QStringList{"One.", "Two.", "Two."}));
    }
};

CORVANE_TEST(TestNotice, runOnAccessibleDesktop)

#include "tst_notice.moc"

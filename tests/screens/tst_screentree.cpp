#include "ScreenView.h"
#include "TestProgram.h"

#include <QAccessible>

/// What the screens tell an assistive technology.
class TestScreenTree : public QObject {
    Q_OBJECT

private slots:
    void everyScreenIsReadInItsOrder_data();
    void everyScreenIsReadInItsOrder();
    void theMainButtonOfALoudScreenSaysItsText();
};

namespace {

/// The elements below one, as "role: name", those inside others indented.
QStringList outline(QAccessibleInterface *element, const QString &indent = {})
{
    static const QHash<QAccessible::Role, QString> roles = {
        {QAccessible::StaticText, QStringLiteral("text")}, {QAccessible::Heading, QStringLiteral("heading")},
        {QAccessible::Button, QStringLiteral("button")},   {QAccessible::Graphic, QStringLiteral("graphic")},
        {QAccessible::Grouping, QStringLiteral("group")},
    };
    QStringList lines;
    for (int place = 0; place < element->childCount(); ++place) {
        QAccessibleInterface *child = element->child(place);
        if (child->state().invisible)
            continue;
        const QString role = roles.value(child->role(), QString::number(child->role()));
        lines += indent + role + QStringLiteral(": ") + child->text(QAccessible::Name);
        lines += outline(child, indent + QStringLiteral("  "));
    }
    return lines;
}

}

void TestScreenTree::everyScreenIsReadInItsOrder_data()
{
    QTest::addColumn<QString>("qml");
    QTest::addColumn<QStringList>("tree");
    QTest::newRow("step list") << "EBStepList { steps: ['Welcome', 'Try it', 'Access']; current: 1 }"
                               << QStringList{"text: Step 1 of 3, Welcome, done", "text: Step 2 of 3, Try it, current",
                                              "text: Step 3 of 3, Access"};
    QTest::newRow("step screen")
        << "EBStepScreen { app: 'corvane'; steps: ['One', 'Two']; current: 1; kicker: 'Kicker'; title: 'Title'; "
           "text: 'Text'; rows: [EBRow { title: 'Row' }]\nactions: [EBButton { text: 'Go on' }, EBSpacer {}] }"
        << QStringList{"text: Step 1 of 2, One, done",
                       "text: Step 2 of 2, Two, current",
                       "text: Kicker",
                       "heading: Title",
                       "text: Text",
                       "group: Row",
                       "  text: Row",
                       "button: Go on"};
    QTest::newRow("stage screen")
        << "EBStageScreen { app: 'corvane'; kicker: 'Kicker'; counter: 'Counter'; title: 'Title'; text: 'Text'; "
           "content: [EBLabel { text: 'Stage' }]\nactions: [EBButton { text: 'Go on' }] }"
        << QStringList{"text: Kicker", "text: Counter", "heading: Title", "text: Text", "text: Stage", "button: Go on"};
    QTest::newRow("stage screen without a counter")
        << "EBStageScreen { app: 'corvane'; kicker: 'Kicker'; title: 'Title'; text: 'Text' }"
        << QStringList{"text: Kicker", "heading: Title", "text: Text"};
    QTest::newRow("loud screen") << "EBLoudScreen { app: 'corvane'; appeared: true; counter: 'Counter'; copy: 'Copy'; "
                                    "button: 'Begin'; hero: 'Hero'; "
                                    "secondary: 'Not now' }"
                                 << QStringList{"text: Counter", "graphic: Corvane", "text: Copy", "button: Begin",
                                                "button: Not now"};
    QTest::newRow("loud screen with little on it")
        << "EBLoudScreen { app: 'parcelo'; appeared: true; copy: 'Copy'; button: 'Begin'; hero: 'Hero' }"
        << QStringList{"graphic: Parcelo", "text: Copy", "button: Begin"};
    QTest::newRow("About screen")
        << "EBAboutScreen { app: 'quiller'; version: '1.4 (212)'; blurb: 'Blurb'; offersUpdates: true; "
           "website: 'https://example.com/' }"
        << QStringList{"graphic: The Quiller mark drawn on its grid",
                       "heading: Quiller",
                       "text: 1.4 (212)",
                       "text: Blurb",
                       "button: Check for Updates",
                       QStringLiteral("button: Website ↗\uFE0E"),
                       "text: Made by Vexmoor"};
}

void TestScreenTree::everyScreenIsReadInItsOrder()
{
    QFETCH(QString, qml);
    QFETCH(QStringList, tree);
    ScreenView view(qml, {560, 388});
    view.show();
    QCOMPARE(outline(QAccessible::queryAccessibleInterface(&view.window())).join(u'\n'), tree.join(u'\n'));
}

void TestScreenTree::theMainButtonOfALoudScreenSaysItsText()
{
    ScreenView view("EBLoudScreen { app: 'corvane'; appeared: true; copy: 'Copy'; button: 'Begin'; secondary: 'No' }",
                    {560, 388});
    view.show();
    const QAccessibleInterface *window = QAccessible::queryAccessibleInterface(&view.window());
    QStringList descriptions;
    for (int place = 0; place < window->childCount(); ++place) {
        if (window->child(place)->role() == QAccessible::Button)
            descriptions.append(window->child(place)->text(QAccessible::Description));
    }
    QCOMPARE(descriptions, QStringList({"Copy", ""}));
}

CORVANE_TEST(TestScreenTree, runInGui)
#include "tst_screentree.moc"

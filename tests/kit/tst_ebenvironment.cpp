#include "EBEnvironment.h"
#include "EBKit.h"
#include "FakePlatform.h"
#include "TestProgram.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>

#include <memory>

class TestEBEnvironment : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(make("Item {}")); }
    void init();
    void cleanup() { m_root.reset(); }

    void withoutAnAncestorThatSetsOneTheProductIsQuiller();
    void settingItSetsItForTheWholeSubtree();
    void aSubtreeMayHaveItsOwn();
    void aChangeReachesTheSubtree();
    void aChangeAboveStopsAtAnOwnProduct();
    void anOwnProductEqualToTheInheritedOneIsStillOwn();
    void movingToAnotherParentTakesItsProduct();
    void movingAnAncestorCarriesTheSubtreeAlong();
    void withoutAParentTheProductIsQuillerAgain();
    void theParentMayDieFirst();
    void unknownTextIsIgnored();

    void theColoursAreThoseOfTheProduct();
    void theColoursFollowTheAppearance();
    void aChangeIsToldOnce();

    void inQmlTheOrderOfDeclarationDoesNotMatter();
    void inQmlAnItemMadeLaterInherits();

private:
    QObject *make(const QByteArray &qml);

    FakePlatform *m_platform = nullptr;
    std::unique_ptr<QObject> m_root;
};

namespace {

EBApp appOf(QQuickItem &item)
{
    return EBEnvironment::of(&item)->ebApp();
}

void setApp(QQuickItem &item, EBApp app)
{
    EBEnvironment::of(&item)->setEbApp(app);
}

}

void TestEBEnvironment::init()
{
    m_platform = &FakePlatform::install();
}

QObject *TestEBEnvironment::make(const QByteArray &qml)
{
    static QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport Embera.Tokens\n" + qml, QUrl());
    m_root.reset(component.create());
    if (!m_root)
        qCritical("%s", qPrintable(component.errorString()));
    return m_root.get();
}

void TestEBEnvironment::withoutAnAncestorThatSetsOneTheProductIsQuiller()
{
    QQuickItem root;
    QQuickItem child(&root);
    QCOMPARE(appOf(root), EBApp::quiller);
    QCOMPARE(appOf(child), EBApp::quiller);
}

void TestEBEnvironment::settingItSetsItForTheWholeSubtree()
{
    QQuickItem root;
    QQuickItem child(&root);
    QQuickItem grandchild(&child);
    QQuickItem outside;
    setApp(root, EBApp::corvane);
    QCOMPARE(appOf(root), EBApp::corvane);
    QCOMPARE(appOf(grandchild), EBApp::corvane);
    QCOMPARE(appOf(child), EBApp::corvane);
    QCOMPARE(appOf(outside), EBApp::quiller);
}

void TestEBEnvironment::aSubtreeMayHaveItsOwn()
{
    QQuickItem root;
    QQuickItem child(&root);
    QQuickItem grandchild(&child);
    setApp(root, EBApp::corvane);
    setApp(child, EBApp::parcelo);
    QCOMPARE(appOf(root), EBApp::corvane);
    QCOMPARE(appOf(grandchild), EBApp::parcelo);
}

void TestEBEnvironment::aChangeReachesTheSubtree()
{
    QQuickItem root;
    QQuickItem child(&root);
    QQuickItem grandchild(&child);
    QCOMPARE(appOf(grandchild), EBApp::quiller);
    setApp(root, EBApp::corvane);
    QCOMPARE(appOf(grandchild), EBApp::corvane);
    setApp(root, EBApp::parcelo);
    QCOMPARE(appOf(grandchild), EBApp::parcelo);
}

void TestEBEnvironment::aChangeAboveStopsAtAnOwnProduct()
{
    QQuickItem root;
    QQuickItem child(&root);
    QQuickItem grandchild(&child);
    setApp(child, EBApp::parcelo);
    QCOMPARE(appOf(grandchild), EBApp::parcelo);
    setApp(root, EBApp::corvane);
    QCOMPARE(appOf(child), EBApp::parcelo);
    QCOMPARE(appOf(grandchild), EBApp::parcelo);
}

void TestEBEnvironment::anOwnProductEqualToTheInheritedOneIsStillOwn()
{
    QQuickItem root;
    QQuickItem child(&root);
    setApp(child, EBApp::quiller);
    setApp(root, EBApp::corvane);
    QCOMPARE(appOf(child), EBApp::quiller);
}

void TestEBEnvironment::movingToAnotherParentTakesItsProduct()
{
    QQuickItem corvane, parcelo;
    setApp(corvane, EBApp::corvane);
    setApp(parcelo, EBApp::parcelo);
    QQuickItem child(&corvane);
    QCOMPARE(appOf(child), EBApp::corvane);
    child.setParentItem(&parcelo);
    QCOMPARE(appOf(child), EBApp::parcelo);
    // The tree it left has no say any more.
    setApp(corvane, EBApp::quiller);
    QCOMPARE(appOf(child), EBApp::parcelo);
}

void TestEBEnvironment::movingAnAncestorCarriesTheSubtreeAlong()
{
    QQuickItem corvane;
    setApp(corvane, EBApp::corvane);
    QQuickItem branch;
    QQuickItem leaf(&branch);
    QCOMPARE(appOf(leaf), EBApp::quiller);
    branch.setParentItem(&corvane);
    QCOMPARE(appOf(leaf), EBApp::corvane);
}

void TestEBEnvironment::withoutAParentTheProductIsQuillerAgain()
{
    QQuickItem root;
    QQuickItem child(&root);
    setApp(root, EBApp::corvane);
    QCOMPARE(appOf(child), EBApp::corvane);
    child.setParentItem(nullptr);
    QCOMPARE(appOf(child), EBApp::quiller);
}

void TestEBEnvironment::theParentMayDieFirst()
{
    QQuickItem child;
    auto parent = std::make_unique<QQuickItem>();
    setApp(*parent, EBApp::corvane);
    child.setParentItem(parent.get());
    QCOMPARE(appOf(child), EBApp::corvane);
    parent.reset();
    QCOMPARE(appOf(child), EBApp::quiller);
    QQuickItem next;
    setApp(next, EBApp::parcelo);
    child.setParentItem(&next);
    QCOMPARE(appOf(child), EBApp::parcelo);
}

void TestEBEnvironment::unknownTextIsIgnored()
{
    QQuickItem root;
    QQuickItem child(&root);
    setApp(root, EBApp::corvane);
    for (const QString &text : {QStringLiteral("Corvane"), QString(), QStringLiteral("other")}) {
        EBEnvironment::of(&child)->setRawApp(text);
        QCOMPARE(appOf(child), EBApp::corvane);
    }
    // It counts as not set: the item still follows its parent.
    setApp(root, EBApp::parcelo);
    QCOMPARE(appOf(child), EBApp::parcelo);
}

void TestEBEnvironment::theColoursAreThoseOfTheProduct()
{
    QQuickItem item;
    const EBEnvironment *environment = EBEnvironment::of(&item);
    QCOMPARE(environment->accent(), EBKit::coral().current());
    setApp(item, EBApp::corvane);
    QCOMPARE(environment->accent(), EBKit::indigo().current());
    QCOMPARE(environment->onAccent(), EBKit::onIndigo().current());
    QCOMPARE(environment->loud(), EBKit::loudIndigo().current());
    QCOMPARE(environment->onLoud(), EBKit::onLoudIndigo().current());
    QCOMPARE(environment->loudDot(), EBKit::loudIndigoDot().current());
}

void TestEBEnvironment::theColoursFollowTheAppearance()
{
    QQuickItem root;
    QQuickItem child(&root);
    setApp(root, EBApp::corvane);
    const EBEnvironment *environment = EBEnvironment::of(&child);
    QSignalSpy changes(environment, &EBEnvironment::changed);
    QCOMPARE(environment->accent().name(), QStringLiteral("#5a5cf2"));
    m_platform->look.setName(AppearanceName::DarkAqua);
    QCOMPARE(environment->accent().name(), QStringLiteral("#7b7dff"));
    QCOMPARE(changes.size(), 1);
}

void TestEBEnvironment::aChangeIsToldOnce()
{
    QQuickItem root;
    QQuickItem child(&root);
    QSignalSpy changes(EBEnvironment::of(&child), &EBEnvironment::changed);
    setApp(root, EBApp::corvane);
    QCOMPARE(changes.size(), 1);
    setApp(root, EBApp::corvane);
    QCOMPARE(changes.size(), 1);
}

void TestEBEnvironment::inQmlTheOrderOfDeclarationDoesNotMatter()
{
    const QObject *root = make("Item {\n"
                               " id: root\n"
                               " property string app: 'corvane'\n"
                               " property string seen: inner.EBEnvironment.ebApp\n"
                               " property color accent: inner.EBEnvironment.accent\n"
                               " Item { Item { id: inner } }\n"
                               " EBEnvironment.ebApp: root.app\n"
                               "}");
    QVERIFY(root);
    QCOMPARE(root->property("seen"), QVariant(QStringLiteral("corvane")));
    QCOMPARE(root->property("accent").value<QColor>().name(), QStringLiteral("#5a5cf2"));
}

void TestEBEnvironment::inQmlAnItemMadeLaterInherits()
{
    QObject *root = make("Item {\n"
                         " property bool wanted: false\n"
                         " property string seen: loader.item ? loader.item.seen : ''\n"
                         " EBEnvironment.ebApp: 'parcelo'\n"
                         " Loader { id: loader; active: parent.wanted\n"
                         "  sourceComponent: Item { property string seen: EBEnvironment.ebApp } }\n"
                         "}");
    QVERIFY(root);
    root->setProperty("wanted", true);
    QCOMPARE(root->property("seen"), QVariant(QStringLiteral("parcelo")));
}

CORVANE_TEST(TestEBEnvironment, runInGui)
#include "tst_ebenvironment.moc"

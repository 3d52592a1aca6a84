#include "ButtonSize.h"
#include "DemoModel.h"
#include "EBApp.h"
#include "EBButtonStyle.h"
#include "EBType.h"
#include "GlyphName.h"
#include "Hotkey.h"
#include "OnboardingStep.h"
#include "TestProgram.h"
#include "Theme.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace {

template <typename Enum> bool isCase(const QString &text)
{
    return NamedCases<Enum>::fromRawValue(text).has_value();
}

/// A text in a QML file: what it is given to or compared with, and the type of the object this happens in.
struct Literal {
    QString owner;
    QString type;
    QString text;
};

/// Whether the text names a case of the enumeration its owner takes; none for an owner that takes any text.
std::optional<bool> isKnown(const Literal &literal)
{
    static const QStringList withOverlaySizes = {"ButtonsPreview", "DemoCell", "HandsOnMissionControl"};
    const auto &[owner, type, text] = literal;
    if (owner == u"variant")
        return isCase<EBButtonStyle::Variant>(text);
    if (owner == u"size")
        return withOverlaySizes.contains(type) ? isCase<ButtonSize>(text) : isCase<EBButtonStyle::Size>(text);
    if (owner == u"role" || owner == u"font")
        return isCase<EBTypeRole>(text);
    if (owner == u"tone")
        return QStringList({"muted", "ink", "onLoud"}).contains(text);
    if (owner == u"glyph" || (owner == u"name" && type == u"Glyph"))
        return text.isEmpty() || isCase<GlyphName>(text);
    if (owner == u"step")
        return isCase<OnboardingStep>(text);
    if (owner == u"app" || owner == u"ebApp")
        return isCase<EBApp>(text);
    if (owner == u"theme")
        return isCase<Theme>(text);
    if (owner == u"kind")
        return isCase<OverlayButton>(text);
    if (owner == u"state")
        return isCase<DemoState>(text) || QStringList({"waiting", "allowed"}).contains(text);
    if (owner == u"perform")
        return isCase<Hotkey>(text);
    return std::nullopt;
}

int indentation(const QString &line)
{
    const auto text = std::find_if(line.begin(), line.end(), [](QChar character) { return !character.isSpace(); });
    return int(text - line.begin());
}

/// The type of the object that the line at `index` stands in: the nearest line above that is indented less opens it.
QString enclosingType(const QStringList &lines, qsizetype index)
{
    static const QRegularExpression opening(R"((\w+) \{$)");
    for (qsizetype above = index - 1; above >= 0; --above) {
        if (!lines[above].isEmpty() && indentation(lines[above]) < indentation(lines[index]))
            return opening.match(lines[above]).captured(1);
    }
    return {};
}

QList<Literal> literals(const QString &qml)
{
    static const QRegularExpression quoted("\"([^\"]*)\"");
    // A binding, a comparison or a call; a colon after a space belongs to a condition.
    static const QRegularExpression owned(R"((\w+)(: | [!=]== |\())");
    QList<Literal> found;
    const QStringList lines = qml.split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString &line = lines[i];
        if (line.trimmed().startsWith(QStringLiteral("//")))
            continue;
        auto match = quoted.globalMatch(line);
        while (match.hasNext()) {
            const QRegularExpressionMatch text = match.next();
            QString owner;
            auto owners = owned.globalMatch(line.left(text.capturedStart()));
            while (owners.hasNext())
                owner = owners.next().captured(1);
            found.append({owner, enclosingType(lines, i), text.captured(1)});
        }
    }
    return found;
}

/// The texts that should name a case and name none, with their owners.
QStringList faults(const QString &qml)
{
    QStringList faults;
    for (const Literal &literal : literals(qml)) {
        if (!isKnown(literal).value_or(true))
            faults.append(literal.owner + QStringLiteral(" \"") + literal.text + u'"');
    }
    return faults;
}

QStringList qmlFiles()
{
    QStringList files;
    for (const char *folder : {"/src", "/tools"}) {
        QDirIterator file(QStringLiteral(SOURCES_FOLDER) + QLatin1String(folder), {QStringLiteral("*.qml")},
                          QDir::Files, QDirIterator::Subdirectories);
        while (file.hasNext())
            files.append(file.next());
    }
    return files;
}

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}

/// QML names the case of an enumeration by a text, and a text that names none reads as the default. So a typo shows
/// here and nowhere else.
class CaseLiteralsTest : public QObject {
    Q_OBJECT
private slots:
    void everyTextNamesACase();
    void aTypoIsFound_data();
    void aTypoIsFound();
    void otherTextsAreFree_data();
    void otherTextsAreFree();
};

void CaseLiteralsTest::everyTextNamesACase()
{
    int checked = 0;
    QStringList found;
    for (const QString &path : qmlFiles()) {
        const QString qml = contents(path);
        QVERIFY2(!qml.isEmpty(), qPrintable(path));
        for (const QString &fault : faults(qml))
            found.append(path + QStringLiteral(": ") + fault);
        for (const Literal &literal : literals(qml))
            checked += isKnown(literal) ? 1 : 0;
    }
    QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
    QVERIFY2(checked > 150, qPrintable(QString::number(checked)));
}

void CaseLiteralsTest::aTypoIsFound_data()
{
    QTest::addColumn<QString>("qml");
    QTest::addColumn<QString>("fault");
    QTest::newRow("variant") << "EBButton {\n    variant: \"secundary\"\n}"
                             << "variant \"secundary\"";
    QTest::newRow("size of a button") << "EBButton {\n    size: \"small\"\n}"
                                      << "size \"small\"";
    QTest::newRow("size of overlay buttons") << "DemoCell {\n    size: \"sm\"\n}"
                                             << "size \"sm\"";
    QTest::newRow("role") << "EBText {\n    role: \"heeding\"\n}"
                          << "role \"heeding\"";
    QTest::newRow("second of two") << "EBText {\n    role: wide ? \"mono\" : \"monosmall\"\n}"
                                   << "role \"monosmall\"";
    QTest::newRow("default of a property") << "Text {\n    property string role: \"bodi\"\n}"
                                           << "role \"bodi\"";
    QTest::newRow("font") << "Text {\n    font: EBType.font(\"bodi\")\n}"
                          << "font \"bodi\"";
    QTest::newRow("tone") << "EBLabel {\n    tone: \"loud\"\n}"
                          << "tone \"loud\"";
    QTest::newRow("compared tone") << "Text {\n    color: label.tone === \"onloud\" ? EB.ink : EB.line\n}"
                                   << "tone \"onloud\"";
    QTest::newRow("glyph") << "EBDisc {\n    glyph: \"geer\"\n}"
                           << "glyph \"geer\"";
    QTest::newRow("name of a glyph") << "Glyph {\n    name: \"geer\"\n}"
                                     << "name \"geer\"";
    QTest::newRow("step") << "StepHolder {\n    step: \"tryit\"\n}"
                          << "step \"tryit\"";
    QTest::newRow("product") << "EBLoudScreen {\n    app: \"Corvane\"\n}"
                             << "app \"Corvane\"";
    QTest::newRow("product of a subtree") << "Item {\n    EBEnvironment.ebApp: \"corvan\"\n}"
                                          << "ebApp \"corvan\"";
    QTest::newRow("theme") << "DemoButton {\n    theme: \"clasic\"\n}"
                           << "theme \"clasic\"";
    QTest::newRow("kind") << "DemoButton {\n    kind: \"maximise\"\n}"
                          << "kind \"maximise\"";
    QTest::newRow("state of a status") << "EBStatus {\n    state: \"alowed\"\n}"
                                       << "state \"alowed\"";
    QTest::newRow("compared state") << "Item {\n    y: cell.win.state !== \"minimised\" ? 120 : 0\n}"
                                    << "state \"minimised\"";
    QTest::newRow("shortcut") << "Item {\n    onPerformed: cell.perform(\"quit\")\n}"
                              << "perform \"quit\"";
}

void CaseLiteralsTest::aTypoIsFound()
{
    QFETCH(const QString, qml);
    QFETCH(const QString, fault);
    QCOMPARE(faults(qml), QStringList(fault));
}

void CaseLiteralsTest::otherTextsAreFree_data()
{
    QTest::addColumn<QString>("qml");
    QTest::newRow("what people read") << "FakeWindow {\n    app: qsTr(\"Browser\")\n}";
    QTest::newRow("another name") << "AccessibleAction {\n    name: \"anything\"\n}";
    QTest::newRow("a comment") << "EBButton {\n    // variant: \"loud\"\n}";
    QTest::newRow("no glyph") << "EBRow {\n    glyph: \"\"\n}";
}

void CaseLiteralsTest::otherTextsAreFree()
{
    QFETCH(const QString, qml);
    QCOMPARE(faults(qml), QStringList());
}

CORVANE_TEST(CaseLiteralsTest, runBare)
#include "tst_caseliterals.moc"

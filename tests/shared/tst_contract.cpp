#include "Shared.h"
#include "TestProgram.h"

#include <QFile>

namespace {

using Row = QStringList;

QString page()
{
    QFile file(QStringLiteral(CONTRACT_PAGE));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

Row cells(QStringView line)
{
    Row row;
    for (const QStringView cell : line.sliced(1).chopped(1).split(u'|'))
        row.append(cell.trimmed().toString());
    return row;
}

/// The rows of the table whose head is exactly `head`, without the head.
QList<Row> table(const Row &head)
{
    QList<Row> rows;
    bool inside = false;
    const QStringList lines = page().split(u'\n');
    for (const QString &line : lines) {
        const bool isRow = line.startsWith(u'|') && line.endsWith(u'|');
        if (!inside)
            inside = isRow && cells(line) == head;
        else if (!isRow)
            break;
        else if (!line.startsWith(QLatin1String("|---")))
            rows.append(cells(line));
    }
    return rows;
}

QString code(const QString &text)
{
    return u'`' + text + u'`';
}

QString wireType(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return code(QStringLiteral("b"));
    case QMetaType::QString:
        return code(QStringLiteral("s"));
    case QMetaType::Double:
        return code(QStringLiteral("d"));
    default:
        return {};
    }
}

QString defaultCell(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString().isEmpty() ? QStringLiteral("absent") : code(u'"' + value.toString() + u'"');
    case QMetaType::Double:
        return code(QString::number(value.toDouble(), 'f', 1));
    default:
        return code(value.toString());
    }
}

QVariant defaultOf(const char *key)
{
    return Contract::defaultValue(QString::fromLatin1(key));
}

}

class TestContract : public QObject {
    Q_OBJECT

private slots:
    void thePageListsTheKeysOfTheCodeAndNoOthers();
    void thePageListsTheCommandsOfTheCodeAndNoOthers();
    void thePageListsTheKeysThatACommandFollows();
    void theMeaningOfAKeyNamesItsChoices();
    void thePageListsTheShortcutsOfTheCodeAndNoOthers();
    void thePageNamesTheSuiteTheAgentAndTheSignal();

    void aKeyOutsideTheTableHasNoDefault();
    void theIdentifiersSpellTheNames();
};

void TestContract::thePageListsTheKeysOfTheCodeAndNoOthers()
{
    QList<Row> expected;
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        const QVariant value = Contract::defaultValue(key.name);
        expected.append({code(key.name), wireType(value), defaultCell(value), key.writer, key.meaning});
    }
    QCOMPARE(table({"Key", "Type", "Default", "Written by", "Meaning"}), expected);
}

void TestContract::thePageListsTheCommandsOfTheCodeAndNoOthers()
{
    QList<Row> expected;
    for (const Contract::CommandEntry &command : Contract::commands()) {
        const QString value = command.carriesValue ? QStringLiteral("Boolean") : QStringLiteral("absent");
        const QString posted =
            command.announcesSettings ? QStringLiteral("once the settings are stored") : QStringLiteral("at once");
        expected.append({code(command.name), value, QStringLiteral("none"), posted, command.meaning});
    }
    QCOMPARE(table({"Command", "\"value\"", "Extra entries", "Posted", "Asks the agent to"}), expected);
}

void TestContract::thePageListsTheKeysThatACommandFollows()
{
    QList<Row> expected;
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        if (!key.announcement.isEmpty())
            expected.append({code(key.name), code(key.announcement)});
    }
    QCOMPARE(expected.size(), 7);
    // In the order of the table of keys.
    QCOMPARE(table({"Key", "Followed by"}), expected);
}

void TestContract::theMeaningOfAKeyNamesItsChoices()
{
    int keys = 0;
    for (const Contract::StoreKey &key : Contract::storeKeys()) {
        if (key.choices.isEmpty())
            continue;
        ++keys;
        const QString named = key.choices.first(key.choices.size() - 1).join(QStringLiteral(", "))
            + QStringLiteral(" or ") + key.choices.constLast() + u'.';
        QVERIFY2(key.meaning.endsWith(named), qPrintable(named));
        QVERIFY(key.choices.contains(key.defaultValue.toString()));
    }
    QCOMPARE(keys, 3);
}

void TestContract::thePageListsTheShortcutsOfTheCodeAndNoOthers()
{
    const QList<Row> rows = table({"Case", "Number", "Key code", "Shortcut"});
    QCOMPARE(rows.size(), qsizetype(Hotkeys::allCases.size()));
    for (qsizetype raw = 0; raw < rows.size(); ++raw) {
        const Hotkey hotkey = Hotkeys::allCases[std::size_t(raw)];
        const Row &row = rows[raw];
        QCOMPARE(row[0], code(Hotkeys::caseName(hotkey)));
        QCOMPARE(row[1], QString::number(raw));
        QCOMPARE(row[3], Hotkeys::shownAs(hotkey));
        const auto flags = Hotkeys::commandFlag | (row[3].startsWith(u'⌥') ? Hotkeys::optionFlag : 0);
        const QStringList keyCode = row[2].split(u' ');
        QCOMPARE(Hotkeys::match(keyCode[0].toInt(), flags), std::optional(hotkey));
        QCOMPARE(keyCode[1], u'(' + row[3].last(1) + u')');
    }
}

void TestContract::thePageNamesTheSuiteTheAgentAndTheSignal()
{
    QCOMPARE(Shared::suiteName, QStringLiteral("com.vexmoor.corvane"));
    QCOMPARE(Contract::agentName, QStringLiteral("com.vexmoor.corvane"));
    QCOMPARE(Shared::Command::name, QStringLiteral("com.vexmoor.corvane.command"));
    const QString text = page();
    QVERIFY(text.contains(QStringLiteral("named `%1`").arg(Shared::suiteName)));
    QVERIFY(text.contains(QStringLiteral("the agent holds the name `%1`").arg(Contract::agentName)));
    const QString path = u'/' + QString(Shared::suiteName).replace(u'.', u'/');
    const qsizetype dot = Shared::Command::name.lastIndexOf(u'.');
    const QList<Row> signal = {{"path", code(path)},
                               {"interface", code(Shared::Command::name.first(dot))},
                               {"member", code(Shared::Command::name.sliced(dot + 1))},
                               {"arguments", "one, `a{sv}`"}};
    QCOMPARE(table({"Part of the signal", "Value"}), signal);
}

void TestContract::aKeyOutsideTheTableHasNoDefault()
{
    QVERIFY(!defaultOf("hotkey.none.disabled").isValid());
    QVERIFY(!defaultOf("ButtonTheme").isValid());
    QVERIFY(!defaultOf("").isValid());
}

void TestContract::theIdentifiersSpellTheNames()
{
    QCOMPARE(Shared::Key::agentLaunchAtLoginNeedsApproval, "agent.launchAtLoginNeedsApproval");
    QCOMPARE(Shared::Key::layoutsSaved, "layouts.saved");
    QCOMPARE(Shared::Key::buttonSizeOption, "buttonSizeOption");
    QCOMPARE(Shared::Command::setLaunchAtLogin, "setLaunchAtLogin");
    QCOMPARE(Shared::Command::checkForUpdates, "checkForUpdates");
}

CORVANE_TEST(TestContract, runBare)
#include "tst_contract.moc"

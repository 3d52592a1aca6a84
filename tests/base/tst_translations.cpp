#include "TestProgram.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {

const QString sources = QStringLiteral(SOURCES_FOLDER);
const QString languages = sources + QStringLiteral("/resources/languages/");

/// A text and what it is in another language: one form, or one for each of the language's plurals.
struct Translation {
    QString source{};
    QStringList forms{};
    bool isCounted = false;
    bool isFinished = true;
};

/// By the context and the text.
using Translations = QMap<QString, Translation>;

Translations read(const QString &path)
{
    QFile file(path);
    REQUIRE(file.open(QFile::ReadOnly));
    Translations all;
    QString context;
    Translation current;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        const QStringView name = xml.name();
        if (xml.isEndElement() && name == u"message")
            all.insert(context + u'|' + current.source, current);
        if (!xml.isStartElement())
            continue;
        if (name == u"name") {
            context = xml.readElementText();
        } else if (name == u"message") {
            current = {.isCounted = xml.attributes().value("numerus") == u"yes"};
        } else if (name == u"source") {
            current.source = xml.readElementText();
        } else if (name == u"translation") {
            current.isFinished = xml.attributes().value("type").isEmpty();
            if (!current.isCounted)
                current.forms.append(xml.readElementText());
        } else if (name == u"numerusform") {
            current.forms.append(xml.readElementText());
        }
    }
    REQUIRE(!xml.hasError());
    return all;
}

/// The texts in src/, as a file of that language would begin.
Translations extracted(const QString &code)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(code + QStringLiteral(".ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(LUPDATE),
                  {"-silent", "-target-language", code, sources + QStringLiteral("/src"), "-ts", file});
    REQUIRE(lupdate.waitForFinished());
    REQUIRE(lupdate.exitCode() == 0);
    return read(file);
}

QStringList matches(const QString &expression, const QString &text)
{
    QStringList found;
    for (const QRegularExpressionMatch &match : QRegularExpression(expression).globalMatch(text))
        found.append(match.captured());
    found.sort();
    return found;
}

QStringList keysIn(const QString &text)
{
    return matches(QStringLiteral("[⌘⌥⌃⇧↩←→↑↓]+[A-Z0-9]?"), text);
}

/// What is wrong with one form of a translation; empty when nothing is.
QString faultOf(const Translation &translation, const QString &form, bool isRightToLeft)
{
    if (form.trimmed().isEmpty())
        return QStringLiteral("is missing");
    QStringList wanted = matches(QStringLiteral("%[0-9n]+"), translation.source);
    // "One window" needs no number.
    if (translation.isCounted && !form.contains(QStringLiteral("%n")))
        wanted.removeOne(QStringLiteral("%n"));
    if (matches(QStringLiteral("%[0-9n]+"), form) != wanted)
        return QStringLiteral("has other placeholders");
    if (form.count(u'\n') != translation.source.count(u'\n'))
        return QStringLiteral("has another number of lines");
    if (keysIn(form) != keysIn(translation.source))
        return QStringLiteral("has other keys");
    if (isRightToLeft && form.contains(QRegularExpression(QStringLiteral("(?<![\u200E⌘⌥⌃⇧])[⌘⌥⌃⇧]"))))
        return QStringLiteral("has keys that no left-to-right mark (U+200E) keeps in order");
    return {};
}

QStringList codes()
{
    QStringList codes;
    for (const QString &file : QDir(languages).entryList({"*.ts"}, QDir::Files))
        codes.append(file.chopped(3));
    return codes;
}

}

/// What is translated is what the sources say, all of it and nothing else. `scripts/languages` brings the files up to
/// date.
class TestTranslations : public QObject {
    Q_OBJECT

private slots:
    void everyTextIsTranslatedAndNoOther_data();
    void everyTextIsTranslatedAndNoOther();
    void aFaultIsFound_data();
    void aFaultIsFound();
};

void TestTranslations::everyTextIsTranslatedAndNoOther_data()
{
    QTest::addColumn<QString>("code");
    for (const QString &code : codes())
        QTest::newRow(qPrintable(code)) << code;
}

void TestTranslations::everyTextIsTranslatedAndNoOther()
{
    QFETCH(QString, code);
    const Translations wanted = extracted(code);
    QVERIFY(wanted.size() > 100);
    const Translations given = read(languages + code + QStringLiteral(".ts"));
    QStringList faults;
    for (auto text = wanted.begin(); text != wanted.end(); ++text) {
        const Translation translation = given.value(text.key());
        if (!translation.isFinished || translation.forms.size() != text->forms.size()) {
            faults.append(text.key() + QStringLiteral(" is missing"));
            continue;
        }
        for (const QString &form : translation.forms) {
            const QString fault = faultOf(*text, form, QLocale(code).textDirection() == Qt::RightToLeft);
            if (!fault.isEmpty())
                faults.append(text.key() + u' ' + fault);
        }
    }
    for (auto text = given.begin(); text != given.end(); ++text) {
        if (!wanted.contains(text.key()))
            faults.append(text.key() + QStringLiteral(" is said by nobody"));
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void TestTranslations::aFaultIsFound_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("form");
    QTest::addColumn<bool>("isRightToLeft");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char *name) -> QTestData & { return QTest::newRow(name); };
    row("good") << "%1 of %2"
                << "%2: %1" << false << "";
    row("empty") << "Close"
                 << " " << false << "is missing";
    row("one placeholder less") << "%1 of %2"
                                << "%1" << false << "has other placeholders";
    row("another placeholder") << "%1"
                               << "%2" << false << "has other placeholders";
    row("twice") << "%1"
                 << "%1 %1" << false << "has other placeholders";
    row("no number in a plural") << "%n windows: %1"
                                 << "Un: %1" << false << "";
    row("only the number in a plural") << "%n windows: %1"
                                       << "%n" << false << "has other placeholders";
    row("one line") << "%1\nVersion"
                    << "%1 Version" << false << "has another number of lines";
    row("another key") << "Press ⌘W."
                       << "⌘M" << false << "has other keys";
    row("a bare key from the right") << "Press ⌘W."
                                     << "⌘W" << true << "has keys that no left-to-right mark (U+200E) keeps in order";
    row("a marked key from the right") << "Press ⌥⌘W."
                                       << "\u200E⌥⌘W" << true << "";
}

void TestTranslations::aFaultIsFound()
{
    QFETCH(QString, source);
    QFETCH(QString, form);
    QFETCH(bool, isRightToLeft);
    QFETCH(QString, fault);
    const Translation translation = {.source = source, .isCounted = source.contains(QStringLiteral("%n"))};
    QCOMPARE(faultOf(translation, form, isRightToLeft), fault);
}

CORVANE_TEST(TestTranslations, runInCore)
#include "tst_translations.moc"

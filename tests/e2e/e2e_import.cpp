#include "EndToEndTest.h"
#include "ExportFile.h"
#include "TestProgram.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// A file that is dragged from another program onto the settings window.
class TestImport : public EndToEndTest {
    Q_OBJECT

private slots:
    void anExportIsListedAndImported();
    void anotherFileIsRefused();

private:
    QString file(const QByteArray &content) const;
    /// Drags the file onto the window and lets go there, once `answer` is heard from where it is dragged over.
    void drag(const QString &path, const QString &answer);

    QTemporaryDir m_folder;
    std::unique_ptr<Program> m_source;
};

QString TestImport::file(const QByteArray &content) const
{
    QFile file(m_folder.filePath(u"corvane.json"_s));
    REQUIRE(file.open(QFile::WriteOnly) && file.write(content) == content.size());
    return file.fileName();
}

void TestImport::drag(const QString &path, const QString &answer)
{
    m_source = std::make_unique<Program>(QStringLiteral(PROGRAM_FILE_SOURCE), environment());
    REQUIRE(m_source->start({path}));
    const auto windows = [&] { return TopLevel::ofProcess(desktop().x(), m_source->processId()); };
    REQUIRE_SOON(!windows().isEmpty() && windows().constFirst().isViewable());
    const QPoint from = windows().constFirst().geometry().center();
    const QPoint to = window()->geometry().center();
    pointer().move(from);
    pointer().press();
    pointer().move(from + QPoint(2, 2));
    REQUIRE_SOON(m_source->standardOutput().contains(u"dragging"_s));
    for (int step = 1; step <= 10; ++step) {
        pointer().move(from + (to - from) * step / 10);
        application().name();
    }
    REQUIRE_SOON((pointer().move(to + QPoint(m_source->standardOutput().size() % 2, 0)), true)
                 && (answer.isEmpty() || m_source->standardOutput().contains(answer)));
    pointer().release();
    REQUIRE_SOON(m_source->standardOutput().constLast() == u"dropped"
                 || m_source->standardOutput().constLast() == u"returned");
}

void TestImport::anExportIsListedAndImported()
{
    store().write(u"layouts.gap"_s, 6.0);
    QVERIFY(open());
    drag(file(ExportFile::write({{u"buttonTheme"_s, u"soft"_s}, {u"layouts.gap"_s, QVariant()}})), u"taken"_s);
    QCOMPARE(m_source->standardOutput().constLast(), u"dropped"_s);
    QVERIFY(shows(u"Import these settings?"_s));
    QVERIFY(shows(u"Now: Classic"_s) && shows(u"Now: Small"_s));
    QCOMPARE(store().read(u"layouts.gap"_s), QVariant(6.0));
    FIND(button, ATSPI_ROLE_PUSH_BUTTON, "Import");
    QVERIFY(button.doAction(u"Press"_s));
    QVERIFY(doesNotShow(u"Import these settings?"_s));
    const QVariantMap imported{{u"buttonTheme"_s, u"soft"_s}};
    QCOMPARE(store().readAll(), imported);
    QVERIFY(commands().waitForCount(1));
    QCOMPARE(commands().heard().constFirst().command, u"applySettings"_s);
    QCOMPARE(commands().heard().constFirst().stored, imported);
}

void TestImport::anotherFileIsRefused()
{
    QVERIFY(open());
    drag(file("{\"format\": 1, \"settings\": {\"colour\": 7}}"), {});
    QCOMPARE(m_source->standardOutput(), (QStringList{u"dragging"_s, u"returned"_s}));
    QVERIFY(doesNotShow(u"Import these settings?"_s));
}

CORVANE_TEST(TestImport, runInCore)
#include "e2e_import.moc"

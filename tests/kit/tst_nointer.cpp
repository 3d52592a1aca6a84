#include "EBType.h"
#include "TestProgram.h"

#include <QFile>
#include <QFontInfo>
#include <QTemporaryDir>

/// Inter is not installed.
class TestNoInter : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void whatTheFontConfigurationPrefersStandsIn();

private:
    QTemporaryDir m_folder;
};

/// No font was asked for yet.
void TestNoInter::initTestCase()
{
    QFile file(m_folder.filePath(QStringLiteral("fonts.conf")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/truetype/dejavu</dir>
  <cachedir prefix="xdg">fontconfig</cachedir>
  <match target="pattern">
    <edit name="family" mode="append_last"><string>sans-serif</string></edit>
  </match>
  <alias><family>sans-serif</family><prefer><family>DejaVu Serif</family></prefer></alias>
</fontconfig>
)");
    file.close();
    qputenv("FONTCONFIG_FILE", QFile::encodeName(file.fileName()));
}

void TestNoInter::whatTheFontConfigurationPrefersStandsIn()
{
    QCOMPARE(QFontInfo(EBTypes::font(EBTypeRole::body)).family(), QStringLiteral("DejaVu Serif"));
}

CORVANE_TEST(TestNoInter, runInGui)
#include "tst_nointer.moc"

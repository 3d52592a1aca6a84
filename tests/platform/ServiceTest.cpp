#include "ServiceTest.h"

#include "FakeImplementation.h"
#include "FreedesktopImplementation.h"

using Make = std::unique_ptr<Implementation> (*)(const Desktop &);
Q_DECLARE_METATYPE(Make)

void ServiceTest::initTestCase_data()
{
    QTest::addColumn<Make>("make");
    QTest::newRow("fakes") << Make(
        [](const Desktop &) -> std::unique_ptr<Implementation> { return std::make_unique<FakeImplementation>(); });
    QTest::newRow("freedesktop") << Make([](const Desktop &desktop) -> std::unique_ptr<Implementation> {
        return std::make_unique<FreedesktopImplementation>(desktop);
    });
}

void ServiceTest::init()
{
    QFETCH_GLOBAL(Make, make);
    m_implementation = make(m_desktop);
}

#include "TestProgram.h"

#include <QQuickWindow>
#include <QRegularExpression>

#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Cases = std::map<std::string, TestCase::Main, std::less<>>;

Cases &cases()
{
    static Cases all;
    return all;
}

std::string stem(std::string_view file)
{
    file.remove_prefix(file.rfind('/') + 1);
    return std::string(file.substr(0, file.rfind('.')));
}

int listCases(const char *program)
{
    std::fprintf(stderr, "usage: %s CASE [argument of Qt Test …], where CASE is one of\n", program);
    for (const auto &[name, main] : cases())
        std::fprintf(stderr, "  %s\n", name.c_str());
    return 2;
}

}

TestCase::TestCase(const char *file, Main main)
{
    cases().emplace(stem(file), main);
}

void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(
        QStringLiteral("^(?!This plugin does not support |QCoreApplication::postEvent: Unexpected null receiver$)")));
}

const QMetaObject *withoutShortcuts(const QMetaObject *meta)
{
    if (meta == &QObject::staticMetaObject)
        return meta;
    static std::vector<std::unique_ptr<QMetaObject>> copies;
    auto copy = std::make_unique<QMetaObject>(*meta);
    copy->d.static_metacall = nullptr;
    copy->d.superdata = withoutShortcuts(meta->superClass());
    copies.push_back(std::move(copy));
    return copies.back().get();
}

int main(int argc, char **argv)
{
    const auto found = argc > 1 ? cases().find(std::string_view(argv[1])) : cases().end();
    if (found == cases().end())
        return listCases(argv[0]);
    // As the application, unless a test says otherwise.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    argv[1] = argv[0];
    return found->second(argc - 1, argv + 1);
}

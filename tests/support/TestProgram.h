#pragma once

#include <QApplication>
#include <QTest>

/// One program holds the test classes of a room, and runs the one that its first argument names. So each class still
/// has a process of its own, in which it may change whatever belongs to a whole process.
class TestCase {
public:
    /// Runs the class in the surroundings it needs; the arguments are those of a program that holds this class alone.
    using Main = int (*)(int argc, char **argv);

    /// The name is that of the source file, without folder and suffix.
    TestCase(const char *file, Main main);
};

/// Stands once in the source file of a test class. `surroundings` is a function template that runs the class: one of
/// those below, runInPrivateSession or runOnDesktop.
#define CORVANE_TEST(Class, surroundings) CORVANE_TEST_MAIN(surroundings<Class>)

/// The same with a function of the file's own.
#define CORVANE_TEST_MAIN(function) static const TestCase testCase(__FILE__, &(function));

/// Without an application object.
template <typename Test> int runBare(int argc, char **argv)
{
    Test test;
    return QTest::qExec(&test, argc, argv);
}

template <typename Test, typename Application> int runWith(int argc, char **argv)
{
    Application::setAttribute(Qt::AA_Use96Dpi);
    Application application(argc, argv);
    return runBare<Test>(argc, argv);
}

template <typename Test> int runInCore(int argc, char **argv)
{
    return runWith<Test, QCoreApplication>(argc, argv);
}

template <typename Test> int runInGui(int argc, char **argv)
{
    return runWith<Test, QGuiApplication>(argc, argv);
}

template <typename Test> int runInWidgets(int argc, char **argv)
{
    return runWith<Test, QApplication>(argc, argv);
}

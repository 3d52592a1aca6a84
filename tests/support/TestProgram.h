#pragma once

#include "Require.h"

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
#define CORVANE_TEST(Class, surroundings) static const TestCase caseOf##Class(__FILE__, &(surroundings<Class>));

/// The same with a function of the file's own.
#define CORVANE_TEST_MAIN(function) static const TestCase caseOf##function(__FILE__, &(function));

/// Every warning fails the test function that runs, but those in which the platform without a screen names what it
/// cannot do, and the one with which Qt's bus thread drops the answer to a call whose slot's object is just being
/// destroyed. Holds until the end of that function.
void failOnWarnings();

/// The same class without the short way to its functions: they are all called through qt_metacall().
const QMetaObject *withoutShortcuts(const QMetaObject *meta);

/// A test class as Qt Test is shown it: each of its functions fails on warnings, and on a TestFailure that it throws.
template <typename Test> class WatchedTest final : public Test {
public:
    using Test::Test;

    const QMetaObject *metaObject() const override
    {
        static const QMetaObject *meta = withoutShortcuts(&Test::staticMetaObject);
        return meta;
    }
    int qt_metacall(QMetaObject::Call call, int function, void **arguments) override
    {
        failOnWarnings();
        try {
            return Test::qt_metacall(call, function, arguments);
        } catch (const TestFailure &failure) {
            QTest::qFail(failure.message, failure.file, failure.line);
            return -1;
        }
    }
};

/// Runs a test class that is made of `given`.
template <typename Test, typename... Given> int runTest(int argc, char **argv, Given &&...given)
{
    WatchedTest<Test> test(std::forward<Given>(given)...);
    return QTest::qExec(&test, argc, argv);
}

/// Without an application object.
template <typename Test> int runBare(int argc, char **argv)
{
    return runTest<Test>(argc, argv);
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

#pragma once

#include <QByteArray>
#include <QTest>

/// Ends the test function that runs, from however deep in its helpers, with a failure that says what is wrong. For what
/// a test calls, never for what an event calls: nothing may be thrown through Qt's event loop.
struct TestFailure {
    QByteArray message;
    /// Of the helper, where it matters; without one the function and the message must do.
    const char *file = nullptr;
    int line = 0;
};

/// QVERIFY for helpers: it ends the test function, not the helper alone.
#define REQUIRE(condition)                                                                                             \
    do {                                                                                                               \
        if (!(condition))                                                                                              \
            throw TestFailure{#condition " is not so", __FILE__, __LINE__};                                            \
    } while (false)

/// QTRY_VERIFY for helpers.
#define REQUIRE_SOON(condition) REQUIRE(QTest::qWaitFor([&] { return bool(condition); }))

/// Around calls that are only to do no harm: a warning fails the test, and so do the sanitizers.
#define DOES_NO_HARM(calls)                                                                                            \
    do {                                                                                                               \
        calls;                                                                                                         \
    } while (false)

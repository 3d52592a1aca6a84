#pragma once

#include "Implementation.h"
#include "OnDesktop.h"

/// A test of what a service promises, whoever implements it: every function runs over each implementation.
class ServiceTest : public QObject {
    Q_OBJECT
public:
    explicit ServiceTest(const Desktop &desktop) : m_desktop(desktop) { }

protected slots:
    void initTestCase_data();
    void init();
    void cleanup() { m_implementation.reset(); }

protected:
    Implementation &implementation() { return *m_implementation; }
    static Platform &platform() { return Platform::current(); }

private:
    const Desktop &m_desktop;
    std::unique_ptr<Implementation> m_implementation;
};

// Many tests in one program: a test file names its class with one of these lines, and the program runs the
// one file whose name it is given. CTest runs each file in a process of its own.
#pragma once

#include "tests/datarows.h"

#include <QTest>

namespace testprogram
{
enum class Application { Gui, Core, None };

struct Test {
    QString name; ///< of the file, such as tst_limits
    Application application;
    QObject *(*make)();
    void (*prepare)(); ///< before the application is made
};

int add(const char *file, Application application, QObject *(*make)(), void (*prepare)() = nullptr);
} // namespace testprogram

#define FPD_TEST_IN(Class, application, ...)                                                                 \
    static const int registered = testprogram::add(                                                          \
        __FILE__, testprogram::Application::application, []() -> QObject * { return new Class; },            \
        ##__VA_ARGS__);
#define FPD_TEST(Class) FPD_TEST_IN(Class, Gui)
#define FPD_TEST_GUILESS(Class) FPD_TEST_IN(Class, Core)
#define FPD_TEST_APPLESS(Class) FPD_TEST_IN(Class, None)

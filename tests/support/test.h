// A program holds the tests of a room, each a class of a file: its name picks it on the command
// line.
#pragma once

#include <QTest>

#include <string_view>

/// Runs a test's class with an application object around it, as the toolkit's own main does.
using TestBody = int (*)(int argc, char *argv[]);

/// Notes a test of this program, by the name of its file: "driver" of ".../tst_driver.cpp".
class RegisteredTest
{
public:
    RegisteredTest(std::string_view file, TestBody body);
};

/// An application object as a test's libraries need it, with windows or without.
#ifdef QT_WIDGETS_LIB
#include <QApplication>
using TestApplication = QApplication;
#elif defined QT_GUI_LIB
#include <QGuiApplication>
using TestApplication = QGuiApplication;
#else
using TestApplication = QCoreApplication;
#endif

template<typename Test>
int runTest(int argc, char *argv[])
{
    const TestApplication application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

/// Makes a class a test of this program, run by a function if the usual one will not do.
#define KORVEL_TEST_BY(function, Test)                                                             \
    namespace {                                                                                    \
    const RegisteredTest registered##Test(__FILE__, function<Test>);                               \
    }
#define KORVEL_TEST(Test) KORVEL_TEST_BY(runTest, Test)

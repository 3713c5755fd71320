#pragma once

#include <QStringList>
#include <QTest>

namespace dravolin::test {

// What a room's test executable can do, by the name that is its first argument; the main function is in
// TestMain.cpp. An executable runs one test class at a time, so that no class sees what another one left.
class TestEntry
{
public:
    using Run = int (*)(int argc, char *argv[]);

    // For variables of namespace scope: entered before main() runs. The name is the file's, without folder
    // and extension. A name that is taken ends the process.
    TestEntry(const char *file, Run run);

    [[nodiscard]] static QStringList names();
    // Null when no entry has the name.
    [[nodiscard]] static Run find(const QString &name);
};

template <class Test>
int runTestClass(int argc, char *argv[])
{
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace dravolin::test

// Enters a file's test class under the file's name; the file's last line but one.
#define DRAVOLIN_TEST(Test)                                                                                  \
    namespace {                                                                                              \
    const dravolin::test::TestEntry testEntry(__FILE__, dravolin::test::runTestClass<Test>);                 \
    }

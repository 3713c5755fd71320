#include "ObjectBytes.h"
#include "check/AssertionGuard.h"
#include "check/LoadedModule.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QLibrary>
#include <QTest>

#include <dlfcn.h>
#include <elf.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace dravolin;
using namespace dravolin::check;
using namespace dravolin::test;

namespace {

// Sees how many values an object holds.
class Counter final : public ObjectVisitor
{
public:
    void characterSets(QByteArrayView) override {}
    void beginItem(Tag, size_t) override {}
    void endItem() override {}
    void value(Tag, ValueForm, QByteArrayView) override { ++m_values; }
    [[nodiscard]] bool isSequence(QByteArrayView) const override { return false; }
    [[nodiscard]] int values() const { return m_values; }

private:
    int m_values = 0;
};

// A library that everything is linked to, and that has nothing to do with it.
QByteArray otherLibrary()
{
    Dl_info information = {};
    return ::dladdr(reinterpret_cast<const void *>(&qVersion), &information) != 0
               ? readBytes(fromBytes(information.dli_fname)).value_or(QByteArray())
               : QByteArray();
}

} // namespace

// The module that brings GDCM.
class TestLoadedModule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsObjectsAndKnowsNames();
    void isNotOfAnotherVersion();
    void saysWhyItCannotBeLoaded_data();
    void saysWhyItCannotBeLoaded();
    void survivesAFailedAssertionOfGdcm();
};

void TestLoadedModule::readsObjectsAndKnowsNames()
{
    const LoadedModule loaded = loadModule(modulePath());
    QCOMPARE(loaded.error, QString());
    Counter meta;
    Counter dataSet;
    const QByteArray inner = sequence(0x00081140, item(element(0x00100020, "LO", "2")));
    const QByteArray file = object(element(0x00080050, "SH", "1") + inner + element(0x00100020, "LO", "3"));
    QVERIFY(loaded.module->read(file, meta, dataSet));
    QCOMPARE(meta.values(), 5);
    QCOMPARE(dataSet.values(), 3);
    QCOMPARE(loaded.module->attributeName(0x00100010), "Patient's Name");
    QVERIFY(!loaded.module->attributeName(0x00091001));
    QVERIFY(!loaded.module->attributeName(0x00100011));
}

void TestLoadedModule::isNotOfAnotherVersion()
{
    const auto entry = reinterpret_cast<GdcmModuleEntry>(QLibrary::resolve(modulePath(), gdcmModuleEntry));
    QVERIFY(entry);
    QVERIFY(!entry("0.0.0"));
}

void TestLoadedModule::saysWhyItCannotBeLoaded_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const QByteArray own = readBytes(modulePath()).value_or(QByteArray());
    QVERIFY(own.size() > 1000);
    QByteArray alone = own;
    alone.replace("libgdcmDSED", "libgdcmNONE");
    QByteArray ofOtherSystem = own;
    ofOtherSystem[4] = ELFCLASS32;
    QTest::newRow("no file") << QByteArray() << QStringLiteral("'%1' cannot be read");
    QTest::newRow("a text") << QByteArray("no library") << QStringLiteral("'%1' is damaged");
    QTest::newRow("a long text") << QByteArray(5000, 'x') << QStringLiteral("'%1' is damaged");
    QTest::newRow("cut in the middle") << own.first(own.size() / 2) << QStringLiteral("'%1' is damaged");
    QTest::newRow("cut at the end") << own.chopped(1) << QStringLiteral("'%1' is damaged");
    QTest::newRow("of another system") << ofOtherSystem << QStringLiteral("%1: wrong ELF class: ELFCLASS32");
    QTest::newRow("another library") << otherLibrary()
                                     << QStringLiteral("'%1' belongs to another version of the program");
    QTest::newRow("without GDCM") << alone
                                  << QStringLiteral("libgdcmNONE.so.3.0: cannot open shared object file: "
                                                    "No such file or directory");
}

void TestLoadedModule::saysWhyItCannotBeLoaded()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, reason);
    const ScratchFolder scratch;
    const QString path = content.isEmpty() ? scratch.path(QStringLiteral("module.so"))
                                           : scratch.file(QStringLiteral("module.so"), content);
    const LoadedModule loaded = loadModule(path);
    QVERIFY(!loaded.module);
    QCOMPARE(loaded.error, QStringLiteral("GDCM, which reads the files, cannot be loaded: ") +
                               (reason.contains(u'%') ? reason.arg(path) : reason));
}

// The module's libraries find the program's __assert_fail(), not that of the system. In a process of its own:
// what was allocated before is lost.
void TestLoadedModule::survivesAFailedAssertionOfGdcm()
{
    const LoadedModule loaded = loadModule(modulePath());
    QVERIFY(loaded.module);
    const QByteArray odd = elementOfLength(0x00100020, "LO", 3, "odd");
    const QByteArray file = object(sequence(0x00081120, item(odd)));
    const pid_t child = ::fork();
    if (child == 0) {
        bool hasReturned = false;
        const bool result = survivesAssertions([&] {
            Counter meta;
            Counter dataSet;
            (void)loaded.module->read(file, meta, dataSet);
            hasReturned = true;
            return true;
        });
        ::_exit(!result && !hasReturned ? 0 : 1);
    }
    int status = -1;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
}

DRAVOLIN_TEST(TestLoadedModule)
#include "tst_loadedmodule.moc"

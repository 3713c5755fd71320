#include "dicom/FileSink.h"
#include "dicom/Objects.h"
#include "support/TestEntry.h"

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>

using namespace dravolin;
using test::ScratchFolder;

Q_DECLARE_METATYPE(dravolin::FileSink::KernelCopies)

// Bytes into a file: those written, those copied from another file, and the hashes of both files.
class TestFileSink : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAndCopies_data();
    void writesAndCopies();
    void hashesWhatIsNotCopied();
    void tellsWhatKeepsItFromWriting();
    void tellsThatTheSourceWasChanged_data();
    void tellsThatTheSourceWasChanged();

private:
    [[nodiscard]] static Descriptor created(const QString &path)
    {
        return Descriptor(::open(systemPath(path).constData(), O_WRONLY | O_CREAT | O_EXCL, 0600));
    }
    [[nodiscard]] static std::unique_ptr<SourceFile> opened(const QString &path)
    {
        QString problem;
        return SourceFile::open(path, &problem);
    }
};

namespace {

QByteArray bytesOf(qsizetype size)
{
    QByteArray bytes(size, '\0');
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = static_cast<char>(i * 31 + i / 977);
    return bytes;
}

} // namespace

void TestFileSink::writesAndCopies_data()
{
    QTest::addColumn<FileSink::KernelCopies>("copies");
    QTest::addColumn<qsizetype>("size");
    for (const auto &[name, copies] : {std::pair("written", FileSink::KernelCopies::OnServers),
                                       std::pair("in the kernel", FileSink::KernelCopies::Always)})
        for (const qsizetype size : {100, 20'000, 3'000'000})
            QTest::addRow("%s, %lld bytes", name, static_cast<long long>(size)) << copies << size;
}

void TestFileSink::writesAndCopies()
{
    QFETCH(FileSink::KernelCopies, copies);
    QFETCH(qsizetype, size);
    const ScratchFolder folder;
    const QByteArray bytes = bytesOf(size);
    const auto source = opened(folder.file(QStringLiteral("source"), bytes));
    const QString target = folder.path(QStringLiteral("target"));
    const Descriptor output = created(target);
    FileSink sink(output.get(), copies);
    source->beginHash();
    QVERIFY(sink.write("head") && sink.copy(*source, 10, static_cast<quint64>(size) - 20) &&
            sink.write("tail") && sink.finish());
    const QByteArray expected = "head" + bytes.sliced(10, size - 20) + "tail";
    QCOMPARE(readBytes(target), std::optional(expected));
    QCOMPARE(sink.size(), static_cast<quint64>(expected.size()));
    QCOMPARE(sink.digits(), test::hashOfFile(target));
    QCOMPARE(source->endHash(), std::optional(test::hashOfFile(folder.path(QStringLiteral("source")))));
}

void TestFileSink::hashesWhatIsNotCopied()
{
    const ScratchFolder folder;
    const QString path = folder.file(QStringLiteral("source"), bytesOf(700'000));
    const auto source = opened(path);
    source->beginHash();
    (void)source->readInOrder(5, 10);
    (void)source->readInOrder(300'000, 100'000);
    QCOMPARE(source->endHash(), std::optional(test::hashOfFile(path)));
}

void TestFileSink::tellsWhatKeepsItFromWriting()
{
    const ScratchFolder folder;
    const Descriptor output = created(folder.path(QStringLiteral("target")));
    rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit limit = before;
    limit.rlim_cur = 100'000;
    const auto handler = ::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    FileSink sink(output.get());
    const bool written = sink.write(bytesOf(300'000)) && sink.finish();
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
    (void)::signal(SIGXFSZ, handler);
    QVERIFY(!written);
    QCOMPARE(sink.error(), EFBIG);
}

void TestFileSink::tellsThatTheSourceWasChanged_data()
{
    QTest::addColumn<qint64>("size");
    QTest::newRow("shorter") << qint64(100);
    QTest::newRow("longer") << qint64(5000);
}

void TestFileSink::tellsThatTheSourceWasChanged()
{
    QFETCH(qint64, size);
    const ScratchFolder folder;
    const QString path = folder.file(QStringLiteral("source"), bytesOf(2000));
    const auto source = opened(path);
    source->beginHash();
    QVERIFY(QFile::resize(path, size));
    QCOMPARE(source->endHash(), std::optional<QByteArray>());
}

DRAVOLIN_TEST(TestFileSink)

#include "tst_filesink.moc"

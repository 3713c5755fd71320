#pragma once

#include <QByteArray>
#include <QString>

// Tells by name which file ended the program. The library that reads objects is fed by strangers and lies in
// this process: a fault of it ends a check or a run of many cases, and whoever gives the command again has to
// know which file to take away.
namespace dravolin::check {

// The file that the calling thread works on, as long as this object lives; they nest.
class FileInHand
{
public:
    explicit FileInHand(const QString &path);
    ~FileInHand();
    Q_DISABLE_COPY_MOVE(FileInHand)

private:
    QByteArray m_path;
    const QByteArray *m_outer;
};

// From now on a signal of a crash (SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT) first writes the file that its
// thread has in hand, if any, to standard error; then it does what it did before. Call it once, before other
// threads.
void tellCrashes();

} // namespace dravolin::check

#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace dravolin {

// Opens addresses, folders and files with the desktop's own programs, without waiting for them. Main thread
// only.
class Opener : public QObject
{
    Q_OBJECT

public:
    explicit Opener(QObject *parent = nullptr);

    // Opens an address or a folder with xdg-open; "Failed to open url: ..." is logged when it is missing or
    // reports a failure.
    void open(const QString &address);

    // Shows the file at `path` selected in the desktop's file browser (D-Bus org.freedesktop.FileManager1),
    // or opens its folder when no file browser answers. `then` is called when one of the two is done.
    void reveal(const QString &path, std::function<void()> then);
};

} // namespace dravolin

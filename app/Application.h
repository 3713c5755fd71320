#pragma once

#include <QApplication>

namespace dravolin {

// The application object. What the user did that does not fit into memory is left undone, with a message in
// the system log; the program goes on.
class Application : public QApplication
{
public:
    using QApplication::QApplication;
    bool notify(QObject *receiver, QEvent *event) override;
};

} // namespace dravolin

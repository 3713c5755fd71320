#pragma once

#include "app/AlertPresenter.h"
#include "app/Opener.h"
#include "config/AppPaths.h"
#include "run/jobs/JobRunner.h"

#include <QObject>
#include <QWidget>

#include <functional>

namespace dravolin {

// What stands behind the window's "?". Main thread only.
class HelpMenu : public QObject
{
    Q_OBJECT

public:
    // What the menu works with; nothing of it is owned.
    struct Parts
    {
        QWidget &window;
        const AppPaths &paths;
        JobRunner &jobs;
        AlertPresenter &presenter;
        Opener &opener;
        std::function<void()> askForWebSite;
    };
    explicit HelpMenu(Parts parts);

    // Shows the menu at the lower edge of `button` and returns.
    void popUp(QWidget &button);
    // Opens the installed user guide with the desktop's own program, or says where it should be.
    void openGuide();
    // The versions of the program, of Qt and of the tools, and the resource folder, in a sheet.
    void showAbout();
    void showShortcuts();

private:
    void tell(const QString &message, const QString &text);

    Parts m_parts;
};

} // namespace dravolin

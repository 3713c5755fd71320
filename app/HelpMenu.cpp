#include "app/HelpMenu.h"

#include "base/Files.h"
#include "base/Texts.h"

#include <QDir>
#include <QMenu>
#include <QRegularExpression>

namespace dravolin {

namespace {

QString guidePath(const AppPaths &paths)
{
    return QDir::cleanPath(joinPath(paths.resourceFolder, QStringLiteral("../doc/dravolin/user-guide.md")));
}

// As the tools tell it: "$dcmtk: dcmodify v3.6.7 2022-04-22 $".
QString toolVersion(JobRunner &jobs, const AppPaths &paths)
{
    const JobResult told = jobs.run({.executable = paths.dcmodify(),
                                     .arguments = {QStringLiteral("--version")},
                                     .folder = paths.resourceFolder,
                                     .pipeOutput = true});
    static const QRegularExpression version(QStringLiteral("dcmodify v(\\S+)"));
    const QRegularExpressionMatch match = version.match(QString::fromUtf8(told.output));
    return match.hasMatch() ? match.captured(1) : Texts::tr("not found");
}

} // namespace

HelpMenu::HelpMenu(Parts parts) : m_parts(std::move(parts))
{
}

void HelpMenu::popUp(QWidget &button)
{
    auto *const menu = new QMenu(&button);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(Texts::tr("User guide"), QKeySequence::HelpContents, this, &HelpMenu::openGuide);
    menu->addAction(Texts::tr("Keyboard shortcuts"), this, &HelpMenu::showShortcuts);
    menu->addAction(Texts::tr("Web site"), this, [this] { m_parts.askForWebSite(); });
    menu->addSeparator();
    menu->addAction(Texts::tr("About Dravolin"), this, &HelpMenu::showAbout);
    menu->popup(button.mapToGlobal(button.rect().bottomLeft()));
}

void HelpMenu::openGuide()
{
    const QString guide = guidePath(m_parts.paths);
    if (pathExists(guide))
        m_parts.opener.open(guide);
    else
        tell(Texts::tr("The user guide is not installed."), guide);
}

void HelpMenu::showAbout()
{
    tell(QStringLiteral("Dravolin " DRAVOLIN_VERSION),
         QStringLiteral("Qt %1\nDCMTK %2\n\n%3\n%4")
             .arg(QString::fromLatin1(qVersion()), toolVersion(m_parts.jobs, m_parts.paths),
                  Texts::tr("Tools, pictures and default configuration:"), m_parts.paths.resourceFolder));
}

void HelpMenu::showShortcuts()
{
    const QString line = QStringLiteral("%1: %2");
    const auto shortcut = [&line](const QKeySequence &keys, const QString &what) {
        return line.arg(keys.toString(QKeySequence::NativeText), what);
    };
    tell(Texts::tr("Keyboard shortcuts"),
         QStringList{
             shortcut(QKeySequence::HelpContents, Texts::tr("user guide")),
             shortcut(QKeySequence::Open, Texts::tr("choose a folder instead of dropping one")),
             shortcut(Qt::CTRL | Qt::Key_L, Texts::tr("show the log of the last run")),
             shortcut(Qt::CTRL | Qt::Key_Q, Texts::tr("quit")),
             Texts::tr("Alt and an underlined letter: go to that field, or switch that box"),
             Texts::tr("In the log, %1: find, %2: close")
                 .arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText),
                      QKeySequence(Qt::CTRL | Qt::Key_W).toString(QKeySequence::NativeText)),
         }
             .join(u'\n'));
}

void HelpMenu::tell(const QString &message, const QString &text)
{
    AlertSheet sheet;
    sheet.message = message;
    sheet.informativeText = text;
    sheet.buttons = {Texts::tr("OK")};
    m_parts.presenter.beginSheet(sheet, &m_parts.window);
}

} // namespace dravolin

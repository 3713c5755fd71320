#include "run/DropIntake.h"

#include "base/Files.h"
#include "base/Texts.h"
#include "run/UidRootFields.h"

namespace dravolin {

namespace {

constexpr qsizetype manyFiles = 513;
constexpr int runningHeight = 696;

RunOptions optionsOf(const RunContext &context)
{
    RunOptions options;
    options.createBAKfiles = context.host.checkState(CheckBox::OverwriteSource) == Qt::Unchecked;
    if (const PopupSelection table = context.host.selectedLUT(); table.index > 0) {
        options.selectedLUT = table.title;
        options.selectedLUTpath = context.state.get(&RunState::allLUTsPaths).value(table.title);
    }
    return options;
}

bool uidRootIsUsable(const RunContext &context)
{
    if (checkUidRoot(context.host))
        return true;
    createUidRoot(context.host, context.uuids);
    if (checkUidRoot(context.host))
        return true;
    // intended: "now allowed"
    context.host.runModalAlert(
        {Texts::tr("Study Instance UID would be invalid"),
         Texts::tr(
             "The combination of the CaseID and the UID root would result in the creation of an invalid "
             "Study Instance UID.\nThis is now allowed.\n\nOnly digits and '.' are allowed, and the "
             "total maximum length is 64 characters.\n"),
         Texts::tr("OK"), QString()});
    return false;
}

bool largeDropIsMeant(const RunContext &context)
{
    return context.host.runModalAlert(
               {Texts::tr("Large number of individual files dropped"),
                Texts::tr("You dropped a large number of individual files: processing is faster if you drop "
                          "the enclosing folder.\n\nIf this enclosing folder contains subfolders that should "
                          "not be anonymized, consider temporarily placing the individual files in a new "
                          "folder and drop that.\n\nContinue with dropped files?\n"),
                Texts::tr("No, I'll retry"), Texts::tr("Yes, get on with it!")}) == AlertButton::Alternate;
}

bool overwritingIsMeant(const RunContext &context)
{
    return context.host.runModalAlert({Texts::tr("About to anonymize your data"),
                                       Texts::tr("Your source data will be overwritten. Continue?"),
                                       Texts::tr("No, Cancel"), Texts::tr("Ok, Overwrite source data")}) ==
           AlertButton::Alternate;
}

} // namespace

Drop sortDroppedPaths(const QStringList &paths)
{
    Drop drop;
    for (const QString &path : paths)
        (isFolder(path) ? drop.folders : drop.individualFiles).append(path);
    return drop;
}

bool isLargeDrop(const Drop &drop)
{
    return drop.individualFiles.size() >= manyFiles && drop.folders.isEmpty();
}

std::optional<Drop> takeDrop(const RunContext &context, const QStringList &paths)
{
    Drop drop = sortDroppedPaths(paths);
    drop.options = optionsOf(context);
    if (!uidRootIsUsable(context))
        return std::nullopt;
    if (isLargeDrop(drop) && !largeDropIsMeant(context))
        return std::nullopt;
    if (!drop.options.createBAKfiles && !overwritingIsMeant(context))
        return std::nullopt;
    return drop;
}

void prepareWindow(const RunContext &context, std::function<void()> startRun)
{
    RunHost &host = context.host;
    const bool constructing = host.checkState(CheckBox::Prepopulate) == Qt::Checked;
    host.setStatus(constructing ? Texts::tr("\nConstructing LUT for tag : (%1)...")
                                      .arg(context.state.get(&RunState::LUTconstructionTag))
                                : Texts::tr("\nWorking..."));
    host.setSpinning(true);
    for (const Control control : {Control::OverwriteSource, Control::SelectLUT, Control::Prepopulate,
                                  Control::SelectConfig, Control::GenerateSOP, Control::OnlyGenerateSOP})
        host.setEnabled(control, false);
    host.setStatusToolTip(Texts::tr("Processing may take a *very* long time...\n\nThe task is running on a "
                                    "background thread\nso you can continue to use your computer\n(stop "
                                    "watching this)."));
    host.showSeparator();
    host.growWindow(runningHeight, std::move(startRun));
}

} // namespace dravolin

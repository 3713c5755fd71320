#include "app/RunDialogs.h"

#include "base/Texts.h"

namespace dravolin {

namespace {

AlertSheet retrySheet(const QString &message, const QString &informativeText)
{
    AlertSheet sheet;
    sheet.message = message;
    sheet.informativeText = informativeText;
    sheet.buttons = {Texts::tr("Retry Drop"), Texts::tr("Quit")};
    return sheet;
}

AlertSheet unusableTableSheet(const QString &table, const QString &extraText)
{
    return retrySheet(Texts::tr("LUT file found, but not successfully parsed."),
                      Texts::tr("\nSelected LUT: %1%2\n\n\n").arg(table, extraText));
}

AlertSheet noTagsSheet(const QString &configurationPath)
{
    AlertSheet sheet;
    sheet.message = Texts::tr("Your configuration file provided no tags to anonymize!");
    sheet.informativeText = Texts::tr("\nPath: %1\n\n\n").arg(configurationPath);
    sheet.buttons = {Texts::tr("Save copy of default config to Desktop & Quit"), Texts::tr("Quit")};
    sheet.escape = AlertSheet::secondButton;
    return sheet;
}

} // namespace

ModalAlert questionAlert(Question question)
{
    if (question == Question::LargeDrop)
        return {.title = Texts::tr("Large number of individual files dropped"),
                .text = Texts::tr(
                    "You dropped a large number of individual files: processing is faster if you drop "
                    "the enclosing folder.\n\nIf this enclosing folder contains subfolders that should "
                    "not be anonymized, consider temporarily placing the individual files in a new "
                    "folder and drop that.\n\nContinue with dropped files?\n"),
                .defaultButton = Texts::tr("No, I'll retry"),
                .alternateButton = Texts::tr("Yes, get on with it!")};
    return {.title = Texts::tr("About to anonymize your data"),
            .text = Texts::tr("Your source data will be overwritten. Continue?"),
            .defaultButton = Texts::tr("No, Cancel"),
            .alternateButton = Texts::tr("Ok, Overwrite source data")};
}

std::optional<ModalAlert> refusalAlert(Refusal refusal)
{
    if (refusal == Refusal::InvalidStudyInstanceUid) // intended: "now allowed"
        return ModalAlert{
            .title = Texts::tr("Study Instance UID would be invalid"),
            .text = Texts::tr(
                "The combination of the CaseID and the UID root would result in the creation of an invalid "
                "Study Instance UID.\nThis is now allowed.\n\nOnly digits and '.' are allowed, and the "
                "total maximum length is 64 characters.\n"),
            .defaultButton = Texts::tr("OK")};
    if (refusal == Refusal::OutOfFileHandles)
        return ModalAlert{
            .title = Texts::tr("Ran out of file handles!"),
            .text = Texts::tr(
                "Please try and process your data in slightly smaller batches.\n\nNevertheless, this should "
                "not have happened. If it reoccurs, please let me know."),
            .defaultButton = Texts::tr("OK"),
            .alternateButton = Texts::tr("Quit")};
    return std::nullopt;
}

AlertSheet refusalSheet(Refusal refusal, const QString &detail)
{
    switch (refusal) {
    case Refusal::NoTags: return noTagsSheet(detail);
    case Refusal::NoTagForTable:
        return retrySheet(Texts::tr("Your configuration file provided no tags matching the selected LUT!"),
                          Texts::tr("\nSelected LUT: %1\n\n\n").arg(detail));
    case Refusal::TableWithoutMissing:
        return unusableTableSheet(
            detail, Texts::tr("\n\nYou should implement the <missing> value for the <old_value> field."
                              "\n\n(See the example file in the Application Bundle)"));
    default: return unusableTableSheet(detail, QString());
    }
}

} // namespace dravolin

// What check boxes, pop-ups and buttons of the main window set off.
#include "app/MainController.h"

#include "app/MainWindow.h"
#include "app/PopupPaths.h"
#include "base/SystemLog.h"
#include "base/Texts.h"
#include "config/DirectoryLocations.h"
#include "run/LutSteps.h"
#include "ui_MainWindow.h"

#include <QScopedValueRollback>

namespace dravolin {

namespace {

const QString webSite = QStringLiteral("https://dravolin.example/");

// The first title is the one that gets selected: what the user has chosen comes first, when it is still
// there.
QStringList inOrder(QStringList titles, const QString &chosen)
{
    if (const qsizetype place = titles.indexOf(chosen); place > 0)
        titles.move(place, 0);
    return titles;
}

} // namespace

void MainController::apply(const CheckBoxChanges &changes)
{
    const QScopedValueRollback own(m_ownChange, true);
    const auto set = [](QCheckBox *box, std::optional<bool> on) {
        if (on)
            box->setChecked(*on);
    };
    set(m_controls->overWriteSourceCheckbox, changes.overwriteSource);
    // intended: the drop view keeps its picture when another check box switches construction off
    set(m_controls->prepopulateLUTcheckbox, changes.prepopulate);
    set(m_controls->generateSOPCheckbox, changes.generateSOP);
    set(m_controls->onlyGenerateSOPCheckbox, changes.onlyGenerateSOP);
    if (changes.selectNoTable)
        m_controls->selectLUTpopupButton->setCurrentIndex(0);
}

void MainController::prepopulateLUTcheckboxDidChange()
{
    const bool on = m_controls->prepopulateLUTcheckbox->isChecked();
    if (on) {
        getConfigurationFilePathsAndPopulateButton();
        if (!prepareConstruction(m_context)) {
            refuseConstruction();
            return;
        }
        apply(prepopulateRule());
    }
    m_controls->dragDropView->setImageForLUTcheckboxState(on ? 1 : 0);
}

void MainController::refuseConstruction()
{
    AlertSheet sheet;
    sheet.message =
        Texts::tr("Your configuration file provided no <LUT_XX> field to indicate which DICOM tag should be "
                  "used for constructing the LUT.");
    sheet.buttons = {Texts::tr("Ok"), Texts::tr("Quit")};
    sheet.completion = [this](int code) {
        if (code == AlertSheet::secondButton) {
            m_window->close();
            return;
        }
        const QScopedValueRollback own(m_ownChange, true);
        m_controls->prepopulateLUTcheckbox->setChecked(false);
        m_controls->dragDropView->setImageForLUTcheckboxState(0);
    };
    m_presenter.beginSheet(sheet, m_window.get());
}

void MainController::selectLUTcheckboxChanged()
{
    apply(selectLUTRule());
}

void MainController::generateSOPCheckboxChanged()
{
    apply(generateSOPRule(m_controls->generateSOPCheckbox->isChecked()));
}

void MainController::onlyGenerateSOPCheckboxChanged()
{
    apply(onlyGenerateSOPRule(m_controls->onlyGenerateSOPCheckbox->isChecked(),
                              !m_state.get(&RunState::allLUTsPaths).isEmpty()));
}

void MainController::getConfigurationFilePathsAndPopulateButton()
{
    const FoundConfigurations found = findConfigurations(m_paths);
    m_state.set(&RunState::allConfigPaths, found.allConfigPaths);
    m_controls->selectConfigPopupButton->clear();
    m_controls->selectConfigPopupButton->addItems(
        inOrder(found.allConfigPaths.keys(), m_chosenConfiguration));
    m_controls->selectConfigPopupButton->setCurrentIndex(0);
    showPaths(*m_controls->selectConfigPopupButton, found.allConfigPaths,
              Texts::tr("What is changed in the files"));
    if (found.revertedToDefault)
        tellDefaultConfiguration();
}

void MainController::getLUTpathsAndPopulateButton()
{
    refreshTables(m_context);
}

void MainController::tellDefaultConfiguration()
{
    AlertSheet sheet;
    // intended: both texts as they are, missing space and folder name included
    sheet.message = Texts::tr("Reverting to default anonymization config from "
                              "'DefaultAnonymizationConfiguration.txt'from the Application Bundle.");
    sheet.informativeText = Texts::tr(
        "\nThe application looks for 'AnonymizationConfiguration.txt' in 4 locations, in this order:\n\n"
        "1- In the Application Bundle itself\n"
        "2- On the Desktop\n"
        "3- In the folder where the Application Bundle is\n"
        "4- In ~/Library/Applications Support/Dravolin/\n\n"
        "If not found in any of those places, it reverts to the default configuration, which may not be "
        "what you want.\n\n\n");
    sheet.buttons = {Texts::tr("Save copy to Configuration folder & Quit"), Texts::tr("Continue")};
    sheet.escape = AlertSheet::secondButton;
    sheet.completion = [this](int code) {
        if (code == AlertSheet::firstButton)
            saveDefaultConfigurationAndQuit();
    };
    m_presenter.beginSheet(sheet, m_window.get());
}

void MainController::saveDefaultConfigurationAndQuit()
{
    const ConfigurationFolder folder = configurationFolder(m_paths);
    if (!folder.usable) {
        logMessage(QStringLiteral(
            "Could not save default config to configuration folder, saving to desktop instead"));
        (void)m_presenter.runModal({.title = Texts::tr("Could not access or create config folder"),
                                    .text = Texts::tr("Failed to access or create the configuration folder "
                                                      "at:\n%1\n\nSaving a copy of the default "
                                                      "Configuration to the Desktop instead.\n\n")
                                                .arg(folder.path),
                                    .defaultButton = Texts::tr("Save to Desktop & Quit")},
                                   m_window.get());
    }
    const QString copy =
        copyDefaultConfiguration(m_paths, folder.usable ? folder.path : m_paths.desktopFolder,
                                 QStringLiteral("AnonymizationConfiguration_Default.txt"));
    m_opener.reveal(copy, [this] { m_window->close(); });
}

void MainController::toolbarTextClicked()
{
    const ModalAlert question = {.title = Texts::tr("Open the web site %1 in your web browser?").arg(webSite),
                                 .text = QString(),
                                 .defaultButton = Texts::tr("Yes, sure"),
                                 .alternateButton = Texts::tr("No, don't"),
                                 .escape = AlertButton::Alternate};
    if (m_presenter.runModal(question, m_window.get()) == AlertButton::Default)
        m_opener.open(webSite);
}

void MainController::showConfigInFinder()
{
    m_opener.open(configurationFolderWithExamples(m_paths));
}

} // namespace dravolin

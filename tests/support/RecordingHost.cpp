#include "support/RecordingHost.h"

#include <QTest>

namespace dravolin::test {

QString nameOf(CheckBox box)
{
    switch (box) {
    case CheckBox::OverwriteSource: return QStringLiteral("overwriteSource");
    case CheckBox::Prepopulate: return QStringLiteral("prepopulate");
    case CheckBox::GenerateSOP: return QStringLiteral("generateSOP");
    case CheckBox::OnlyGenerateSOP: return QStringLiteral("onlyGenerateSOP");
    }
    Q_UNREACHABLE();
}

QString nameOf(TextField field)
{
    switch (field) {
    case TextField::UidRoot: return QStringLiteral("uidRoot");
    case TextField::CaseId: return QStringLiteral("caseID");
    case TextField::Diagnosis: return QStringLiteral("diagnosis");
    case TextField::Keywords: return QStringLiteral("keywords");
    case TextField::Credits: return QStringLiteral("credits");
    }
    Q_UNREACHABLE();
}

QString nameOf(Control control)
{
    switch (control) {
    case Control::OverwriteSource: return QStringLiteral("overwriteSource");
    case Control::SelectLUT: return QStringLiteral("selectLUT");
    case Control::Prepopulate: return QStringLiteral("prepopulate");
    case Control::SelectConfig: return QStringLiteral("selectConfig");
    case Control::GenerateSOP: return QStringLiteral("generateSOP");
    case Control::OnlyGenerateSOP: return QStringLiteral("onlyGenerateSOP");
    }
    Q_UNREACHABLE();
}

Qt::CheckState RecordingHost::checkState(CheckBox box)
{
    if (recordReads)
        calls.append(QStringLiteral("read ") + nameOf(box));
    return checkStates.value(box, Qt::Unchecked);
}

QString RecordingHost::text(TextField field)
{
    if (recordReads)
        calls.append(QStringLiteral("read ") + nameOf(field));
    return texts.value(field);
}

void RecordingHost::setText(TextField field, const QString &text)
{
    calls.append(QStringLiteral("setText %1: %2").arg(nameOf(field), text));
    texts.insert(field, text);
}

void RecordingHost::setRootValidity(const QString &label)
{
    calls.append(QStringLiteral("setRootValidity: ") + label);
}

QString RecordingHost::selectedConfigTitle()
{
    if (recordReads)
        calls.append(QStringLiteral("read configTitle"));
    return configTitle;
}

PopupSelection RecordingHost::selectedLUT()
{
    if (recordReads)
        calls.append(QStringLiteral("read lut"));
    return lut;
}

void RecordingHost::setStatus(const QString &text)
{
    calls.append(QStringLiteral("setStatus: ") + text);
}

void RecordingHost::setStatusToolTip(const QString &text)
{
    calls.append(QStringLiteral("setStatusToolTip: ") + text);
}

void RecordingHost::setEnabled(Control control, bool enabled)
{
    calls.append((enabled ? QStringLiteral("enable ") : QStringLiteral("disable ")) + nameOf(control));
}

void RecordingHost::setSpinning(bool spinning)
{
    calls.append(spinning ? QStringLiteral("start spinning") : QStringLiteral("stop spinning"));
}

void RecordingHost::showSeparator()
{
    calls.append(QStringLiteral("show separator"));
}

void RecordingHost::setProgress(double percent)
{
    calls.append(QStringLiteral("setProgress: %1").arg(percent));
}

void RecordingHost::setProgressVisible(bool visible)
{
    calls.append(visible ? QStringLiteral("show progress") : QStringLiteral("hide progress"));
}

void RecordingHost::growWindow(int height, std::function<void()> then)
{
    calls.append(QStringLiteral("grow to %1").arg(height));
    then();
}

void RecordingHost::setLUTTitles(const QStringList &titles)
{
    calls.append(QStringLiteral("setLUTTitles: ") + titles.join(u'|'));
}

void RecordingHost::showSheet(const AlertSheet &sheet)
{
    calls.append(QStringLiteral("sheet: %1|%2|%3")
                     .arg(sheet.message, sheet.informativeText, sheet.buttons.join(u'|')));
    sheets.append(sheet);
}

AlertButton RecordingHost::runModalAlert(const ModalAlert &alert)
{
    calls.append(QStringLiteral("alert: %1|%2|%3|%4")
                     .arg(alert.title, alert.text, alert.defaultButton, alert.alternateButton));
    alerts.append(alert);
    if (answers.isEmpty())
        QTest::qFail("an alert that nobody expected", __FILE__, __LINE__);
    return answers.isEmpty() ? alert.escape : answers.takeFirst();
}

void RecordingHost::scheduleLogWindow(const QString &text)
{
    calls.append(QStringLiteral("log window: ") + text);
}

void RecordingHost::closeMainWindow()
{
    calls.append(QStringLiteral("close"));
}

} // namespace dravolin::test

#pragma once

#include "run/jobs/RunHost.h"

#include <QList>
#include <QMap>

namespace dravolin::test {

// A RunHost without a window: what is read is what the test has set, what is shown becomes lines in `calls`,
// in order and in full. Modal alerts take their answers from `answers`; one that nobody expected fails the
// test.
class RecordingHost : public RunHost
{
public:
    QMap<CheckBox, Qt::CheckState> checkStates; // unset: unchecked
    QMap<TextField, QString> texts;
    QString configTitle;
    PopupSelection lut;
    QList<AlertButton> answers;
    bool recordReads = false;

    QStringList calls;
    QList<AlertSheet> sheets;
    QList<ModalAlert> alerts;

    [[nodiscard]] Qt::CheckState checkState(CheckBox box) override;
    [[nodiscard]] QString text(TextField field) override;
    void setText(TextField field, const QString &text) override;
    void setRootValidity(const QString &label) override;
    [[nodiscard]] QString selectedConfigTitle() override;
    [[nodiscard]] PopupSelection selectedLUT() override;
    void setStatus(const QString &text) override;
    void setStatusToolTip(const QString &text) override;
    void setEnabled(Control control, bool enabled) override;
    void setSpinning(bool spinning) override;
    void showSeparator() override;
    void setProgress(double percent) override;
    void setProgressVisible(bool visible) override;
    void growWindow(int height, std::function<void()> then) override; // calls `then` at once
    void setLUTTitles(const QStringList &titles) override;
    void showSheet(const AlertSheet &sheet) override;
    AlertButton runModalAlert(const ModalAlert &alert) override;
    void scheduleLogWindow(const QString &text) override;
    void closeMainWindow() override;
};

[[nodiscard]] QString nameOf(CheckBox box);
[[nodiscard]] QString nameOf(TextField field);
[[nodiscard]] QString nameOf(Control control);

} // namespace dravolin::test

#pragma once

#include "app/Alerts.h"

#include <QWidget>

namespace dravolin {

// How questions reach the user. Main thread only.
class AlertPresenter
{
public:
    virtual ~AlertPresenter() = default;
    // Blocks in an event loop of its own until the user has answered.
    [[nodiscard]] virtual AlertButton runModal(const ModalAlert &alert, QWidget *window) = 0;
    // Returns when the sheet is up.
    virtual void beginSheet(const AlertSheet &sheet, QWidget *window) = 0;
    // For a user who looks elsewhere; nobody is waited for.
    virtual void notify(const QString &summary, const QString &body) = 0;
};

// With message boxes, and the desktop's notifications.
class MessageBoxPresenter : public AlertPresenter
{
public:
    [[nodiscard]] AlertButton runModal(const ModalAlert &alert, QWidget *window) override;
    void beginSheet(const AlertSheet &sheet, QWidget *window) override;
    void notify(const QString &summary, const QString &body) override;
};

} // namespace dravolin

#pragma once

#include <QTimer>
#include <QWidget>

namespace dravolin {

// Turns while something is under way and is blank otherwise; it keeps its place. Main thread only.
class SpinningIndicator : public QWidget
{
    Q_OBJECT

public:
    explicit SpinningIndicator(QWidget *parent = nullptr);

    void setSpinning(bool spinning);
    [[nodiscard]] bool isSpinning() const { return m_timer.isActive(); }

    [[nodiscard]] QSize sizeHint() const override { return {22, 22}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTimer m_timer;
    int m_step = 0;
};

} // namespace dravolin

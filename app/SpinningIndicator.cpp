#include "app/SpinningIndicator.h"

#include <QPainter>

namespace dravolin {

namespace {

constexpr int spokes = 12;

} // namespace

SpinningIndicator::SpinningIndicator(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_timer.setInterval(80);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_step = (m_step + 1) % spokes;
        update();
    });
}

void SpinningIndicator::setSpinning(bool spinning)
{
    spinning ? m_timer.start() : m_timer.stop();
    update();
}

void SpinningIndicator::paintEvent(QPaintEvent *)
{
    if (!isSpinning())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    QColor color = palette().color(QPalette::WindowText);
    for (int spoke = 0; spoke < spokes; ++spoke) {
        color.setAlphaF(static_cast<float>((spoke - m_step + spokes) % spokes + 1) / spokes);
        painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -4.5), QPointF(0, -8.5));
        painter.rotate(360.0 / spokes);
    }
}

} // namespace dravolin

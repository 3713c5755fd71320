#include "app/StatusIcon.h"

#include "app/Contrast.h"
#include "base/Texts.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace dravolin {

namespace {

// In a square of this side.
constexpr qreal side = 20;

QPainterPath outline(StatusIcon::Kind kind)
{
    QPainterPath path;
    switch (kind) {
    case StatusIcon::Kind::None: break;
    case StatusIcon::Kind::Attention: path.addPolygon(QPolygonF({{10, 1}, {19.5, 18.5}, {0.5, 18.5}})); break;
    case StatusIcon::Kind::Errors: path.addPolygon(QPolygonF({{10, 0}, {20, 10}, {10, 20}, {0, 10}})); break;
    case StatusIcon::Kind::Done:
    case StatusIcon::Kind::Refused: path.addEllipse(QRectF(1, 1, 18, 18)); break;
    }
    path.closeSubpath();
    return path;
}

QPainterPath mark(StatusIcon::Kind kind)
{
    QPainterPath path;
    const auto line = [&path](std::initializer_list<QPointF> points) {
        path.moveTo(*points.begin());
        std::for_each(points.begin() + 1, points.end(), [&path](QPointF point) { path.lineTo(point); });
    };
    switch (kind) {
    case StatusIcon::Kind::None: break;
    case StatusIcon::Kind::Done: line({{5.5, 10.5}, {9, 14}, {14.5, 6.5}}); break;
    case StatusIcon::Kind::Attention:
        line({{10, 7}, {10, 12}});
        line({{10, 15.4}, {10, 15.5}});
        break;
    case StatusIcon::Kind::Errors:
        line({{10, 5}, {10, 11}});
        line({{10, 14.7}, {10, 14.8}});
        break;
    case StatusIcon::Kind::Refused:
        line({{6.5, 6.5}, {13.5, 13.5}});
        line({{13.5, 6.5}, {6.5, 13.5}});
        break;
    }
    return path;
}

QString nameOf(StatusIcon::Kind kind)
{
    switch (kind) {
    case StatusIcon::Kind::None: break;
    case StatusIcon::Kind::Done: return Texts::tr("Done");
    case StatusIcon::Kind::Attention: return Texts::tr("Attention");
    case StatusIcon::Kind::Errors: return Texts::tr("Errors");
    case StatusIcon::Kind::Refused: return Texts::tr("Refused");
    }
    return {};
}

} // namespace

StatusIcon::StatusIcon(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    setProperty("accessibleRole", QStringLiteral("graphic"));
}

void StatusIcon::setKind(Kind kind)
{
    m_kind = kind;
    setAccessibleName(nameOf(kind));
    follow();
}

void StatusIcon::setLabel(QLabel *label)
{
    m_label = label;
    follow();
}

QSize StatusIcon::sizeHint() const
{
    const int height = std::max(fontMetrics().height(), 16);
    return {height, height};
}

void StatusIcon::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        follow();
}

void StatusIcon::follow()
{
    if (m_label) {
        QPalette palette;
        if (m_kind != Kind::None)
            palette.setColor(QPalette::WindowText, colour());
        m_label->setPalette(palette);
    }
    update();
}

QColor StatusIcon::colour() const
{
    const auto plain = [this] {
        switch (m_kind) {
        case Kind::Done: return QColor(0x1a, 0x7f, 0x37);
        case Kind::Attention: return QColor(0x9a, 0x67, 0x00);
        case Kind::None: break;
        case Kind::Errors:
        case Kind::Refused: return QColor(0xcf, 0x22, 0x2e);
        }
        return palette().color(QPalette::WindowText);
    }();
    return readable(plain, palette().color(QPalette::Window));
}

QRectF StatusIcon::place() const
{
    const QString text = m_label ? m_label->text() : QString();
    const auto first = std::find_if(text.cbegin(), text.cend(), [](QChar c) { return c != u'\n'; });
    const qreal line = m_label ? m_label->fontMetrics().lineSpacing() : 0;
    const qreal width = sizeHint().width();
    const qreal top = static_cast<qreal>(first - text.cbegin()) * line + std::max(0.0, (line - width) / 2);
    return {0, std::min(top, height() - width), width, width};
}

void StatusIcon::paintEvent(QPaintEvent *)
{
    if (m_kind == Kind::None)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = place();
    painter.translate(area.topLeft());
    painter.scale(area.width() / side, area.height() / side);
    painter.fillPath(outline(m_kind), colour());
    painter.setPen(QPen(palette().color(QPalette::Window), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(mark(m_kind));
}

} // namespace dravolin

#include "app/OutlineStyle.h"

#include "app/Contrast.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace dravolin {

namespace {

constexpr qreal radius = 2; // as Fusion rounds its own outlines, which these cover

void drawOutline(const QStyleOption &option, QPainter &painter, const QWidget *widget, qreal corner)
{
    const bool marked = widget && widget->property(markedProperty).toBool();
    const bool focused = option.state.testFlag(QStyle::State_HasFocus);
    const qreal width = marked || focused ? 2 : 1;
    const QColor plain = focused ? focusColour(option.palette) : borderColour(option.palette);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(marked ? readable(Qt::red, option.palette.color(QPalette::Window)) : plain, width));
    painter.setBrush(Qt::NoBrush);
    const qreal inset = width / 2;
    painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), corner, corner);
    painter.restore();
}

} // namespace

OutlineStyle::OutlineStyle()
    : m_drawsOutlines(baseStyle()->name().compare(QLatin1String("fusion"), Qt::CaseInsensitive) == 0)
{
}

void OutlineStyle::polish(QPalette &palette)
{
    QProxyStyle::polish(palette);
    palette = withReadableTexts(palette);
}

void OutlineStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!m_drawsOutlines)
        return;
    switch (element) {
    case PE_FrameLineEdit:
    case PE_PanelButtonCommand: drawOutline(*option, *painter, widget, radius); break;
    case PE_IndicatorCheckBox:
    case PE_Frame: drawOutline(*option, *painter, widget, 0); break;
    default: break;
    }
}

void OutlineStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (m_drawsOutlines && element == CE_ProgressBar)
        drawOutline(*option, *painter, widget, radius);
}

} // namespace dravolin

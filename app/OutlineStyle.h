#pragma once

#include <QProxyStyle>

namespace dravolin {

// The name of a field's property that makes its outline stand out: what it holds cannot be used.
inline constexpr char markedProperty[] = "marked";

// The platform's style with texts and outlines that stand out from their ground in every palette, light or
// dark. Styles other than Fusion draw their outlines themselves. Main thread only.
class OutlineStyle : public QProxyStyle
{
    Q_OBJECT

public:
    OutlineStyle();

    using QProxyStyle::polish;
    void polish(QPalette &palette) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;

private:
    bool m_drawsOutlines;
};

} // namespace dravolin

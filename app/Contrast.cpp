#include "app/Contrast.h"

#include <algorithm>
#include <cmath>

namespace dravolin {

namespace {

// More than is asked for: the grounds of buttons are lighter or darker than the palette says.
constexpr double paletteContrast = textContrast + 2;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(static_cast<double>(colour.redF())) +
           0.7152 * linear(static_cast<double>(colour.greenF())) +
           0.0722 * linear(static_cast<double>(colour.blueF()));
}

double contrast(double luminance, double other)
{
    return (std::max(luminance, other) + 0.05) / (std::min(luminance, other) + 0.05);
}

QColor mixed(const QColor &from, const QColor &to, float part)
{
    const auto channel = [part](float a, float b) { return a + (b - a) * part; };
    return QColor::fromRgbF(channel(from.redF(), to.redF()), channel(from.greenF(), to.greenF()),
                            channel(from.blueF(), to.blueF()));
}

QColor asBorder(const QColor &colour, const QPalette &palette)
{
    return readable(readable(colour, palette.color(QPalette::Window), borderContrast),
                    palette.color(QPalette::Base), borderContrast);
}

} // namespace

double contrast(const QColor &one, const QColor &other)
{
    return contrast(luminance(one), luminance(other));
}

QColor readable(const QColor &colour, const QColor &ground, double ratio)
{
    const double behind = luminance(ground);
    const QColor end = contrast(behind, 0) > contrast(behind, 1) ? Qt::black : Qt::white;
    const QColor seen = mixed(ground, colour, colour.alphaF());
    const auto fits = [&](const QColor &moved) { return contrast(luminance(moved), behind) >= ratio; };
    if (fits(seen))
        return seen;
    constexpr int steps = 64;
    int tooLittle = 0;
    int enough = steps;
    while (enough - tooLittle > 1) {
        const int step = (tooLittle + enough) / 2;
        (fits(mixed(seen, end, static_cast<float>(step) / steps)) ? enough : tooLittle) = step;
    }
    return mixed(seen, end, static_cast<float>(enough) / steps);
}

QColor borderColour(const QPalette &palette)
{
    return asBorder(palette.color(QPalette::Window), palette);
}

QColor focusColour(const QPalette &palette)
{
    return asBorder(palette.color(QPalette::Highlight), palette);
}

QPalette withReadableTexts(QPalette palette)
{
    constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> texts[] = {
        {QPalette::WindowText, QPalette::Window},         {QPalette::Text, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},         {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::ToolTipText, QPalette::ToolTipBase},   {QPalette::Link, QPalette::Base},
        {QPalette::Highlight, QPalette::HighlightedText}, // here the ground gives way
    };
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        for (const auto &[text, ground] : texts)
            palette.setColor(
                group, text,
                readable(palette.color(group, text), palette.color(group, ground), paletteContrast));
    return palette;
}

} // namespace dravolin

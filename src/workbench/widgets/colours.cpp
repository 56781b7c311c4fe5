#include "colours.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace Workbench
{

namespace Colours
{

namespace
{

// Relative luminance of sRGB, 0 to 1, as WCAG 2 defines it.
qreal luminance(const QColor &color)
{
    const auto linear = [](qreal value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

QColor mixed(const QColor &a, const QColor &b, qreal shareOfB)
{
    const auto mix = [shareOfB](int x, int y) { return qRound(x + (y - x) * shareOfB); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

QColor quiet(const QPalette &palette, QPalette::ColorRole paper, QPalette::ColorRole ink)
{
    return readable(palette.color(QPalette::Disabled, ink), palette.color(paper),
                    palette.color(ink), textContrast);
}

} // namespace

qreal contrast(const QColor &one, const QColor &other)
{
    const qreal a = luminance(one) + 0.05;
    const qreal b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor readable(const QColor &wish, const QColor &paper, const QColor &ink, qreal ratio)
{
    constexpr int steps = 20;
    for (int i = 0; i < steps; ++i) {
        const QColor color = mixed(wish, ink, qreal(i) / steps);
        if (contrast(color, paper) >= ratio)
            return color;
    }
    return ink;
}

QColor alarm(const QPalette &palette)
{
    const QColor red = isDark(palette) ? QColor(255, 110, 100) : QColor(190, 20, 20);
    const QColor ink = palette.color(QPalette::WindowText);
    return readable(readable(red, palette.color(QPalette::Window), ink, textContrast),
                    palette.color(QPalette::Base), ink, markContrast);
}

QColor quietOnWindow(const QPalette &palette)
{
    return quiet(palette, QPalette::Window, QPalette::WindowText);
}

QColor quietOnBase(const QPalette &palette)
{
    return quiet(palette, QPalette::Base, QPalette::Text);
}

QColor link(const QPalette &palette)
{
    const QColor wish = isDark(palette) ? palette.color(QPalette::Highlight).lighter(150)
                                        : palette.color(QPalette::Link);
    return readable(wish, palette.color(QPalette::Base), palette.color(QPalette::Text),
                    textContrast);
}

QColor match(const QPalette &palette)
{
    return taken(palette);
}

QColor frame(const QPalette &palette)
{
    const QColor ink = palette.color(QPalette::WindowText);
    return readable(
        readable(palette.color(QPalette::Mid), palette.color(QPalette::Window), ink, markContrast),
        palette.color(QPalette::Base), ink, markContrast);
}

QColor taken(const QPalette &palette)
{
    return readable(palette.color(QPalette::Highlight), palette.color(QPalette::Base),
                    palette.color(QPalette::Text), markContrast);
}

QColor door(const QPalette &palette)
{
    return readable(palette.color(QPalette::Highlight), palette.color(QPalette::Base),
                    palette.color(QPalette::Text), doorContrast);
}

QColor cursorLine(const QPalette &palette)
{
    return mixed(palette.color(QPalette::Base), palette.color(QPalette::Highlight), 0.12);
}

QColor letter(const QColor &wish, const QPalette &palette)
{
    const QColor ink = palette.color(QPalette::Text);
    return readable(readable(wish, palette.color(QPalette::Base), ink, textContrast),
                    cursorLine(palette), ink, textContrast);
}

Sides sides(const QPalette &palette)
{
    if (isDark(palette))
        return {QColor(0x67, 0x22, 0x26), QColor(0x14, 0x4d, 0x28), QColor(0x3a, 0x3a, 0x3e),
                QColor(0xff, 0xff, 0xff)};
    return {QColor(0xff, 0xd6, 0xd6), QColor(0xc8, 0xf2, 0xd0), QColor(0xe6, 0xe6, 0xe9),
            QColor(0x10, 0x10, 0x10)};
}

QVector<Use> uses(const QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor base = palette.color(QPalette::Base);
    const Sides both = sides(palette);
    return {
        {"a verdict", alarm(palette), window, textContrast},
        {"a bar beyond its limit", alarm(palette), base, markContrast},
        {"the number of a line", quietOnWindow(palette), window, textContrast},
        {"a file that is missing", quietOnBase(palette), base, textContrast},
        {"a link", link(palette), base, textContrast},
        {"the frame of a match", match(palette), base, markContrast},
        {"the frame of a bar, in a window", frame(palette), window, markContrast},
        {"the frame of a bar, around its field", frame(palette), base, markContrast},
        {"what a bar has taken", taken(palette), base, markContrast},
        {"a door of a picture", door(palette), base, doorContrast},
        {"a letter of a program", letter(base, palette), base, textContrast},
        {"the same on the line with the cursor", letter(base, palette), cursorLine(palette),
         textContrast},
        {"the number of a pin that is high", QColor(onLamp), QColor(lamp), textContrast},
        {"a line that went", both.text, both.removed, textContrast},
        {"a line that came", both.text, both.added, textContrast},
        {"a line that is elsewhere", both.text, both.missing, textContrast},
    };
}

} // namespace Colours

} // namespace Workbench

#pragma once

#include <QColor>
#include <QVector>

QT_FORWARD_DECLARE_CLASS(QPalette)

namespace Workbench
{

// The colours that the workbench adds to those of the palette. Each can be read on its paper,
// whatever the palette, as far as the palette's own text can.
namespace Colours
{

constexpr qreal textContrast = 4.5; // at least, of what is read
constexpr qreal markContrast = 3.0; // at least, of what is only seen
constexpr qreal doorContrast = 7.0; // on paper whose boxes take a part of it

// How two opaque colours differ in brightness: 1 (not at all) to 21 (black and white).
qreal contrast(const QColor &one, const QColor &other);
// `wish` where it differs enough from the paper, otherwise as little nearer to `ink` as does.
QColor readable(const QColor &wish, const QColor &paper, const QColor &ink, qreal ratio);

// What exceeds a limit, on windows and fields.
QColor alarm(const QPalette &palette);
// Of less weight than the text around it: numbers of lines, what is missing or not supported.
QColor quietOnWindow(const QPalette &palette);
QColor quietOnBase(const QPalette &palette);
// Links in documents.
QColor link(const QPalette &palette);

// The frame of what was found in a text.
QColor match(const QPalette &palette);
// The frame of a bar between window and field, and the part of it that is taken.
QColor frame(const QPalette &palette);
QColor taken(const QPalette &palette);
// Around a place of a picture that has the focus; the picture is made for a field of the palette,
// and its boxes are nearer to the frame than the paper is.
QColor door(const QPalette &palette);
// The paper of the line with the cursor.
QColor cursorLine(const QPalette &palette);
// A letter in a field, on that paper as well; `wish`: what the theme of the language has.
QColor letter(const QColor &wish, const QPalette &palette);

// A pin that is high, and what is written on it.
constexpr QRgb lamp = 0xffffbe28;
constexpr QRgb onLamp = 0xff000000;

// Lines of two texts side by side: those that only one has, where the other has one, and what is
// written on all of them.
struct Sides {
    QColor removed;
    QColor added;
    QColor missing;
    QColor text;
};
Sides sides(const QPalette &palette);

// All of the above with the paper that each is used on.
struct Use {
    const char *name;
    QColor ink;
    QColor paper;
    qreal ratio; // that it needs
};
QVector<Use> uses(const QPalette &palette);

} // namespace Colours

} // namespace Workbench

#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

// How something in a drawing looks. Each has a colour for light and one for dark pages.
enum class Ink {
    Nothing,
    Page,
    Text,
    Soft, // of what is less important
    Line,
    Bus,
    Lost,
    On,
    TightMemory,
    ExternalMemory,
    MemoryDevice,
    Window,
    Registers,
    BlackBox,
    Port,
};

// The letters of a text: their height in pixels and their face.
struct Letters {
    int size = 12;
    bool isBold = false;
    bool isFixed = false; // all characters of the same width
    Ink ink = Ink::Text;
};

enum class Anchor { Start, Middle, End };

// What a drawing lies on.
enum class Paper {
    Light, // and, where style sheets are understood, dark as the reader likes it
    Dark,
};

// How wide a text is at most, in pixels: by the widest of the faces that a drawing asks for.
int textWidth(const QString &text, const Letters &letters);

// The text in lines of this width, broken at blanks, and within a word only where it must be.
QStringList wrapped(const QString &text, const Letters &letters, int width);

// A picture as SVG: whole pixels, y downwards, later things above earlier ones. It looks right by
// its attributes alone; where style sheets are understood it follows dark pages.
class Drawing
{
public:
    explicit Drawing(const QString &title, Paper paper = Paper::Light);

    void box(int x, int y, int width, int height, Ink fill, Ink edge = Ink::Line,
             bool isDashed = false);
    void line(int x1, int y1, int x2, int y2, Ink ink = Ink::Line, bool isDashed = false);
    // A filled tip at the point, seen from where the line comes.
    void tip(int x, int y, int fromX, int fromY, Ink ink = Ink::Line);
    // `y` is the line that letters stand on.
    void text(int x, int y, const QString &text, const Letters &letters,
              Anchor anchor = Anchor::Start);

    QByteArray svg(int width, int height) const;

private:
    QString paint(QLatin1String attribute, Ink ink) const;

    QString m_title; // escaped
    Paper m_paper;
    QString m_out;
};

} // namespace TARVOORIXM1

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <variant>

namespace TARVOORIXM1
{

// A document as a list of parts, for which each form has a writer. Texts are plain: whatever they
// hold is shown as it is.
namespace Document
{

struct Text {
    enum Style { Plain, Code, Strong };

    Text() = default;
    Text(const QString &content, Style look = Plain)
        : text(content)
        , style(look)
    {
    }

    QString text;
    Style style = Plain;
};

struct Heading {
    int level = 1; // 1 to 3
    QString text;
};

struct Paragraph {
    QVector<Text> texts; // side by side
};

struct Table {
    struct Column {
        QString title;
        bool isNumeric = false; // set to the right
    };
    QVector<Column> columns;
    QVector<QVector<Text>> rows; // as many cells as there are columns
};

struct Picture {
    QString file; // that stands beside the document: "tarvo_orix_m1_memory.svg"
    QString text; // in place of the picture where it cannot be seen
    QByteArray svg;
    int width = 0; // pixels
    int height = 0;
};

using Part = std::variant<Heading, Paragraph, Table, Picture>;
using Parts = QVector<Part>;

} // namespace Document

// CommonMark with the tables of GFM. Pictures are referred to by their file names.
QByteArray markdownOf(const Document::Parts &parts);

// How the page is going to be read.
enum class HtmlStyle {
    Screen,  // by a browser: one file with everything in it, follows light and dark, prints well
    Printed, // by Qt's rich text, for A4: HTML 4 without a style sheet, pictures by their file
             // names
};

// A complete page, well-formed as XML too, whose title is the first heading.
QByteArray htmlOf(const Document::Parts &parts, HtmlStyle style);

// The text for XML and HTML, attributes included: without characters that XML does not know.
QString escapedXml(const QString &text);

} // namespace TARVOORIXM1

#pragma once

#include <QString>

QT_FORWARD_DECLARE_CLASS(QPalette)
QT_FORWARD_DECLARE_CLASS(QSyntaxHighlighter)
QT_FORWARD_DECLARE_CLASS(QTextDocument)

namespace Workbench
{

// Colours for the languages of hardware designs. The definitions are read when the first file asks
// for them.
namespace Highlighting
{

// The language of a file name, by the name that its definition has; empty for plain text.
QString languageOf(const QString &path);

// A highlighter for the document, which owns it, in colours that suit the palette's background;
// null for plain text.
QSyntaxHighlighter *attach(QTextDocument *document, const QString &path, const QPalette &palette);

// Changes the colours after the palette has changed.
void setPalette(QSyntaxHighlighter *highlighter, const QPalette &palette);

} // namespace Highlighting

} // namespace Workbench

#pragma once

#include <QString>

QT_FORWARD_DECLARE_CLASS(QPalette)
QT_FORWARD_DECLARE_CLASS(QSyntaxHighlighter)
QT_FORWARD_DECLARE_CLASS(QTextDocument)

namespace Workbench
{

// What the library that colours texts gives out. It stands beside the host libraries and is loaded
// with the first file, since it brings a dozen others with it.
struct HighlighterModule {
    // A highlighter for the document, which owns it, in the language `definition` or, if that is
    // empty, the one that suits the file's name; null if there is none.
    QSyntaxHighlighter *(*attach)(QTextDocument *document, const QString &definition,
                                  const QString &fileName, const QPalette &palette);
    // Changes the colours after the palette has changed.
    void (*setPalette)(QSyntaxHighlighter *highlighter, const QPalette &palette);
};

// The name of the library and of its only function, which returns the record above.
constexpr const char *highlighterLibrary = "libTarvoHighlighter.so";
constexpr const char *highlighterEntry = "tarvoHighlighter";
using HighlighterEntry = const HighlighterModule *(*)();

} // namespace Workbench

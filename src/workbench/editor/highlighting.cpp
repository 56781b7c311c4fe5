#include "highlighting.h"

#include <KSyntaxHighlighting/Definition>
#include <KSyntaxHighlighting/Repository>
#include <KSyntaxHighlighting/SyntaxHighlighter>
#include <KSyntaxHighlighting/Theme>

#include <QFileInfo>
#include <QPalette>

namespace Workbench
{

namespace
{

struct Language {
    const char *suffixes; // separated and ended by blanks
    const char *definition;
};

// Endings that the definitions do not know, or know as something else.
constexpr Language languages[] = {
    {"v vo vg vm vh vlt ", "Verilog"}, {"sv svh ", "SystemVerilog"},
    {"vhd vhdl vho vhg vhm ", "VHDL"}, {"ipc ini ", "INI Files"},
    {"json ipspec tvproj ", "JSON"},   {"log ", "Log File (simplified)"},
    {"tcl prj sdc ", "Tcl/Tk"},
};

KSyntaxHighlighting::Repository &repository()
{
    static KSyntaxHighlighting::Repository instance;
    return instance;
}

KSyntaxHighlighting::Theme themeFor(const QPalette &palette)
{
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return repository().defaultTheme(dark ? KSyntaxHighlighting::Repository::DarkTheme
                                          : KSyntaxHighlighting::Repository::LightTheme);
}

} // namespace

QString Highlighting::languageOf(const QString &path)
{
    const QByteArray suffix = QFileInfo(path).suffix().toLower().toLatin1() + ' ';
    for (const Language &language : languages) {
        const QByteArray suffixes = QByteArray(" ") + language.suffixes;
        if (suffix.size() > 1 && suffixes.contains(' ' + suffix))
            return QString::fromLatin1(language.definition);
    }
    return {};
}

QSyntaxHighlighter *Highlighting::attach(QTextDocument *document, const QString &path,
                                         const QPalette &palette)
{
    const QString language = languageOf(path);
    const KSyntaxHighlighting::Definition definition =
        language.isEmpty() ? repository().definitionForFileName(QFileInfo(path).fileName())
                           : repository().definitionForName(language);
    if (!definition.isValid())
        return nullptr;
    auto *highlighter = new KSyntaxHighlighting::SyntaxHighlighter(document);
    highlighter->setTheme(themeFor(palette));
    highlighter->setDefinition(definition);
    return highlighter;
}

void Highlighting::setPalette(QSyntaxHighlighter *highlighter, const QPalette &palette)
{
    auto *ours = qobject_cast<KSyntaxHighlighting::SyntaxHighlighter *>(highlighter);
    if (!ours)
        return;
    ours->setTheme(themeFor(palette));
    ours->rehighlight();
}

} // namespace Workbench

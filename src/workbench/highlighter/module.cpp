#include "module.h"

#include <KSyntaxHighlighting/Definition>
#include <KSyntaxHighlighting/Repository>
#include <KSyntaxHighlighting/SyntaxHighlighter>
#include <KSyntaxHighlighting/Theme>

#include <QPalette>

namespace Workbench
{

namespace
{

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

QSyntaxHighlighter *attach(QTextDocument *document, const QString &name, const QString &fileName,
                           const QPalette &palette)
{
    const KSyntaxHighlighting::Definition definition =
        name.isEmpty() ? repository().definitionForFileName(fileName)
                       : repository().definitionForName(name);
    if (!definition.isValid())
        return nullptr;
    auto *highlighter = new KSyntaxHighlighting::SyntaxHighlighter(document);
    highlighter->setTheme(themeFor(palette));
    highlighter->setDefinition(definition);
    return highlighter;
}

void setPalette(QSyntaxHighlighter *highlighter, const QPalette &palette)
{
    auto *ours = qobject_cast<KSyntaxHighlighting::SyntaxHighlighter *>(highlighter);
    if (!ours)
        return;
    ours->setTheme(themeFor(palette));
    ours->rehighlight();
}

} // namespace

} // namespace Workbench

extern "C" Q_DECL_EXPORT const Workbench::HighlighterModule *tarvoHighlighter()
{
    static const Workbench::HighlighterModule module{Workbench::attach, Workbench::setPalette};
    return &module;
}

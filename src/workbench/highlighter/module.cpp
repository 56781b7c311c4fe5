#include "module.h"

#include "widgets/colours.h"

#include <KSyntaxHighlighting/Definition>
#include <KSyntaxHighlighting/Format>
#include <KSyntaxHighlighting/Repository>
#include <KSyntaxHighlighting/SyntaxHighlighter>
#include <KSyntaxHighlighting/Theme>

#include <QHash>
#include <QPalette>
#include <QTextCharFormat>

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

// The colours of the theme as far as they can be read on the palette's paper, otherwise nearer to
// its ink.
class Highlighter : public KSyntaxHighlighting::SyntaxHighlighter
{
public:
    using SyntaxHighlighter::SyntaxHighlighter;

    void setUp(const QPalette &palette)
    {
        m_palette = palette;
        m_letters.clear();
        setTheme(themeFor(palette));
    }

protected:
    void applyFormat(int offset, int length, const KSyntaxHighlighting::Format &format) override
    {
        SyntaxHighlighter::applyFormat(offset, length, format);
        QTextCharFormat characters = QSyntaxHighlighter::format(offset);
        if (length == 0 || characters.isEmpty())
            return;
        // Papers of their own are the theme's, for other inks and in bright colours.
        characters.clearBackground();
        if (characters.hasProperty(QTextFormat::ForegroundBrush)) {
            const QRgb wish = characters.foreground().color().rgb();
            auto known = m_letters.find(wish);
            if (known == m_letters.end())
                known = m_letters.insert(wish, Colours::letter(QColor(wish), m_palette));
            characters.setForeground(*known);
        }
        setFormat(offset, length, characters);
    }

private:
    QPalette m_palette;
    QHash<QRgb, QColor> m_letters;
};

QSyntaxHighlighter *attach(QTextDocument *document, const QString &name, const QString &fileName,
                           const QPalette &palette)
{
    const KSyntaxHighlighting::Definition definition =
        name.isEmpty() ? repository().definitionForFileName(fileName)
                       : repository().definitionForName(name);
    if (!definition.isValid())
        return nullptr;
    auto *highlighter = new Highlighter(document);
    highlighter->setUp(palette);
    highlighter->setDefinition(definition);
    return highlighter;
}

void setPalette(QSyntaxHighlighter *highlighter, const QPalette &palette)
{
    auto *ours = dynamic_cast<Highlighter *>(highlighter);
    if (!ours)
        return;
    ours->setUp(palette);
    ours->rehighlight();
}

} // namespace

} // namespace Workbench

extern "C" Q_DECL_EXPORT const Workbench::HighlighterModule *tarvoHighlighter()
{
    static const Workbench::HighlighterModule module{Workbench::attach, Workbench::setPalette};
    return &module;
}

#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>
#include <QVector>

namespace Workbench
{

// While a plug-in shows its dialogs, Qt's own texts in them (such as those of standard buttons)
// are English like the plug-in's. Texts that are shown already stay as they are. Nests.
class PluginTexts
{
public:
    PluginTexts() { ++s_count; }
    PluginTexts(const PluginTexts &) = delete;
    PluginTexts &operator=(const PluginTexts &) = delete;
    ~PluginTexts() { --s_count; }

    static bool areShown() { return s_count > 0; }

private:
    static int s_count;
};

// The language of the workbench's own texts, from construction to destruction; at most one at a
// time, before the first window. What is generated, written or printed is the same in every
// language, and so are the texts of plug-ins.
class Languages
{
public:
    struct Choice {
        QString code; // as in a file's name: "de", "zh_CN"
        QString name; // in the language itself
    };

    // `wish`: a code; empty or an unknown one: what the system prefers.
    // `qtTexts`: the folder of Qt's own translations, which may be absent; empty: where Qt has
    // them.
    explicit Languages(const QString &wish, const QString &qtTexts = QString());
    Languages(const Languages &) = delete;
    Languages &operator=(const Languages &) = delete;
    ~Languages();

    const QString &code() const { return m_code; }

    // Those that there are texts of, English first.
    static QVector<Choice> available();
    // The code of the language for a wish; `system`: what the system prefers, best first, in the
    // form of QLocale::uiLanguages(). English, if there is nothing better.
    static QString chosen(const QString &wish, const QStringList &system);
    // For numbers, dates and sizes that are shown; of English texts in a system without a language
    // of its own, the American forms.
    static QLocale locale();

private:
    // The workbench's texts, and Qt's that come with them, these except while PluginTexts lives.
    class OwnTranslator : public QTranslator
    {
    public:
        QString translate(const char *context, const char *text, const char *disambiguation,
                          int n) const override;
    };
    // Qt's own translations, with the same exception.
    class QtTranslator : public QTranslator
    {
    public:
        bool read(const QString &file) { return m_texts.load(file); }
        QString translate(const char *context, const char *text, const char *disambiguation,
                          int n) const override
        {
            return PluginTexts::areShown() ? QString()
                                           : m_texts.translate(context, text, disambiguation, n);
        }
        bool isEmpty() const override { return false; }

    private:
        QTranslator m_texts;
    };

    QString m_code;
    QLocale m_before;
    OwnTranslator m_texts;
    QtTranslator m_qtTexts;
};

} // namespace Workbench

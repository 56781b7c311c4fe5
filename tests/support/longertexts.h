#pragma once

#include <QTranslator>

// A language that nobody speaks: the workbench's own texts with accents, in brackets and longer by
// two fifths, as translations often are.
namespace TestSupport
{

class LongerTexts : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        const QString source = QString::fromUtf8(text);
        // Patterns of file names are no texts, and neither is what has no letters.
        if (qstrncmp(context, "Workbench", 9) != 0 || source.contains(QLatin1String(";;")))
            return {};
        return longer(source);
    }
    bool isEmpty() const override { return false; }

    static QString longer(const QString &source)
    {
        static const QString plain = QStringLiteral("aeioucnsyzAEIOUCNSYZ");
        static const QString accented = QStringLiteral("áéíóúçñšýžÁÉÍÓÚÇÑŠÝŽ");
        QString result;
        int letters = 0;
        bool inTag = false;
        for (int i = 0; i < source.size(); ++i) {
            const QChar c = source.at(i);
            inTag = (inTag || c == u'<') && c != u'>';
            const bool isPlace = i > 0 && source.at(i - 1) == u'%';
            const int known = inTag || isPlace ? -1 : plain.indexOf(c);
            letters += c.isLetter() && !isPlace && !inTag;
            result += known < 0 ? c : accented.at(known);
        }
        if (letters == 0)
            return {};
        // In words, so that what is broken into lines still can be.
        QString more;
        for (int i = 0; i < (letters * 2 + 4) / 5; ++i)
            more += i % 8 == 7 ? u' ' : u'~';
        const auto isBlank = [](QChar c) { return c == u' '; };
        const int begin = isBlank(result.at(0)) ? 1 : 0;
        return result.left(begin) + u'[' + result.mid(begin) + more + u']';
    }
};

} // namespace TestSupport

#include "plaintext.h"

namespace TARVOORIXM1
{

namespace
{

struct Row {
    char16_t character;
    const char *name;
};

constexpr Row rows[] = {
    {u'"', "a quotation mark (\")"}, {u'\\', "a backslash (\\)"}, {u'`', "a backtick (`)"},
    {u'\n', "a line end"},           {u'\r', "a line end"},       {0x2028, "a line end"},
    {0x2029, "a line end"},          {0x85, "a line end"},
};

constexpr char16_t firstPrintable = 0x20;

} // namespace

QString unsafeCharacter(const QString &text)
{
    for (const QChar c : text) {
        for (const Row &row : rows) {
            if (c.unicode() == row.character)
                return QString::fromLatin1(row.name);
        }
        if (c.unicode() < firstPrintable && c != u'\t')
            return QStringLiteral("a control character");
    }
    return {};
}

} // namespace TARVOORIXM1

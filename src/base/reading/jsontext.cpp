#include "jsontext.h"

#include "tr.h"

#include <cstring>

namespace Reading
{

namespace
{

// The depth that QJsonDocument reads.
constexpr int deepest = 1024;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isHexDigit(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// Reads a text once, from its start to the first mistake. Each function steps over what it is named
// after and returns false when that is not there.
class Scanner
{
public:
    explicit Scanner(const QByteArray &text)
        : m_text(text)
    {
    }

    JsonMistake scan()
    {
        if (m_text.startsWith("\xef\xbb\xbf"))
            m_at = 3;
        if (value() && !atEnd())
            fail(Tr::tr("text after the end of the value"));
        return m_mistake;
    }

private:
    bool atEnd() const { return m_at >= m_text.size(); }
    char next() const { return atEnd() ? '\0' : m_text.at(m_at); }

    bool fail(const QString &reason)
    {
        m_mistake = {m_at, reason};
        return false;
    }

    bool accept(char c)
    {
        if (atEnd() || next() != c)
            return false;
        ++m_at;
        return true;
    }

    void space()
    {
        while (!atEnd() && (next() == ' ' || next() == '\t' || next() == '\n' || next() == '\r'))
            ++m_at;
    }

    // A value with the space around it.
    bool value()
    {
        space();
        bool good = false;
        if (next() == '{' || next() == '[')
            good = container();
        else if (next() == '"')
            good = string();
        else if (next() == '-' || isDigit(next()))
            good = number();
        else
            good = word("true") || word("false") || word("null") ||
                   fail(Tr::tr("a value is missing here"));
        if (good)
            space();
        return good;
    }

    bool word(const char *literal)
    {
        const int length = int(qstrlen(literal));
        if (m_text.mid(m_at, length) != literal)
            return false;
        m_at += length;
        return true;
    }

    bool container()
    {
        if (m_depth == deepest)
            return fail(Tr::tr("the text is nested too deeply"));
        ++m_depth;
        const bool isObject = accept('{');
        if (!isObject)
            ++m_at;
        const char end = isObject ? '}' : ']';
        space();
        if (!accept(end)) {
            do {
                space();
                if (isObject && !member())
                    return false;
                if (!value())
                    return false;
            } while (accept(','));
            if (!accept(end))
                return fail(Tr::tr("a comma or \"%1\" is missing here").arg(QLatin1Char(end)));
        }
        --m_depth;
        return true;
    }

    // The name of an object's member and the colon.
    bool member()
    {
        if (next() != '"')
            return fail(Tr::tr("a name in double quotes is missing here"));
        if (!string())
            return false;
        space();
        return accept(':') || fail(Tr::tr("a colon is missing here"));
    }

    bool string()
    {
        ++m_at;
        while (!atEnd()) {
            if (accept('"'))
                return true;
            if (static_cast<unsigned char>(next()) < 0x20)
                return fail(Tr::tr("a control character in a string"));
            if (accept('\\')) {
                if (!escape())
                    return false;
            } else {
                ++m_at;
            }
        }
        return fail(Tr::tr("a string has no end"));
    }

    bool escape()
    {
        if (accept('u')) {
            for (int digit = 0; digit < 4; ++digit, ++m_at) {
                if (!isHexDigit(next()))
                    return fail(Tr::tr("a hexadecimal digit is missing here"));
            }
            return true;
        }
        if (atEnd() || !strchr("\"\\/bfnrt", next()))
            return fail(Tr::tr("an unknown character after a backslash"));
        ++m_at;
        return true;
    }

    bool digits()
    {
        if (!isDigit(next()))
            return fail(Tr::tr("a digit is missing here"));
        while (isDigit(next()))
            ++m_at;
        return true;
    }

    bool number()
    {
        accept('-');
        if (accept('0')) {
            if (isDigit(next()))
                return fail(Tr::tr("a number starts with a zero"));
        } else if (!digits()) {
            return false;
        }
        if (accept('.') && !digits())
            return false;
        if (accept('e') || accept('E')) {
            if (!accept('-'))
                accept('+');
            return digits();
        }
        return true;
    }

    const QByteArray &m_text;
    int m_at = 0;
    int m_depth = 0;
    JsonMistake m_mistake;
};

} // namespace

JsonMistake findJsonMistake(const QByteArray &text)
{
    return Scanner(text).scan();
}

} // namespace Reading

#include "jsontext.h"

#include "tr.h"

#include <QJsonArray>

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

// Reads a text once, from its start to the first mistake, and looks for a value on the way. Each
// function steps over what it is named after and returns false when that is not there.
class Scanner
{
public:
    explicit Scanner(const QByteArray &text, const JsonPath &path = {})
        : m_text(text)
        , m_path(path)
    {
    }

    int found() const { return m_found; }

    JsonMistake scan()
    {
        if (m_text.startsWith("\xef\xbb\xbf"))
            m_at = 3;
        if (value(true) && !atEnd())
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

    // A value with the space around it. `isOnPath`: the path leads to it or through it.
    bool value(bool isOnPath)
    {
        space();
        if (isOnPath)
            m_found = m_at;
        bool good = false;
        if (next() == '{' || next() == '[')
            good = container(isOnPath && m_depth < m_path.size());
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

    // `isOnPath`: the path goes on in it.
    bool container(bool isOnPath)
    {
        if (m_depth == deepest)
            return fail(Tr::tr("the text is nested too deeply"));
        const bool isObject = accept('{');
        if (!isObject)
            ++m_at;
        const JsonStep step = isOnPath ? m_path.at(m_depth) : JsonStep(-1);
        ++m_depth;
        const char end = isObject ? '}' : ']';
        space();
        if (!accept(end)) {
            int number = 0;
            do {
                space();
                const int name = m_at;
                if (isObject && !member())
                    return false;
                if (!value(isOnPath && (isObject ? step.number < 0 && textAt(name) == step.name
                                                 : number == step.number)))
                    return false;
                ++number;
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

    // The text of a string that was stepped over.
    QString textAt(int offset) const
    {
        Scanner name(m_text);
        name.m_at = offset;
        name.string();
        const QByteArray literal = m_text.mid(offset, name.m_at - offset);
        return QJsonDocument::fromJson('[' + literal + ']').array().at(0).toString();
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
    const JsonPath m_path;
    int m_at = 0;
    int m_depth = 0;
    int m_found = 0;
    JsonMistake m_mistake;
};

} // namespace

TextPlace placeIn(const QByteArray &text, int offset)
{
    const QByteArray before = text.left(offset);
    const QByteArray line = before.mid(before.lastIndexOf('\n') + 1);
    return {before.count('\n') + 1, QString::fromUtf8(line).toUcs4().size() + 1};
}

JsonMistake findJsonMistake(const QByteArray &text)
{
    return Scanner(text).scan();
}

JsonText readJson(const QByteArray &text)
{
    JsonText json;
    json.mistake = findJsonMistake(text);
    if (json.mistake.offset >= 0)
        return json;
    QJsonParseError error;
    json.document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        json.mistake = {qBound(0, error.offset, text.size()), error.errorString()};
    return json;
}

int findJsonValue(const QByteArray &text, const JsonPath &path)
{
    Scanner scanner(text, path);
    scanner.scan();
    return scanner.found();
}

} // namespace Reading

#include "memoryfile.h"

#include "latin1literal.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

bool isSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isUnknownDigit(char c)
{
    return c == 'x' || c == 'X' || c == 'z' || c == 'Z' || c == '?';
}

// A word of the text for a message: short and printable.
QString shown(const QByteArray &word)
{
    constexpr int limit = 20;
    const QByteArray quoted = '"' + word.left(limit) + '"';
    QString text = QString::fromUtf8(quoted.constData(), quoted.size()); // zeros and all
    for (QChar &c : text) {
        if (!c.isPrint())
            c = QChar::ReplacementCharacter;
    }
    if (word.size() > limit)
        text.insert(text.size() - 1, QChar(0x2026));
    return text;
}

QString bytesText(int count)
{
    return QString::number(count) + (count == 1 ? " byte"_l1 : " bytes"_l1);
}

class Reader
{
public:
    Reader(const QByteArray &text, int size)
        : m_text(text)
        , m_size(size)
    {
        m_result.given.resize(size);
    }

    MemoryText read()
    {
        while (m_at < m_text.size()) {
            if (isSpace(m_text.at(m_at)))
                step();
            else if (startsWith("//"))
                skipLine();
            else if (startsWith("/*"))
                skipComment();
            else if (!takeWord(word()))
                break;
        }
        m_result.lines = 1 + m_text.count('\n') - (m_text.endsWith('\n') ? 1 : 0);
        return m_result;
    }

private:
    bool startsWith(const char *two) const
    {
        return m_at + 1 < m_text.size() && m_text.at(m_at) == two[0] &&
               m_text.at(m_at + 1) == two[1];
    }

    void step()
    {
        m_line += m_text.at(m_at) == '\n';
        ++m_at;
    }

    void skipLine()
    {
        while (m_at < m_text.size() && m_text.at(m_at) != '\n')
            ++m_at;
    }

    void skipComment()
    {
        const int start = m_line;
        m_at += 2;
        while (m_at < m_text.size() && !startsWith("*/"))
            step();
        if (m_at == m_text.size())
            fail(start, QStringLiteral("a comment has no end"));
        else
            m_at += 2;
    }

    QByteArray word()
    {
        const int first = m_at;
        while (m_at < m_text.size() && !isSpace(m_text.at(m_at)) && !startsWith("//") &&
               !startsWith("/*"))
            ++m_at;
        return m_text.mid(first, m_at - first);
    }

    void fail(int line, const QString &reason) { m_result.mistakes.append({line, reason}); }

    // False where nothing more can be read.
    bool takeWord(const QByteArray &word)
    {
        if (word.startsWith('@')) {
            takeAddress(word);
            return true;
        }
        if (m_address >= m_size) {
            fail(m_line, "the memory has "_l1 + bytesText(m_size) + "; this is one too many"_l1);
            return false;
        }
        checkByte(word);
        m_result.given.setBit(m_address);
        ++m_address;
        return true;
    }

    void takeAddress(const QByteArray &word)
    {
        int address = 0;
        bool good = word.size() > 1;
        for (int i = 1; i < word.size(); ++i) {
            good = good && isHexDigit(word.at(i));
            if (good && address < m_size)
                address = 16 * address + QByteArray(1, word.at(i)).toInt(nullptr, 16);
        }
        if (!good) {
            fail(m_line, shown(word) + " is no address"_l1);
        } else if (address >= m_size) {
            fail(m_line, "the address "_l1 + shown(word) +
                             " is outside of the memory, which has "_l1 + bytesText(m_size));
        } else {
            m_address = address;
        }
    }

    void checkByte(const QByteArray &word)
    {
        QByteArray digits = word;
        digits.replace('_', QByteArray());
        const auto isKnown = [](char c) { return isHexDigit(c) || isUnknownDigit(c); };
        if (word.startsWith('_') || digits.isEmpty() ||
            !std::all_of(digits.begin(), digits.end(), isKnown)) {
            fail(m_line, shown(word) + " is no hexadecimal byte"_l1);
            return;
        }
        const auto first =
            std::find_if(digits.begin(), digits.end(), [](char c) { return c != '0'; });
        if (digits.end() - first > 2)
            fail(m_line, shown(word) + " is more than a byte"_l1);
        else if (std::any_of(digits.begin(), digits.end(), isUnknownDigit))
            fail(m_line, shown(word) + " has digits that are unknown"_l1);
    }

    const QByteArray m_text;
    const int m_size;
    int m_at = 0;
    int m_line = 1;
    int m_address = 0;
    MemoryText m_result;
};

} // namespace

int MemoryText::firstMissing() const
{
    for (int i = 0; i < given.size(); ++i) {
        if (!given.testBit(i))
            return i;
    }
    return -1;
}

MemoryText readMemoryText(const QByteArray &text, int size)
{
    return Reader(text, size).read();
}

} // namespace TARVOORIXM1

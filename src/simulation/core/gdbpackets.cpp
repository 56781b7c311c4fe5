#include "gdbpackets.h"

namespace CortexM1
{

namespace
{

constexpr char escape = '}';
constexpr char escapeBit = 0x20;
constexpr char interrupt = 0x03;

int digitOf(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

void appendHex(std::string &text, std::uint8_t byte)
{
    constexpr char digits[] = "0123456789abcdef";
    text += digits[byte >> 4];
    text += digits[byte & 15];
}

} // namespace

std::string toHex(const std::string &bytes)
{
    std::string result;
    result.reserve(2 * bytes.size());
    for (const char byte : bytes)
        appendHex(result, static_cast<std::uint8_t>(byte));
    return result;
}

bool fromHex(const std::string &digits, std::string &bytes)
{
    if (digits.size() % 2 != 0)
        return false;
    std::string result;
    result.reserve(digits.size() / 2);
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        const int high = digitOf(digits[i]);
        const int low = digitOf(digits[i + 1]);
        if (high < 0 || low < 0)
            return false;
        result += static_cast<char>(high << 4 | low);
    }
    bytes = std::move(result);
    return true;
}

std::string wordToHex(std::uint32_t value)
{
    std::string result;
    for (int i = 0; i < 4; ++i)
        appendHex(result, static_cast<std::uint8_t>(value >> 8 * i));
    return result;
}

bool wordFromHex(const std::string &digits, std::uint32_t &value)
{
    std::string bytes;
    if (digits.size() != 8 || !fromHex(digits, bytes))
        return false;
    value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value |= std::uint32_t(static_cast<std::uint8_t>(bytes[i])) << 8 * i;
    return true;
}

std::string escaped(const std::string &bytes)
{
    std::string result;
    result.reserve(bytes.size());
    for (const char byte : bytes) {
        if (byte == '#' || byte == '$' || byte == '*' || byte == escape) {
            result += escape;
            result += static_cast<char>(byte ^ escapeBit);
        } else {
            result += byte;
        }
    }
    return result;
}

bool unescaped(const std::string &text, std::string &bytes)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != escape) {
            result += text[i];
            continue;
        }
        if (++i == text.size())
            return false;
        result += static_cast<char>(text[i] ^ escapeBit);
    }
    bytes = std::move(result);
    return true;
}

std::string framed(const std::string &contents)
{
    std::string result = "$" + escaped(contents);
    std::uint8_t sum = 0;
    for (std::size_t i = 1; i < result.size(); ++i)
        sum = static_cast<std::uint8_t>(sum + static_cast<std::uint8_t>(result[i]));
    result += '#';
    appendHex(result, sum);
    return result;
}

bool PacketArguments::number(std::uint32_t &value)
{
    std::uint32_t result = 0;
    std::size_t at = m_at;
    for (; at < m_packet.size() && digitOf(m_packet[at]) >= 0; ++at) {
        if (at - m_at == 8)
            return false;
        result = result << 4 | static_cast<std::uint32_t>(digitOf(m_packet[at]));
    }
    if (at == m_at)
        return false;
    m_at = at;
    value = result;
    return true;
}

bool PacketArguments::character(char expected)
{
    if (isAtEnd() || m_packet[m_at] != expected)
        return false;
    ++m_at;
    return true;
}

void PacketReader::feed(const std::string &bytes)
{
    m_bytes.erase(0, m_at);
    m_at = 0;
    m_bytes += bytes;
}

void PacketReader::clear()
{
    *this = PacketReader();
}

Received PacketReader::next(std::string &contents)
{
    while (m_at < m_bytes.size()) {
        const char c = m_bytes[m_at++];
        switch (m_state) {
        case State::Outside:
            if (c == interrupt)
                return Received::Interrupt;
            if (c == '+')
                return Received::Acknowledged;
            if (c == '-')
                return Received::Refused;
            if (c != '$')
                break;
            m_contents.clear();
            m_isTooLong = false;
            m_sum = 0;
            m_state = State::Inside;
            break;
        case State::Inside:
            if (c == '$') { // the one before has no end
                --m_at;
                m_state = State::Outside;
                return Received::Broken;
            }
            if (c == '#') {
                m_state = State::FirstDigit;
                break;
            }
            m_sum = static_cast<std::uint8_t>(m_sum + static_cast<std::uint8_t>(c));
            if (m_contents.size() == longestPacket)
                m_isTooLong = true;
            else
                m_contents += c;
            break;
        case State::FirstDigit:
            m_firstDigit = digitOf(c);
            m_state = State::SecondDigit;
            break;
        case State::SecondDigit:
            m_state = State::Outside;
            if (m_firstDigit < 0 || digitOf(c) < 0 || (m_firstDigit << 4 | digitOf(c)) != m_sum)
                return Received::Broken;
            if (m_isTooLong)
                return Received::TooLong;
            contents = m_contents;
            return Received::Packet;
        }
    }
    return Received::Nothing;
}

} // namespace CortexM1

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace CortexM1
{

// Packets of gdb's remote serial protocol, without what they mean. Every function takes any bytes.

constexpr std::size_t longestPacket = 16384; // bytes between "$" and "#"

// Two lower-case digits a byte.
std::string toHex(const std::string &bytes);
// False if it is not a whole number of bytes; digits of either case.
bool fromHex(const std::string &digits, std::string &bytes);

// As registers stand in packets: eight digits, the lowest byte first.
std::string wordToHex(std::uint32_t value);
bool wordFromHex(const std::string &digits, std::uint32_t &value);

// Without "#", "$", "*" and "}".
std::string escaped(const std::string &bytes);
// False if it ends within an escape.
bool unescaped(const std::string &text, std::string &bytes);

// "$", the contents escaped, "#" and the checksum.
std::string framed(const std::string &contents);

// Reads the arguments of a packet from left to right.
class PacketArguments
{
public:
    PacketArguments(const std::string &packet, std::size_t from)
        : m_packet(packet)
        , m_at(from < packet.size() ? from : packet.size())
    {
    }

    // One to eight hexadecimal digits; nothing is taken if there are none or more.
    bool number(std::uint32_t &value);
    bool character(char expected);
    bool isAtEnd() const { return m_at == m_packet.size(); }
    std::string rest() const { return m_packet.substr(m_at); }

private:
    const std::string &m_packet;
    std::size_t m_at;
};

enum class Received {
    Nothing, // all bytes have been looked at
    Packet,
    Broken,       // a packet with a wrong checksum
    TooLong,      // one that is longer than the longest
    Interrupt,    // the byte that Ctrl+C sends
    Acknowledged, // "+"
    Refused       // "-"
};

// Finds packets in a stream of bytes. It keeps no more than the longest packet and what was fed
// since next() said Nothing.
class PacketReader
{
public:
    void feed(const std::string &bytes);
    // `contents`: of a Packet, as they stand on the line; otherwise unchanged.
    Received next(std::string &contents);
    void clear();

private:
    enum class State { Outside, Inside, FirstDigit, SecondDigit };

    std::string m_bytes;
    std::size_t m_at = 0;
    State m_state = State::Outside;
    std::string m_contents;
    bool m_isTooLong = false;
    std::uint8_t m_sum = 0;
    int m_firstDigit = 0; // -1: none
};

} // namespace CortexM1

#include "statistics.h"

#include "text.h"

#include <map>
#include <sstream>

namespace CortexM1
{

namespace
{

const char *nameOf(FaultCause cause)
{
    switch (cause) {
    case FaultCause::Bus:
        return "bus";
    case FaultCause::Undefined:
        return "undefined";
    case FaultCause::Misaligned:
        return "misaligned";
    case FaultCause::State:
        return "state";
    case FaultCause::Supervisor:
        return "supervisor";
    case FaultCause::Stacking:
        return "stacking";
    case FaultCause::Unstacking:
        return "unstacking";
    case FaultCause::VectorTable:
        break;
    }
    return "vector";
}

// In order, so that equal runs give equal files.
template <typename Value>
std::map<std::uint32_t, Value> sorted(const std::unordered_map<std::uint32_t, Value> &entries)
{
    return {entries.begin(), entries.end()};
}

} // namespace

// Null if there are too many.
Statistics::Counts *Statistics::countsOf(std::uint32_t word)
{
    if (m_words.size() < mostWords)
        return &m_words[word];
    const auto found = m_words.find(word);
    return found == m_words.end() ? nullptr : &found->second;
}

Statistics::Sums &Statistics::sumsOf(std::uint32_t address)
{
    const std::uint32_t page = address & ~(pageBytes - 1);
    if (m_pages.size() < mostPages)
        return m_pages[page];
    const auto found = m_pages.find(page);
    return found == m_pages.end() ? m_elsewhere : found->second;
}

void Statistics::countTransfer(std::uint32_t address, int bytes, bool isWrite, bool isError,
                               std::uint32_t programCounter)
{
    if (Counts *counts = countsOf(address & ~3u)) {
        const std::size_t size = bytes == 4 ? 2 : bytes == 2 ? 1 : 0;
        ++(isWrite ? counts->writes : counts->reads)[size];
    } else {
        Sums &sums = sumsOf(address);
        ++(isWrite ? sums.writes : sums.reads);
    }
    if (isError)
        m_errors.add({address, bytes, isWrite, programCounter});
}

void Statistics::countFault(FaultCause cause, std::uint32_t programCounter)
{
    m_faults.add({cause, programCounter});
}

void Statistics::countLockUp(std::uint32_t programCounter)
{
    m_lockUps.add(programCounter);
}

void Statistics::countUnknown(std::uint32_t address, std::uint32_t bits,
                              std::uint32_t programCounter)
{
    m_unknown.add({address, bits, programCounter});
}

std::string Statistics::text(std::uint32_t programCounter) const
{
    std::ostringstream out;
    out << "statistics 1\ncycles " << cycles << "\nasleep " << asleep << "\ninstructions "
        << instructions << "\nstarts " << starts << '\n';
    for (const auto &[address, counts] : sorted(m_words)) {
        out << "word " << hexadecimal(address);
        for (const std::uint64_t count : counts.reads)
            out << ' ' << count;
        for (const std::uint64_t count : counts.writes)
            out << ' ' << count;
        out << '\n';
    }
    for (const auto &[address, sums] : sorted(m_pages))
        out << "page " << hexadecimal(address) << ' ' << sums.reads << ' ' << sums.writes << '\n';
    out << "elsewhere " << m_elsewhere.reads << ' ' << m_elsewhere.writes << '\n';
    for (std::size_t number = 0; number < m_exceptions.size(); ++number) {
        if (m_exceptions[number] != 0)
            out << "exception " << number << ' ' << m_exceptions[number] << '\n';
    }
    for (const BusError &error : m_errors.first)
        out << "error " << hexadecimal(error.address) << ' ' << error.bytes
            << (error.isWrite ? " write " : " read ") << hexadecimal(error.programCounter) << '\n';
    out << "errors " << m_errors.count << '\n';
    for (const Fault &fault : m_faults.first)
        out << "fault " << nameOf(fault.cause) << ' ' << hexadecimal(fault.programCounter) << '\n';
    out << "faults " << m_faults.count << '\n';
    for (const UnknownRead &read : m_unknown.first)
        out << "unknown " << hexadecimal(read.address) << ' ' << hexadecimal(read.bits) << ' '
            << hexadecimal(read.programCounter) << '\n';
    out << "unknowns " << m_unknown.count << '\n';
    for (const std::uint32_t place : m_lockUps.first)
        out << "lockup " << hexadecimal(place) << '\n';
    out << "lockups " << m_lockUps.count << "\nend " << hexadecimal(programCounter) << '\n';
    return out.str();
}

} // namespace CortexM1

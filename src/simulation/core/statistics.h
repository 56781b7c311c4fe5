#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace CortexM1
{

// Why the processor has a hard fault, or would have one where it locks up.
enum class FaultCause {
    Bus,         // an access got an error response
    Undefined,   // there is no such instruction
    Misaligned,  // an access is not aligned to its size
    State,       // instructions of another instruction set, or from where none may come
    Supervisor,  // SVC where its handler cannot run
    Stacking,    // the frame of an exception cannot be written
    Unstacking,  // or cannot be read
    VectorTable, // or a vector cannot be read
};

// What a run did: counters, and the first of what went wrong. Its memory is bounded, whatever the
// program does.
class Statistics
{
public:
    static constexpr std::size_t mostKept = 100;         // of each list
    static constexpr std::size_t mostWords = 1 << 16;    // addresses counted by themselves
    static constexpr std::size_t mostPages = 1 << 14;    // then pages
    static constexpr std::uint32_t pageBytes = 1u << 12; // whatever is in none is counted together

    std::uint64_t cycles = 0; // clock cycles out of reset
    std::uint64_t asleep = 0; // those of them in which the processor slept
    std::uint64_t instructions = 0;
    std::uint64_t starts = 0; // from the vector table: 1 and the resets

    // A transfer on the bus that has ended. `programCounter`: of the instruction that made it.
    void countTransfer(std::uint32_t address, int bytes, bool isWrite, bool isError,
                       std::uint32_t programCounter);
    void countException(int number) { ++m_exceptions[static_cast<std::size_t>(number)]; }
    void countFault(FaultCause cause, std::uint32_t programCounter);
    void countLockUp(std::uint32_t programCounter);
    // A read from the bus with bits that are neither 0 nor 1.
    void countUnknown(std::uint32_t address, std::uint32_t bits, std::uint32_t programCounter);

    // Lines of words with a space between them; addresses are hexadecimal, counts decimal:
    //   statistics 1                      the first line, with the version of the format
    //   cycles N, asleep N, instructions N, starts N
    //   word ADDRESS R1 R2 R4 W1 W2 W4    transfers to a word: reads of 1, 2, 4 bytes, and writes
    //   page ADDRESS READS WRITES         transfers to a page of 4096 bytes beside those
    //   elsewhere READS WRITES            transfers beside both
    //   exception NUMBER N                how often it was taken
    //   error ADDRESS BYTES read|write PC a bus error, the first ones in their order
    //   errors N                          how many there were
    //   fault CAUSE PC, faults N          the same for hard faults
    //   unknown ADDRESS BITS PC, unknowns N   and for reads with unknown bits
    //   lockup PC, lockups N              and for lock-ups
    //   end PC                            where the program was; the last line
    std::string text(std::uint32_t programCounter) const;

private:
    struct Counts {
        std::array<std::uint64_t, 3> reads{}; // of 1, 2 and 4 bytes
        std::array<std::uint64_t, 3> writes{};
    };
    struct Sums {
        std::uint64_t reads = 0;
        std::uint64_t writes = 0;
    };
    struct BusError {
        std::uint32_t address = 0;
        int bytes = 0;
        bool isWrite = false;
        std::uint32_t programCounter = 0;
    };
    struct Fault {
        FaultCause cause = FaultCause::Bus;
        std::uint32_t programCounter = 0;
    };
    struct UnknownRead {
        std::uint32_t address = 0;
        std::uint32_t bits = 0;
        std::uint32_t programCounter = 0;
    };

    // The first ones, and how many.
    template <typename Entry>
    struct Kept {
        std::vector<Entry> first;
        std::uint64_t count = 0;

        void add(const Entry &entry)
        {
            if (count++ < mostKept)
                first.push_back(entry);
        }
    };

    Counts *countsOf(std::uint32_t word);
    Sums &sumsOf(std::uint32_t address);

    std::unordered_map<std::uint32_t, Counts> m_words; // by address
    std::unordered_map<std::uint32_t, Sums> m_pages;   // likewise
    Sums m_elsewhere;
    std::array<std::uint64_t, 64> m_exceptions{}; // by number
    Kept<BusError> m_errors;
    Kept<Fault> m_faults;
    Kept<UnknownRead> m_unknown;
    Kept<std::uint32_t> m_lockUps;
};

} // namespace CortexM1

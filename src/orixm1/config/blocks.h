#pragma once

#include <QLatin1String>
#include <QString>

#include <array>

namespace TARVOORIXM1
{

struct PinGroup;

// A range over the rows of a constant table.
template <class Row>
class Rows
{
public:
    constexpr Rows() = default;
    template <std::size_t count>
    constexpr Rows(const Row (&rows)[count])
        : m_first(rows)
        , m_count(int(count))
    {
    }
    template <std::size_t count>
    constexpr Rows(const std::array<Row, count> &rows)
        : m_first(rows.data())
        , m_count(int(count))
    {
    }

    constexpr const Row *begin() const { return m_first; }
    constexpr const Row *end() const { return m_first + m_count; }
    constexpr int size() const { return m_count; }
    constexpr const Row &operator[](int index) const { return m_first[index]; }

private:
    const Row *m_first = nullptr;
    int m_count = 0;
};

// The optional blocks that have a dialog, in the order in which the diagram shows them.
enum class BlockId {
    Gpio,
    Can,
    Ethernet,
    Ddr3,
    Psram,
    SpiFlash,
    AhbMasters,
    Uart,
    Timer,
    WatchDog,
    Rtc,
    Trng,
    DualTimer,
    I2c,
    Spi,
    SdCard,
    ApbMasters,
};

// A bool option that a block's dialog shows as a check box.
struct SwitchRow {
    QLatin1String name;     // the option key, or what stands before the port's number in it
    bool byDefault = false; // what the dialog takes for an absent key; generation may take another
    int port = 0;           // of an extension bus; 0: none

    QString key() const;
};

// What there is to say about a block. Its check boxes' texts are in its form.
struct Block {
    BlockId id;
    QLatin1String title;  // window title and label
    QLatin1String module; // the bus it is on
    Rows<SwitchRow> switches;
    Rows<PinGroup> pins; // in the order in which a figure shows them
    QLatin1String summary;
    QLatin1String choiceKey =
        QLatin1String(); // of the option, if any, whose choice the pins follow
};

Rows<Block> blocks();
const Block &block(BlockId id);

} // namespace TARVOORIXM1

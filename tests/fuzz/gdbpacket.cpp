#include "fuzz.h"

#include <core/debugger.h>

#include <memory>

using namespace CortexM1;

namespace
{

// Hands the input over in pieces, whose lengths are part of it; then the debugger goes.
class Script : public DebuggerLink
{
public:
    Script(const uint8_t *data, size_t size)
        : m_data(reinterpret_cast<const char *>(data), size)
    {
    }

    Event receive(std::string &bytes, bool) override
    {
        if (!m_isConnected) {
            m_isConnected = true;
            return Event::Connected;
        }
        if (m_at == m_data.size())
            return m_isGone ? Event::Interrupted : (m_isGone = true, Event::Disconnected);
        const size_t length = 1 + static_cast<unsigned char>(m_data[m_at]) * 16u;
        bytes = m_data.substr(m_at, length);
        m_at += bytes.size();
        return Event::Bytes;
    }
    void send(const std::string &bytes) override
    {
        // Each reply is one packet that can be read back.
        PacketReader reader;
        reader.feed(bytes);
        std::string packet;
        const Received what = reader.next(packet);
        REQUIRE(what == Received::Packet || bytes == "+" || bytes == "-");
        REQUIRE(packet.size() <= longestPacket);
    }
    void close() override {}

private:
    const std::string m_data;
    size_t m_at = 0;
    bool m_isConnected = false;
    bool m_isGone = false;
};

class Nowhere : public Surroundings
{
public:
    TransferEnd transfer(Transfer &transfer) override
    {
        REQUIRE(transfer.address % static_cast<uint32_t>(transfer.bytes) == 0);
        return transfer.address & 0x1000 ? TransferEnd::Error : TransferEnd::Done;
    }
    void print(const std::string &) override {}
};

Configuration small()
{
    Configuration configuration;
    configuration.itcmBytes = 4096;
    configuration.dtcmBytes = 1024;
    return configuration;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string input(reinterpret_cast<const char *>(data), size);
    std::string bytes;
    REQUIRE(unescaped(escaped(input), bytes) && bytes == input);
    REQUIRE(fromHex(toHex(input), bytes) && bytes == input);

    Script script(data, size);
    Nowhere nowhere;
    Processor processor(small(), nowhere);
    Debugger debugger(processor, script);
    processor.step();
    for (int i = 0; i < 500 && !processor.hasEnded(); ++i) {
        processor.tick(0, false, debugger.isHalted());
        if (debugger.mayStep())
            processor.step();
    }
    for (int i = 0; i < 100 && processor.hasEnded() && !debugger.mayEnd(); ++i)
        continue;
    return 0;
}

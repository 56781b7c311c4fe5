#include "wavewindow.h"

#include <stdexcept>

namespace CortexM1
{

namespace
{

constexpr std::size_t mostSources = 16;
constexpr std::size_t longestText = 1024;

[[noreturn]] void refuse(const char *name, const std::string &value)
{
    throw std::runtime_error(std::string("+") + name + "=" + value + " is not understood");
}

std::uint64_t number(const char *name, const std::string &digits, int base, std::uint64_t most)
{
    const char *allowed = base == 10 ? "0123456789" : "0123456789abcdefABCDEF";
    const bool isNumber = !digits.empty() && digits.size() <= 18 &&
                          digits.find_first_not_of(allowed) == std::string::npos;
    const std::uint64_t value = isNumber ? std::stoull(digits, nullptr, base) : 0;
    if (!isNumber || value > most)
        refuse(name, digits);
    return value;
}

// What stands behind `prefix`; false if it is not there.
bool rest(const std::string &text, const std::string &prefix, std::string *behind)
{
    if (text.compare(0, prefix.size(), prefix) != 0)
        return false;
    *behind = text.substr(prefix.size());
    return true;
}

} // namespace

WaveWindow::WaveWindow(const char *from, const char *to, const char *at)
{
    if (from) {
        m_from = number("waves-from", from, 10, UINT64_MAX);
        m_isOpen = m_from == 0;
    }
    if (to)
        m_to = number("waves-to", to, 10, UINT64_MAX);
    if (!at)
        return;
    std::string value;
    if (rest(at, "address:", &value)) {
        m_event = Event::Address;
        const std::size_t dash = value.find('-');
        if (dash == std::string::npos)
            refuse("waves-at", at);
        m_first =
            static_cast<std::uint32_t>(number("waves-at", value.substr(0, dash), 16, UINT32_MAX));
        m_last =
            static_cast<std::uint32_t>(number("waves-at", value.substr(dash + 1), 16, UINT32_MAX));
    } else if (rest(at, "exception:", &value)) {
        m_event = Event::Exception;
        m_exception = static_cast<int>(number("waves-at", value, 10, 63));
    } else if (rest(at, "message:", &m_text) && !m_text.empty() && m_text.size() <= longestText) {
        m_event = Event::Message;
        m_said.resize(mostSources);
    } else {
        refuse("waves-at", at);
    }
}

WaveWindow &WaveWindow::shared()
{
    static WaveWindow window;
    return window;
}

bool WaveWindow::wants(std::uint64_t cycle)
{
    m_isOpen = cycle >= m_from;
    return m_isOpen && cycle <= m_to && !isWaiting();
}

void WaveWindow::noteInstruction(std::uint32_t address, int exception)
{
    if ((m_event == Event::Address && address >= m_first && address <= m_last) ||
        (m_event == Event::Exception && exception == m_exception))
        happen();
}

void WaveWindow::noteTransfer(std::uint32_t address, int bytes)
{
    const std::uint32_t last = address + static_cast<std::uint32_t>(bytes - 1);
    if (m_event == Event::Address && last >= m_first && address <= m_last)
        happen();
}

void WaveWindow::noteText(int source, const std::string &text)
{
    if (m_event != Event::Message || m_hasHappened)
        return;
    std::string &said = m_said.at(static_cast<std::size_t>(source));
    said += text;
    if (m_isOpen && said.find(m_text) != std::string::npos)
        m_hasHappened = true;
    // The beginning of what may still come. What was said before the window began is past.
    const std::size_t kept = m_text.size() - 1;
    if (said.size() > kept)
        said.erase(0, said.size() - kept);
}

} // namespace CortexM1

#include "storage.h"

#include <algorithm>
#include <stdexcept>

namespace CortexM1
{

Storage::Storage(const StorageKind &kind, const std::string &path)
    : m_size(kind.standard)
{
    if (path.empty())
        return;
    m_file = std::make_unique<InputFile>(path);
    m_size = storageSize(kind, m_file->size());
    if (m_size == 0)
        throw std::runtime_error('"' + realName(path) + "\" " +
                                 storageMistake(kind, m_file->size()));
}

Storage::Page Storage::read(std::uint32_t number) const
{
    Page page;
    page.fill(0xFF);
    if (m_file)
        m_file->read(std::uint64_t(number) * pageBytes, page.data(), page.size());
    return page;
}

Storage::Page &Storage::page(std::uint32_t number)
{
    const auto found = m_pages.find(number);
    return found != m_pages.end() ? found->second
                                  : m_pages.emplace(number, read(number)).first->second;
}

std::uint8_t Storage::load(std::uint32_t address)
{
    return address < m_size ? page(address / pageBytes)[address % pageBytes] : 0xFF;
}

void Storage::store(std::uint32_t address, std::uint8_t byte)
{
    if (address < m_size)
        page(address / pageBytes)[address % pageBytes] = byte;
}

void Storage::save(const std::string &path)
{
    OutputFile file(path);
    for (std::uint32_t place = 0; place < m_size; place += pageBytes) {
        const auto found = m_pages.find(place / pageBytes);
        const Page bytes = found != m_pages.end() ? found->second : read(place / pageBytes);
        file.write(bytes.data(), std::min(pageBytes, m_size - place));
    }
    file.close();
}

} // namespace CortexM1

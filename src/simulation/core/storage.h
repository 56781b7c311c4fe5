#pragma once

#include "hostfiles.h"
#include "storagekinds.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>

namespace CortexM1
{

// The bytes of a device. A file gives those that it begins with and is never written; changes are
// kept in memory.
class Storage
{
public:
    // `path`: empty for a blank one. Throws std::runtime_error, a clause that names the file.
    Storage(const StorageKind &kind, const std::string &path);

    std::uint32_t size() const { return m_size; } // bytes; 0: it is not there

    // Addresses behind the end read as blank and keep nothing.
    std::uint8_t load(std::uint32_t address);
    void store(std::uint32_t address, std::uint8_t byte);

    // Writes all bytes into another file. Throws std::runtime_error, a clause that names it.
    void save(const std::string &path);

private:
    static constexpr std::uint32_t pageBytes = 4096;
    using Page = std::array<std::uint8_t, pageBytes>;

    Page read(std::uint32_t number) const;
    Page &page(std::uint32_t number);

    std::unique_ptr<InputFile> m_file;
    std::uint32_t m_size;
    std::unordered_map<std::uint32_t, Page> m_pages; // those that were touched
};

} // namespace CortexM1

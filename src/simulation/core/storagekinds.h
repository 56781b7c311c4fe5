#pragma once

#include <cstdint>
#include <string>

namespace CortexM1
{

// A device of the board that keeps bytes, and what a file with its contents may be.
struct StorageKind {
    const char *name;       // of its options: +NAME=FILE, +NAME-result=FILE
    const char *title;      // for people
    std::uint32_t standard; // bytes without a file; 0: it is not there then
    std::uint32_t smallest; // bytes; a smaller file is its beginning, and the rest is blank
    std::uint32_t largest;  // bytes
    std::uint32_t unit;     // the size of a file is a multiple of it
    bool isPowerOfTwo;      // its own size is one
};

// By number. Blank bytes are 0xFF.
constexpr StorageKind storageKinds[] = {
    {"eeprom", "the I2C memory", 32768, 256, 65536, 1, true},
    {"flash", "the serial flash", 1 << 20, 1 << 20, 1 << 24, 1, true},
    {"sd", "the SD card", 0, 512, 0x7FFFFE00, 512, false},
};

// The bytes that a device has with a file of this size; 0 if there can be no such file.
constexpr std::uint32_t storageSize(const StorageKind &kind, std::uint64_t fileSize)
{
    if (fileSize == 0 || fileSize > kind.largest || fileSize % kind.unit != 0)
        return 0;
    std::uint32_t size = kind.smallest;
    if (!kind.isPowerOfTwo)
        return static_cast<std::uint32_t>(fileSize);
    while (size < fileSize)
        size *= 2;
    return size;
}

// Why a file of this size cannot be the contents, as the rest of a sentence that begins with its
// name; empty if it can.
inline std::string storageMistake(const StorageKind &kind, std::uint64_t fileSize)
{
    if (storageSize(kind, fileSize) != 0)
        return {};
    return "has " + std::to_string(fileSize) + " bytes, but " + kind.title + " takes " +
           std::to_string(kind.unit) + " to " + std::to_string(kind.largest) +
           (kind.unit > 1 ? ", a multiple of " + std::to_string(kind.unit) : std::string());
}

} // namespace CortexM1

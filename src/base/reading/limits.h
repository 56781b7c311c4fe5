#pragma once

#include <QtGlobal>

// The most that is read, by what is read. Each is far above what a sound file has and far below
// what would make a program slow.
namespace Reading
{
namespace Limits
{

constexpr qint64 kibibyte = 1024;
constexpr qint64 mebibyte = 1024 * kibibyte;

// Bytes.
constexpr qint64 configuration = 1 * mebibyte; // .ipc
constexpr qint64 descriptor = 1 * mebibyte;    // .ipspec
constexpr qint64 deviceFile = 4 * mebibyte;
constexpr qint64 registerFile = 4 * mebibyte;
constexpr qint64 memoryFile = 16 * mebibyte;  // contents of one byte lane of the ITCM
constexpr qint64 firmwareFile = 1 * mebibyte; // a source that is handed on
constexpr qint64 rtlFile = 4 * mebibyte;      // a source of hardware that is handed on
constexpr qint64 firmwareImage = 64 * mebibyte;
constexpr qint64 script = 16 * mebibyte;        // of transfers
constexpr qint64 sweepPlan = 4 * mebibyte;
constexpr qint64 bundleManifest = 4 * mebibyte; // of an exported set of files
constexpr qint64 toolLog = 64 * mebibyte;
constexpr qint64 anyFile = 1024 * mebibyte; // netlists, and whatever has no limit of its own

// Counts.
constexpr int descriptorKeys = 1 << 24; // characters of all dotted keys together
constexpr int targetNameLength = 200;   // bytes; suffixes follow, and a file name has 255
constexpr int devices = 100000;         // records of one database
constexpr int bundleFiles = 10000;      // named by one manifest
constexpr int toolMessages = 10000;     // different errors and warnings of one run
constexpr int netlistInstances = 100000000;
constexpr int portWidth = 1 << 20; // bits
constexpr int bitOffset = 1 << 30; // of a range's lowest bit, either sign
constexpr int memoryMistakes = 5;  // that are told of one file

} // namespace Limits
} // namespace Reading

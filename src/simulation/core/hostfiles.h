#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace CortexM1
{

// The path behind links; a path that leads nowhere stays.
std::string realName(const std::string &path);

// A plain file that is read piece by piece.
class InputFile
{
public:
    // Never waits. Throws std::runtime_error, a clause that names the file, if it cannot be read or
    // is no plain file.
    explicit InputFile(const std::string &path);
    InputFile(const InputFile &) = delete;
    InputFile &operator=(const InputFile &) = delete;
    ~InputFile();

    std::uint64_t size() const { return m_size; } // bytes, when it was opened

    // The number of bytes that are there from `offset` on, at most `most`.
    std::size_t read(std::uint64_t offset, void *bytes, std::size_t most) const;

private:
    int m_file = -1;
    std::uint64_t m_size = 0;
};

// A named pipe to which another process writes lines.
class InputPipe
{
public:
    // Throws std::runtime_error, a clause that names the pipe.
    explicit InputPipe(const std::string &path);
    InputPipe(const InputPipe &) = delete;
    InputPipe &operator=(const InputPipe &) = delete;
    ~InputPipe();

    // What has come meanwhile, at most 64 KiB; does not wait.
    std::string read() const;

private:
    int m_file = -1;
};

// A file that appears under its name when it is whole, or not at all.
class OutputFile
{
public:
    // Throws std::runtime_error, a clause that names the file; so do write() and close().
    explicit OutputFile(std::string path);
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;
    ~OutputFile();

    void write(const void *bytes, std::size_t size);
    void close();

private:
    const std::string m_path;
    const std::string m_made; // its name until then
    int m_file = -1;
};

} // namespace CortexM1

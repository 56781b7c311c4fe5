#include "hostfiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <utility>

namespace CortexM1
{

namespace
{

[[noreturn]] void fail(const std::string &path, const char *verb, const std::string &reason)
{
    throw std::runtime_error('"' + realName(path) + "\" cannot be " + verb + ": " + reason);
}

} // namespace

std::string realName(const std::string &path)
{
    std::error_code error;
    const std::filesystem::path found = std::filesystem::canonical(path, error);
    return error ? path : found.string();
}

InputFile::InputFile(const std::string &path)
    : m_file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC))
{
    struct stat status = {};
    if (m_file < 0 || ::fstat(m_file, &status) != 0)
        fail(path, "read", std::strerror(errno));
    if (!S_ISREG(status.st_mode)) {
        ::close(m_file);
        fail(path, "read", "it is no plain file");
    }
    m_size = static_cast<std::uint64_t>(status.st_size);
}

InputFile::~InputFile()
{
    ::close(m_file);
}

std::size_t InputFile::read(std::uint64_t offset, void *bytes, std::size_t most) const
{
    std::size_t taken = 0;
    while (taken < most) {
        const ssize_t count = ::pread(m_file, static_cast<char *>(bytes) + taken, most - taken,
                                      static_cast<off_t>(offset + taken));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        taken += static_cast<std::size_t>(count);
    }
    return taken;
}

// Opened for writing too, so that it does not end when the last writer leaves.
InputPipe::InputPipe(const std::string &path)
    : m_file(::open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC))
{
    struct stat status = {};
    if (m_file < 0 || ::fstat(m_file, &status) != 0)
        fail(path, "read", std::strerror(errno));
    if (!S_ISFIFO(status.st_mode)) {
        ::close(m_file);
        fail(path, "read", "it is no named pipe");
    }
}

InputPipe::~InputPipe()
{
    ::close(m_file);
}

std::string InputPipe::read() const
{
    std::array<char, 65536> bytes;
    const ssize_t count = ::read(m_file, bytes.data(), bytes.size());
    return count > 0 ? std::string(bytes.data(), static_cast<std::size_t>(count)) : std::string();
}

OutputFile::OutputFile(std::string path)
    : m_path(std::move(path))
    , m_made(m_path + ".new")
    , m_file(::open(m_made.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666))
{
    if (m_file < 0)
        fail(m_path, "written", std::strerror(errno));
}

OutputFile::~OutputFile()
{
    if (m_file < 0)
        return;
    ::close(m_file);
    ::unlink(m_made.c_str());
}

void OutputFile::write(const void *bytes, std::size_t size)
{
    const char *from = static_cast<const char *>(bytes);
    while (size > 0) {
        const ssize_t count = ::write(m_file, from, size);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            fail(m_path, "written", std::strerror(errno));
        from += count;
        size -= static_cast<std::size_t>(count);
    }
}

void OutputFile::close()
{
    const int file = std::exchange(m_file, -1);
    if (::close(file) == 0 && std::rename(m_made.c_str(), m_path.c_str()) == 0)
        return;
    const std::string reason = std::strerror(errno);
    ::unlink(m_made.c_str());
    fail(m_path, "written", reason);
}

} // namespace CortexM1

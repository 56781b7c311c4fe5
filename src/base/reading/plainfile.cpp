#include "plainfile.h"

#include "limits.h"
#include "tr.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Reading
{

namespace
{

QString tooLarge(qint64 limit)
{
    return Tr::tr("it is larger than %1, the most that is read").arg(sizeText(limit));
}

// A file descriptor that is closed at the end.
class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {
    }
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Q_DISABLE_COPY(Descriptor)

    int number() const { return m_number; }

private:
    const int m_number;
};

bool readResource(const QString &path, qint64 limit, QByteArray *bytes, QString *reason)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = file.errorString();
        return false;
    }
    if (file.size() > limit) {
        *reason = tooLarge(limit);
        return false;
    }
    *bytes = file.readAll();
    return true;
}

} // namespace

QString sizeText(qint64 bytes)
{
    using namespace Limits;
    if (bytes >= mebibyte && bytes % mebibyte == 0)
        return Tr::tr("%1 MiB").arg(bytes / mebibyte);
    if (bytes >= kibibyte && bytes % kibibyte == 0)
        return Tr::tr("%1 KiB").arg(bytes / kibibyte);
    return Tr::tr("%1 bytes").arg(bytes);
}

bool readPlainFile(const QString &path, qint64 limit, QByteArray *bytes, QString *reason)
{
    if (path.startsWith(QLatin1String(":/")))
        return readResource(path, limit, bytes, reason);
    const auto fail = [reason](const QString &why) {
        *reason = why;
        return false;
    };
    // A name with a zero byte would be taken for the part before it.
    if (path.contains(QChar(0)))
        return fail(qt_error_string(ENOENT));
    const auto systemError = [&fail] { return fail(qt_error_string(errno)); };

    // Opening a pipe would wait for a writer.
    const Descriptor file(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    // A socket cannot even be opened.
    if (file.number() < 0 && errno == ENXIO)
        return fail(Tr::tr("it is not a plain file"));
    if (file.number() < 0 || ::fstat(file.number(), &status) != 0)
        return systemError();
    if (S_ISDIR(status.st_mode))
        return fail(Tr::tr("it is a folder"));
    if (!S_ISREG(status.st_mode))
        return fail(Tr::tr("it is not a plain file"));
    if (status.st_size > limit)
        return fail(tooLarge(limit));

    // The size is what the system says before; some files have none and yet never end.
    QByteArray text;
    constexpr int step = 1 << 16;
    int used = 0;
    text.resize(int(std::min<qint64>(limit, status.st_size)) + 1);
    for (;;) {
        if (used == text.size())
            text.resize(used + step);
        const ssize_t count = ::read(file.number(), text.data() + used, size_t(text.size() - used));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return systemError();
        if (count == 0)
            break;
        used += int(count);
        if (used > limit)
            return fail(tooLarge(limit));
    }
    text.truncate(used);
    *bytes = text;
    return true;
}

} // namespace Reading

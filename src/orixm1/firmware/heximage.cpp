#include "config/latin1literal.h"
#include "parts.h"

namespace TARVOORIXM1
{

namespace
{

// The types of records.
enum Record {
    Data = 0,
    EndOfFile = 1,
    SegmentAddress = 2, // bits 19 to 4 of what is added to the addresses
    SegmentStart = 3,   // CS:IP
    LinearAddress = 4,  // bits 31 to 16 of what is added to the addresses
    LinearStart = 5,
};

int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

quint32 numberIn(const QByteArray &bytes)
{
    quint32 value = 0;
    for (const char byte : bytes)
        value = value << 8 | quint8(byte);
    return value;
}

class Reader
{
public:
    Utils::Result<FirmwareImage> read(const QByteArray &text)
    {
        m_image.form = ImageForm::IntelHex;
        int line = 0;
        for (int at = 0; at < text.size() && m_reason.isEmpty();) {
            int end = text.indexOf('\n', at);
            if (end < 0)
                end = text.size();
            ++line;
            const QByteArray words = text.mid(at, end - at).trimmed();
            at = end + 1;
            if (!words.isEmpty())
                takeLine(words);
        }
        if (!m_reason.isEmpty())
            return Utils::Failure{"line "_l1 + QString::number(line) + ": "_l1 + m_reason};
        if (!m_ended)
            return Utils::Failure{"line "_l1 + QString::number(line) +
                                  ": the end-of-file record is missing"_l1};
        return m_image;
    }

private:
    void fail(const QString &reason) { m_reason = reason; }

    void takeLine(const QByteArray &line)
    {
        if (m_ended)
            return fail(QStringLiteral("something follows the end-of-file record"));
        if (!line.startsWith(':'))
            return fail(QStringLiteral("a record begins with a colon"));
        QByteArray bytes;
        quint8 sum = 0;
        for (int i = 1; i + 1 < line.size(); i += 2) {
            const int high = digitValue(line.at(i));
            const int low = digitValue(line.at(i + 1));
            if (high < 0 || low < 0)
                return fail(QStringLiteral("a record holds hexadecimal digits only"));
            bytes.append(char(high << 4 | low));
            sum += quint8(high << 4 | low);
        }
        constexpr int frame = 5; // count, two bytes of address, type, sum
        if (line.size() % 2 == 0 || bytes.size() < frame ||
            bytes.size() != frame + quint8(bytes.at(0)))
            return fail(QStringLiteral("the record is not as long as it says"));
        if (sum != 0)
            return fail(QStringLiteral("the sum of the record is wrong"));
        takeRecord(quint8(bytes.at(3)), numberIn(bytes.mid(1, 2)),
                   bytes.mid(4, bytes.size() - frame));
    }

    void takeRecord(int type, quint32 offset, const QByteArray &data)
    {
        const auto hasSize = [&](int size) {
            if (data.size() != size)
                fail("a record of type "_l1 + QString::number(type) + " has "_l1 +
                     QString::number(size) + " bytes of data"_l1);
            return data.size() == size;
        };
        switch (type) {
        case Data:
            takeData(offset, data);
            break;
        case EndOfFile:
            m_ended = hasSize(0);
            break;
        case SegmentAddress:
            if (hasSize(2)) {
                m_base = numberIn(data) << 4;
                m_isSegment = true;
            }
            break;
        case LinearAddress:
            if (hasSize(2)) {
                m_base = numberIn(data) << 16;
                m_isSegment = false;
            }
            break;
        case SegmentStart:
            hasSize(4);
            break;
        case LinearStart:
            if (hasSize(4)) {
                m_image.entry = numberIn(data) & ~1u;
                m_image.entryIsThumb = numberIn(data) & 1;
            }
            break;
        default:
            fail("there is no record of type "_l1 + QString::number(type));
        }
    }

    // Within 64 KB the address begins anew at the end; a linear one only goes on.
    void takeData(quint32 offset, const QByteArray &data)
    {
        constexpr quint32 window = 0x10000;
        const int before = int(qMin<quint32>(quint32(data.size()), window - offset));
        append(m_base + offset, data.left(before));
        if (before == data.size())
            return;
        if (m_isSegment)
            append(m_base, data.mid(before));
        else if (m_base > 0xFFFFFFFF - window)
            fail(QStringLiteral("the record runs beyond the end of the address space"));
        else
            append(m_base + window, data.mid(before));
    }

    void append(quint32 address, const QByteArray &bytes)
    {
        if (bytes.isEmpty())
            return;
        QVector<ImagePart> &parts = m_image.parts;
        if (!parts.isEmpty() && quint64(parts.last().last()) + 1 == address)
            parts.last().bytes.append(bytes);
        else
            parts.append({address, bytes});
    }

    FirmwareImage m_image;
    quint32 m_base = 0;
    bool m_isSegment = false;
    bool m_ended = false;
    QString m_reason;
};

} // namespace

Utils::Result<FirmwareImage> readHexImage(const QByteArray &bytes)
{
    return Reader().read(bytes);
}

} // namespace TARVOORIXM1

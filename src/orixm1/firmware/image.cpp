#include "image.h"

#include "config/latin1literal.h"
#include "parts.h"
#include "registers/registerdocs.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

struct FormRow {
    ImageForm form;
    QLatin1String name;
};

constexpr FormRow rows[] = {
    {ImageForm::Elf, "elf"_l1},
    {ImageForm::IntelHex, "hex"_l1},
    {ImageForm::Binary, "bin"_l1},
};

ImageForm foundForm(const QByteArray &bytes)
{
    if (bytes.startsWith("\x7F"
                         "ELF"))
        return ImageForm::Elf;
    // No binary image begins so: the first word is the initial stack pointer, a multiple of 4.
    return bytes.startsWith(':') ? ImageForm::IntelHex : ImageForm::Binary;
}

Utils::Result<FirmwareImage> readForm(const QByteArray &bytes, ImageForm form, quint32 base)
{
    switch (form) {
    case ImageForm::Elf:
        return readElfImage(bytes);
    case ImageForm::IntelHex:
        return readHexImage(bytes);
    case ImageForm::Binary:
        break;
    }
    return readBinaryImage(bytes, base);
}

} // namespace

QString imageFormName(ImageForm form)
{
    for (const FormRow &row : rows) {
        if (row.form == form)
            return row.name;
    }
    return {};
}

std::optional<ImageForm> imageFormNamed(const QString &name)
{
    for (const FormRow &row : rows) {
        if (row.name == name)
            return row.form;
    }
    return {};
}

QStringList imageFormNames()
{
    QStringList names;
    for (const FormRow &row : rows)
        names.append(row.name);
    return names;
}

Utils::Result<FirmwareImage> readImage(const QByteArray &bytes, std::optional<ImageForm> form,
                                       quint32 base)
{
    if (bytes.isEmpty())
        return Utils::Failure{QStringLiteral("it is empty")};
    Utils::Result<FirmwareImage> image = readForm(bytes, form.value_or(foundForm(bytes)), base);
    if (!image)
        return image;
    Utils::Result<QVector<ImagePart>> parts = joinedParts(image->parts);
    if (!parts)
        return Utils::Failure{parts.reason()};
    if (parts->isEmpty())
        return Utils::Failure{QStringLiteral("it puts no byte into any memory")};
    image->parts = *parts;
    return image;
}

Utils::Result<FirmwareImage> readBinaryImage(const QByteArray &bytes, quint32 base)
{
    if (quint64(base) + quint64(bytes.size()) > (quint64(1) << 32))
        return Utils::Failure{"from "_l1 + hexAddress(base) +
                              " on it runs beyond the end of the address space"_l1};
    FirmwareImage image;
    image.form = ImageForm::Binary;
    image.parts = {{base, bytes}};
    return image;
}

Utils::Result<QVector<ImagePart>> joinedParts(QVector<ImagePart> parts)
{
    std::stable_sort(parts.begin(), parts.end(),
                     [](const ImagePart &a, const ImagePart &b) { return a.address < b.address; });
    QVector<ImagePart> joined;
    for (const ImagePart &part : qAsConst(parts)) {
        if (part.bytes.isEmpty())
            continue;
        if (joined.isEmpty() || part.address > quint64(joined.last().last()) + 1) {
            joined.append(part);
            continue;
        }
        ImagePart &before = joined.last();
        const int common =
            int(std::min<qint64>(qint64(before.last()) + 1 - part.address, part.bytes.size()));
        const int at = int(part.address - before.address);
        for (int i = 0; i < common; ++i) {
            if (before.bytes.at(at + i) != part.bytes.at(i))
                return Utils::Failure{"the byte at "_l1 + hexAddress(part.address + quint32(i)) +
                                      " is given twice, with different values"_l1};
        }
        before.bytes.append(part.bytes.mid(common));
    }
    return joined;
}

} // namespace TARVOORIXM1

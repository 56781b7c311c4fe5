#include "fuzz.h"

#include <firmware/image.h>

using namespace TARVOORIXM1;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    const auto image = readImage(bytes, {}, 0x100);
    if (!image) {
        REQUIRE(!image.reason().isEmpty() && image.reason().size() < 300);
        REQUIRE(!image.reason().contains(u'\n'));
        REQUIRE(Fuzz::lineIn(image.reason()) <= Fuzz::lineCount(bytes));
        return 0;
    }
    REQUIRE(!image->parts.isEmpty());
    qint64 given = 0;
    const ImagePart *before = nullptr;
    for (const ImagePart &part : qAsConst(image->parts)) {
        REQUIRE(!part.bytes.isEmpty() && part.last() >= part.address);
        REQUIRE(!before || quint64(part.address) > quint64(before->last()) + 1);
        given += part.bytes.size();
        before = &part;
    }
    // Segments of an ELF image may share contents of the file; the other forms cannot.
    REQUIRE(image->form == ImageForm::Elf || given <= bytes.size());
    REQUIRE(image->form != ImageForm::Binary || image->parts.first().bytes == bytes);
    return 0;
}

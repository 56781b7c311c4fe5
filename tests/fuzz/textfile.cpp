#include "fuzz.h"

#include <editor/textfile.h>

using Workbench::TextFormat;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    const TextFormat format = TextFormat::of(bytes);
    TextFormat::mistakeOf(bytes);
    REQUIRE(!format.name().isEmpty());
    // What is shown and not changed is written as it was read.
    const QString text = format.decode(bytes);
    REQUIRE(format.canEncode(text));
    REQUIRE(format.encode(text) == bytes);
    // The same with a character that comes and goes.
    const int middle = text.size() / 2;
    QString changed = text;
    changed.insert(middle, u'x');
    format.encode(changed);
    changed.remove(middle, 1);
    REQUIRE(format.encode(changed) == bytes);
    return 0;
}

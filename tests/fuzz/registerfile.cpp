#include "fuzz.h"

#include <registers/registerdocs.h>
#include <registers/registermap.h>

using namespace TARVOORIXM1;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool made = QDir(Fuzz::folder()).mkdir(QStringLiteral("registers"));
    REQUIRE(made);
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    Fuzz::file(QStringLiteral("registers/a.json"), bytes);
    const Utils::Result<QVector<Peripheral>> read = readRegisterMap(Fuzz::folder());
    const QString error = read.reason();
    if (!read) {
        REQUIRE(error.contains(QLatin1String("a.json")));
        REQUIRE(Fuzz::lineIn(error) <= Fuzz::lineCount(bytes));
        return 0;
    }
    const QVector<Peripheral> peripherals = *read;
    REQUIRE(error.isEmpty() && peripherals.size() == 1);
    int rows = 0;
    const auto checkValues = [&rows](const QVector<FieldValue> &values, quint64 limit,
                                     quint32 minimum) {
        qint64 last = -1;
        for (const FieldValue &value : values) {
            REQUIRE(value.value > last && value.value < limit && value.value >= minimum);
            REQUIRE(!value.name.isEmpty());
            last = value.value;
        }
        rows += values.size();
    };
    const Peripheral &peripheral = peripherals.first();
    for (const Register &entry : peripheral.registers) {
        REQUIRE(entry.offset % 4 == 0 && entry.offset < peripheral.span);
        quint32 mask = 0;
        for (const RegisterField &field : entry.fields) {
            REQUIRE(field.low >= 0 && field.low <= field.high && field.high < 32);
            REQUIRE((mask & field.mask()) == 0);
            mask |= field.mask();
            checkValues(field.values, quint64(1) << field.width(), field.minimum);
            const bool isWritable = field.access != RegisterAccess::Read;
            REQUIRE(isWritable || field.writeEffect == WriteEffect::Store);
            // The access says it of the others.
            rows += field.writeEffect != WriteEffect::Store &&
                    field.access != RegisterAccess::WriteOneToClear;
            rows += field.readEffect != ReadEffect::None;
        }
        checkValues(entry.words, quint64(1) << 32, 0);
        REQUIRE((resetValue(entry) & ~mask) == 0);
        rows += 1 + entry.fields.size();
    }
    // Every line of the tables is one: no text breaks out of its cell's line.
    const QString document = registersMarkdown(peripherals, {});
    REQUIRE(document.count(QLatin1String("\n| ")) == 2 + peripheral.instances.size() + rows);
    const QString header = registersHeader(peripherals, {});
    REQUIRE(header.count(QLatin1String("/*")) >= 2 && header.endsWith(QLatin1String("#endif\n")));
    REQUIRE(header.count(QLatin1String("*/")) == 2);
    enabledPeripherals(peripherals, {});
    return 0;
}

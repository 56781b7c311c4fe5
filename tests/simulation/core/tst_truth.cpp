#include "exceptioncases.h"
#include "snippets.h"
#include "twomachines.h"

#include <cstdio>

using namespace TwoMachines;

namespace
{

constexpr int recordBytes = Snippets::Layout::end;
constexpr std::uint32_t batch = 200; // as many fit into the memory
constexpr std::uint32_t exceptionBatch = 50;

std::vector<Snippets::Snippet> snippets(std::uint32_t seed, std::uint32_t count,
                                        QMap<QByteArray, int> &used)
{
    std::vector<Snippets::Snippet> all;
    for (std::uint32_t i = 0; i < count; ++i)
        all.push_back(Snippets::Generator(seed + i).make(used));
    return all;
}

QByteArray disassembled(const Snippets::Snippet &snippet)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("code")));
    file.open(QIODevice::WriteOnly);
    for (const std::uint16_t half : snippet.code) {
        file.putChar(static_cast<char>(half));
        file.putChar(static_cast<char>(half >> 8));
    }
    file.close();
    QProcess objdump;
    objdump.start(QStringLiteral("arm-none-eabi-objdump"),
                  {QStringLiteral("-D"), QStringLiteral("-b"), QStringLiteral("binary"),
                   QStringLiteral("-m"), QStringLiteral("arm"), QStringLiteral("-M"),
                   QStringLiteral("force-thumb"), file.fileName()});
    objdump.waitForFinished(-1);
    QByteArray text = objdump.readAllStandardOutput();
    text.remove(0, text.indexOf("<.data>:") + 8);
    for (int i = 0; i < snippet.literals.size(); ++i)
        text += QByteArray::number(static_cast<int>(snippet.code.size()) * 2 + 4 * i, 16)
                    .rightJustified(4) +
                ":\t.word " + snippet.literals[i] + '\n';
    return text;
}

// The fields in which records differ, each with both values; empty if they are equal.
QByteArray difference(const QByteArray &model, const QByteArray &emulator)
{
    static const QByteArrayList fields = Snippets::recordFields();
    QByteArray text;
    for (int i = 0; i < fields.size(); ++i) {
        const auto field = [i](const QByteArray &record) -> QByteArray {
            if (record.size() != recordBytes)
                return "missing";
            return QByteArray::number(qFromLittleEndian<quint32>(record.constData() + 4 * i), 16)
                .rightJustified(8, '0');
        };
        if (field(model) != field(emulator))
            text += "  " + fields[i] + ": model " + field(model) + ", emulator " + field(emulator) +
                    '\n';
    }
    return text;
}

// The snippets of which the records differ, with what a reader needs to know of each.
QMap<std::size_t, QByteArray> differences(const std::vector<Snippets::Snippet> &all,
                                          const QByteArray &model, const QByteArray &emulator)
{
    QMap<std::size_t, QByteArray> found;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const int at = static_cast<int>(i) * recordBytes;
        const QByteArray text =
            difference(model.mid(at, recordBytes), emulator.mid(at, recordBytes));
        if (!text.isEmpty())
            found[i] =
                "seed " + QByteArray::number(all[i].seed) + '\n' + text + disassembled(all[i]);
    }
    return found;
}

// Empty if all of them end equally.
QByteArray compare(std::uint32_t seed, std::uint32_t count, QMap<QByteArray, int> &used)
{
    const std::vector<Snippets::Snippet> all = snippets(seed, count, used);
    const QByteArray elf = Assembled::elf(Snippets::program(all));
    const Outcome emulator = runInEmulator(elf);
    const Outcome model = runInModel(elf);
    const QMap<std::size_t, QByteArray> found = differences(all, model.output, emulator.output);
    QByteArray text;
    for (const QByteArray &one : found)
        text += one;
    if (!model.passed)
        text += "model: " + model.trouble.toLocal8Bit() + '\n';
    if (!emulator.passed)
        text += "emulator: " + emulator.trouble.toLocal8Bit() + '\n';
    return text;
}

// Random exceptions, of this and the following seeds: what was logged differently.
QByteArray compareExceptions(std::uint32_t seed, std::uint32_t count)
{
    QVector<ExceptionCases::Case> all;
    for (std::uint32_t i = 0; i < count; ++i)
        all.append(ExceptionCases::randomCase(seed + i));
    const QByteArray elf = Assembled::elf(ExceptionCases::program(all));
    const Outcome emulator = runInEmulator(elf);
    const Outcome model = runInModel(elf);
    const QMap<int, QByteArray> inEmulator = ExceptionCases::logs(emulator.output);
    const QMap<int, QByteArray> inModel = ExceptionCases::logs(model.output);
    QByteArray text;
    for (int i = 0; i < all.size(); ++i) {
        if (inModel.contains(i) && inModel.value(i) == inEmulator.value(i))
            continue;
        text += "exceptions, seed " + QByteArray::number(seed + static_cast<std::uint32_t>(i)) +
                "\n  model    " + inModel.value(i, "missing") + "\n  emulator " +
                inEmulator.value(i, "missing") + '\n' + all[i].main;
        for (const ExceptionCases::Handler &handler : all[i].handlers)
            text += handler.name + (": " + handler.text);
    }
    if (!model.passed)
        text += "model: " + model.trouble.toLocal8Bit() + '\n';
    if (!emulator.passed)
        text += "emulator: " + emulator.trouble.toLocal8Bit() + '\n';
    return text;
}

// Fails with all of it, which is more than QVERIFY2 shows.
bool isEqual(const QByteArray &found)
{
    std::fputs(found.constData(), stdout);
    return found.isEmpty();
}

} // namespace

class TestTruth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsSnippetsAsTheEmulator()
    {
        QMap<QByteArray, int> used;
        for (std::uint32_t seed = 1; seed <= 1000; seed += batch) {
            QVERIFY(isEqual(compare(seed, batch, used)));
        }

        // All of the instructions were there.
        for (const Snippets::Form &form : Snippets::computing)
            QVERIFY2(used.value(form.name) > 0, form.name);
        for (const Snippets::AccessForm &form : Snippets::accesses)
            QVERIFY2(used.value(form.name) > 0, form.name);
        for (const char *name : {"LDR (literal)",
                                 "ADD (any register)",
                                 "CMP (any register)",
                                 "MOV (any register)",
                                 "STR (stack)",
                                 "LDR (stack)",
                                 "ADD (to the stack pointer)",
                                 "LDM",
                                 "STM",
                                 "PUSH",
                                 "POP",
                                 "ADD or SUB (immediate, stack pointer)",
                                 "ADD (register, stack pointer)",
                                 "MOV (stack pointer)",
                                 "MSR (stack pointer)",
                                 "B (conditional)",
                                 "B",
                                 "BL",
                                 "ADD (program counter)",
                                 "BX",
                                 "BLX",
                                 "POP (program counter)",
                                 "MOV (program counter)",
                                 "PUSH and POP of a call",
                                 "BL (backward)",
                                 "MRS",
                                 "MSR (flags)",
                                 "MSR (process stack)",
                                 "MSR (without effect)",
                                 "MSR (PRIMASK)",
                                 "CPSID",
                                 "CPSIE",
                                 "NOP, YIELD and reserved hints",
                                 "SEV, WFE",
                                 "DSB, DMB, ISB",
                                 "SVC"})
            QVERIFY2(used.value(name) > 0, name);
    }

    // The model runs an altered instruction, as if it were at fault.
    void noticesAnInstructionThatComputesSomethingElse()
    {
        QMap<QByteArray, int> used;
        const std::vector<Snippets::Snippet> all = snippets(5000, 40, used);
        std::vector<Snippets::Snippet> altered = all;
        std::size_t changed = 0;
        for (std::size_t i = 0; i < altered.size(); i += 2) {
            // The last of ADDS, SUBS, ADCS and SBCS takes another's place.
            const std::vector<std::size_t> &places = altered[i].computingAt;
            for (auto at = places.rbegin(); at != places.rend(); ++at) {
                std::uint16_t &code = altered[i].code[*at];
                if (code >> 10 == 6 || code >> 10 == 7)
                    code ^= 0x0200;
                else if (code >> 6 == 0x105 || code >> 6 == 0x106)
                    code ^= 0x00C0;
                else
                    continue;
                altered[i].seed = 0;
                ++changed;
                break;
            }
        }
        QVERIFY(changed > 5);
        const QByteArray emulator = runInEmulator(Assembled::elf(Snippets::program(all))).output;
        const QByteArray model = runInModel(Assembled::elf(Snippets::program(altered))).output;
        const QMap<std::size_t, QByteArray> found = differences(all, model, emulator);
        std::size_t noticed = 0;
        for (std::size_t i = 0; i < all.size(); ++i) {
            const bool isAltered = altered[i].seed == 0;
            noticed += isAltered && found.contains(i);
            QVERIFY2(isAltered || !found.contains(i), found.value(i).constData());
        }
        // What is computed may be overwritten or jumped over.
        QVERIFY2(noticed * 2 > changed, qPrintable(QString::number(noticed)));
    }

    void noticesEveryFieldOfARecord()
    {
        const QByteArrayList fields = Snippets::recordFields();
        QCOMPARE(fields.size() * 4, recordBytes);
        const QByteArray record(recordBytes, '\x5A');
        QCOMPARE(difference(record, record), QByteArray());
        for (int at = 0; at < recordBytes; ++at) {
            QByteArray other = record;
            other[at] = '\x5B';
            QVERIFY(difference(record, other).startsWith("  " + fields[at / 4] + ':'));
        }
        QVERIFY(!difference(record, {}).isEmpty());
    }

    void takesExceptionsAsTheEmulator_data()
    {
        QTest::addColumn<int>("number");
        const QVector<ExceptionCases::Case> all = ExceptionCases::cases();
        for (int i = 0; i < all.size(); ++i)
            QTest::newRow(all[i].name) << i;
        // One run has all of them.
        const QByteArray elf = Assembled::elf(ExceptionCases::program(all));
        const Outcome model = runInModel(elf);
        const Outcome emulator = runInEmulator(elf);
        m_model = ExceptionCases::logs(model.output);
        m_emulator = ExceptionCases::logs(emulator.output);
        m_modelsEnd = model.passed ? QString() : model.trouble;
        m_emulatorsEnd = emulator.passed ? QString() : emulator.trouble;
    }

    void takesExceptionsAsTheEmulator()
    {
        QFETCH(int, number);
        const ExceptionCases::Case one = ExceptionCases::cases().at(number);
        QCOMPARE(m_model.value(number), one.log);
        QCOMPARE(m_emulator.value(number), one.departure ? one.emulatorsLog : one.log);
        // How the run of all of them ended, for the row that was its last.
        if (!m_model.contains(number + 1))
            QCOMPARE(m_modelsEnd, QString());
        if (!m_emulator.contains(number + 1))
            QCOMPARE(m_emulatorsEnd, QString());
    }

    void takesRandomExceptionsAsTheEmulator()
    {
        for (std::uint32_t seed = 1; seed <= 200; seed += exceptionBatch) {
            QVERIFY(isEqual(compareExceptions(seed, exceptionBatch)));
        }
    }

    void takesExceptionsAsTheArchitecture_data()
    {
        QTest::addColumn<int>("number");
        const QVector<ExceptionCases::Case> all = ExceptionCases::casesOfTheArchitectureAlone();
        for (int i = 0; i < all.size(); ++i)
            QTest::newRow(all[i].name) << i;
        m_model =
            ExceptionCases::logs(runInModel(Assembled::elf(ExceptionCases::program(all))).output);
    }

    void takesExceptionsAsTheArchitecture()
    {
        QFETCH(int, number);
        QCOMPARE(m_model.value(number),
                 ExceptionCases::casesOfTheArchitectureAlone().at(number).log);
    }

    void locksUpAsTheEmulator_data()
    {
        QTest::addColumn<int>("number");
        const QVector<ExceptionCases::Case> all = ExceptionCases::lockUps();
        for (int i = 0; i < all.size(); ++i)
            QTest::newRow(all[i].name) << i;
        m_lockUps = Assembled::elf(ExceptionCases::program(all));
    }

    void locksUpAsTheEmulator()
    {
        QFETCH(int, number);
        const QByteArray elf = ExceptionCases::beginningWith(m_lockUps, number);
        const Outcome model = runInModel(elf);
        QVERIFY2(model.lockedUp, qPrintable(model.trouble));
        QCOMPARE(model.output, QByteArray());
        const Outcome emulator = runInEmulator(elf);
        QVERIFY2(emulator.lockedUp, qPrintable(emulator.trouble));
        QCOMPARE(emulator.output, QByteArray());
    }

private:
    QMap<int, QByteArray> m_model;
    QMap<int, QByteArray> m_emulator;
    QString m_modelsEnd;
    QString m_emulatorsEnd;
    QByteArray m_lockUps;
};

// With a seed and a count: as many snippets and a tenth as many random exceptions, of this and the
// following seeds. Status 1 if one differs.
int main(int argc, char **argv)
{
    bool isSeed = false;
    bool isCount = false;
    const std::uint32_t seed = argc == 3 ? QByteArray(argv[1]).toUInt(&isSeed) : 0;
    const std::uint32_t count = argc == 3 ? QByteArray(argv[2]).toUInt(&isCount) : 0;
    if (!isSeed || !isCount) {
        QTEST_SET_MAIN_SOURCE_PATH
        TestTruth test;
        return QTest::qExec(&test, argc, argv);
    }
    QMap<QByteArray, int> used;
    bool differs = false;
    for (std::uint32_t done = 0; done < count; done += batch) {
        const std::uint32_t now = std::min(batch, count - done);
        const bool equal = isEqual(compare(seed + done, now, used));
        differs = differs || !equal;
        std::printf("seeds %u to %u: %s\n", seed + done, seed + done + now - 1,
                    equal ? "equal" : "different");
        std::fflush(stdout);
    }
    for (std::uint32_t done = 0; done < count / 10; done += exceptionBatch) {
        const std::uint32_t now = std::min(exceptionBatch, count / 10 - done);
        const bool equal = isEqual(compareExceptions(seed + done, now));
        differs = differs || !equal;
        std::printf("exceptions, seeds %u to %u: %s\n", seed + done, seed + done + now - 1,
                    equal ? "equal" : "different");
        std::fflush(stdout);
    }
    for (auto it = used.cbegin(); it != used.cend(); ++it)
        std::printf("%6d %s\n", it.value(), it.key().constData());
    return differs ? 1 : 0;
}

#include "tst_truth.moc"

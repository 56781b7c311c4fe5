#include <config/optionkeys.h>
#include <dev/chipfilter.h>
#include <dev/devicedb.h>
#include <firmware/itcmfiles.h>

#include <QRandomGenerator>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

using Memory = QMap<quint32, char>;

Memory memoryOf(const FirmwareImage &image)
{
    Memory memory;
    for (const ImagePart &part : image.parts) {
        for (int i = 0; i < part.bytes.size(); ++i)
            memory.insert(part.address + quint32(i), part.bytes.at(i));
    }
    return memory;
}

QByteArray record(int type, quint32 offset, const QByteArray &data)
{
    QByteArray bytes;
    bytes.append(char(data.size()));
    bytes.append(char(offset >> 8));
    bytes.append(char(offset));
    bytes.append(char(type));
    bytes.append(data);
    quint8 sum = 0;
    for (const char byte : qAsConst(bytes))
        sum += quint8(byte);
    bytes.append(char(-sum));
    return ':' + bytes.toHex().toUpper() + '\n';
}

QByteArray bigEndian(quint32 value, int size)
{
    QByteArray bytes;
    for (int i = size - 1; i >= 0; --i)
        bytes.append(char(value >> 8 * i));
    return bytes;
}

const QByteArray endRecord = ":00000001FF\n";

// As a linker writes it; fields that no reader of programs looks at are 0.
struct ElfSegment {
    quint32 type = 1; // PT_LOAD
    quint32 runAddress = 0;
    quint32 loadAddress = 0;
    QByteArray bytes;
    quint32 zeroed = 0; // bytes behind them
};

struct ElfFile {
    quint8 fileClass = 1; // 32 bits
    quint16 type = 2;     // executable
    quint16 machine = 40; // ARM
    quint32 entry = 0x41;
    quint32 flags = 0x05000200;
    bool isBigEndian = false;
    QVector<ElfSegment> segments;

    QByteArray number(quint32 value, int size) const
    {
        QByteArray bytes = bigEndian(value, size);
        if (!isBigEndian)
            std::reverse(bytes.begin(), bytes.end());
        return bytes;
    }
    QByteArray text() const
    {
        constexpr int headerSize = 52;
        constexpr int segmentSize = 32;
        QByteArray file("\x7F"
                        "ELF");
        file.append(char(fileClass)).append(isBigEndian ? '\2' : '\1').append('\1');
        file.append(QByteArray(9, '\0'));
        file += number(type, 2) + number(machine, 2) + number(1, 4) + number(entry, 4);
        file += number(headerSize, 4) + number(0, 4) + number(flags, 4);
        file += number(headerSize, 2) + number(segmentSize, 2);
        file += number(quint32(segments.size()), 2) + number(40, 2) + number(0, 4);
        int at = headerSize + segmentSize * segments.size();
        QByteArray contents;
        for (const ElfSegment &segment : segments) {
            const quint32 size = quint32(segment.bytes.size());
            file += number(segment.type, 4) + number(quint32(at), 4) +
                    number(segment.runAddress, 4) + number(segment.loadAddress, 4) +
                    number(size, 4) + number(size + segment.zeroed, 4) + number(5, 4) +
                    number(4, 4);
            contents += segment.bytes;
            at += segment.bytes.size();
        }
        return file + contents;
    }
};

} // namespace

class tst_Firmware : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void readsWhatAHexWriterWrites();
    void readsTheRecordsOfIntelHex();
    void refusesHexFiles_data();
    void refusesHexFiles();
    void anElfImageIsItsLoadedSegments();
    void refusesElfFiles_data();
    void refusesElfFiles();
    void aTruncatedElfFileIsRefusedOrWhole();
    void binaryImagesStandWhereTheUserSays();
    void findsTheForm_data();
    void findsTheForm();
    void lanesHoldTheBytesOfTheMemory();
    void tellsWhatDoesNotFit_data();
    void tellsWhatDoesNotFit();
    void warnsOfAStartThatFails_data();
    void warnsOfAStartThatFails();
    void optionsNameTheFolderAsTheDialogDoes_data();
    void optionsNameTheFolderAsTheDialogDoes();

private:
    SystemMap map(const OptionMap &options = {}) const
    {
        DEV::ChipFilter filter;
        filter.device = QStringLiteral("TV2KR-18C");
        return systemMap(options, DEV::DeviceDb::bundled().filterDevice(filter).value(0),
                         m_description);
    }

    SystemDescription m_description;
};

void tst_Firmware::initTestCase()
{
    const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(description, qPrintable(description.reason()));
    m_description = *description;
}

// Pieces at random places, in random order, written as records of random length.
void tst_Firmware::readsWhatAHexWriterWrites()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 300; ++round) {
        Memory written;
        QByteArray text;
        const int pieces = 1 + int(random.bounded(5u));
        for (int piece = 0; piece < pieces; ++piece) {
            const quint32 high = random.bounded(3u) == 0 ? random.generate() >> 16 : 0;
            const quint32 offset = random.generate() & 0xFFFF;
            const int size = int(qMin<quint32>(1 + random.bounded(40u), 0x10000 - offset));
            const quint32 address = high << 16 | offset;
            QByteArray data;
            for (int i = 0; i < size; ++i) {
                const quint32 at = address + quint32(i);
                if (!written.contains(at))
                    written.insert(at, char(random.generate()));
                data.append(written.value(at));
            }
            text += record(4, 0, bigEndian(high, 2)) + record(0, offset, data);
        }
        const auto image = readImage(text + endRecord);
        QVERIFY2(image, qPrintable(image.reason()));
        QCOMPARE(image->form, ImageForm::IntelHex);
        QCOMPARE(memoryOf(*image), written);
        for (int i = 1; i < image->parts.size(); ++i)
            QVERIFY(quint64(image->parts.at(i).address) >
                    quint64(image->parts.at(i - 1).last()) + 1);
    }
}

void tst_Firmware::readsTheRecordsOfIntelHex()
{
    // A segment's addresses begin anew after 64 KB, a linear one's go on.
    const auto segment = readImage(record(2, 0, bigEndian(0x1000, 2)) +
                                   record(0, 0xFFFF, QByteArray("ab")) + endRecord);
    QVERIFY(segment);
    QCOMPARE(memoryOf(*segment), (Memory{{0x1FFFF, 'a'}, {0x10000, 'b'}}));
    const auto linear =
        readImage(record(4, 0, bigEndian(1, 2)) + record(0, 0xFFFF, QByteArray("ab")) + endRecord);
    QVERIFY(linear);
    QCOMPARE(memoryOf(*linear), (Memory{{0x1FFFF, 'a'}, {0x20000, 'b'}}));

    const auto start = readImage(record(3, 0, bigEndian(0x100, 4)) + "\r\n" +
                                 record(5, 0, bigEndian(0x201, 4)).toLower() +
                                 record(0, 0, QByteArray("a")) + endRecord);
    QVERIFY(start);
    QVERIFY(start->entry && *start->entry == 0x200 && start->entryIsThumb);
    QVERIFY(!start->isBigEndian);
}

void tst_Firmware::refusesHexFiles_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    const QByteArray good = record(0, 0, QByteArray("ab"));
    QTest::newRow("no end") << good << "line 1: the end-of-file record is missing";
    QTest::newRow("sum") << QByteArray(good + ":0100100041AF\n")
                         << "line 2: the sum of the record is wrong";
    QTest::newRow("letters") << QByteArray(":0100000G41BE\n")
                             << "line 1: a record holds hexadecimal digits only";
    QTest::newRow("too short") << QByteArray(":02000000419D\n")
                               << "line 1: the record is not as long as it says";
    QTest::newRow("half a byte") << QByteArray(good + ":0\n")
                                 << "line 2: the record is not as long as it says";
    QTest::newRow("no colon") << QByteArray(good + "\nhello\n")
                              << "line 3: a record begins with a colon";
    QTest::newRow("behind the end") << QByteArray(good + endRecord + good)
                                    << "line 3: something follows the end-of-file record";
    QTest::newRow("type") << QByteArray(good + record(6, 0, "a") + endRecord)
                          << "line 2: there is no record of type 6";
    QTest::newRow("size of an address") << QByteArray(record(4, 0, "a") + endRecord)
                                        << "line 1: a record of type 4 has 2 bytes of data";
    QTest::newRow("beyond the address space")
        << QByteArray(record(4, 0, bigEndian(0xFFFF, 2)) + record(0, 0xFFFF, "ab") + endRecord)
        << "line 2: the record runs beyond the end of the address space";
    QTest::newRow("two values") << QByteArray(good + record(0, 1, "c") + endRecord)
                                << "the byte at 0x00000001 is given twice, with different values";
    QTest::newRow("nothing") << endRecord << "it puts no byte into any memory";
}

void tst_Firmware::refusesHexFiles()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    const auto image = readImage(text);
    QVERIFY(!image);
    QCOMPARE(image.reason(), reason);
}

void tst_Firmware::anElfImageIsItsLoadedSegments()
{
    for (const bool isBigEndian : {false, true}) {
        ElfFile file;
        file.isBigEndian = isBigEndian;
        file.flags |= isBigEndian ? 0x00800000 : 0;
        file.segments = {{1, 0x20000000, 0x100, QByteArray("data"), 100},
                         {1, 0x20000100, 0x20000100, QByteArray(), 64},
                         {0x70000001, 0x50, 0x50, QByteArray("unwind"), 0},
                         {1, 0, 0, QByteArray("code"), 0}};
        const auto image = readImage(file.text());
        QVERIFY2(image, qPrintable(image.reason()));
        QCOMPARE(image->form, ImageForm::Elf);
        QVERIFY(image->isBigEndian && *image->isBigEndian == isBigEndian);
        QVERIFY(image->entry && *image->entry == 0x40 && image->entryIsThumb);
        QCOMPARE(image->parts.size(), 2);
        QCOMPARE(image->parts.at(0).address, 0u);
        QCOMPARE(image->parts.at(0).bytes, QByteArray("code"));
        QCOMPARE(image->parts.at(1).address, 0x100u);
        QCOMPARE(image->parts.at(1).bytes, QByteArray("data"));
    }
}

void tst_Firmware::refusesElfFiles_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    ElfFile good;
    good.segments = {{1, 0, 0, QByteArray("code"), 0}};
    const auto row = [&good](const char *name, void (*change)(ElfFile &), const char *reason) {
        ElfFile file = good;
        change(file);
        QTest::newRow(name) << file.text() << QString::fromLatin1(reason);
    };
    row(
        "object", [](ElfFile &f) { f.type = 1; },
        "it is an ELF file that is not linked to an executable");
    row(
        "library", [](ElfFile &f) { f.type = 3; },
        "it is an ELF file that is not linked to an executable");
    row(
        "another processor", [](ElfFile &f) { f.machine = 62; },
        "it is an ELF file for another processor than a 32-bit ARM");
    row(
        "big-endian instructions", [](ElfFile &f) { f.isBigEndian = true; },
        "its instructions are big-endian (BE32): link it with --be8");
    row(
        "address space", [](ElfFile &f) { f.segments[0].loadAddress = 0xFFFFFFFE; },
        "segment 0: from 0xFFFFFFFE on it runs beyond the end of the address space");
    row(
        "two values",
        [](ElfFile &f) {
            f.segments.append({1, 0, 2, QByteArray("xx"), 0});
        },
        "the byte at 0x00000002 is given twice, with different values");
    row(
        "only zeroed memory",
        [](ElfFile &f) {
            f.segments = {{1, 0, 0, QByteArray(), 16}};
        },
        "it puts no byte into any memory");
    QByteArray cut = good.text();
    cut.chop(1);
    QTest::newRow("the mark alone") << good.text().left(4) << "it is no ELF file";
    QTest::newRow("cut contents") << cut << "segment 0: its contents lie outside of the file";
}

void tst_Firmware::refusesElfFiles()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    const auto image = readImage(text);
    QVERIFY(!image);
    QCOMPARE(image.reason(), reason);
}

void tst_Firmware::aTruncatedElfFileIsRefusedOrWhole()
{
    ElfFile file;
    file.segments = {{1, 0, 0, QByteArray("code"), 0}, {1, 0x20, 0x20, QByteArray("data"), 4}};
    const QByteArray whole = file.text();
    for (int size = 4; size < whole.size(); ++size) {
        const auto image = readImage(whole.left(size));
        QVERIFY2(!image, qPrintable(QString::number(size)));
        QVERIFY(!image.reason().isEmpty());
    }
    QVERIFY(readImage(whole));
}

void tst_Firmware::binaryImagesStandWhereTheUserSays()
{
    const auto image = readImage("ab", {}, 0x100);
    QVERIFY(image);
    QCOMPARE(image->form, ImageForm::Binary);
    QCOMPARE(memoryOf(*image), (Memory{{0x100, 'a'}, {0x101, 'b'}}));
    QVERIFY(readImage("ab", {}, 0xFFFFFFFE));
    QCOMPARE(readImage("ab", {}, 0xFFFFFFFF).reason(),
             QStringLiteral("from 0xFFFFFFFF on it runs beyond the end of the address space"));
    QCOMPARE(readImage(QByteArray()).reason(), QStringLiteral("it is empty"));
}

void tst_Firmware::findsTheForm_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("form");
    QTest::newRow("elf") << QByteArray("\x7F"
                                       "ELF")
                         << "elf";
    QTest::newRow("hex") << QByteArray(":x") << "hex";
    QTest::newRow("stack pointer") << QByteArray("\0\x20\0\x20", 4) << "bin";
}

void tst_Firmware::findsTheForm()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, form);
    // Whatever becomes of it, it is the same as when the form is named.
    const auto found = readImage(text);
    const auto named = readImage(text, imageFormNamed(form));
    QCOMPARE(bool(found), bool(named));
    QCOMPARE(found.reason(), named.reason());
    QCOMPARE(bool(found), form == QStringLiteral("bin"));
    QVERIFY(imageFormNames().contains(form) && !imageFormNamed(form.toUpper()));
}

void tst_Firmware::lanesHoldTheBytesOfTheMemory()
{
    QRandomGenerator random(3);
    for (int index = 0; index <= 6; ++index) {
        const SystemMap system = map({{Key::itcmSize, index}});
        const int size = 1024 << index;
        FirmwareImage image;
        Memory given;
        for (int at = int(random.bounded(50u)); at < size; at += 1 + int(random.bounded(200u))) {
            const int count = int(qMin<quint32>(1 + random.bounded(90u), quint32(size - at)));
            ImagePart part{quint32(at), {}};
            for (int i = 0; i < count; ++i) {
                part.bytes.append(char(random.generate()));
                given.insert(quint32(at + i), part.bytes.at(i));
            }
            image.parts.append(part);
            at += count;
        }
        const auto files = itcmFiles(image, system);
        QVERIFY2(files, qPrintable(files.reason()));
        QCOMPARE(files->size, size);
        QCOMPARE(files->used, given.size());
        QCOMPARE(files->free(), size - given.size());
        for (int lane = 0; lane < 4; ++lane) {
            QList<QByteArray> lines = files->texts[size_t(lane)].split('\n');
            QCOMPARE(lines.takeLast(), QByteArray());
            QCOMPARE(lines.size(), size / 4);
            for (int word = 0; word < lines.size(); ++word) {
                QCOMPARE(lines.at(word).size(), 2);
                QCOMPARE(QByteArray::fromHex(lines.at(word)).at(0),
                         given.value(quint32(4 * word + lane), '\0'));
            }
        }
    }
}

void tst_Firmware::tellsWhatDoesNotFit_data()
{
    QTest::addColumn<QVariantMap>("options");
    QTest::addColumn<quint32>("address");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("order"); // 0 not known, 1 little, 2 big
    QTest::addColumn<QString>("reason");
    const QVariantMap small = {{Key::itcmSize, 0}};
    QTest::newRow("fills the memory") << small << 0u << 1024 << 1 << QString();
    QTest::newRow("one byte too many")
        << small << 0u << 1025 << 1
        << "it gives bytes for 0x00000400 to 0x00000400; the instruction memory has 1024 bytes, "
           "0x00000000 to 0x000003FF";
    QTest::newRow("in the data memory")
        << small << 0x20000000u << 4 << 1
        << "it gives bytes for 0x20000000 to 0x20000003; the instruction memory has 1024 bytes, "
           "0x00000000 to 0x000003FF";
    QTest::newRow("at the upper alias, which is off")
        << small << 0x10000000u << 4 << 1
        << "it gives bytes for 0x10000000 to 0x10000003; the instruction memory has 1024 bytes, "
           "0x00000000 to 0x000003FF";
    QTest::newRow("external memory")
        << QVariantMap{{Key::internalInstructionMemory, false},
                       {Key::externalInstructionMemory, true}}
        << 0u << 4 << 1
        << "the configuration has no internal instruction memory that could be initialised";
    QTest::newRow("big-endian program")
        << small << 0u << 4 << 2
        << "its data are big-endian, and the processor of the configuration is little-endian";
    const QVariantMap big = {{Key::itcmSize, 0}, {Key::bigEndian, true}};
    QTest::newRow("little-endian program")
        << big << 0u << 4 << 1
        << "its data are little-endian, and the processor of the configuration is big-endian";
    QTest::newRow("big-endian both") << big << 0u << 4 << 2 << QString();
    QTest::newRow("unknown order") << big << 0u << 4 << 0 << QString();
}

void tst_Firmware::tellsWhatDoesNotFit()
{
    QFETCH(QVariantMap, options);
    QFETCH(quint32, address);
    QFETCH(int, size);
    QFETCH(int, order);
    QFETCH(QString, reason);
    FirmwareImage image;
    image.parts = {{address, QByteArray(size, 'x')}};
    if (order > 0)
        image.isBigEndian = order == 2;
    const auto files = itcmFiles(image, map(options));
    QCOMPARE(files.reason(), reason);
    QCOMPARE(bool(files), reason.isEmpty());
}

void tst_Firmware::warnsOfAStartThatFails_data()
{
    QTest::addColumn<bool>("big");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("warnings");
    const auto word = [](quint32 value, bool isBig) {
        QByteArray bytes = bigEndian(value, 4);
        if (!isBig)
            std::reverse(bytes.begin(), bytes.end());
        return bytes;
    };
    const auto start = [&word](quint32 stack, quint32 reset, bool isBig) {
        return QByteArray(word(stack, isBig) + word(reset, isBig) + QByteArray(8, '\0'));
    };
    const QString stackText = QStringLiteral("The initial stack pointer, %1, is not the end of "
                                             "words in a memory of the configuration.");
    QTest::newRow("sound") << false << start(0x20000400, 9, false) << QStringList();
    QTest::newRow("sound, big-endian") << true << start(0x20000400, 9, true) << QStringList();
    QTest::newRow("other order") << true << start(0x20000400, 9, false)
                                 << QStringList{stackText.arg(QStringLiteral("0x00040020")),
                                                QStringLiteral("The reset vector, 0x09000000, is "
                                                               "even: the processor knows Thumb "
                                                               "instructions only.")};
    QTest::newRow("stack outside") << false << start(0x30000000, 9, false)
                                   << QStringList{stackText.arg(QStringLiteral("0x30000000"))};
    QTest::newRow("no stack at all")
        << false << start(0, 9, false) << QStringList{stackText.arg(QStringLiteral("0x00000000"))};
    QTest::newRow("odd stack") << false << start(0x20000402, 9, false)
                               << QStringList{stackText.arg(QStringLiteral("0x20000402"))};
    QTest::newRow("starts outside of the program")
        << false << start(0x20000400, 0x41, false)
        << QStringList{
               QStringLiteral("The reset vector, 0x00000041, points to no byte of the image.")};
    QTest::newRow("no vectors")
        << false << QByteArray("abcd")
        << QStringList{QStringLiteral(
               "The image gives no bytes for 0x00000000 to 0x00000007, where the processor finds "
               "its stack pointer and its first instruction.")};
}

void tst_Firmware::warnsOfAStartThatFails()
{
    QFETCH(bool, big);
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, warnings);
    FirmwareImage image;
    image.parts = {{0, bytes}};
    const auto files = itcmFiles(image, map({{Key::bigEndian, big}}));
    QVERIFY2(files, qPrintable(files.reason()));
    QCOMPARE(files->warnings, warnings);
}

void tst_Firmware::optionsNameTheFolderAsTheDialogDoes_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("stored");
    QTest::newRow("below") << "/home/u/ip/fw/itcm"
                           << "fw/itcm";
    QTest::newRow("beside") << "/home/u/fw"
                            << "/home/u/fw";
    QTest::newRow("the folder itself") << "/home/u/ip"
                                       << "/home/u/ip";
    QTest::newRow("above") << "/home/u"
                           << "/home/u";
    QTest::newRow("name that begins alike") << "/home/u/ip2"
                                            << "/home/u/ip2";
    QTest::newRow("two dots in a name") << "/home/u/ip/..fw"
                                        << "..fw";
}

void tst_Firmware::optionsNameTheFolderAsTheDialogDoes()
{
    QFETCH(QString, folder);
    QFETCH(QString, stored);
    const OptionMap before = {{Key::itcmSize, 3}};
    const OptionMap after = withItcmFiles(before, folder, QStringLiteral("/home/u/ip"));
    QCOMPARE(after.value(Key::itcmInitializationPath).toString(), stored);
    QCOMPARE(after.value(Key::itcmInitializationAbsolutePath).toString(), folder);
    QCOMPARE(after.value(Key::initializeItcm), QVariant(true));
    QCOMPARE(after.value(Key::itcmSize), QVariant(3));
    QCOMPARE(after.size(), 4);
}

QTEST_GUILESS_MAIN(tst_Firmware)
#include "tst_firmware.moc"

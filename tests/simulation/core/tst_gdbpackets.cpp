#include <core/gdbpackets.h>

#include <QtTest>

using namespace CortexM1;

namespace
{

std::string allBytes()
{
    std::string bytes;
    for (int i = 0; i < 256; ++i)
        bytes += static_cast<char>(i);
    return bytes;
}

QByteArray text(const std::string &bytes)
{
    return QByteArray::fromStdString(bytes);
}

// One word for each thing that the reader finds.
QByteArray readAll(PacketReader &reader)
{
    QByteArrayList found;
    std::string packet;
    for (;;) {
        switch (reader.next(packet)) {
        case Received::Nothing:
            return found.join(' ');
        case Received::Packet:
            found.append("packet:" + text(packet));
            break;
        case Received::Broken:
            found.append("broken");
            break;
        case Received::TooLong:
            found.append("long");
            break;
        case Received::Interrupt:
            found.append("interrupt");
            break;
        case Received::Acknowledged:
            found.append("+");
            break;
        case Received::Refused:
            found.append("-");
            break;
        }
    }
}

} // namespace

class TestGdbPackets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void framesWithChecksumAndEscapes()
    {
        QCOMPARE(text(framed("OK")), QByteArray("$OK#9a"));
        QCOMPARE(text(framed("")), QByteArray("$#00"));
        QCOMPARE(text(framed("a#b$c*d}")), QByteArray("$a}\x03"
                                                      "b}\x04"
                                                      "c}\x0a"
                                                      "d}]#ec"));
    }

    void readsBackWhatItFrames()
    {
        PacketReader reader;
        reader.feed(framed(allBytes()));
        std::string packet;
        QCOMPARE(int(reader.next(packet)), int(Received::Packet));
        std::string bytes;
        QVERIFY(unescaped(packet, bytes));
        QCOMPARE(text(bytes), text(allBytes()));
        QCOMPARE(int(reader.next(packet)), int(Received::Nothing));
    }

    void writesAndReadsHexadecimalDigits()
    {
        std::string bytes = "unchanged";
        QVERIFY(fromHex(toHex(allBytes()), bytes));
        QCOMPARE(text(bytes), text(allBytes()));
        QVERIFY(fromHex("aBFf", bytes));
        QCOMPARE(text(bytes), QByteArray("\xAB\xFF"));
        for (const char *wrong : {"1", "0g", "g0", " 1", "+1"})
            QVERIFY2(!fromHex(wrong, bytes), wrong);
        QCOMPARE(text(bytes), QByteArray("\xAB\xFF"));
    }

    void writesWordsWithTheLowestByteFirst()
    {
        QCOMPARE(text(wordToHex(0x12345678)), QByteArray("78563412"));
        std::uint32_t value = 0;
        QVERIFY(wordFromHex("78563412", value));
        QCOMPARE(value, 0x12345678u);
        QVERIFY(!wordFromHex("785634", value));
        QVERIFY(!wordFromHex("7856341x", value));
    }

    void refusesAnEscapeOfNothing()
    {
        std::string bytes;
        QVERIFY(!unescaped("abc}", bytes));
        QVERIFY(unescaped("}\x03}]", bytes));
        QCOMPARE(text(bytes), QByteArray("#}"));
    }

    void readsArguments()
    {
        const std::string packet = "m1f,ABCDEF01:x";
        PacketArguments arguments(packet, 1);
        std::uint32_t value = 0;
        QVERIFY(arguments.number(value));
        QCOMPARE(value, 0x1Fu);
        QVERIFY(!arguments.character(':'));
        QVERIFY(arguments.character(','));
        QVERIFY(arguments.number(value));
        QCOMPARE(value, 0xABCDEF01u);
        QVERIFY(arguments.character(':'));
        QVERIFY(!arguments.number(value));
        QVERIFY(!arguments.isAtEnd());
        QCOMPARE(text(arguments.rest()), QByteArray("x"));

        const std::string tooLong = "123456789";
        PacketArguments longer(tooLong, 0);
        QVERIFY(!longer.number(value));
        PacketArguments behind(tooLong, 99);
        QVERIFY(behind.isAtEnd() && !behind.number(value) && !behind.character('1'));
    }

    void findsPacketsInAStream_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QByteArray>("found");
        QTest::newRow("one packet") << QByteArray("$g#67") << QByteArray("packet:g");
        QTest::newRow("upper-case checksum") << QByteArray("$OK#9A") << QByteArray("packet:OK");
        QTest::newRow("acknowledgements around it")
            << QByteArray("+$g#67-") << QByteArray("+ packet:g -");
        QTest::newRow("an interrupt between packets")
            << QByteArray("$g#67\x03$g#67") << QByteArray("packet:g interrupt packet:g");
        QTest::newRow("an interrupt's byte within a packet")
            << QByteArray("$\x03#03") << QByteArray("packet:\x03");
        QTest::newRow("noise outside") << QByteArray("abc\n#12$g#67") << QByteArray("packet:g");
        QTest::newRow("a wrong checksum")
            << QByteArray("$g#68$g#67") << QByteArray("broken packet:g");
        QTest::newRow("no checksum") << QByteArray("$g#zz$g#67") << QByteArray("broken packet:g");
        QTest::newRow("a packet within a packet")
            << QByteArray("$abc$g#67") << QByteArray("broken packet:g");
        QTest::newRow("no end") << QByteArray("$abc#6") << QByteArray();
        QTest::newRow("the longest")
            << QByteArray('$' + QByteArray(int(longestPacket), '\0') + "#00")
            << QByteArray("packet:" + QByteArray(int(longestPacket), '\0'));
        QTest::newRow("one byte more")
            << QByteArray('$' + QByteArray(int(longestPacket) + 1, '\0') + "#00$g#67")
            << QByteArray("long packet:g");
    }

    void findsPacketsInAStream()
    {
        QFETCH(QByteArray, stream);
        QFETCH(QByteArray, found);
        PacketReader whole;
        whole.feed(stream.toStdString());
        QCOMPARE(readAll(whole), found);

        PacketReader piecemeal;
        QByteArrayList pieces;
        for (const char byte : stream) {
            piecemeal.feed(std::string(1, byte));
            const QByteArray piece = readAll(piecemeal);
            if (!piece.isEmpty())
                pieces.append(piece);
        }
        QCOMPARE(pieces.join(' '), found);
    }

    void forgetsOnRequest()
    {
        PacketReader reader;
        reader.feed("$abc");
        QCOMPARE(readAll(reader), QByteArray());
        reader.clear();
        reader.feed("#26$g#67");
        QCOMPARE(readAll(reader), QByteArray("packet:g"));
    }
};

QTEST_APPLESS_MAIN(TestGdbPackets)
#include "tst_gdbpackets.moc"

#include "testsupport.h"

#include <config/memoryfile.h>
#include <config/optionkeys.h>
#include <rules/itcmcontents.h>

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using namespace TARVOORIXM1;

class tst_ItcmContents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesWhatGivesEveryByte_data();
    void takesWhatGivesEveryByte();
    void findsWhatAToolWouldSwallow_data();
    void findsWhatAToolWouldSwallow();
    void shortensLongWords();
    void countsInWords();
    void addressesAreHexadecimal();
    void laneSizesFollowTheIndex();
    void namesFileLineAndReason_data();
    void namesFileLineAndReason();
    void everyLaneCounts();
    void tellsAFewMistakesOfAFileOnly();
    void looksOnlyWhereTheMemoryIsInitialised();
    void aRelativeFolderStartsFromTheGeneration();
    void anEmptyNameIsNoFolder();
    void aFolderThatIsGoneIsTold();
};

namespace
{

// The mistakes of a text for a memory of four bytes, "line: reason" each; behind them what is
// missing.
QStringList mistakesOf(const QByteArray &text)
{
    const MemoryText read = readMemoryText(text, 4);
    QStringList result;
    for (const MemoryMistake &mistake : read.mistakes)
        result.append(QStringLiteral("%1: %2").arg(mistake.line).arg(mistake.reason));
    if (read.firstMissing() >= 0)
        result.append(QStringLiteral("missing %1").arg(read.firstMissing()));
    return result;
}

QByteArray bytes(int count, const QByteArray &byte = "5a")
{
    return QByteArray(byte + '\n').repeated(count);
}

// An ITCM of 1 KB, so lanes of 256 bytes.
OptionMap options(const QString &folder)
{
    return {{Key::initializeItcm, true},
            {Key::itcmSize, 0},
            {Key::itcmInitializationAbsolutePath, folder}};
}

bool writeLanes(const QString &folder, const QByteArray &contents)
{
    for (int lane = 0; lane < 4; ++lane) {
        if (!TestSupport::write(QStringLiteral("%1/itcm%2").arg(folder).arg(lane), contents))
            return false;
    }
    return true;
}

QStringList textsOf(const QVector<ItcmMistake> &mistakes)
{
    QStringList texts;
    for (const ItcmMistake &mistake : mistakes)
        texts.append(mistake.text());
    return texts;
}

} // namespace

void tst_ItcmContents::takesWhatGivesEveryByte_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("one a line") << QByteArray("00\nff\n7F\n1\n");
    QTest::newRow("all in one line, without an end") << QByteArray("0 1 2 3");
    QTest::newRow("every kind of white space") << QByteArray("\t0\r\n\f1\v2  \n\n 3 \r\n");
    QTest::newRow("comments") << QByteArray("// a zz\n0/* x\n@9 */1//b\n2\n/**/3/*");
    QTest::newRow("underscores") << QByteArray("0_0 f_f 1__2 0_");
    QTest::newRow("the first and last digit of each kind") << QByteArray("09 af AF 90");
    QTest::newRow("zeros in front") << QByteArray("0000 00ff 001 000_0");
    QTest::newRow("addresses") << QByteArray("@2 2 3 @0000\n0\n1");
    QTest::newRow("an address in capitals") << QByteArray("0 1 2 @3 FF");
    QTest::newRow("a byte given twice") << QByteArray("0 1 @0 2 3 4 5");
}

void tst_ItcmContents::takesWhatGivesEveryByte()
{
    QFETCH(QByteArray, text);
    if (text.endsWith("/*"))
        text += "*/";
    QCOMPARE(mistakesOf(text), QStringList());
}

void tst_ItcmContents::findsWhatAToolWouldSwallow_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("mistakes");
    const auto row = [](const char *name, const QByteArray &text, const QStringList &mistakes) {
        QTest::newRow(name) << text << mistakes;
    };
    const auto one = [](const char *text) { return QStringList{QString::fromUtf8(text)}; };
    row("nothing", "", one("missing 0"));
    row("comments alone", "// 00 00 00 00\n", one("missing 0"));
    row("too few", "0 1 2", one("missing 3"));
    row("a gap", "0 @2 2 3", one("missing 1"));
    row("too many", "0 1 2 3\n// c\n4 zz", one("3: the memory has 4 bytes; this is one too many"));
    row("text", "0 1\nhello 3", one("2: \"hello\" is no hexadecimal byte"));
    row("a decimal point", "0 1 2. 3", one("1: \"2.\" is no hexadecimal byte"));
    row("a prefix of C", "0x00 1 2 3", one("1: \"0x00\" is more than a byte"));
    row("a prefix of Verilog", "8'h00 1 2 3", one("1: \"8'h00\" is no hexadecimal byte"));
    row("commas", "0,1,2,3",
        {QStringLiteral("1: \"0,1,2,3\" is no hexadecimal byte"), QStringLiteral("missing 1")});
    row("words instead of bytes", "0\n00000001\n100\n3", one("3: \"100\" is more than a byte"));
    row("unknown digits", "x 0Z ? 3",
        {QStringLiteral("1: \"x\" has digits that are unknown"),
         QStringLiteral("1: \"0Z\" has digits that are unknown"),
         QStringLiteral("1: \"?\" has digits that are unknown")});
    row("the same in the other letter case", "X 0z 2 3",
        {QStringLiteral("1: \"X\" has digits that are unknown"),
         QStringLiteral("1: \"0z\" has digits that are unknown")});
    row("an underscore first", "_0 1 2 3", one("1: \"_0\" is no hexadecimal byte"));
    row("an address outside", "0 1 2 3\n@4",
        one("2: the address \"@4\" is outside of the memory, which has 4 bytes"));
    row("an address beyond all bounds", "0 1 2 3\n@fffffffffffffffffffffffff",
        one("2: the address \"@fffffffffffffffffff\u2026\" is outside of the memory, which has 4 "
            "bytes"));
    row("an address at the end of the memory, with digits in front", "0 1 2 3\n@000000000000000004",
        one("2: the address \"@000000000000000004\" is outside of the memory, which has 4 bytes"));
    row("an address without digits", "@ 0 1 2 3", one("1: \"@\" is no address"));
    row("an address that is none", "@0x0 0 1 2 3", one("1: \"@0x0\" is no address"));
    row("an open comment", "0 1 2 3\n/* 4\n5\n", one("2: a comment has no end"));
    row("half an open comment", "0 1 2 3 /*/", one("1: a comment has no end"));
    row("a slash at the end", "0 1 2 /", {QStringLiteral("1: \"/\" is no hexadecimal byte")});
    row("a slash", "0 1 2 / 3",
        {QStringLiteral("1: \"/\" is no hexadecimal byte"),
         QStringLiteral("1: the memory has 4 bytes; this is one too many")});
    row("a byte order mark",
        "\xef\xbb\xbf"
        "0 1 2 3",
        one("1: \"\ufffd0\" is no hexadecimal byte"));
    row("a program in its own form",
        QByteArray("\x7f"
                   "ELF\0\1\1",
                   7),
        {QStringLiteral("1: \"\ufffd"
                        "ELF\ufffd\ufffd\ufffd\" is no hexadecimal byte"),
         QStringLiteral("missing 1")});
}

void tst_ItcmContents::findsWhatAToolWouldSwallow()
{
    QFETCH(QByteArray, text);
    QTEST(mistakesOf(text), "mistakes");
}

void tst_ItcmContents::shortensLongWords()
{
    const QByteArray word(20, 'g');
    QCOMPARE(
        mistakesOf("0 1 2 " + word),
        QStringList{
            QStringLiteral("1: \"%1\" is no hexadecimal byte").arg(QString::fromLatin1(word))});
    QCOMPARE(mistakesOf("0 1 2 g" + word),
             QStringList{QStringLiteral("1: \"%1\u2026\" is no hexadecimal byte")
                             .arg(QString::fromLatin1(word))});
}

void tst_ItcmContents::countsInWords()
{
    QCOMPARE(readMemoryText("0 1", 1).mistakes.value(0).reason,
             QStringLiteral("the memory has 1 byte; this is one too many"));
    QCOMPARE(readMemoryText("0 1", 1).mistakes.size(), 1);
    QCOMPARE(readMemoryText("0\n1", 2).lines, 2);
    QCOMPARE(readMemoryText("0\n1\n", 2).lines, 2);
    QCOMPARE(readMemoryText("", 2).lines, 1);
    QCOMPARE(readMemoryText("0 1", 2).firstMissing(), -1);
}

void tst_ItcmContents::addressesAreHexadecimal()
{
    const MemoryText text = readMemoryText("@10 5a @1F 5a @12b 5a", 300);
    QCOMPARE(text.mistakes.size(), 0);
    for (int i = 0; i < 300; ++i)
        QCOMPARE(text.given.testBit(i), i == 0x10 || i == 0x1f || i == 0x12b);
}

void tst_ItcmContents::laneSizesFollowTheIndex()
{
    for (int index = 0; index <= 9; ++index)
        QCOMPARE(4 * itcmLaneSize(index), 1024 << index);
    // As the size code of the generated include file.
    QCOMPARE(4 * itcmLaneSize(-1), 32 * 1024);
    QCOMPARE(4 * itcmLaneSize(10), 32 * 1024);
}

void tst_ItcmContents::namesFileLineAndReason_data()
{
    QTest::addColumn<QByteArray>("lane2");
    QTest::addColumn<QString>("mistake");
    QTest::newRow("text") << bytes(9) + "hello\n" + bytes(246)
                          << QStringLiteral(":10: \"hello\" is no hexadecimal byte");
    QTest::newRow("too many") << bytes(257)
                              << QStringLiteral(
                                     ":257: the memory has 256 bytes; this is one too many");
    QTest::newRow("too few") << bytes(255)
                             << QStringLiteral(":255: 255 of the 256 bytes of this lane are given; "
                                               "the others, the first at address @ff, would be "
                                               "unknown: fill up with 00");
    QTest::newRow("too few, without an end of the last line")
        << bytes(254) + "5a"
        << QStringLiteral(
               ":255: 255 of the 256 bytes of this lane are given; the others, the first "
               "at address @ff, would be unknown: fill up with 00");
    QTest::newRow("empty") << QByteArray("")
                           << QStringLiteral(":1: 0 of the 256 bytes of this lane are given; the "
                                             "others, the first at address @0, would be unknown: "
                                             "fill up with 00");
    QTest::newRow("missing") << QByteArray()
                             << QStringLiteral(": cannot be read: No such file or directory");
}

void tst_ItcmContents::namesFileLineAndReason()
{
    QFETCH(QByteArray, lane2);
    QFETCH(QString, mistake);
    QTemporaryDir dir;
    QVERIFY(writeLanes(dir.path(), bytes(256)));
    QCOMPARE(textsOf(itcmMistakes(options(dir.path()), QString(), QString())), QStringList());
    const QString file = dir.filePath(QStringLiteral("itcm2"));
    if (lane2.isNull())
        QVERIFY(QFile::remove(file));
    else
        QVERIFY(TestSupport::write(file, lane2));
    QCOMPARE(textsOf(itcmMistakes(options(dir.path()), QString(), QString())),
             QStringList{QString(file + mistake)});
}

void tst_ItcmContents::everyLaneCounts()
{
    QTemporaryDir dir;
    QVERIFY(writeLanes(dir.path(), "zz\n" + bytes(255)));
    const QVector<ItcmMistake> mistakes = itcmMistakes(options(dir.path()), QString(), QString());
    QCOMPARE(mistakes.size(), 4);
    for (int lane = 0; lane < 4; ++lane) {
        QCOMPARE(mistakes.at(lane).file, dir.filePath(QStringLiteral("itcm%1").arg(lane)));
        QCOMPARE(mistakes.at(lane).line, 1);
    }
    // A pipe is no file of bytes, and nobody waits for it.
    const QString pipe = dir.filePath(QStringLiteral("itcm1"));
    QVERIFY(QFile::remove(pipe));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(itcmMistakes(options(dir.path()), QString(), QString()).at(1).reason,
             QStringLiteral("cannot be read: it is not a plain file"));
}

void tst_ItcmContents::tellsAFewMistakesOfAFileOnly()
{
    QTemporaryDir dir;
    QVERIFY(writeLanes(dir.path(), bytes(256)));
    QVERIFY(TestSupport::write(dir.filePath(QStringLiteral("itcm0")), bytes(256, "text")));
    const QVector<ItcmMistake> mistakes = itcmMistakes(options(dir.path()), QString(), QString());
    QCOMPARE(mistakes.size(), 6);
    QCOMPARE(mistakes.last().line, 6);
    QCOMPARE(mistakes.last().reason, QStringLiteral("and 251 more mistakes from here on"));
}

void tst_ItcmContents::looksOnlyWhereTheMemoryIsInitialised()
{
    QTemporaryDir dir; // without any file
    OptionMap map = options(dir.path());
    QCOMPARE(itcmMistakes(map, QString(), QString()).size(), 4);
    map[Key::initializeItcm] = false;
    QVERIFY(itcmMistakes(map, QString(), QString()).isEmpty());
    map[Key::initializeItcm] = true;
    map[Key::internalInstructionMemory] = false;
    QVERIFY(itcmMistakes(map, QString(), QString()).isEmpty());
}

void tst_ItcmContents::aRelativeFolderStartsFromTheGeneration()
{
    QTemporaryDir dir;
    QVERIFY(writeLanes(dir.filePath(QStringLiteral("init")), "zz\n" + bytes(255)));
    const OptionMap map = options(QStringLiteral("init"));
    QCOMPARE(itcmMistakes(map, QString(), dir.path()).size(), 4);
    // Elsewhere the tool looks by itself.
    QVERIFY(itcmMistakes(map, QString(), dir.filePath(QStringLiteral("other"))).isEmpty());
}

void tst_ItcmContents::anEmptyNameIsNoFolder()
{
    QTemporaryDir dir; // there, and without any file
    QVERIFY(itcmMistakes(options(QString()), QString(), dir.path()).isEmpty());
}

void tst_ItcmContents::aFolderThatIsGoneIsTold()
{
    const QString gone = QStringLiteral("/nonexistent/./contents/");
    const QVector<ItcmMistake> mistakes = itcmMistakes(options(gone), QString(), QString());
    QCOMPARE(mistakes.size(), 4);
    QCOMPARE(mistakes.at(3).text(),
             QStringLiteral("/nonexistent/contents/itcm3: cannot be read: No such file or "
                            "directory"));
}

TARVO_TEST_MAIN(QCoreApplication, tst_ItcmContents)

#include "tst_itcmcontents.moc"

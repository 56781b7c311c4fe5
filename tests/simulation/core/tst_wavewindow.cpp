#include <core/names.h>
#include <core/wavewindow.h>

#include <QtTest>

#include <sstream>
#include <stdexcept>

using CortexM1::Names;
using CortexM1::WaveWindow;

namespace
{

// The clock cycles from 0 to 9 that the waves have, with an event in one of them.
QByteArray cyclesOf(WaveWindow window, int eventAt = -1)
{
    QByteArray cycles;
    for (int cycle = 0; cycle < 10; ++cycle) {
        if (window.wants(quint64(cycle)))
            cycles += QByteArray::number(cycle);
        if (cycle == eventAt)
            window.noteInstruction(0x40, 0);
    }
    return cycles;
}

} // namespace

class tst_WaveWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheCyclesThatAreAskedFor()
    {
        QCOMPARE(cyclesOf({}), QByteArray("0123456789"));
        QCOMPARE(cyclesOf({"4", nullptr, nullptr}), QByteArray("456789"));
        QCOMPARE(cyclesOf({nullptr, "4", nullptr}), QByteArray("01234"));
        QCOMPARE(cyclesOf({"4", "4", nullptr}), QByteArray("4"));
    }

    void beginsWithTheFirstEventThatCounts()
    {
        const char *at = "address:40-41";
        QCOMPARE(cyclesOf({nullptr, nullptr, at}), QByteArray());
        QCOMPARE(cyclesOf({nullptr, nullptr, at}, 3), QByteArray("456789"));
        QCOMPARE(cyclesOf({"5", nullptr, at}, 3), QByteArray());
        QCOMPARE(cyclesOf({"3", "6", at}, 3), QByteArray("456"));
        QCOMPARE(cyclesOf({nullptr, "3", at}, 3), QByteArray());
    }

    void takesAnAddressForInstructionsAndTransfers_data()
    {
        QTest::addColumn<quint32>("address");
        QTest::addColumn<int>("bytes"); // 0: an instruction
        QTest::addColumn<bool>("counts");
        QTest::newRow("the first instruction") << 0x40000000u << 0 << true;
        QTest::newRow("the last instruction") << 0x400000FFu << 0 << true;
        QTest::newRow("an instruction before") << 0x3FFFFFFEu << 0 << false;
        QTest::newRow("an instruction behind") << 0x40000100u << 0 << false;
        QTest::newRow("the first byte") << 0x40000000u << 1 << true;
        QTest::newRow("a word that begins before and ends before") << 0x3FFFFFFCu << 4 << false;
        QTest::newRow("the last word") << 0x400000FCu << 4 << true;
        QTest::newRow("a word behind") << 0x40000100u << 4 << false;
    }

    void takesAnAddressForInstructionsAndTransfers()
    {
        QFETCH(quint32, address);
        QFETCH(int, bytes);
        QFETCH(bool, counts);
        WaveWindow window(nullptr, nullptr, "address:40000000-400000fF");
        QVERIFY(window.isWaiting());
        if (bytes == 0)
            window.noteInstruction(address, 0);
        else
            window.noteTransfer(address, bytes);
        QCOMPARE(!window.isWaiting(), counts);
    }

    void findsAByteInAWord()
    {
        WaveWindow window(nullptr, nullptr, "address:40000003-40000003");
        window.noteTransfer(0x40000000, 2);
        QVERIFY(window.isWaiting());
        window.noteTransfer(0x40000000, 4);
        QVERIFY(!window.isWaiting());
    }

    void takesAnException()
    {
        WaveWindow window(nullptr, nullptr, "exception:19");
        window.noteInstruction(0, 18);
        window.noteTransfer(0, 4);
        QVERIFY(window.isWaiting());
        window.noteInstruction(0, 19);
        QVERIFY(!window.isWaiting());
    }

    void findsAMessageInPieces()
    {
        WaveWindow window(nullptr, nullptr, "message:aab: c");
        window.noteText(1, "aa");
        window.noteText(0, "b: c");
        QVERIFY(window.isWaiting());
        for (const char *piece : {"a", "a", "a", "b", ":", " "})
            window.noteText(2, piece);
        QVERIFY(window.isWaiting());
        window.noteText(2, "c");
        QVERIFY(!window.isWaiting());
    }

    void refusesWhatItDoesNotUnderstand_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("at");
        QTest::newRow("no number") << QByteArray("x") << QByteArray();
        QTest::newRow("a sign") << QByteArray("-1") << QByteArray();
        QTest::newRow("too large") << QByteArray("1234567890123456789") << QByteArray();
        QTest::newRow("nothing") << QByteArray("") << QByteArray();
        QTest::newRow("another event") << QByteArray() << QByteArray("noon");
        QTest::newRow("half a range") << QByteArray() << QByteArray("address:40-");
        QTest::newRow("one address") << QByteArray() << QByteArray("address:40");
        QTest::newRow("an address that is too large")
            << QByteArray() << QByteArray("address:0-100000000");
        QTest::newRow("no exception") << QByteArray() << QByteArray("exception:64");
        QTest::newRow("no message") << QByteArray() << QByteArray("message:");
    }

    void refusesWhatItDoesNotUnderstand()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, at);
        QVERIFY_EXCEPTION_THROWN(WaveWindow(from.isNull() ? nullptr : from.constData(), nullptr,
                                            at.isNull() ? nullptr : at.constData()),
                                 std::runtime_error);
    }

    void namesWhatIsAtAnAddress()
    {
        std::istringstream lines("register 0x40000004 4 UART0.STATE\n"
                                 "function 0x00000080 10 main\n"
                                 "function 0x00000040 8 operator new\n"
                                 "function 0x1\nnonsense\nvariable 0x0 4 x\n"
                                 "register 0x40000000 4 UART0.DATA\n");
        const Names names(lines);
        QCOMPARE(names.functionAt(0x3E), std::string());
        QCOMPARE(names.functionAt(0x40), std::string("operator new"));
        QCOMPARE(names.functionAt(0x47), std::string("operator new"));
        QCOMPARE(names.functionAt(0x48), std::string());
        QCOMPARE(names.functionAt(0x89), std::string("main"));
        QCOMPARE(names.functionAt(0x40000000), std::string());
        QCOMPARE(names.registerAt(0x40000003), std::string("UART0.DATA"));
        QCOMPARE(names.registerAt(0x40000007), std::string("UART0.STATE"));
        QCOMPARE(names.registerAt(0xFFFFFFFF), std::string());
        QCOMPARE(Names().functionAt(0), std::string());
    }
};

QTEST_APPLESS_MAIN(tst_WaveWindow)
#include "tst_wavewindow.moc"

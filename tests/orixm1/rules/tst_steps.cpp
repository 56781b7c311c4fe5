#include "testsupport.h"

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <rules/stephistory.h>
#include <rules/stepname.h>

#include <QtTest>

#include <random>

using namespace TARVOORIXM1;

namespace
{

// The lines that a file would hold.
QStringList linesOf(const OptionMap &map)
{
    QStringList lines;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        lines.append(it.key() + QLatin1Char('=') + it->toString());
    return lines;
}

// Draws what a dialog, or a file that was written by hand, may hold.
class Hand
{
public:
    explicit Hand(unsigned seed)
        : m_random(seed)
    {
        for (const Option &option : optionTable())
            m_keys.append(option.key);
        m_keys.append({QStringLiteral("own"), QStringLiteral("Own/key")});
    }

    int below(int limit) { return int(m_random() % unsigned(limit)); }

    OptionMap changed(OptionMap map)
    {
        for (int i = below(4); i > 0; --i) {
            const QString key = m_keys.at(below(m_keys.size()));
            switch (below(5)) {
            case 0:
                map.remove(key);
                break;
            case 1:
                map.insert(key, below(2) == 1);
                break;
            case 2:
                map.insert(key, QStringLiteral("true"));
                break;
            case 3:
                map.insert(key, below(12) - 1);
                break;
            default:
                map.insert(key, QString::number(below(12)));
            }
        }
        return map;
    }

private:
    std::mt19937 m_random;
    QStringList m_keys;
};

} // namespace

class tst_Steps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesSayWhatChanged_data();
    void namesSayWhatChanged();
    void manyChangesAreCounted();
    void equalMapsMakeNoStep();
    void manyRandomStepsAgreeWithAListOfMaps();
    void aLongHistoryForgetsNothing();
};

void tst_Steps::namesSayWhatChanged_data()
{
    QTest::addColumn<OptionMap>("before");
    QTest::addColumn<OptionMap>("after");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *what, const OptionMap &before, const OptionMap &after,
                        const char *name) {
        QTest::newRow(what) << before << after << QString::fromLatin1(name);
    };
    const OptionMap none;
    row("one of two instances", none, {{Key::enableUart0, true}, {Key::enableUart1, false}},
        "UART0 on");
    row("the other one", {{Key::enableUart1, true}}, {{Key::enableUart1, false}}, "UART1 off");
    row("both", none, {{Key::enableTimer0, true}, {Key::enableTimer1, true}},
        "Timer0 on, Timer1 on");
    row("stored as a text", {{Key::enableRtc, QStringLiteral("true")}}, {{Key::enableRtc, false}},
        "RTC off");
    row("as the diagram calls it", none, {{Key::enableWatchDog, true}}, "Watch Dog on");
    row("an interface", {{Key::enableGpio, true}},
        {{Key::enableGpio, true}, {Key::enableGpioIo, false}}, "GPIO I/O off");
    row("a block with its interface as shown before", none,
        {{Key::enableGpio, true}, {Key::enableGpioIo, true}}, "GPIO on");
    row("one port", none, {{QStringLiteral("Enable_AHB_Master3"), true}}, "AHB Master [3] on");
    row("ports on and off", {{QStringLiteral("Enable_APB_Master9"), true}},
        {{QStringLiteral("Enable_APB_Master1"), true},
         {QStringLiteral("Enable_APB_Master16"), true},
         {QStringLiteral("Enable_APB_Master9"), false}},
        "APB Master: 2 ports on, APB Master [9] off");
    row("a size", {{Key::itcmSize, 4}}, {{Key::itcmSize, 5}}, "Memory: ITCM 32 KB");
    row("a size instead of the device's", {{Key::ipDevice, QStringLiteral("TV2KR-18C")}},
        {{Key::ipDevice, QStringLiteral("TV2KR-18C")}, {Key::dtcmSize, 0}}, "Memory: DTCM 1 KB");
    row("no size", {{Key::itcmSize, 4}}, {{Key::itcmSize, -1}}, "Memory: ITCM unset");
    row("two of one page", {{Key::itcmSize, 4}, {Key::dtcmSize, 4}},
        {{Key::itcmSize, 5}, {Key::dtcmSize, 3}}, "Memory: ITCM 32 KB, DTCM 8 KB");
    row("two pages", none, {{Key::numberOfInterrupts, 1}, {Key::enableDebug, false}},
        "Common: 1 interrupt, Debug: debug off");
    row("a choice", none, {{Key::debugPortSelect, QStringLiteral("JTAG")}}, "Debug: port JTAG");
    row("a memory outside", none,
        {{Key::internalInstructionMemory, false}, {Key::externalInstructionMemory, true}},
        "Memory: instruction memory external");
    row("a folder", none, {{Key::itcmInitializationPath, QStringLiteral("init")}},
        "Memory: ITCM initialization path");
    row("an option of a block", {{Key::enableCan, true}},
        {{Key::enableCan, true}, {Key::canBufferDepth, QStringLiteral("512")}},
        "CAN: buffer depth 512");
    row("a choice that is lost", {{Key::canBufferDepth, QStringLiteral("100")}},
        {{Key::canBufferDepth, QString()}}, "CAN: buffer depth unset");
    row("nothing that shows", none, {{Key::enableGpio, false}, {Key::enableGpioIo, true}},
        "GPIO confirmed");
    row("nothing that shows of the core", none, {{Key::smallDebug, false}}, "Cortex-M1 confirmed");
    row("nothing that shows of Ethernet", none, {{Key::ethernetClockDivider, 20}},
        "Ethernet confirmed");
    row("nothing that a dialog shows", {{QStringLiteral("own"), 1}}, none, "\"own\" changed");
    row("nothing of any dialog", none, {{Key::lang, 0}}, "Options confirmed");
}

void tst_Steps::namesSayWhatChanged()
{
    QFETCH(OptionMap, before);
    QFETCH(OptionMap, after);
    QTEST(stepName(before, after), "name");
}

void tst_Steps::manyChangesAreCounted()
{
    const OptionMap after = {{Key::enableUart0, true}, {Key::enableUart1, true},
                             {Key::enableRtc, true},   {Key::enableSpi, true},
                             {Key::itcmSize, 0},       {Key::dtcmSize, 0}};
    QCOMPARE(stepName({}, after), QStringLiteral("UART0 on, UART1 on, RTC on and 3 more"));
}

void tst_Steps::equalMapsMakeNoStep()
{
    StepHistory history;
    history.restart({{Key::enableRtc, QStringLiteral("true")}, {Key::itcmSize, 3}});
    QVERIFY(!history.accept({{Key::enableRtc, true}, {Key::itcmSize, QStringLiteral("3")}}));
    QCOMPARE(history.stepCount(), 0);
    // A file would hold another text.
    QVERIFY(history.accept({{Key::enableRtc, QStringLiteral("1")}, {Key::itcmSize, 3}}));
    QVERIFY(history.accept({{Key::itcmSize, 3}}));
    QVERIFY(history.goTo(1));
    // Nor do equal ones forget what is undone.
    QVERIFY(!history.accept(history.current()));
    QCOMPARE(history.stepCount(), 2);
}

void tst_Steps::manyRandomStepsAgreeWithAListOfMaps()
{
#ifdef __SANITIZE_ADDRESS__
    constexpr int actions = 10000; // an action takes ten times as long there
#else
    constexpr int actions = 100000;
#endif
    Hand hand(1);
    StepHistory history;
    QVector<QStringList> plain;
    int at = 0;
    const auto restart = [&] {
        const OptionMap start = hand.changed(hand.changed({}));
        history.restart(start);
        plain = {linesOf(start)};
        at = 0;
    };
    restart();
    int longest = 0;
    for (int i = 0; i < actions; ++i) {
        const int action = hand.below(100);
        if (action < 55) {
            const OptionMap next = hand.changed(history.current());
            const QStringList lines = linesOf(next);
            QCOMPARE(history.accept(next), lines != plain.at(at));
            if (lines != plain.at(at)) {
                plain.resize(++at);
                plain.append(lines);
            }
        } else {
            const int target = action < 75   ? at - 1
                               : action < 98 ? at + 1
                                             : hand.below(plain.size() + 2) - 1;
            const bool there = target >= 0 && target < plain.size();
            QCOMPARE(history.goTo(target), there);
            if (there)
                at = target;
        }
        if (hand.below(20000) == 0)
            restart();
        QCOMPARE(history.currentStep(), at);
        QCOMPARE(history.stepCount(), plain.size() - 1);
        QCOMPARE(linesOf(history.current()), plain.at(at));
        longest = qMax(longest, history.stepCount());
    }
    QVERIFY(longest > 100);
    for (int step = 0; step < plain.size(); ++step) {
        QVERIFY(history.goTo(step));
        QCOMPARE(linesOf(history.current()), plain.at(step));
    }
}

void tst_Steps::aLongHistoryForgetsNothing()
{
    constexpr int steps = 20000;
    Hand hand(2);
    StepHistory history;
    OptionMap start;
    for (const Option &option : optionTable())
        start.insert(option.key, false);
    history.restart(start);
    QVector<OptionMap> some; // every hundredth
    while (history.stepCount() < steps) {
        if (history.stepCount() % 100 == 0 && some.size() == history.stepCount() / 100)
            some.append(history.current());
        history.accept(hand.changed(history.current()));
    }
    for (int i = some.size() - 1; i >= 0; --i) {
        QVERIFY(history.goTo(100 * i));
        QCOMPARE(linesOf(history.current()), linesOf(some.at(i)));
    }
    QCOMPARE(history.stepCount(), steps);
    for (int i = 0; i < steps; ++i)
        QVERIFY(!history.name(i).isEmpty());
}

QTEST_MAIN(tst_Steps)
#include "tst_steps.moc"

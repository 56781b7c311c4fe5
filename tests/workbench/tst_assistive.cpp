// The whole job through the accessibility bus: what a screen reader's user has, and nothing else.

#include "atthebus.h"

using namespace TestSupport;

class TestAssistive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromAnEmptyFolderToANetlist();

private:
    // Each ends the test where it fails.
    void makeProject(Session &session);
    void configureAndGenerate(Session &session);
    void readResults();
};

#define PRESS(node, action) QVERIFY2(Bus::act(node, action), qPrintable(Bus::nameOf(node)))

void TestAssistive::makeProject(Session &session)
{
    const Node create = Bus::await("push button", "New project");
    QVERIFY(!create.isNull());
    PRESS(create, "Press");
    const Node dialog = Bus::await("dialog", "New Project");
    QVERIFY(!dialog.isNull());
    const Node ok = Bus::find(dialog, "push button", "Create Project");
    QVERIFY(!ok.isNull() && !Bus::is(ok, Sensitive));
    QVERIFY(Bus::setText(Bus::find(dialog, "text", "Name:"), QStringLiteral("sensor")));
    QVERIFY(Bus::setText(Bus::find(dialog, "text", "Create in:"), session.home()));
    QVERIFY(Bus::setText(Bus::find(dialog, "text", "Filter of the devices"),
                         QStringLiteral("TV1KL-5A")));
    const Node device =
        Bus::awaited([&] { return Bus::find(dialog, "cell", "TV1KL-LV5QN48C6/I5"); });
    QVERIFY(!device.isNull());
    PRESS(device, "Toggle");
    QVERIFY(QTest::qWaitFor([&] { return Bus::is(ok, Sensitive); }, patience));
    PRESS(ok, "Press");
}

void TestAssistive::configureAndGenerate(Session &session)
{
    // The catalogue.
    const Node ip = Bus::await("tree item", "Tarvo_ORIX_M1");
    QVERIFY(!ip.isNull());
    PRESS(ip, "Toggle");
    const Node create = Bus::awaited([] {
        const Node button = Bus::findAnywhere("push button", "Create IP");
        return Bus::is(button, Sensitive) ? button : Node();
    });
    QVERIFY(!create.isNull());
    PRESS(create, "Press");

    // The diagram.
    const Node dialog = Bus::await("dialog", "Tarvo ORIX M1");
    QVERIFY(!dialog.isNull());
    const Node gpio = Bus::find(dialog, "check box", "GPIO");
    const Node trng = Bus::find(dialog, "check box", "TRNG");
    QVERIFY(!gpio.isNull() && !trng.isNull());
    QVERIFY(!Bus::is(gpio, Checked) && Bus::is(gpio, Focusable) && Bus::is(gpio, Enabled));
    PRESS(gpio, "Toggle");
    QVERIFY(QTest::qWaitFor([&] { return session.events.has(gpio, "checked", 1); }, patience));
    QVERIFY(Bus::is(gpio, Checked));
    QVERIFY(!Bus::is(trng, Checked));
    PRESS(trng, "SetFocus");
    QVERIFY(QTest::qWaitFor([&] { return session.events.has(trng, "focused", 1); }, patience));
    QVERIFY(Bus::is(trng, Focused));

    // The dialog of a block.
    PRESS(trng, "Press");
    const Node block = Bus::await("dialog", "TRNG");
    QVERIFY(!block.isNull());
    const Node enable = Bus::find(block, "check box", "Enable TRNG");
    PRESS(enable, "Toggle");
    QVERIFY(QTest::qWaitFor([&] { return Bus::is(enable, Checked); }, patience));
    PRESS(Bus::find(block, "push button", "OK"), "Press");
    QVERIFY(QTest::qWaitFor([&] { return Bus::is(trng, Checked); }, patience));
    PRESS(Bus::find(dialog, "push button", "OK"), "Press");
}

void TestAssistive::readResults()
{
    QVERIFY(!Bus::await("page tab", "Results", forARun).isNull());
    const Node summary = Bus::await("label", "Used ");
    QVERIFY(!summary.isNull());
    QVERIFY2(Bus::nameOf(summary).contains(latin1("LUT4")), qPrintable(Bus::nameOf(summary)));
    QVERIFY(Bus::nameOf(summary).contains(latin1("trng_core")));
    QVERIFY(!Bus::findAnywhere("cell", "LUT4").isNull());
    const Node figure = Bus::findAnywhere("list", "Pins of tarvo_orix_m1");
    QVERIFY(!figure.isNull());
    QStringList pins;
    for (const Node &pin : Bus::childrenOf(figure))
        pins.append(Bus::nameOf(pin));
    QVERIFY2(pins.join(u' ').contains(latin1("gpio"), Qt::CaseInsensitive) &&
                 pins.join(u' ').contains(latin1("bidirectional")),
             qPrintable(pins.join(u' ')));

    const Node tab = Bus::findAnywhere("page tab", "tarvo_orix_m1.v");
    QVERIFY(!tab.isNull());
    PRESS(tab, "Press");
    const Node netlist = Bus::await("text", "tarvo_orix_m1.v");
    QVERIFY(!netlist.isNull());
    const QString text = Bus::textOf(netlist);
    QVERIFY(text.contains(latin1("module")) && text.contains(latin1("GPIO")) &&
            text.contains(latin1("TV_LUT4")));
}

void TestAssistive::fromAnEmptyFolderToANetlist()
{
    const Mark mark;
    {
        Session session(mark);
        const QString missing = session.start();
        QVERIFY2(missing.isEmpty(), qPrintable(missing));
        QProcess &program = session.startProgram();
        QVERIFY(program.waitForStarted());
        makeProject(session);
        if (!QTest::currentTestFailed())
            configureAndGenerate(session);
        if (!QTest::currentTestFailed())
            readResults();
        if (!QTest::currentTestFailed()) {
            const QString netlist =
                session.home() + QStringLiteral("/sensor/tarvo_orix_m1/tarvo_orix_m1.v");
            QVERIFY(QFileInfo(netlist).size() > 1000);
            Node quit;
            const Node bar = Bus::findAnywhere("menu bar", "");
            for (const Node &menu : Bus::childrenOf(bar)) {
                for (const Node &popup : Bus::childrenOf(menu)) {
                    for (const Node &item : Bus::childrenOf(popup)) {
                        if (Bus::nameOf(item) == latin1("Quit"))
                            quit = item;
                    }
                }
            }
            PRESS(quit, "Press");
            QVERIFY(
                QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, patience));
            QCOMPARE(program.exitStatus(), QProcess::NormalExit);
            QCOMPARE(program.exitCode(), 0);
        }
    }
    QVERIFY(QTest::qWaitFor([&] { return mark.processes().isEmpty(); }, patience));
}

QTEST_GUILESS_MAIN(TestAssistive)
#include "tst_assistive.moc"

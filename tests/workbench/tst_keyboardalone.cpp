// The first day of a user who has a keyboard and nothing else: real key events to the real program.
// What they see is read from the accessibility bus.

#include "atthebus.h"

using namespace TestSupport;

class TestKeyboardAlone : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromTheFirstStartToTheSecond();

private:
    // Each ends the test where it fails.
    void walkTo(const char *role, const char *name, int key = Keyboard::Tab);
    void openTheExample();
    void makeProject();
    void configureAndGenerate();
    void quit(QProcess &program);
    void findItAllAgain();

    Session *m_session = nullptr;
};

#define KEYS(sent) QVERIFY2(sent, #sent)
#define STEP(call)                                                                                 \
    do {                                                                                           \
        call;                                                                                      \
        if (QTest::currentTestFailed())                                                            \
            return;                                                                                \
    } while (false)

// Until the focus is on what has this role, and a name that begins so.
void TestKeyboardAlone::walkTo(const char *role, const char *name, int key)
{
    QStringList passed;
    const auto isThere = [&] {
        const Node node = m_session->events.focused();
        return !node.isNull() && Bus::is(node, Focused) && Bus::roleOf(node) == latin1(role) &&
               Bus::nameOf(node).startsWith(latin1(name));
    };
    for (int i = 0; i < 60; ++i) {
        if (isThere())
            return;
        const int before = m_session->events.focusCount();
        KEYS(Keyboard::press(key));
        // A key that moves nothing is not waited for long, nor taken for moved what was told late.
        (void)QTest::qWaitFor(
            [&] {
                const Node node = m_session->events.focused();
                return m_session->events.focusCount() > before && Bus::is(node, Focused);
            },
            3000);
        const Node now = m_session->events.focused();
        passed.append(Bus::roleOf(now) + u' ' + Bus::nameOf(now));
    }
    QVERIFY2(isThere(), qPrintable(latin1(name) + latin1(" is not among: ") + passed.join(u'\n')));
}

void TestKeyboardAlone::openTheExample()
{
    QVERIFY(!Bus::await("push button", "Open the example").isNull());
    STEP(walkTo("push button", "Open the example"));
    KEYS(Keyboard::press(Keyboard::Return));
    QVERIFY(!Bus::awaitWindow("dialog", "Open the Example").isNull());
    STEP(walkTo("push button", "Make the Project"));
    KEYS(Keyboard::press(Keyboard::Return));
    QVERIFY(!Bus::await("label", "Simulate ").isNull());
    QVERIFY(!Bus::awaitWindow("frame", "sensor-node").isNull());
}

void TestKeyboardAlone::makeProject()
{
    KEYS(Keyboard::press('n', Keyboard::Control));
    QVERIFY(!Bus::awaitWindow("dialog", "New Project").isNull());
    STEP(walkTo("text", "Name:"));
    KEYS(Keyboard::type(QStringLiteral("sensor")));
    STEP(walkTo("text", "Create in:"));
    KEYS(Keyboard::press('a', Keyboard::Control));
    KEYS(Keyboard::type(m_session->home()));
    STEP(walkTo("text", "Filter of the devices"));
    KEYS(Keyboard::type(QStringLiteral("TV1KL-5A")));
    KEYS(Keyboard::press(Keyboard::Down));
    STEP(walkTo("push button", "Create Project"));
    KEYS(Keyboard::press(Keyboard::Return));
}

void TestKeyboardAlone::configureAndGenerate()
{
    QVERIFY(!Bus::awaitWindow("frame", "sensor - ").isNull());
    KEYS(Keyboard::press('2', Keyboard::Control));
    STEP(walkTo("tree item", "Tarvo_ORIX_M1", Keyboard::Down));
    KEYS(Keyboard::press(Keyboard::Return));
    QVERIFY(!Bus::awaitWindow("dialog", "Tarvo ORIX M1").isNull());

    STEP(walkTo("check box", "GPIO"));
    const Node gpio = m_session->events.focused();
    KEYS(Keyboard::press(Keyboard::Space));
    QVERIFY(QTest::qWaitFor([&] { return Bus::is(gpio, Checked); }, patience));
    STEP(walkTo("check box", "TRNG"));
    const Node trng = m_session->events.focused();
    KEYS(Keyboard::press(Keyboard::Return));
    QVERIFY(!Bus::awaitWindow("dialog", "TRNG").isNull());
    STEP(walkTo("check box", "Enable TRNG"));
    KEYS(Keyboard::press(Keyboard::Space));
    STEP(walkTo("push button", "OK"));
    KEYS(Keyboard::press(Keyboard::Return));
    QVERIFY(QTest::qWaitFor([&] { return Bus::is(trng, Checked); }, patience));
    QVERIFY(!Bus::awaitWindow("dialog", "Tarvo ORIX M1").isNull());
    STEP(walkTo("push button", "OK"));
    KEYS(Keyboard::press(Keyboard::Return));
    QVERIFY(!Bus::await("label", "Used ", forARun).isNull());
    QVERIFY(!Bus::awaitWindow("frame", "sensor - ").isNull());
}

void TestKeyboardAlone::quit(QProcess &program)
{
    KEYS(Keyboard::press('q', Keyboard::Control));
    QVERIFY(QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, patience));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
}

void TestKeyboardAlone::findItAllAgain()
{
    // The project, the tabs and the results of the last run.
    QVERIFY(!Bus::awaitWindow("frame", "sensor").isNull());
    KEYS(Keyboard::press('r', Keyboard::Control));
    QVERIFY(!Bus::await("label", "Used ").isNull());
    // The subsystem, as it was made.
    KEYS(Keyboard::press('1', Keyboard::Control));
    STEP(walkTo("tree item", "tarvo_orix_m1/tarvo_orix_m1.ipc", Keyboard::Down));
    KEYS(Keyboard::press(Keyboard::Return));
    const Node dialog = Bus::awaitWindow("dialog", "Tarvo ORIX M1");
    QVERIFY(!dialog.isNull());
    for (const char *block : {"GPIO", "TRNG"}) {
        const Node node = Bus::find(dialog, "check box", block);
        QVERIFY2(!node.isNull() && Bus::is(node, Checked), block);
    }
    QVERIFY(!Bus::is(Bus::find(dialog, "check box", "UART0"), Checked));
    KEYS(Keyboard::press(Keyboard::Escape));
    QVERIFY(QTest::qWaitFor([&] { return Bus::findAnywhere("dialog", "Tarvo ORIX M1").isNull(); },
                            patience));
    QVERIFY(!Bus::awaitWindow("frame", "sensor").isNull());
}

void TestKeyboardAlone::fromTheFirstStartToTheSecond()
{
    const Mark mark;
    {
        Session session(mark);
        m_session = &session;
        const QString missing = session.start();
        QVERIFY2(missing.isEmpty(), qPrintable(missing));
        QProcess &program = session.startProgram();
        QVERIFY(program.waitForStarted());
        STEP(openTheExample());
        STEP(makeProject());
        STEP(configureAndGenerate());
        QVERIFY(QFileInfo(session.home() + QStringLiteral("/sensor/tarvo_orix_m1/tarvo_orix_m1.v"))
                    .size() > 1000);
        STEP(quit(program));
        session.startProgram();
        QVERIFY(program.waitForStarted());
        STEP(findItAllAgain());
        STEP(quit(program));
    }
    QVERIFY(QTest::qWaitFor([&] { return mark.processes().isEmpty(); }, patience));
}

QTEST_GUILESS_MAIN(TestKeyboardAlone)
#include "tst_keyboardalone.moc"

#include "simulateprocess.h"

#include <QJsonArray>

namespace
{

const QString example = QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc");

// All lines have to be objects with an event.
QList<QJsonObject> eventsOf(const QByteArray &out)
{
    QList<QJsonObject> events;
    QList<QByteArray> lines = out.split('\n');
    if (!lines.takeLast().isEmpty())
        return {};
    for (const QByteArray &line : qAsConst(lines)) {
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        if (!object.value(QLatin1String("event")).isString())
            return {};
        events.append(object);
    }
    return events;
}

QString textOf(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

QList<QJsonObject> named(const QList<QJsonObject> &events, const char *name)
{
    QList<QJsonObject> found;
    for (const QJsonObject &event : events) {
        if (textOf(event, "event") == QLatin1String(name))
            found.append(event);
    }
    return found;
}

const QByteArray endless = "int main(void) { for (;;) { } }\n";

} // namespace

// "orixm1 simulate --live", as another program sees it.
class tst_CliLive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_process = std::make_unique<SimulateProcess>(); }
    void cleanup()
    {
        QCOMPARE(m_process->scratch(), QStringList());
        m_process.reset();
    }

    void aRunIsToldFromStageToStage()
    {
        const auto run = live({example, QStringLiteral("--c"),
                               QStringLiteral(TARVO_EXAMPLES_DIR "/firmware/hello.c")});
        QCOMPARE(run.status, 0);
        QCOMPARE(run.err, QString());
        const QList<QJsonObject> events = eventsOf(run.out);
        QStringList stages;
        for (const QJsonObject &event : named(events, "stage"))
            stages.append(textOf(event, "stage"));
        QCOMPARE(stages, words({"program", "simulator", "run"}));
        QString said;
        for (const QJsonObject &event : named(events, "uart")) {
            QCOMPARE(event.value(QLatin1String("number")).toInt(-1), 0);
            said += textOf(event, "text");
        }
        QCOMPARE(said, QStringLiteral("hello, world\n"));
        QCOMPARE(named(events, "message").size(), 0);
        QCOMPARE(named(events, "end").size(), 1);
        const QJsonObject end = events.last();
        QCOMPARE(textOf(end, "event"), QStringLiteral("end"));
        QCOMPARE(textOf(end, "result"), QStringLiteral("passed"));
        QCOMPARE(end.value(QLatin1String("status")).toInt(-1), 0);
        QVERIFY(end.value(QLatin1String("clockCycles")).toInt() > 5000);
        QVERIFY(end.value(QLatin1String("lines"))
                    .toArray()
                    .first()
                    .toString()
                    .startsWith(QLatin1String("Passed after ")));
    }

    // Each byte is the character of its value, of both UARTs.
    void bytesAreCharacters()
    {
        TestSupport::write(m_process->path("main.c"),
                           "#include \"system_tarvo_orix_m1.h\"\n#include \"uart.h\"\n"
                           "static void say(UART_Type *uart)\n{\n"
                           "    static const char text[] = {'A', 0, (char)0xFF, 0x1E, '\\n'};\n"
                           "    uart_init(uart, SystemCoreClock, 1000000u);\n"
                           "    uart_write(uart, text, 5, 100000u);\n"
                           "    uart_flush(uart, 100000u);\n}\n"
                           "int main(void) { say(UART0); say(UART1); return 0; }\n");
        const auto run = live(QStringList{example} + words({"--c", "main.c"}));
        QCOMPARE(run.status, 0);
        QString said[2];
        for (const QJsonObject &event : named(eventsOf(run.out), "uart"))
            said[event.value(QLatin1String("number")).toInt()] += textOf(event, "text");
        const QString all = QString::fromLatin1("A\0\xFF\x1E\n", 5);
        QCOMPARE(said[0], all);
        QCOMPARE(said[1], all);
    }

    void mistakesHavePlaces_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("text");
        QTest::newRow("of the compiler") << words({"--c", "wrong.c"}) << QStringLiteral("wrong.c")
                                         << 2 << QStringLiteral("'x' undeclared");
        QTest::newRow("of the linker") << words({"--c", "lacking.c"}) << QStringLiteral("lacking.c")
                                       << 2 << QStringLiteral("undefined reference to `f'");
        QTest::newRow("of the board")
            << words({"--c", "right.c", "--board", "own.v"}) << QStringLiteral("own.v") << 3
            << QStringLiteral("syntax error");
    }

    void mistakesHavePlaces()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, file);
        TestSupport::write(m_process->path("wrong.c"), "\nint main(void) { return x; }\n");
        TestSupport::write(m_process->path("lacking.c"),
                           "int f(void);\nint main(void) { return f(); }\n");
        TestSupport::write(m_process->path("right.c"), "int main(void) { return 0; }\n");
        TestSupport::write(m_process->path("own.v"), "module board;\n\n    what is this\n");
        const auto run = live(QStringList{example} + arguments);
        QCOMPARE(run.status, 3);
        QCOMPARE(run.err, QString());
        const QList<QJsonObject> messages = named(eventsOf(run.out), "message");
        const auto found =
            std::find_if(messages.begin(), messages.end(), [](const QJsonObject &message) {
                return textOf(message, "severity") == QLatin1String("error") &&
                       message.contains(QLatin1String("file"));
            });
        QVERIFY2(found != messages.end(), run.out.constData());
        QCOMPARE(textOf(*found, "file"), m_process->path(file.toUtf8().constData()));
        QTEST(found->value(QLatin1String("line")).toInt(), "line");
        QFETCH(QString, text);
        QVERIFY2(textOf(*found, "text").contains(text), run.out.constData());
    }

    // What follows nothing is the end, once, whatever was wrong.
    void theEndComesLastAndOnce_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        const QStringList c = words({"--c", "right.c"});
        QTest::newRow("no configuration") << QStringList{QStringLiteral("no.ipc")} + c << 3;
        QTest::newRow("a broken configuration") << QStringList{QStringLiteral("right.c")} + c << 3;
        QTest::newRow("no source") << QStringList{example} + words({"--c", "no.c"}) << 3;
        QTest::newRow("no program") << QStringList{example} << 2;
        QTest::newRow("an unknown option")
            << QStringList{example} + c + words({"--unknown", "x"}) << 2;
        QTest::newRow("a number out of range")
            << QStringList{example} + c + words({"--timeout", "0"}) << 2;
        QTest::newRow("the terminal") << QStringList{example} + c + words({"--uart0", "-"}) << 2;
        QTest::newRow("no name of a file")
            << QStringList{example} + c + words({"--uart0", ""}) << 2;
        QTest::newRow("no data folder")
            << QStringList{example} + c + words({"--data", "nothing"}) << 3;
        QTest::newRow("a result that cannot be written")
            << QStringList{example} + c + words({"--report", "nowhere/x"}) << 1;
        QTest::newRow("a program that fails")
            << QStringList{example} + words({"--c", "failing.c"}) << 1;
        QTest::newRow("a program without an end")
            << QStringList{example} + words({"--c", "endless.c", "--timeout", "2000"}) << 124;
    }

    void theEndComesLastAndOnce()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        TestSupport::write(m_process->path("right.c"), "int main(void) { return 0; }\n");
        TestSupport::write(m_process->path("failing.c"), "int main(void) { return 3; }\n");
        TestSupport::write(m_process->path("endless.c"), endless);
        const auto run = live(arguments);
        QCOMPARE(run.status, status);
        const QList<QJsonObject> events = eventsOf(run.out);
        QVERIFY2(!events.isEmpty(), run.out.constData());
        QCOMPARE(named(events, "end").size(), 1);
        const QJsonObject end = events.last();
        QCOMPARE(textOf(end, "event"), QStringLiteral("end"));
        QCOMPARE(end.value(QLatin1String("status")).toInt(-1), status);
        QCOMPARE(textOf(end, "result"),
                 status == 124 ? QStringLiteral("time limit") : QStringLiteral("failed"));
        QVERIFY(!textOf(end, "reason").isEmpty());
    }

    void aMissingToolIsAMessage()
    {
        TestSupport::write(m_process->path("right.c"), "int main(void) { return 0; }\n");
        QVERIFY(TestSupport::write(m_process->path("bin/nothing"), ""));
        const auto run = m_process->simulate(
            QStringList{example} + words({"--live", "--c", "right.c"}), m_process->path("bin"));
        QCOMPARE(run.status, 1);
        const QList<QJsonObject> messages = named(eventsOf(run.out), "message");
        QCOMPARE(messages.size(), 1);
        QVERIFY(textOf(messages.first(), "text").contains(QLatin1String("package iverilog")));
        QCOMPARE(textOf(eventsOf(run.out).last(), "reason"), textOf(messages.first(), "text"));
    }

    void stopsWhenItIsTold_data()
    {
        QTest::addColumn<QByteArray>("moment"); // what was told before
        QTest::newRow("while it runs") << QByteArray("\"run\"");
        QTest::newRow("while it is made") << QByteArray("\"program\"");
    }

    void stopsWhenItIsTold()
    {
        QFETCH(QByteArray, moment);
        TestSupport::write(m_process->path("main.c"), endless);
        const auto process = m_process->start(
            words({"simulate", "--live", "--c", "main.c", "--timeout", "1000000000"}) +
            QStringList{example});
        QByteArray out;
        QTRY_VERIFY_WITH_TIMEOUT((out += process->readAllStandardOutput()).contains(moment) ||
                                     process->state() == QProcess::NotRunning,
                                 60000);
        process->write("nonsense\n{\"unknown\":1}\n{\"uart\":0,\"text\":\"abc\"}\n"
                       "{\"gpio\":{\"mask\":1,\"levels\":1}}\n{\"sto");
        process->write("p\":true}\n");
        const auto run = SimulateProcess::finish(*process);
        QCOMPARE(run.status, 130);
        const QList<QJsonObject> events = eventsOf(out + run.out);
        QCOMPARE(named(events, "end").size(), 1);
        QCOMPARE(textOf(events.last(), "result"), QStringLiteral("cancelled"));
        QCOMPARE(events.last().value(QLatin1String("status")).toInt(), 130);
        QTRY_COMPARE_WITH_TIMEOUT(m_process->mark().processes(), QList<qint64>(), 60000);
    }

    // A byte that nobody sends yet is waited for; so the program hears both.
    void bytesAndPinsComeFromOutside()
    {
        TestSupport::write(m_process->path("main.c"), answering("UART1"));
        const auto process =
            m_process->start(QStringList{QStringLiteral("simulate"), example} +
                             words({"--live", "--c", "main.c", "--timeout", "1000000000"}));
        process->write("{\"uart\":1,\"text\":\"a\\u00fe\"}\n");
        QByteArray out;
        const auto said = [&out] {
            QString text;
            const int end = out.lastIndexOf('\n') + 1;
            for (const QJsonObject &event : named(eventsOf(out.left(end)), "uart"))
                text += textOf(event, "text");
            return text;
        };
        const auto hears = [&](const QByteArray &piece) {
            return QTest::qWaitFor(
                [&] {
                    out += process->readAllStandardOutput();
                    return out.contains(piece) || process->state() == QProcess::NotRunning;
                },
                60000);
        };
        QVERIFY(hears("\"uart\""));
        process->write("{\"gpio\":{\"mask\":15,\"levels\":5}}\n");
        QVERIFY(hears("\"levels\":1285")); // pins 8 to 15 follow
        QVERIFY(hears("\"time\""));
        process->write("{\"uart\":1,\"text\":\"x\"}\n");
        const auto run = SimulateProcess::finish(*process);
        out += run.out;
        QCOMPARE(run.status, 0);
        QCOMPARE(said(), QString::fromLatin1("b\xffy"));
    }

    void aFloodIsCutOff()
    {
        TestSupport::write(m_process->path("main.c"),
                           "static char text[4000];\nint main(void)\n{\n"
                           "    for (int i = 0; i < 3999; ++i)\n"
                           "        text[i] = i & 31 ? 'x' : '\\n';\n"
                           "    for (;;) {\n"
                           "        register unsigned r0 __asm__(\"r0\") = 4;\n"
                           "        register const void *r1 __asm__(\"r1\") = text;\n"
                           "        __asm__ volatile(\"bkpt 0xAB\" : \"+r\"(r0) : \"r\"(r1) : "
                           "\"memory\");\n    }\n}\n");
        const auto run =
            live(QStringList{example} + words({"--c", "main.c", "--timeout", "60000"}));
        QCOMPARE(run.status, 124);
        QVERIFY2(run.out.size() > 500000 && run.out.size() < 5000000,
                 qPrintable(QString::number(run.out.size())));
        int cuts = 0;
        for (const QJsonObject &event : eventsOf(run.out))
            cuts += textOf(event, "text").contains(QLatin1String("cut off")) ? 1 : 0;
        QVERIFY(cuts >= 1 && cuts <= 2);
    }

private:
    SimulateProcess::Run live(const QStringList &arguments) const
    {
        return m_process->simulate(QStringList{QStringLiteral("--live")} + arguments);
    }

    std::unique_ptr<SimulateProcess> m_process;
};

TARVO_TEST_MAIN(QCoreApplication, tst_CliLive)
#include "tst_clilive.moc"

#include "simulateprocess.h"

#include <testsupport.h>

namespace
{

// Of each bus a block and a port, and an address of none.
const QByteArray script = "write 0x40000008 0xF\nread 0x40000008 0xF\n"
                          "write 0x50004008 1\nread 0x50004008 1\n"
                          "write 0x80000000 7\nread 0x80000000 7\n"
                          "write 0x60000000 8\nread 0x60000000 8\n"
                          "error 0xF0000000\n";

} // namespace

// Every run of "orixm1 simulate" holds the buses to the rules of AHB-Lite and APB.
class tst_CliBusRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_process = std::make_unique<SimulateProcess>();
        TestSupport::write(path("node.ipc"),
                           plain + "Enable%20GPIO=true\nEnable%20UART0=true\n"
                                   "Enable_AHB_Master1=true\nEnable_APB_Master1=true\n");
        TestSupport::write(path("script.play"), script);
    }

    void withinTheRulesNothingIsSaid()
    {
        const auto run = m_process->simulate(words({"node.ipc", "--script", "script.play"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QVERIFY2(run.err.contains(QLatin1String("Passed after")), qPrintable(run.err));
    }

    void aBlockThatBreaksARuleEndsTheRun_data()
    {
        QTest::addColumn<QString>("engine");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QString>("message"); // behind the clock cycle
        const auto row = [](const char *name, const char *source, const char *before,
                            const char *after, const char *message, const char *engine = "icarus") {
            QTest::newRow(name) << QString::fromUtf8(engine) << QString::fromUtf8(source)
                                << QByteArray(before) << QByteArray(after)
                                << QString::fromUtf8(message);
        };
        row("HREADYOUT comes too late", "ahb_gpio.v", "HREADYOUT = 1'b1", "HREADYOUT = ~active",
            "the AHB breaks a rule at GPIO (0x40000000): a slave waits no longer than it may");
        row("HREADYOUT is low in between", "ahb_gpio.v", "HREADYOUT = 1'b1", "HREADYOUT = active",
            "the AHB breaks a rule at GPIO (0x40000000): a slave that is not asked says ready and "
            "OKAY");
        row("HRESP without a first cycle", "ahb_gpio.v", "HRESP     = 1'b0", "HRESP     = active",
            "the AHB breaks a rule at GPIO (0x40000000): an error response has a first cycle");
        row("HRDATA is unknown", "ahb_interconnect.v", "assign HRDATA = rdata",
            "assign HRDATA = rdata | {31'd0, 1'bx}",
            "the AHB breaks a rule at the processor: HRDATA is known where it is read");
        row("PREADY comes too late", "apb_uart.v", "assign PREADY  = 1'b1",
            "assign PREADY  = ~PWRITE",
            "the APB breaks a rule at UART0 (0x50004008): a slave waits no longer than it may");
        row("PSLVERR is unknown", "apb_uart.v", "assign PSLVERR = 1'b0", "assign PSLVERR = 1'bx",
            "the APB breaks a rule at UART0 (0x50004008): PSLVERR is known with PREADY");
        row("PSTRB in a read", "ahb_to_apb.v", "HWRITE ? lanes : 4'd0", "lanes",
            "the APB breaks a rule at UART0 (0x50004008): PSTRB is 0 in reads");
        row("PREADY, under Verilator", "apb_uart.v", "assign PREADY  = 1'b1",
            "assign PREADY  = ~PWRITE",
            "the APB breaks a rule at UART0 (0x50004008): a slave waits no longer than it may",
            "verilator");
    }

    void aBlockThatBreaksARuleEndsTheRun()
    {
        QFETCH(QString, engine);
        QFETCH(QString, source);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(QString, message);
        copyData();
        change(QLatin1String("data/data/debug/") + source, before, after);
        const QStringList arguments = words({"--data", "data", "simulate", "node.ipc", "--script",
                                             "script.play", "--report", "run.json", "--engine"}) +
                                      QStringList{engine};
        const auto run = m_process->run(arguments);
        QCOMPARE(run.status, 1);
        const QRegularExpression expected(
            QLatin1String("^orixm1: Failed after ([0-9]+) clock cycles: at clock cycle \\1 ") +
                QRegularExpression::escape(message) + QLatin1String("\\.$"),
            QRegularExpression::MultilineOption);
        QVERIFY2(expected.match(run.err).hasMatch(), qPrintable(run.err));
        const QJsonObject report =
            QJsonDocument::fromJson(TestSupport::contentsOf(path("run.json"))).object();
        QCOMPARE(report.value(QLatin1String("result")).toString(), QStringLiteral("failed"));
        QVERIFY(report.value(QLatin1String("reason")).toString().endsWith(message));
    }

    // What breaks a rule is a fault of the design all the same, but nobody looks.
    void theRulesCanBeLeftOut()
    {
        copyData();
        change(QStringLiteral("data/data/debug/ahb_to_apb.v"), "HWRITE ? lanes : 4'd0", "lanes");
        auto run = m_process->run(words(
            {"--data", "data", "simulate", "node.ipc", "--script", "script.play", "--no-checks"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        // They stand once, in the data; without them the run does not begin.
        QFile::remove(path("data/simulation/checkers/apb_checker.v"));
        run = m_process->run(
            words({"--data", "data", "simulate", "node.ipc", "--script", "script.play"}));
        QCOMPARE(run.status, 1);
        QVERIFY2(
            run.err.contains(QLatin1String("simulation/checkers/apb_checker.v\" cannot be read.")),
            qPrintable(run.err));
    }

    // The bus ends the transfer and goes on without the slave: no rule is broken.
    void aSlaveThatDoesNotAnswerInTimeBreaksNoRule()
    {
        auto run = m_process->simulate(words({"node.ipc", "--write-board", "own.v"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        change(QStringLiteral("own.v"), "assign p_AHB1HREADYOUT = 1'b1;",
               "reg is_slow = 1'b0, is_stuck = 1'b0;\n"
               "    always @(posedge clk)\n"
               "        if (p_AHB1HSEL && p_AHB1HTRANS[1] && p_AHB1HREADYMUX) begin\n"
               "            is_slow <= 1'b1;\n"
               "            is_stuck <= !p_AHB1HADDR[8];\n"
               "        end else is_slow <= is_stuck && cycles < 64'd2000;\n"
               "    assign p_AHB1HREADYOUT = !is_slow;");
        change(QStringLiteral("own.v"), "assign p_APB1PREDADY = 1'b1;",
               "assign p_APB1PREDADY = p_APB1PADDR[8];");
        TestSupport::write(path("script.play"),
                           "write 0x5000F008 20\n" // BUSTIMEOUT
                           "read 0x80000100 0\nerror 0x80000000\nerror 0x80000100\n"
                           "error 0x60000000\nread 0x60000100 0\n"
                           "wait 2500\nread 0x80000100 0\n");
        run =
            m_process->simulate(words({"node.ipc", "--script", "script.play", "--board", "own.v"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
    }

private:
    QString path(const char *name) const { return m_process->path(name); }

    void copyData() const
    {
        QCOMPARE(QProcess::execute(
                     QStringLiteral("cp"),
                     {QStringLiteral("-r"), QStringLiteral(TARVO_IP_DATA_DIR), path("data")}),
                 0);
    }

    void change(const QString &file, const QByteArray &before, const QByteArray &after) const
    {
        const QString full = path(qPrintable(file));
        QByteArray text = TestSupport::contentsOf(full);
        QVERIFY2(text.contains(before), qPrintable(full));
        text.replace(before, after);
        TestSupport::write(full, text);
    }

    std::unique_ptr<SimulateProcess> m_process;
};

QTEST_GUILESS_MAIN(tst_CliBusRules)
#include "tst_clibusrules.moc"

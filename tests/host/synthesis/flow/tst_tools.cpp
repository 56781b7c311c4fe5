#include <synthesis/flow/flow.h>
#include <synthesis/flow/tools.h>
#include <synthesis/netlist/languages.h>
#include <testsupport.h>

#include <QFile>
#include <QSet>
#include <QtTest>

using namespace Synthesis;

class tst_Tools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKeptNumberIsItsTool_data();
    void aKeptNumberIsItsTool();
    void everyToolHasItsOwnOutputs();
    void everyLanguageHasItsOwnFiles();
};

void tst_Tools::aKeptNumberIsItsTool_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("tool");
    QTest::newRow("project tool") << 0 << int(Tool::SynplifyPro);
    QTest::newRow("own tool") << 1 << int(Tool::TarvoSynthesis);
    QTest::newRow("below all tools") << -1 << int(Tool::TarvoSynthesis);
    QTest::newRow("beyond all tools") << 99 << int(Tool::TarvoSynthesis);
}

void tst_Tools::aKeptNumberIsItsTool()
{
    QFETCH(int, number);
    QTEST(int(toolOf(number)), "tool");
}

void tst_Tools::everyToolHasItsOwnOutputs()
{
    QSet<QByteArray> seen;
    int outputs = 0;
    for (int number = 0; int(toolOf(number)) == number; ++number) {
        const ToolRow &row = toolRow(toolOf(number));
        for (const char *text :
             {row.name, row.program, row.netlist, row.vhdlNetlist, row.vhdlModel}) {
            if (!text)
                continue;
            seen.insert(text);
            ++outputs;
        }
        QVERIFY(row.makeFlow && row.name && row.program && row.netlist && row.vhdlNetlist);
        QVERIFY(makeFlow(toolOf(number), Job()));
    }
    QVERIFY(outputs > 8);
    QCOMPARE(seen.size(), outputs);
}

void tst_Tools::everyLanguageHasItsOwnFiles()
{
    const LanguageRow &verilog = languageRow(Language::Verilog);
    const LanguageRow &vhdl = languageRow(Language::Vhdl);
    QVERIFY(qstrcmp(verilog.templateSuffix, vhdl.templateSuffix) != 0);
    QVERIFY(qstrcmp(verilog.primitives, vhdl.primitives) != 0);
    for (const LanguageRow *row : {&verilog, &vhdl}) {
        QVERIFY(
            QFile::exists(QLatin1String(":/tarvo/synthesis/") + QLatin1String(row->primitives)));
        QVERIFY(row->instanceTemplate("top", {}, {}).contains("u_top"));
    }
}

TARVO_TEST_MAIN(QCoreApplication, tst_Tools)

#include "tst_tools.moc"

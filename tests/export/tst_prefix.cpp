// Names under a prefix: what is renamed and what is not, and that several subsystems stand in one
// design, one program and one folder.

#include "commandline.h"

#include <drawnoptions.h>
#include <testsupport.h>

#include <config/nameprefix.h>
#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <export/format.h>
#include <export/prefixed.h>
#include <export/prefixednetlist.h>
#include <export/sourcenames.h>
#include <rules/check.h>
#include <system/systemmap.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <optional>

using namespace TARVOORIXM1;
using Exported::run;
using Exported::Run;

namespace
{

// Three configurations that differ in what they have, each with its prefix.
struct Member {
    const char *prefix;
    const char *device;
    const char *settings;
};

constexpr Member members[] = {
    {"left_", "TV2KR-18C-QFN88P-C8/I7",
     "--set 'Enable UART0=true' --set 'Enable GPIO=true' --set 'Enable Debug=false'"},
    {"Mid2_", "TV5K-25B-UBGA324-C2/I1",
     "--set 'Enable Ethernet=true' --set 'ETHERNET_INTERFACE=MII' --set 'Enable Timer0=true' "
     "--set Enable_AHB_Master1=true"},
    {"r_i_g_h_t_", "TV3K-10A-PBGA256-C8/I7",
     "--set 'Enable UART0=true' --set 'Enable UART1=true' --set 'Enable SPI=true' "
     "--set 'Number of Interrupts=8'"},
};

QString quoted(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes);
}

} // namespace

class tst_Prefix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void takesWhatAllLanguagesTake_data();
    void takesWhatAllLanguagesTake();
    void proposesWhatCanBeHad();
    void aConfigurationKeepsIt();
    void renamesInVerilog_data();
    void renamesInVerilog();
    void findsModulesBehindMacros();
    void renamesInVhdl_data();
    void renamesInVhdl();
    void findsWhatAHeaderDeclares();
    void renamesInC_data();
    void renamesInC();
    void withoutThePrefixItIsTheUsualExport();
    void threeSubsystemsStandInOneVerilogDesign();
    void oneProgramHasTheHeadersOfThree();
    void threeModelsStandInOneVhdlLibrary();
    void aGenerationLeavesASetBesideItsOwn();
    void threeConfigurationsPlayInOneVhdlLibrary();

private:
    // A folder with the exports of all members.
    QString folderOfThree();

    std::unique_ptr<QTemporaryDir> m_three;
    std::optional<SystemDescription> m_description;
};

void tst_Prefix::initTestCase()
{
    const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(description, qPrintable(description.reason()));
    m_description = *description;
}

QString tst_Prefix::folderOfThree()
{
    if (m_three)
        return m_three->path();
    m_three = std::make_unique<QTemporaryDir>();
    QString line;
    for (const Member &one : members) {
        const QString prefix = QString::fromLatin1(one.prefix);
        line += QLatin1String("orixm1 new --device ") + QString::fromLatin1(one.device) + u' ' +
                QString::fromLatin1(one.settings) + QLatin1String(" --out ip && mv ip/*.ipc ") +
                prefix + QLatin1String(".ipc && orixm1 export ") + prefix +
                QLatin1String(".ipc --prefix ") + prefix + QLatin1String(" --out .\n");
    }
    const Run made = run(m_three->path(), line);
    if (made.status != 0)
        qWarning("%s", qPrintable(made.said));
    return made.status == 0 ? m_three->path() : QString();
}

void tst_Prefix::takesWhatAllLanguagesTake_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<bool>("isTaken");
    const auto row = [](const char *name, const char *prefix, bool isTaken) {
        QTest::newRow(name) << QString::fromUtf8(prefix) << isTaken;
    };
    row("none", "", true);
    row("letters", "cpu_", true);
    row("a digit", "cpu0_", true);
    row("one letter", "A_", true);
    row("underscores between", "left_cpu_0_", true);
    row("the longest", "a123456789012345678901234567890_", true);
    row("one more", "a1234567890123456789012345678901_", false);
    row("a digit first", "0cpu_", false);
    row("an underscore first", "_cpu_", false);
    row("an underscore alone", "_", false);
    row("nothing that joins", "cpu", false);
    row("two that join", "cpu__", false);
    row("two between", "left__cpu_", false);
    row("a blank", "my cpu_", false);
    row("a minus", "my-cpu_", false);
    row("a dollar", "cpu$_", false);
    row("a letter of another alphabet", "größe_", false);
    row("a line feed", "cpu_\n", false);
    row("a word of Verilog", "module_", false);
    row("a word of SystemVerilog", "logic_", false);
    row("a word of SystemVerilog with an underscore", "always_ff_", false);
    row("a word of VHDL", "entity_", false);
    row("a word of VHDL in capitals", "Signal_", false);
    row("a word of C", "int_", false);
    row("a word of C++", "namespace_", false);
    row("a word and more", "int0_", true);
}

void tst_Prefix::takesWhatAllLanguagesTake()
{
    QFETCH(const QString, prefix);
    QFETCH(const bool, isTaken);
    const PrefixMistake mistake = prefixMistake(prefix);
    QCOMPARE(mistake.text.isEmpty(), isTaken);
    if (!isTaken)
        QVERIFY2(mistake.text.contains(prefix) && mistake.text.endsWith(u'.'),
                 qPrintable(mistake.text));
    // The pattern says the same but for lengths and words.
    const bool isOfForm = QRegularExpression(prefixPattern().replace(u'$', QLatin1String("\\z")))
                              .match(prefix)
                              .hasMatch();
    QVERIFY(!isTaken || isOfForm);
    QVERIFY(isTaken || !isOfForm || prefix.size() > longestPrefix ||
            mistake.text.contains(QLatin1String("reserved")));
}

void tst_Prefix::proposesWhatCanBeHad()
{
    const std::pair<const char *, const char *> rows[] = {{"cpu", "cpu_"},
                                                          {"9cpu", "cpu_"},
                                                          {"my cpu", "my_cpu_"},
                                                          {"__a__b__", "a_b_"},
                                                          {"module_", "module0_"},
                                                          {"Entity", "Entity0_"},
                                                          {"99", ""},
                                                          {"_", ""}};
    for (const auto &[wrong, near] : rows) {
        QCOMPARE(prefixMistake(QString::fromLatin1(wrong)).fix, QString::fromLatin1(near));
        QVERIFY(prefixMistake(QString::fromLatin1(near)).text.isEmpty());
    }
    QVERIFY(prefixMistake(prefixMistake(QString(100, u'x')).fix).text.isEmpty());
}

void tst_Prefix::aConfigurationKeepsIt()
{
    const Option *option = findOption(Key::namePrefix);
    QVERIFY(option && !option->isOption);
    QVERIFY(isInDomain(*option, QStringLiteral("cpu0_")));
    QVERIFY(!isInDomain(*option, QStringLiteral("cpu0")));
    QCOMPARE(prefixOf({{Key::namePrefix, QStringLiteral("cpu0_")}}), QStringLiteral("cpu0_"));
    QCOMPARE(prefixOf({{Key::namePrefix, QStringLiteral("int_")}}), QString());
    QCOMPARE(prefixOf({}), QString());

    const QTemporaryDir dir;
    const Run made = run(dir.path(), QStringLiteral("orixm1 new --device TV2KR-18C-QFN88P-C8/I7 "
                                                    "--out . && cp *.ipc usual.ipc && "
                                                    "orixm1 set *x_m1.ipc Prefix=cpu0_ && "
                                                    "orixm1 check *x_m1.ipc && "
                                                    "orixm1 export *x_m1.ipc svd --out own && "
                                                    "orixm1 export *x_m1.ipc svd --prefix '' "
                                                    "--out none && ls own none"));
    QVERIFY2(made.status == 0, qPrintable(made.said));
    for (const char *file : {"own/cpu0_tarvo_orix_m1.svd", "own/cpu0_orixm1-export.json",
                             "none/tarvo_orix_m1.svd", "none/orixm1-export.json"})
        QVERIFY2(QFileInfo::exists(dir.filePath(QString::fromLatin1(file))), file);
    const Run difference =
        run(dir.path(), QStringLiteral("orixm1 diff usual.ipc tarvo_orix_m1.ipc || echo $?"));
    QVERIFY2(difference.said.contains(QLatin1String("Prefix")) &&
                 difference.said.endsWith(QLatin1String("1\n")),
             qPrintable(difference.said));
    const Run wrong =
        run(dir.path(), QStringLiteral("orixm1 set tarvo_orix_m1.ipc Prefix=int_ || echo $?; "
                                       "orixm1 unset tarvo_orix_m1.ipc Prefix; "
                                       "orixm1 diff usual.ipc tarvo_orix_m1.ipc && echo same"));
    QVERIFY2(wrong.said.contains(QLatin1String("reserved word")) &&
                 wrong.said.endsWith(QLatin1String("same\n")),
             qPrintable(wrong.said));
    const Run odd = run(dir.path(), QStringLiteral("orixm1 export usual.ipc --prefix 9x --out no "
                                                   "|| echo $?; test ! -e no"));
    QVERIFY2(odd.status == 0 && odd.said.contains(QLatin1String("\"x_\"?")) &&
                 odd.said.endsWith(QLatin1String("2\n")),
             qPrintable(odd.said));
}

void tst_Prefix::renamesInVerilog_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, const char *source, const char *expected) {
        QTest::newRow(name) << QByteArray(source) << QByteArray(expected);
    };
    row("a definition", "module fifo (input a); endmodule", "module p_fifo (input a); endmodule");
    row("an instance", "fifo u_fifo (.a(b));", "p_fifo u_fifo (.a(b));");
    row("an instance with parameters", "fifo #(.W(1)) u (.a(b));", "p_fifo #(.W(1)) u (.a(b));");
    row("an instance with an escaped name", "fifo \\u[0] (.a(b));", "p_fifo \\u[0] (.a(b));");
    row("an instance of the same name", "fifo fifo (.a(b));", "p_fifo fifo (.a(b));");
    row("a signal of the same name", "assign x = fifo; wire fifo = 1;",
        "assign x = fifo; wire fifo = 1;");
    row("a port of the same name", "gate u (.fifo(fifo));", "gate u (.fifo(fifo));");
    row("a part of a name", "my_fifo u (); fifo_2 v ();", "my_fifo u (); fifo_2 v ();");
    row("comments", "// fifo u (\n/* `WIDTH fifo u */", "// fifo u (\n/* `WIDTH fifo u */");
    row("texts", "initial $display(\"fifo u `WIDTH \\\" fifo u\");",
        "initial $display(\"fifo u `WIDTH \\\" fifo u\");");
    row("a macro", "`define WIDTH 8\n`ifdef WIDTH\nwire [`WIDTH-1:0] a;\n`endif\n`undef WIDTH",
        "`define p_WIDTH 8\n`ifdef p_WIDTH\nwire [`p_WIDTH-1:0] a;\n`endif\n`undef p_WIDTH");
    row("a name like a macro's", "wire WIDTH;", "wire WIDTH;");
    row("directives", "`timescale 1ns / 1ps\n`default_nettype none",
        "`timescale 1ns / 1ps\n`default_nettype none");
    row("a macro for all sources", "`ifndef TARVO_NO_TIMESCALE\n`endif",
        "`ifndef TARVO_NO_TIMESCALE\n`endif");
    row("an included file", "`include \"defs.vh\"\n`include \"other.vh\"",
        "`include \"p_defs.vh\"\n`include \"other.vh\"");
    row("the name of a file elsewhere", "initial $readmemh(\"defs.vh\", m);",
        "initial $readmemh(\"defs.vh\", m);");
    row("a module's name in a macro", "`define NAME fifo\n`define OTHER fifo\nmodule `NAME;",
        "`define p_NAME p_fifo\n`define p_OTHER fifo\nmodule `p_NAME;");
    row("a macro that says that a module is there", "`ifndef HAVE_fifo\n`define HAVE_fifo\n`endif",
        "`ifndef HAVE_p_fifo\n`define HAVE_p_fifo\n`endif");
    row("a macro of a primitive", "`ifndef HAVE_TV_LUT4", "`ifndef HAVE_TV_LUT4");
    row("numbers with a base", "assign a = 8'hfa; fifo u ();", "assign a = 8'hfa; p_fifo u ();");
    row("an end of a text that is missing", "\"fifo u\nfifo u ();", "\"fifo u\np_fifo u ();");
    row("a label at the end", "module fifo; endmodule : fifo", "module p_fifo; endmodule : p_fifo");
    row("a comment that does not end", "fifo u (); /* fifo u", "p_fifo u (); /* fifo u");
    row("nothing", "", "");
}

void tst_Prefix::renamesInVerilog()
{
    QFETCH(const QByteArray, source);
    QFETCH(const QByteArray, expected);
    SourceNames::Verilog names;
    names.modules = {"fifo"};
    names.macros = {"WIDTH", "NAME", "OTHER"};
    names.moduleMacros = {"NAME"};
    names.files = {"defs.vh"};
    QCOMPARE(quoted(SourceNames::prefixedVerilog(source, names, "p_")), quoted(expected));
    QCOMPARE(quoted(SourceNames::prefixedVerilog(source, {}, "p_")), quoted(source));
}

void tst_Prefix::findsModulesBehindMacros()
{
    const SourceNames::Verilog names = SourceNames::verilogNames(
        {"`ifdef given\n`define NAME `given\n`else\n`define NAME usual\n`endif\n", "module `NAME;",
         "`define given special // of the supplier\n`define NUMBER usual2\n",
         "module plain; `ifndef TARVO_NO_TIMESCALE\n`timescale 1ns/1ps\n`endif\nendmodule"});
    QCOMPARE(names.modules, (QSet<QByteArray>{"usual", "special", "plain"}));
    QCOMPARE(names.macros, (QSet<QByteArray>{"given", "NAME", "NUMBER"}));
    QCOMPARE(names.moduleMacros, (QSet<QByteArray>{"given", "NAME"}));
}

void tst_Prefix::renamesInVhdl_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, const char *source, const char *expected) {
        QTest::newRow(name) << QByteArray(source) << QByteArray(expected);
    };
    row("an entity", "entity Fifo is end;", "entity p_Fifo is end;");
    row("in another case", "use work.FIFO.all;", "use work.p_FIFO.all;");
    row("a comment", "-- fifo\nfifo", "-- fifo\np_fifo");
    row("a text", "report \"fifo \"\"fifo\"\" \";", "report \"fifo \"\"fifo\"\" \";");
    row("an extended name", "\\fifo\\ <= fifo;", "\\fifo\\ <= p_fifo;");
    row("a character", "when '\"' => fifo; c := '-'; fifo",
        "when '\"' => p_fifo; c := '-'; p_fifo");
    row("a qualified value", "bit'('1') fifo", "bit'('1') p_fifo");
    row("a part of a name", "fifo_2 my_fifo", "fifo_2 my_fifo");
}

void tst_Prefix::renamesInVhdl()
{
    QFETCH(const QByteArray, source);
    QFETCH(const QByteArray, expected);
    QCOMPARE(quoted(SourceNames::prefixedVhdl(source, {"fifo"}, "p_")), quoted(expected));
    QCOMPARE(quoted(SourceNames::prefixedVhdl(source, {}, "p_")), quoted(source));
}

void tst_Prefix::findsWhatAHeaderDeclares()
{
    const QByteArray header = "#ifndef GUARD_H\n#define GUARD_H\n#include <stdint.h>\n"
                              "#define CHECK(name, what) typedef char name[(what) ? 1 : -1]\n"
                              "extern \"C\" {\n"
                              "typedef enum { RED = 0, GREEN /* BLUE */ } colour;\n"
                              "struct Pair { int first; int second[2]; };\n"
                              "typedef struct { int member; } Type;\n"
                              "CHECK(check_of_type, sizeof(Type) == 4);\n"
                              "extern uint32_t Frequency;\n"
                              "static inline int doubled(int value) { int twice = 2 * value;\n"
                              "    return twice; }\n"
                              "void put(Type *type, const char *text);\n"
                              "}\n#endif\n";
    QCOMPARE(SourceNames::declaredInC(header),
             (QSet<QByteArray>{"GUARD_H", "CHECK", "RED", "GREEN", "colour", "Pair", "Type",
                               "check_of_type", "Frequency", "doubled", "put"}));
}

void tst_Prefix::renamesInC_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, const char *source, const char *expected) {
        QTest::newRow(name) << QByteArray(source) << QByteArray(expected);
    };
    row("a name", "put_one(uart);", "p_put_one(uart);");
    row("underscores in front", "__put(1);", "p_put(1);");
    row("a comment on a name", "/* See put_one(); put is no name. */",
        "/* See p_put_one(); put is no name. */");
    row("a comment on a file", "/* In uart.h. */", "/* In p_uart.h. */");
    row("an included file", "#include \"uart.h\"\n#include <uart.h>",
        "#include \"p_uart.h\"\n#include <uart.h>");
    row("a text", "\"put_one uart.h\"", "\"put_one uart.h\"");
    row("a character", "'\"' put_one '\\''", "'\"' p_put_one '\\''");
    row("a part of a name", "put_one_2 my_put_one", "put_one_2 my_put_one");
}

void tst_Prefix::renamesInC()
{
    QFETCH(const QByteArray, source);
    QFETCH(const QByteArray, expected);
    QCOMPARE(quoted(SourceNames::prefixedC(source, {"put_one", "put", "__put"}, {"uart.h"}, "p_")),
             quoted(expected));
}

// The strongest that can be said: every byte is that of the usual export but for the prefix, and
// for the few places below where a prefix adds something of its own.
void tst_Prefix::withoutThePrefixItIsTheUsualExport()
{
    TestSupport::Random random(5);
    QStringList names;
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices()) {
        if (names.contains(device.device()))
            continue;
        names.append(device.device());
        if (names.size() % 3 != 1)
            continue;
        QString prefix(QChar(u'Q'));
        for (int i = 0; i < 8; ++i)
            prefix += QChar(ushort(u'a' + TestSupport::below(26, random)));
        prefix += u'_';
        QVERIFY(prefixMistake(prefix).text.isEmpty());
        OptionMap options = TestSupport::drawnOptions(device, random);
        options.insert(Key::initializeItcm, true);
        options.insert(Key::itcmInitializationAbsolutePath, QStringLiteral("/somewhere"));
        SystemMap map = systemMap(options, device, *m_description);
        map.initialContents = {{QStringLiteral("itcm0"), "00\n"}};
        const SystemMap own = prefixed(map, prefix);
        const auto stripped = [&prefix](QByteArray bytes) {
            const QByteArray before = prefix.toLatin1();
            bytes.replace("<headerDefinitionsPrefix>" + before + "</headerDefinitionsPrefix>\n  ",
                          "");
            bytes.replace("--prefix\", \"" + before + "\", \"", "");
            bytes.replace(" --prefix " + before, "");
            bytes.replace("\"" + before + "script=%s\", script) && !$value$plusargs(\"script=%s\"",
                          "\"script=%s\"");
            bytes.replace(QByteArray(before).replace("_", "\\_"), ""); // Markdown
            return bytes.replace(before, "");
        };
        for (const Format &format : formats()) {
            const QVector<ExportedFile> usual = format.files(map);
            const QVector<ExportedFile> files = format.files(own);
            QCOMPARE(files.size(), usual.size());
            for (int i = 0; i < files.size(); ++i) {
                const bool isShared = files.at(i).path.contains(QLatin1String("/bus/"));
                QVERIFY2(isShared || files.at(i).path.contains(prefix),
                         qPrintable(files.at(i).path));
                QCOMPARE(QString(files.at(i).path).remove(prefix), usual.at(i).path);
                QByteArray before = usual.at(i).bytes;
                QByteArray after = stripped(files.at(i).bytes);
                // Names that begin with two underscores, which C++ keeps for itself, lose them.
                for (QByteArray *text : {&before, &after}) {
                    if (format.name == QLatin1String("header"))
                        text->replace("__", "");
                }
                QVERIFY2(after == before, qPrintable(files.at(i).path));
            }
        }
    }
    QVERIFY(names.size() > 10);
}

void tst_Prefix::threeSubsystemsStandInOneVerilogDesign()
{
    const QString folder = folderOfThree();
    QVERIFY(!folder.isEmpty());
    QByteArray benches = "module benches;\n";
    QByteArray tops = "module tops(input wire HCLK);\n";
    QString simulation;
    QString scripts;
    QString waivers;
    QString synthesis;
    for (const Member &one : members) {
        const QByteArray prefix = one.prefix;
        const QString name = QString::fromLatin1(prefix) + QLatin1String("tarvo_orix_m1");
        benches += prefix + "tarvo_orix_m1_tb u_" + prefix + "bench();\n";
        tops += prefix + "Tarvo_ORIX_M1_Top u_" + prefix + "top(.HCLK(HCLK));\n";
        simulation += QLatin1String(" -c ") + name + QLatin1String("_simulation.f");
        scripts += QLatin1String(" +") + QString::fromLatin1(prefix) +
                   QLatin1String("script=sim/") + name + QLatin1String("_tb.play");
        waivers += u' ' + name + QLatin1String(".vlt");
        synthesis += QLatin1String(" -f ") + name + QLatin1String("_synthesis.f");
    }
    QVERIFY(TestSupport::write(folder + QLatin1String("/benches.v"), benches + "endmodule\n"));
    QVERIFY(TestSupport::write(folder + QLatin1String("/tops.v"), tops + "endmodule\n"));
    const Run icarus = run(folder, QLatin1String("iverilog -g2005-sv -s benches -o benches.out "
                                                 "benches.v") +
                                       simulation);
    QVERIFY2(icarus.status == 0 && icarus.said.isEmpty(), qPrintable(icarus.said));
    // The first that ends would end the others: each plays alone among all three.
    for (const Member &one : members) {
        const QString prefix = QString::fromLatin1(one.prefix);
        const Run alone =
            run(folder, QLatin1String("iverilog -g2005-sv -s ") + prefix +
                            QLatin1String("tarvo_orix_m1_tb -o alone.out") + simulation +
                            QLatin1String(" && vvp -n alone.out") + scripts);
        QVERIFY2(alone.status == 0, qPrintable(alone.said));
        QCOMPARE(alone.said, QStringLiteral("PASS\n"));
        // Without one of its own a model plays the script of all.
        const Run common = run(folder, QLatin1String("vvp -n alone.out +script=sim/") + prefix +
                                           QLatin1String("tarvo_orix_m1_tb.play"));
        QCOMPARE(common.said, QStringLiteral("PASS\n"));
    }
    const Run together = run(folder, QLatin1String("vvp -n benches.out") + scripts);
    QVERIFY2(together.status == 0 && together.said.contains(QLatin1String("PASS\n")) &&
                 !together.said.contains(QLatin1String("FAIL")),
             qPrintable(together.said));
    const Run lint = run(folder, QLatin1String("verilator --lint-only -Wno-PINMISSING "
                                               "--top-module tops tops.v") +
                                     waivers + synthesis);
    QVERIFY2(lint.status == 0 && lint.said.isEmpty(), qPrintable(lint.said));
    const Run yosys =
        run(folder, QStringLiteral("yosys -q -p \"read_verilog -Irtl tops.v $(grep -h '^rtl/.*v$' "
                                   "*_synthesis.f | tr '\\n' ' '); hierarchy -check -top tops\""));
    QVERIFY2(yosys.status == 0 && !yosys.said.contains(QLatin1String("ERROR")),
             qPrintable(yosys.said));
    // All stand in one folder, and none takes another's files for left over.
    for (const Member &one : members) {
        const QString prefix = QString::fromLatin1(one.prefix);
        const Run check = run(folder, QLatin1String("orixm1 export ") + prefix +
                                          QLatin1String(".ipc --check --out . --prefix ") + prefix);
        QVERIFY2(check.status == 0, qPrintable(check.said));
    }
}

void tst_Prefix::oneProgramHasTheHeadersOfThree()
{
    const QString folder = folderOfThree();
    QVERIFY(!folder.isEmpty());
    QVERIFY(TestSupport::write(folder + QLatin1String("/program.c"),
                               "#include \"left_tarvo_orix_m1.h\"\n"
                               "#include \"Mid2_tarvo_orix_m1.h\"\n"
                               "#include \"r_i_g_h_t_tarvo_orix_m1.h\"\n"
                               "#include \"left_uart.h\"\n"
                               "#include \"r_i_g_h_t_uart.h\"\n"
                               "int main(void)\n{\n"
                               "    left_uart_init(left_UART0, 50000000u, 115200u);\n"
                               "    r_i_g_h_t_uart_init(r_i_g_h_t_UART1, 50000000u, 9600u);\n"
                               "    Mid2_TIMER0->CTRL = 0u;\n"
                               "    left_NVIC_EnableIRQ(left_UART0_IRQn);\n"
                               "    Mid2_NVIC_SetPriority(Mid2_TIMER0_IRQn, 3u);\n"
                               "    r_i_g_h_t_disable_irq();\n"
                               "    return 0;\n}\n"));
    const QString warnings = QStringLiteral(" -Wall -Wextra -Wpedantic -Werror -I. -Idrivers ");
    for (const QString &compiler :
         {QStringLiteral("arm-none-eabi-gcc -mcpu=cortex-m1 -mthumb -std=c99"),
          QStringLiteral("g++ -std=c++11 -x c++")}) {
        const Run made =
            run(folder, QLatin1String("for f in program.c drivers/left_*.c drivers/r_i*.c; do ") +
                            compiler + warnings +
                            QLatin1String("-c $f -o $(basename $f).o; done; "
                                          "ld=ld; case '") +
                            compiler +
                            QLatin1String("' in arm*) ld=arm-none-eabi-ld;; esac; "
                                          "$ld -r -o all.o *.c.o; rm *.c.o"));
        QVERIFY2(made.status == 0 && made.said.isEmpty(), qPrintable(made.said));
    }
}

void tst_Prefix::threeModelsStandInOneVhdlLibrary()
{
    const QByteArray model =
        "package tv_simulation is\n    constant one : bit := '1';\nend package;\n"
        "use work.tv_simulation.all;\n"
        "entity TV_LUT1 is port (O : out bit); end entity;\n"
        "architecture model of TV_LUT1 is begin O <= one; end architecture;\n"
        "entity CortexM1Core is port (I : in bit); end entity;\n"
        "architecture empty of CortexM1Core is begin end architecture;\n"
        "use work.all;\n"
        "entity Tarvo_ORIX_M1_Top is port (HCLK : in bit); end entity;\n"
        "architecture netlist of Tarvo_ORIX_M1_Top is\n"
        "    component TV_LUT1 port (O : out bit); end component;\n"
        "    component CortexM1Core port (I : in bit); end component;\n"
        "    signal n : bit;\n"
        "begin\n    lut : TV_LUT1 port map (O => n);\n"
        "    u_core : CortexM1Core port map (I => n);\nend architecture;\n";
    const QTemporaryDir dir;
    QByteArray top = "entity tops is end entity;\narchitecture all_three of tops is\n"
                     "    signal HCLK : bit;\nbegin\n";
    for (const Member &one : members) {
        const QByteArray prefix = one.prefix;
        const QVector<ExportedFile> files =
            prefixedOutputs({{QStringLiteral("tarvo_orix_m1.vho"), model}},
                            {{QStringLiteral("CortexM1Core"), {}, {}}}, quoted(prefix));
        QCOMPARE(files.size(), 1);
        QCOMPARE(files.first().path, quoted(prefix + "tarvo_orix_m1.vho"));
        QCOMPARE(QByteArray(files.first().bytes).replace(prefix, ""), model);
        QVERIFY(TestSupport::write(dir.filePath(files.first().path), files.first().bytes));
        top += "    u_" + prefix + "x : entity work." + prefix +
               "Tarvo_ORIX_M1_Top port map (HCLK);\n";
    }
    QVERIFY(
        TestSupport::write(dir.filePath(QStringLiteral("tops.vhd")), top + "end architecture;\n"));
    const Run made =
        run(dir.path(), QStringLiteral("ghdl -a *.vho tops.vhd && ghdl -e tops && ghdl -r tops"));
    QVERIFY2(made.status == 0 && made.said.isEmpty(), qPrintable(made.said));
}

void tst_Prefix::aGenerationLeavesASetBesideItsOwn()
{
    const QTemporaryDir dir;
    const Run made =
        run(dir.path(),
            QStringLiteral("export XDG_CACHE_HOME=$PWD/cache; "
                           "orixm1 new --device TV2KR-18C-QFN88P-C8/I7 --language vhdl --out ip; "
                           "orixm1 generate ip/*.ipc --out usual; "
                           "orixm1 generate ip/*.ipc --out out --prefix a_; "
                           "orixm1 generate ip/*.ipc --out out --prefix b_"));
    QVERIFY2(made.status == 0, qPrintable(made.said));
    // The usual files are those of a generation without a prefix.
    const Run same =
        run(dir.path(), QStringLiteral("for f in usual/tarvo*; do cmp $f out/${f##*/}; done; "
                                       "cmp {usual,out}/temp/*/manifest.json"));
    QVERIFY2(same.status == 0 && same.said.isEmpty(), qPrintable(same.said));
    for (const QString &name : TestSupport::entriesOf(dir.filePath(QStringLiteral("usual")))) {
        if (name == QLatin1String("temp"))
            continue;
        const QByteArray usual =
            TestSupport::contentsOf(dir.filePath(QLatin1String("usual/") + name));
        for (const char *prefix : {"a_", "b_"}) {
            const QByteArray own = TestSupport::contentsOf(
                dir.filePath(QLatin1String("out/") + QLatin1String(prefix) + name));
            QVERIFY2(own != usual && own.contains(QByteArray(prefix) + "Tarvo_ORIX_M1_Top"),
                     qPrintable(name));
        }
    }
    const QString generate = QStringLiteral("export XDG_CACHE_HOME=$PWD/cache; orixm1 generate "
                                            "ip/*.ipc --out out --prefix a_ ");
    const Run fresh = run(dir.path(), generate + QLatin1String("--check"));
    QVERIFY2(fresh.status == 0, qPrintable(fresh.said));
    const Run idle = run(dir.path(), generate);
    QVERIFY2(idle.said.contains(QLatin1String("nothing was done")), qPrintable(idle.said));
    const Run edited =
        run(dir.path(), QLatin1String("echo mine >> out/a_tarvo_orix_m1.vhd; ") + generate +
                            QLatin1String("--check || echo $?; ") + generate +
                            QLatin1String("; tail -n1 out/a_tarvo_orix_m1.vhd.edited; ") +
                            generate + QLatin1String("--check && rm out/*.edited"));
    QVERIFY2(edited.status == 0 &&
                 edited.said.contains(QLatin1String("a_tarvo_orix_m1.vhd: edited\n1\n")) &&
                 edited.said.contains(QLatin1String("\nmine\n")),
             qPrintable(edited.said));
    const Run missing = run(dir.path(), QLatin1String("rm out/a_tarvo_orix_m1.vho; ") + generate +
                                            QLatin1String("--check || echo $?"));
    QVERIFY2(missing.said.contains(QLatin1String("a_tarvo_orix_m1.vho: missing\n1\n")),
             qPrintable(missing.said));
}

void tst_Prefix::threeConfigurationsPlayInOneVhdlLibrary()
{
    const QTemporaryDir dir;
    QString line;
    for (const Member &one : members) {
        // The scripts are read where the simulation runs.
        line += QStringLiteral("orixm1 new --device %1 --language vhdl %2 --out %3ip\n"
                               "orixm1 generate %3ip/*.ipc --out %3 --prefix %3 > log 2>&1\n"
                               "orixm1 export %3ip/*.ipc testbench blackbox --out . --prefix %3\n")
                    .arg(QLatin1String(one.device), QLatin1String(one.settings),
                         QLatin1String(one.prefix));
    }
    const Run made = run(dir.path(), line);
    QVERIFY2(made.status == 0, qPrintable(made.said));
    const Run analysed =
        run(dir.path(), QStringLiteral("ghdl -a */*_tarvo_orix_m1.vho sim/*_bfm.vhd *_pkg.vhd "
                                       "sim/*_tb.vhd"));
    QVERIFY2(analysed.status == 0 && analysed.said.isEmpty(), qPrintable(analysed.said));
    for (const Member &one : members) {
        const Run played =
            run(dir.path(), QStringLiteral("ghdl -r %1tarvo_orix_m1_tb").arg(quoted(one.prefix)));
        QVERIFY2(played.status == 0 && played.said == QLatin1String("PASS\n"),
                 qPrintable(quoted(one.prefix) + played.said));
    }
}

TARVO_TEST_MAIN(QCoreApplication, tst_Prefix)
#include "tst_prefix.moc"

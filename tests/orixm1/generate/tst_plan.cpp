#include "testsupport.h"

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <generate/plan.h>
#include <generate/sourcefiles.h>
#include <rules/generationfolder.h>

#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

class tst_Plan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void holdsWhatThePartsMake_data();
    void holdsWhatThePartsMake();
    void leavesTheDiskAlone();
    void isTheSameAfterItsFilesAreWritten();
    void everyToolAndLanguageHasItsRow();
    void unknownChoicesSelectNothing();
    void storedLanguagesAreThoseOfTheChoice();

private:
    GenerationInput input() const;

    QTemporaryDir m_dir;
};

void tst_Plan::initTestCase()
{
    for (const char *name : {"data/b.v", "data/a.v", "data/define.vh"})
        QVERIFY(TestSupport::write(m_dir.filePath(QLatin1String(name)), name));
}

GenerationInput tst_Plan::input() const
{
    GenerationInput input;
    input.options = {{Key::enableGpio, true}};
    input.ipInfo = {{InfoKey::target, QStringLiteral("name")},
                    {InfoKey::version, QStringLiteral("2.1")},
                    {InfoKey::debug, m_dir.filePath(QStringLiteral("data"))}};
    input.device = DEV::DeviceDb::bundled().findDevice(QStringLiteral("TV2KR-18C-QFN88P-C8/I7"));
    input.tool = Tool::TarvoSynthesis;
    input.language = Language::Vhdl;
    input.createInPath = m_dir.filePath(QStringLiteral("out"));
    return input;
}

void tst_Plan::holdsWhatThePartsMake_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<int>("language");
    QTest::newRow("own tool, Verilog") << QStringLiteral("TarvoSynthesis") << 0;
    QTest::newRow("own tool, VHDL") << QStringLiteral("TarvoSynthesis") << 1;
    QTest::newRow("project tool, VHDL") << QStringLiteral("Synplify Pro") << 1;
    QTest::newRow("nothing selected") << QStringLiteral("Another") << -1;
}

void tst_Plan::holdsWhatThePartsMake()
{
    QFETCH(QString, tool);
    QFETCH(int, language);
    GenerationInput from = input();
    from.tool = toolNamed(tool);
    from.language = languageAt(language);
    const GenerationPlan plan = generationPlan(from);

    const QString folder = from.createInPath + QLatin1String("/temp/tv_orix_m1");
    QCOMPARE(plan.folder, folder);
    const QVector<IncludeFile> files = buildIncludeFiles(from.options, from.device);
    QCOMPARE(plan.includeFiles.size(), 7);
    for (int i = 0; i < files.size(); ++i) {
        QCOMPARE(plan.includeFiles.at(i).name, files.at(i).name);
        QCOMPARE(plan.includeFiles.at(i).lines, files.at(i).lines);
        QCOMPARE(plan.pathOf(files.at(i)), QString(folder + u'/' + files.at(i).name));
    }
    QCOMPARE(plan.sources,
             buildSourceFiles(from.options, from.ipInfo, from.device.device(), folder));
    QCOMPARE(plan.sources.first(), m_dir.filePath(QStringLiteral("data/a.v")));
    QCOMPARE(plan.request.outputDir, folder);
    QCOMPARE(plan.request.targetName, QStringLiteral("name"));
    QCOMPARE(plan.request.device.id(), from.device.id());
    QCOMPARE(plan.request.options.value(QStringLiteral("source_files")).toStringList(),
             plan.sources);
    QCOMPARE(plan.request.options.value(QStringLiteral("write_vhdl")).toBool(), language == 1);
    const Outputs outputs =
        buildOutputs(from.tool, from.language, folder, from.createInPath, QStringLiteral("name"));
    for (const Outputs &planned : {plan.outputs, plannedOutputs(from)}) {
        QCOMPARE(planned.netlist, outputs.netlist);
        QCOMPARE(planned.verilogNetlist, outputs.verilogNetlist);
        QCOMPARE(planned.decoded, outputs.decoded);
        QCOMPARE(planned.copied.size(), outputs.copied.size());
    }
}

void tst_Plan::leavesTheDiskAlone()
{
    generationPlan(input());
    QCOMPARE(TestSupport::entriesOf(m_dir.path()), QStringList{QStringLiteral("data")});
}

void tst_Plan::isTheSameAfterItsFilesAreWritten()
{
    const GenerationPlan before = generationPlan(input());
    for (const IncludeFile &file : before.includeFiles)
        QVERIFY(TestSupport::write(before.pathOf(file), file.lines.join(u'\n').toUtf8()));
    const GenerationPlan after = generationPlan(input());
    QVERIFY(QDir(m_dir.filePath(QStringLiteral("out"))).removeRecursively());
    QCOMPARE(after.sources, before.sources);
    QCOMPARE(after.request.options, before.request.options);
}

void tst_Plan::everyToolAndLanguageHasItsRow()
{
    QCOMPARE(toolNames(),
             (QStringList{QStringLiteral("TarvoSynthesis"), QStringLiteral("Synplify Pro")}));
    QCOMPARE(offeredToolNames(), QStringList{QStringLiteral("TarvoSynthesis")});
    QCOMPARE(languageNames(), (QStringList{QStringLiteral("Verilog"), QStringLiteral("VHDL")}));
    QStringList netlists;
    const QStringList tools = toolNames();
    for (const QString &name : tools) {
        const std::optional<Tool> tool = toolNamed(name);
        QVERIFY(tool);
        QCOMPARE(QString(rowOf(*tool).name), name);
        for (int index = 0; index < languageNames().size(); ++index) {
            const std::optional<Language> language = languageAt(index);
            QVERIFY(language);
            QCOMPARE(QString(rowOf(*language).name), languageNames().at(index));
            netlists.append(netlistSuffix(*tool, *language));
        }
    }
    QCOMPARE(netlists, (QStringList{QStringLiteral(".vg"), QStringLiteral(".vhg"),
                                    QStringLiteral(".vm"), QStringLiteral(".vhm")}));
}

void tst_Plan::unknownChoicesSelectNothing()
{
    for (const char *text : {"", "tarvosynthesis", "TarvoSynthesis ", "Another", "0"})
        QVERIFY2(!toolNamed(QString::fromLatin1(text)), text);
    for (const int index : {-1, -3, 2, 1000})
        QVERIFY2(!languageAt(index), QByteArray::number(index));
    QVERIFY(namingLanguage(std::nullopt) == Language::Vhdl);
    QVERIFY(namingLanguage(Language::Verilog) == Language::Verilog);
}

void tst_Plan::storedLanguagesAreThoseOfTheChoice()
{
    const Option *language = findOption(Key::lang);
    QVERIFY(language);
    QCOMPARE(language->choices.size(), languageNames().size());
    const QStringList names = languageNames();
    for (int index = 0; index < names.size(); ++index) {
        QCOMPARE(language->choices.at(index), QString::number(index));
        QVERIFY(language->description.contains(QString::number(index) + u' ' + names.at(index)));
    }
    QCOMPARE(findOption(Key::synthesisTool)->choices, toolNames());
}

TARVO_TEST_MAIN(QCoreApplication, tst_Plan)

#include "tst_plan.moc"

#include "testsupport.h"

#include <generate/outputs.h>

#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

class tst_Outputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paths_data();
    void paths();
    void copiesAndDecodes();
    void vhdlCopiesTheAdditionalModelWhenThereIsOne();
    void verilogNeverCopiesAnAdditionalModel();
    void aFailedRunCopiesNothing();
    void aMissingTemplateIsAnError();
    void aMissingNetlistLeavesTheTemplateAlone();
    void anUncopyableModelIsAnErrorOfItsOwn();
    void aFailedDecodingIsTheStatus();
    void anUnknownToolRunsWithEmptyPaths();

private:
    Collection collect(int exitCode, const Outputs &outputs, int decodeStatus = 0);

    struct Decoded {
        QStringList arguments;
        int count = 0;
    } m_decoded;
};

Collection tst_Outputs::collect(int exitCode, const Outputs &outputs, int decodeStatus)
{
    m_decoded = Decoded();
    return collectOutputs(
        exitCode, {QStringLiteral("detail")}, outputs, QStringLiteral("OUT"),
        [&](const QString &outDir, const QString &netlist, const QString &destination,
            QString &message) {
            m_decoded.arguments = QStringList{outDir, netlist, destination, message};
            ++m_decoded.count;
            message = QStringLiteral("said");
            return decodeStatus;
        });
}

void tst_Outputs::paths_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<int>("language");
    QTest::addColumn<QStringList>("expected"); // source, netlist, Verilog netlist, model, template
    const auto list = [](std::initializer_list<const char *> texts) {
        QStringList result;
        for (const char *text : texts)
            result.append(QString::fromLatin1(text));
        return result;
    };
    const QString own = QStringLiteral("TarvoSynthesis");
    const QString project = QStringLiteral("Synplify Pro");
    QTest::newRow("own tool, Verilog")
        << own << 0 << list({"/t/n.vg", "/o/n.v", "/t/n.vg", "", "n_tmp.v"});
    QTest::newRow("own tool, VHDL")
        << own << 1 << list({"/t/n.vhg", "/o/n.vhd", "/t/n.vg", "/t/n.vho", "n_tmp.vhd"});
    QTest::newRow("own tool, nothing selected")
        << own << -1 << list({"/t/n.vhg", "/o/n.vhd", "/t/n.vg", "", "n_tmp.vhd"});
    QTest::newRow("project tool, Verilog")
        << project << 0 << list({"/t/rev_1/n.vm", "/o/n.v", "/t/rev_1/n.vm", "", "n_tmp.v"});
    QTest::newRow("project tool, VHDL")
        << project << 1 << list({"/t/rev_1/n.vhm", "/o/n.vhd", "/t/rev_1/n.vm", "", "n_tmp.vhd"});
    QTest::newRow("another tool") << QStringLiteral("tarvosynthesis") << 0
                                  << list({"", "", "", "", "n_tmp.v"});
}

void tst_Outputs::paths()
{
    QFETCH(QString, tool);
    QFETCH(int, language);
    QFETCH(QStringList, expected);
    const Outputs outputs =
        buildOutputs(toolNamed(tool), languageAt(language), QStringLiteral("/t"),
                     QStringLiteral("/o"), QStringLiteral("n"));
    const Output model = outputs.copied.value(2);
    QCOMPARE((QStringList{outputs.copied.at(0).source, outputs.netlist, outputs.verilogNetlist,
                          model.source}),
             expected.mid(0, 4));
    QCOMPARE(outputs.copied.at(0).file, outputs.netlist);
    QCOMPARE(outputs.copied.size(), expected.at(3).isEmpty() ? 2 : 3);
    QCOMPARE(model.file, expected.at(3).isEmpty() ? QString() : QStringLiteral("/o/n.vho"));
    QCOMPARE(outputs.copied.at(1).source, QLatin1String("/t/") + expected.at(4));
    QCOMPARE(outputs.copied.at(1).file, QLatin1String("/o/") + expected.at(4));
    QCOMPARE(outputs.instantiationTemplate, outputs.copied.at(1).file);
    QCOMPARE(outputs.decoded, QStringLiteral("/o/n.vo"));
}

namespace
{

// A generation folder and an output folder with the results of a finished run.
class Workplace
{
public:
    explicit Workplace(int language)
        : outputs(buildOutputs(Tool::TarvoSynthesis, languageAt(language),
                               dir.filePath(QStringLiteral("t")), dir.filePath(QStringLiteral("o")),
                               QStringLiteral("n")))
    {
        QDir(dir.path()).mkpath(QStringLiteral("o"));
        for (const char *name : {"n.vg", "n.vhg", "n.vho", "n_tmp.v", "n_tmp.vhd"})
            TestSupport::write(dir.filePath(QLatin1String("t/") + QLatin1String(name)), name);
    }

    QStringList files() const { return TestSupport::entriesOf(dir.filePath(QStringLiteral("o"))); }

    QTemporaryDir dir;
    Outputs outputs;
};

} // namespace

void tst_Outputs::copiesAndDecodes()
{
    Workplace place(0);
    const Collection result = collect(0, place.outputs);
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors, QStringList{QStringLiteral("said")});
    QCOMPARE(place.files(), (QStringList{QStringLiteral("n.v"), QStringLiteral("n_tmp.v")}));
    QCOMPARE(TestSupport::contentsOf(place.outputs.netlist), QByteArray("n.vg"));
    QCOMPARE(result.files, (QStringList{place.outputs.netlist, place.outputs.instantiationTemplate,
                                        place.outputs.decoded}));
    QCOMPARE(m_decoded.arguments, (QStringList{QStringLiteral("OUT"), place.outputs.verilogNetlist,
                                               place.outputs.decoded, QString()}));
}

void tst_Outputs::vhdlCopiesTheAdditionalModelWhenThereIsOne()
{
    Workplace place(1);
    QCOMPARE(collect(0, place.outputs).status, 0);
    QCOMPARE(place.files(), (QStringList{QStringLiteral("n.vhd"), QStringLiteral("n.vho"),
                                         QStringLiteral("n_tmp.vhd")}));
    QCOMPARE(TestSupport::contentsOf(place.outputs.netlist), QByteArray("n.vhg"));
    QVERIFY(m_decoded.arguments.at(1).endsWith(QLatin1String("/t/n.vg")));

    Workplace without(1);
    QVERIFY(QFile::remove(without.outputs.copied.at(2).source));
    QCOMPARE(collect(0, without.outputs).status, 0);
    QCOMPARE(without.files(), (QStringList{QStringLiteral("n.vhd"), QStringLiteral("n_tmp.vhd")}));
}

void tst_Outputs::verilogNeverCopiesAnAdditionalModel()
{
    Workplace place(0);
    QVERIFY(QFileInfo::exists(place.dir.filePath(QStringLiteral("t/n.vho"))));
    QCOMPARE(collect(0, place.outputs).status, 0);
    QVERIFY(!place.files().contains(QStringLiteral("n.vho")));
}

void tst_Outputs::aFailedRunCopiesNothing()
{
    Workplace place(0);
    const Collection result = collect(7, place.outputs);
    QCOMPARE(result.status, 7);
    QCOMPARE(result.errors, QStringList{QStringLiteral("detail")});
    QCOMPARE(place.files(), QStringList());
    QCOMPARE(m_decoded.count, 0);
}

void tst_Outputs::aMissingTemplateIsAnError()
{
    Workplace place(0);
    QVERIFY(QFile::remove(place.outputs.copied.at(1).source));
    const Collection result = collect(0, place.outputs);
    QCOMPARE(result.status, -1);
    QCOMPARE(result.errors.size(), 1);
    QVERIFY2(result.errors.first().contains(place.outputs.copied.at(1).source),
             qPrintable(result.errors.first()));
    QCOMPARE(m_decoded.count, 0);
}

void tst_Outputs::aMissingNetlistLeavesTheTemplateAlone()
{
    Workplace place(0);
    QVERIFY(QFile::remove(place.outputs.copied.at(0).source));
    const Collection result = collect(0, place.outputs);
    QCOMPARE(result.status, -1);
    QVERIFY(result.errors.value(0).contains(place.outputs.copied.at(0).source));
    QCOMPARE(place.files(), QStringList());
}

void tst_Outputs::anUncopyableModelIsAnErrorOfItsOwn()
{
    Workplace place(1);
    QVERIFY(QDir().mkpath(place.outputs.copied.at(2).file));
    QVERIFY(QFile::remove(place.outputs.copied.at(0).source));
    const Collection result = collect(0, place.outputs);
    QCOMPARE(result.status, -1);
    QCOMPARE(result.errors.size(), 2);
    QVERIFY(result.errors.at(0).contains(place.outputs.copied.at(0).source));
    QVERIFY(result.errors.at(1).contains(place.outputs.copied.at(2).file));
}

void tst_Outputs::aFailedDecodingIsTheStatus()
{
    Workplace place(0);
    const Collection result = collect(0, place.outputs, 5);
    QCOMPARE(result.status, 5);
    QCOMPARE(result.errors, QStringList{QStringLiteral("said")});
    QCOMPARE(place.files().size(), 2);
}

void tst_Outputs::anUnknownToolRunsWithEmptyPaths()
{
    const Outputs outputs =
        buildOutputs(toolNamed(QStringLiteral("Another")), Language::Verilog, QStringLiteral("/t"),
                     QStringLiteral("/o"), QStringLiteral("n"));
    const Collection result = collect(0, outputs);
    QCOMPARE(result.status, -1);
    QCOMPARE(result.errors.size(), 1);
    QVERIFY(!result.errors.first().isEmpty());
}

TARVO_TEST_MAIN(QCoreApplication, tst_Outputs)

#include "tst_outputs.moc"

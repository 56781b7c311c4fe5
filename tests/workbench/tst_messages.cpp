#include <testsupport.h>

#include <workbench/language/languages.h>
#include <workbench/messages/messagemodel.h>
#include <workbench/messages/messagesview.h>
#include <workbench/messages/runsummary.h>
#include <workbench/results/resultpage.h>
#include <workbench/results/resulttables.h>

#include <dev/devicedb.h>
#include <ipcore/pinfigureview.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

using namespace Workbench;

namespace
{

Synthesis::RunReport sampleReport()
{
    Synthesis::RunReport report;
    report.job.targetName = QStringLiteral("lamp");
    report.job.device = DEV::DeviceDb::bundled().devices().first();
    report.summary = QStringLiteral("12 LUTs are used.");
    report.milliseconds = 1500;
    Synthesis::Message warning;
    warning.severity = Synthesis::Message::Warning;
    warning.file = QStringLiteral("/p/a.v");
    warning.line = 7;
    warning.text = QStringLiteral("a wire has no driver");
    warning.count = 3;
    Synthesis::Message error;
    error.text = QStringLiteral("it failed");
    report.messages = {warning, error};
    report.cells = {{QStringLiteral("TV_LUT4"), 12, false}, {QStringLiteral("CORE"), 1, true}};
    report.resources = {{QStringLiteral("LUT4"), 12, 10}, {QStringLiteral("Carry"), 3, -1}};
    report.ports = {{QStringLiteral("clk"), QStringLiteral("input"), 0, 0, false},
                    {QStringLiteral("led"), QStringLiteral("output"), 7, 0, true},
                    {QStringLiteral("pad"), QStringLiteral("inout"), 0, 0, false}};
    report.files =
        QStringList{QStringLiteral("/p/temp/lamp_tmp.v"), QStringLiteral("/p/temp/lamp.vg")};
    report.logFile = QStringLiteral("/p/temp/lamp.log");
    return report;
}

} // namespace

class TestMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What the host says of figures stands in the language of the window; what a tool says stays.
    void figuresOfARunAreToldInTheLanguageOfTheWindow()
    {
        Synthesis::RunReport report;
        report.resources = {{QStringLiteral("LUT4"), 121, 20000},
                            {QStringLiteral("Carry"), 0, 10},
                            {QStringLiteral("Pins"), 3, -1}};
        const int percent = report.resources.first().percent();
        report.summary = QStringLiteral("Used 121 LUT4 (%1 %), 3 Pins.").arg(percent);
        QCOMPARE(shownSummary(report), report.summary);
        const Languages german(QStringLiteral("de"));
        QCOMPARE(shownSummary(report),
                 QStringLiteral("Belegt: 121 LUT4 (%1 %), 3 Pins.").arg(percent));
        report.cells = {{QStringLiteral("Core"), 1, true}, {QStringLiteral("LUT"), 5, false}};
        report.summary += QStringLiteral(" Not counted are the contents of black boxes: 1 Core.");
        QVERIFY(shownSummary(report).endsWith(
            QStringLiteral("Nicht gezählt ist der Inhalt der Blackboxes: 1 Core.")));
        MessageModel model;
        model.setReport(report);
        QCOMPARE(model.index(0, 0).data().toString(), shownSummary(report));
        report.summary = QStringLiteral("The tool says no.");
        QCOMPARE(shownSummary(report), report.summary);
    }

    void columnsWithoutAWordTakeNoRoom()
    {
        MessageModel model;
        const MessagesView view(&model);
        const auto *list = view.findChild<QTreeView *>();
        const auto shown = [list] {
            return QVector<bool>{!list->isColumnHidden(MessageModel::File),
                                 !list->isColumnHidden(MessageModel::Line)};
        };
        QCOMPARE(shown(), (QVector<bool>{false, false}));
        model.append(MessageModel::Note, QStringLiteral("said"));
        QCOMPARE(shown(), (QVector<bool>{false, false}));
        model.append(MessageModel::Note, QStringLiteral("said"), QStringLiteral("/a.log"));
        QCOMPARE(shown(), (QVector<bool>{true, false}));
        model.append(MessageModel::Error, QStringLiteral("wrong"), QStringLiteral("/a.v"), 7);
        QCOMPARE(shown(), (QVector<bool>{true, true}));
        model.clear();
        QCOMPARE(shown(), (QVector<bool>{false, false}));
    }

    void listHasSummaryThenErrorsThenWarnings()
    {
        MessageModel model;
        const QAbstractItemModelTester tester(&model);
        model.setReport(sampleReport());
        QCOMPARE(model.rowCount(), 3);
        const auto text = [&model](int row) { return model.index(row, 0).data().toString(); };
        QCOMPARE(text(0), QStringLiteral("lamp: 12 LUTs are used."));
        QCOMPARE(text(1), QStringLiteral("it failed"));
        QCOMPARE(text(2), QStringLiteral("a wire has no driver (3 times)"));
        QCOMPARE(model.index(2, MessageModel::File).data().toString(), QStringLiteral("a.v"));
        QCOMPARE(model.index(2, MessageModel::Line).data().toInt(), 7);
        QCOMPARE(model.index(2, 0).data(MessageModel::PathRole).toString(),
                 QStringLiteral("/p/a.v"));
        QCOMPARE(model.count(MessageModel::Error), 1);
        QCOMPARE(model.count(MessageModel::Warning), 1);
    }

    void summaryOfAFailureIsAnError()
    {
        Synthesis::RunReport report = sampleReport();
        report.exitCode = 1;
        MessageModel model;
        model.setReport(report);
        QCOMPARE(model.index(0, 0).data(MessageModel::SeverityRole).toInt(),
                 int(MessageModel::Error));
        report.cancelled = true; // asked for: no error
        model.setReport(report);
        QCOMPARE(model.index(0, 0).data(MessageModel::SeverityRole).toInt(),
                 int(MessageModel::Summary));
    }

    void listStaysUntilTheNextReport()
    {
        MessageModel model;
        const QAbstractItemModelTester tester(&model);
        model.setReport(sampleReport());
        model.append(MessageModel::Warning, QStringLiteral("one more"));
        QCOMPARE(model.rowCount(), 4);
        model.setReport(sampleReport());
        QCOMPARE(model.rowCount(), 3);
        model.clear();
        QCOMPARE(model.rowCount(), 0);
    }

    void copiesAsText()
    {
        MessageModel model;
        model.setReport(sampleReport());
        MessagesView view(&model);
        view.copy();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QStringLiteral("Summary: lamp: 12 LUTs are used.\n"
                                "Error: it failed\n"
                                "Warning: /p/a.v:7: a wire has no driver (3 times)\n"));
        view.findChild<QTreeView *>()->setCurrentIndex(model.index(2, 0));
        view.copy();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QStringLiteral("Warning: /p/a.v:7: a wire has no driver (3 times)\n"));
    }

    void enterOpensTheFileAtTheLine()
    {
        MessageModel model;
        model.setReport(sampleReport());
        MessagesView view(&model);
        view.show();
        QSignalSpy opened(&view, &MessagesView::openRequested);
        auto *list = view.findChild<QTreeView *>();
        list->setCurrentIndex(model.index(1, 0)); // an error without a place
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(opened.size(), 0);
        list->setCurrentIndex(model.index(2, 0));
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(opened.size(), 1);
        QCOMPARE(opened.first().at(0).toString(), QStringLiteral("/p/a.v"));
        QCOMPARE(opened.first().at(1).toInt(), 7);
    }

    void stepsThroughTheMessagesWithAPlace()
    {
        MessageModel model;
        model.setReport(sampleReport());
        MessagesView view(&model);
        QSignalSpy opened(&view, &MessagesView::openRequested);
        view.step(1);
        view.step(1); // round the end: the only one again
        view.step(-1);
        QCOMPARE(opened.size(), 3);
        model.clear();
        view.step(1);
        QCOMPARE(opened.size(), 3);
    }

    void portsBecomePins()
    {
        const QList<Utils::PinFigure> pins = pinsOf(sampleReport().ports);
        QCOMPARE(pins.size(), 3);
        QCOMPARE(pins.at(0), Utils::PinFigure(QStringLiteral("clk"), Utils::PinFigure::Input, false,
                                              Qt::AlignLeft));
        QCOMPARE(pins.at(1), Utils::PinFigure(QStringLiteral("led[7:0]"), Utils::PinFigure::Output,
                                              true, Qt::AlignRight));
        QCOMPARE(pins.at(2),
                 Utils::PinFigure(QStringLiteral("pad"), Utils::PinFigure::Bidirectional, false,
                                  Qt::AlignRight));
    }

    void tablesShowCountsAgainstTotals()
    {
        ResourceModel resources;
        CellModel cells;
        const QAbstractItemModelTester resourceTester(&resources);
        const QAbstractItemModelTester cellTester(&cells);
        resources.setResources(sampleReport().resources);
        cells.setCells(sampleReport().cells);
        QCOMPARE(resources.index(0, ResourceModel::Used).data().toString(), QStringLiteral("12"));
        QCOMPARE(resources.index(0, ResourceModel::Percent).data().toString(),
                 QStringLiteral("120 %"));
        QVERIFY(resources.index(0, 0).data(Qt::DecorationRole).isValid()); // too many
        QCOMPARE(resources.index(1, ResourceModel::Available).data().toString(),
                 QStringLiteral("not known"));
        QVERIFY(!resources.index(1, 0).data(Qt::DecorationRole).isValid());
        QCOMPARE(cells.index(1, CellModel::Cell).data().toString(),
                 QStringLiteral("CORE (black box)"));
        QCOMPARE(cells.index(0, CellModel::Count).data().toString(), QStringLiteral("12"));
    }

    void resultPageShowsTheReport()
    {
        ResultPage page;
        page.setReport(sampleReport());
        QCOMPARE(page.figure()->pins().size(), 3);
        QCOMPARE(page.figure()->label(), QStringLiteral("lamp"));
        QVERIFY(page.findChild<QLabel *>(QStringLiteral("resultHeading"))
                    ->text()
                    .contains(sampleReport().job.device.partNumber()));
        QVERIFY(page.findChild<QLabel *>(QStringLiteral("resultSummary"))
                    ->text()
                    .contains(QLatin1String("12 LUTs are used.")));
        QCOMPARE(page.files().size(), 3);
        page.setDelivered({QStringLiteral("/p/lamp.v"), QStringLiteral("/p/temp/lamp.vg")});
        QCOMPARE(page.files().size(), 4);
        auto *list = page.findChild<QListWidget *>();
        QCOMPARE(list->item(0)->text(), QStringLiteral("lamp.v"));
        QCOMPARE(list->item(2)->text(), QStringLiteral("temp/lamp_tmp.v"));
        QSignalSpy opened(&page, &ResultPage::openRequested);
        page.show();
        auto *change = page.findChild<QPushButton *>(QStringLiteral("changeIpButton"));
        QVERIFY(change->isHidden()); // no configuration among the files
        page.setDelivered({QStringLiteral("/p/lamp.v"), QStringLiteral("/p/lamp.ipc")});
        QVERIFY(!change->isHidden());
        change->click();
        QCOMPARE(opened.takeFirst().first().toString(), QStringLiteral("/p/lamp.ipc"));
        list->setCurrentRow(0);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(opened.size(), 1);
        QCOMPARE(opened.first().first().toString(), QStringLiteral("/p/lamp.v"));
    }
};

TARVO_TEST_MAIN(QApplication, TestMessages)
#include "tst_messages.moc"

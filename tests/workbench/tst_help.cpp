#include "hands.h"

#include <workbench/editor/editorpage.h>
#include <workbench/editor/findbar.h>
#include <workbench/results/tablefiles.h>
#include <workbench/widgets/windowplace.h>
#include <workbench/window/aboutdialog.h>
#include <workbench/window/helpdesk.h>
#include <workbench/window/helpwindow.h>

#include <QClipboard>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

using namespace Workbench;
using namespace TestSupport;

// The guide's window, what Help > About tells, and what File > Export writes.
class TestHelp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench = std::make_unique<Bench>("taking"); }
    void cleanup() { m_bench.reset(); }

    void theContentsAreTheHeadingsAndLeadToThem()
    {
        HelpWindow *help = guide();
        const QVector<HelpBrowser::Heading> headings = help->browser()->headings();
        QVERIFY(headings.size() > 30);
        auto *contents = help->findChild<QTreeWidget *>(QStringLiteral("helpContents"));
        int row = 0;
        for (QTreeWidgetItemIterator it(contents); *it; ++it, ++row) {
            QCOMPARE((*it)->text(0), headings.at(row).text);
            Q_EMIT contents->itemActivated(*it, 0);
            const QTextCursor cursor = help->browser()->textCursor();
            QCOMPARE(cursor.block().text(), headings.at(row).text);
            // It is seen, at the top unless the text ends before.
            const int top = help->browser()->cursorRect(cursor).top();
            QVERIFY(top >= 0 && top < help->browser()->viewport()->height());
        }
        QCOMPARE(row, headings.size());
    }

    void tablesKeepTheirWords()
    {
        HelpWindow *help = guide();
        const HelpBrowser *browser = help->browser();
        // Texts that are written without blanks break between their characters.
        const auto isWord = [](QChar c) { return c.unicode() < 128 && c.isLetterOrNumber(); };
        for (const int width : {500, 1000}) {
            help->resize(width, 500);
            QCoreApplication::processEvents();
            int lines = 0;
            for (QTextBlock block = browser->document()->begin(); block.isValid();
                 block = block.next()) {
                for (int i = 1; i < block.layout()->lineCount(); ++i, ++lines) {
                    const int start = block.layout()->lineAt(i).textStart();
                    QVERIFY2(!isWord(block.text().at(start - 1)) || !isWord(block.text().at(start)),
                             qPrintable(block.text().mid(start - 12, 24)));
                }
            }
            QVERIFY(lines > 100);
        }
        QCOMPARE(browser->horizontalScrollBar()->maximum(), 0);
    }

    void theContentsFollowTheText()
    {
        HelpWindow *help = guide();
        auto *contents = help->findChild<QTreeWidget *>(QStringLiteral("helpContents"));
        const auto current = [contents] {
            return contents->currentItem() ? contents->currentItem()->text(0) : QString();
        };
        help->browser()->verticalScrollBar()->setValue(0);
        QTRY_COMPARE(current(), QStringLiteral("User guide"));
        QUrl url = help->browser()->source();
        url.setFragment(QStringLiteral("memory-map"));
        help->browser()->setSource(url);
        QTRY_COMPARE(current(), QStringLiteral("Memory map"));
    }

    void aSearchListsEveryPlaceAndLeadsThere()
    {
        HelpWindow *help = guide();
        auto *edit = help->findChild<QLineEdit *>(QStringLiteral("helpFindEdit"));
        auto *results = help->findChild<QTreeWidget *>(QStringLiteral("helpResults"));
        auto *found = help->findChild<QLabel *>(QStringLiteral("helpFound"));
        edit->setText(QStringLiteral("rEplace all"));
        int count = 0;
        for (QTextBlock block = help->browser()->document()->begin(); block.isValid();
             block = block.next())
            count += block.text().contains(edit->text(), Qt::CaseInsensitive);
        QVERIFY(count > 0);
        QCOMPARE(results->topLevelItemCount(), count);
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(help->browser()->textCursor().selectedText().toLower(),
                 QStringLiteral("replace all"));
        edit->setText(QStringLiteral("no such words at all"));
        QCOMPARE(results->topLevelItemCount(), 0);
        QCOMPARE(found->text(), QStringLiteral("Not found"));
        edit->setText(QStringLiteral("e"));
        QVERIFY(results->topLevelItemCount() >= 100);
        QVERIFY(!found->text().isEmpty());
    }

    void theKeyboardAloneLeadsEverywhere()
    {
        HelpWindow *help = guide();
        QTest::keyClick(help->browser(), Qt::Key_F, Qt::ControlModifier);
        auto *edit = help->findChild<QLineEdit *>(QStringLiteral("helpFindEdit"));
        QTRY_VERIFY(edit->hasFocus());
        QTest::keyClicks(edit, QStringLiteral("memory map"));
        QTest::keyClick(edit, Qt::Key_Return);
        auto *results = help->findChild<QTreeWidget *>(QStringLiteral("helpResults"));
        QTRY_VERIFY(results->hasFocus());
        QTest::keyClick(results, Qt::Key_Escape);
        QTRY_VERIFY(help->browser()->hasFocus());
        QTest::keyClick(help->browser(), Qt::Key_1, Qt::ControlModifier);
        auto *contents = help->findChild<QTreeWidget *>(QStringLiteral("helpContents"));
        QTRY_VERIFY(contents->hasFocus());
        const int size = help->browser()->font().pointSize();
        QTest::keyClick(help->browser(), Qt::Key_Plus, Qt::ControlModifier);
        QTRY_VERIFY(help->browser()->font().pointSize() > size);
        QTest::keyClick(help->browser(), Qt::Key_0, Qt::ControlModifier);
        QTRY_COMPARE(help->browser()->font().pointSize(), size);
        QTest::keyClick(help->browser(), Qt::Key_Escape);
        QTRY_VERIFY(!help->isVisible());
    }

    void everyPlaceOfTheWindowHasItsSection()
    {
        HelpWindow *help = guide();
        const QStringList all = HelpDesk::headings();
        QVERIFY(all.size() > 8);
        for (const QString &heading : all) {
            help->browser()->moveCursor(QTextCursor::Start);
            QUrl url = help->browser()->source();
            url.setFragment(heading);
            help->browser()->setSource(url);
            QVERIFY2(help->browser()->textCursor().block().blockFormat().headingLevel() > 0 &&
                         (help->browser()->textCursor().position() > 0),
                     qPrintable(heading));
        }
    }

    void f1OpensTheSectionAboutThePlace()
    {
        const QString source = m_bench->folder() + QStringLiteral("/a.v");
        write(source, "module a;\nendmodule\n");
        m_bench->window->openPath(source);
        EditorPage *page = m_bench->window->tabs()->currentPage();
        QCOMPARE(HelpDesk::headingFor(page->findBar()), QStringLiteral("find-and-replace"));
        QCOMPARE(HelpDesk::headingFor(nullptr), QString());
        page->findBar()->start();
        auto *edit = page->findBar()->findChild<QLineEdit *>();
        QTRY_VERIFY(edit->hasFocus());
        QVERIFY(m_bench->action("Contents")->shortcuts().contains(QKeySequence(Qt::Key_F1)));
        m_bench->action("Contents")->trigger();
        QCOMPARE(m_bench->window->help()->browser()->textCursor().block().text(),
                 QStringLiteral("Find and replace"));
    }

    void theWindowComesBackWhereItWasAndAsLarge()
    {
        m_bench->action("Contents")->trigger();
        HelpWindow *help = m_bench->window->help();
        const QSize size = help->size() - QSize(50, 40);
        const QPoint place(37, 21);
        help->resize(size);
        help->move(place);
        help->browser()->zoomBy(1);
        help->browser()->zoomBy(2);
        QCOMPARE(help->browser()->zoom(), 3);
        const int points = help->browser()->font().pointSize();
        help->close();
        m_bench->reopen();
        m_bench->action("Contents")->trigger();
        help = m_bench->window->help();
        QCOMPARE(help->size(), size);
        QCOMPARE(help->pos(), place);
        QCOMPARE(help->browser()->zoom(), 3);
        QCOMPARE(help->browser()->font().pointSize(), points);
        help->browser()->zoomBy(0);
        m_bench->settings.setValue(QStringLiteral("window/help"), QRect(-70000, 5, 300, 99000));
        m_bench->reopen();
        m_bench->action("Contents")->trigger();
        help = m_bench->window->help();
        QCOMPARE(help->browser()->zoom(), 0);
        const QRect screen = help->screen()->availableGeometry();
        QVERIFY(screen.contains(help->frameGeometry()));
    }

    void aPlaceIsOnAScreenThatThereIs_data()
    {
        QTest::addColumn<QRect>("kept");
        QTest::addColumn<QSize>("least");
        QTest::addColumn<QRect>("place");
        const QSize none;
        QTest::newRow("as it was") << QRect(10, 20, 300, 200) << none << QRect(10, 20, 300, 200);
        QTest::newRow("in a corner")
            << QRect(700, 550, 300, 200) << none << QRect(700, 550, 300, 200);
        QTest::newRow("on the second")
            << QRect(1100, 20, 300, 200) << none << QRect(1100, 20, 300, 200);
        QTest::newRow("mostly on the second")
            << QRect(900, 20, 300, 200) << none << QRect(1000, 20, 300, 200);
        QTest::newRow("on none") << QRect(5000, 5000, 300, 200) << none
                                 << QRect(690, 510, 300, 200);
        QTest::newRow("above") << QRect(10, -30, 300, 200) << none << QRect(10, 0, 300, 200);
        QTest::newRow("too large") << QRect(10, 20, 3000, 2000) << none << QRect(0, 0, 990, 710);
        QTest::newRow("too high for the second")
            << QRect(1100, 20, 300, 700) << none << QRect(1100, 0, 300, 560);
        QTest::newRow("too small for itself")
            << QRect(10, 20, 30, 20) << QSize(300, 200) << QRect(10, 20, 300, 200);
        QTest::newRow("too small in a corner")
            << QRect(900, 700, 30, 20) << QSize(300, 200) << QRect(690, 510, 300, 200);
        QTest::newRow("larger than all screens")
            << QRect(1300, 700, 30, 20) << QSize(2000, 200) << QRect(0, 510, 2000, 200);
    }
    void aPlaceIsOnAScreenThatThereIs()
    {
        QFETCH(QRect, kept);
        QFETCH(QSize, least);
        QFETCH(QRect, place);
        const QVector<QRect> screens{{0, 0, 1000, 750}, {1000, 0, 800, 600}};
        QCOMPARE(WindowPlace::onScreen(kept, QSize(10, 40), least, screens), place);
    }

    void everyComponentHasALicenceAndStandsOnce()
    {
        const QVector<Component> all = components();
        QVERIFY(all.size() > 8);
        QSet<QString> names;
        for (const Component &component : all) {
            QVERIFY2(!component.name.isEmpty() && !component.purpose.isEmpty(),
                     qPrintable(component.name));
            QVERIFY2(!component.licence.isEmpty() && !component.licence.contains(u','),
                     qPrintable(component.name));
            QVERIFY2(!names.contains(component.name), qPrintable(component.name));
            QVERIFY2(!component.package.isEmpty(), qPrintable(component.name));
            QCOMPARE(component.program.isEmpty(), component.versionArgument.isEmpty());
            names.insert(component.name);
        }
    }

    void aboutTellsVersionsAndCopiesThem()
    {
        AboutDialog dialog(QStringLiteral("1.2.3"), {QStringLiteral("Lamp 4.5")},
                           QStringLiteral("/settings.ini"), nullptr);
        dialog.show();
        auto *list = dialog.findChild<QTreeWidget *>(QStringLiteral("componentList"));
        QCOMPARE(list->topLevelItemCount(), components().size());
        const auto isWaiting = [list] {
            return !list->findItems(QStringLiteral("…"), Qt::MatchExactly, 1).isEmpty();
        };
        QTRY_VERIFY_WITH_TIMEOUT(!isWaiting(), 30000);
        const auto ofQt = list->findItems(QStringLiteral("Qt 5"), Qt::MatchStartsWith);
        QVERIFY(!ofQt.isEmpty());
        for (const QTreeWidgetItem *item : ofQt)
            QCOMPARE(item->text(1), QString::fromLatin1(qVersion()));
        dialog.findChild<QPushButton *>(QStringLiteral("copyButton"))->click();
        const QString copied = QGuiApplication::clipboard()->text();
        for (const QString &piece :
             {QStringLiteral("1.2.3"), QStringLiteral("Lamp 4.5"), QStringLiteral("/settings.ini"),
              QString::fromLatin1(qVersion()), QStringLiteral("GPL-2.0-only"),
              QStringLiteral("libunicorn-dev")})
            QVERIFY2(copied.contains(piece), qPrintable(piece + u'\n' + copied));
    }

    void aboutDoesNotWaitForASlowProgram()
    {
        const QString folder = m_bench->folder() + QStringLiteral("/bin");
        QDir().mkpath(folder);
        write(folder + QStringLiteral("/yosys"), "#!/bin/sh\nexec sleep 1000\n");
        QFile::setPermissions(folder + QStringLiteral("/yosys"),
                              QFile::ReadOwner | QFile::ExeOwner);
        const QByteArray before = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(folder) + ':' + before);
        {
            AboutDialog dialog({}, {}, {}, nullptr);
            dialog.show();
            QVERIFY(dialog.report().contains(QLatin1String("Yosys")));
        } // and the program has gone with it
        qputenv("PATH", before);
    }

    void tablesAreReadBackAsTheyWere()
    {
        Synthesis::RunReport report;
        report.resources.append({QStringLiteral("LUT4"), 12, 100});
        report.resources.append({QStringLiteral("odd, \"one\" | two"), 3, -1});
        report.cells.append({QStringLiteral("LUT"), 7, true});
        report.ports.append({QStringLiteral("HCLK"), QStringLiteral("input"), 0, 0, false});
        report.ports.append({QStringLiteral("GPIO"), QStringLiteral("inout"), 15, 0, true});
        using namespace TableFiles;
        const Contents resources = tableOf(report, Table::Resources);
        QCOMPARE(csvOf(resources), QByteArray("resource,used,available,percent\nLUT4,12,100,12\n"
                                              "\"odd, \"\"one\"\" | two\",3,,\n"));
        const QJsonArray rows = QJsonDocument::fromJson(jsonOf(resources)).array();
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[0].toObject()[QStringLiteral("used")].toInt(), 12);
        QVERIFY(rows[1].toObject()[QStringLiteral("available")].isNull());
        QCOMPARE(markdownOf(resources),
                 QByteArray("| resource | used | available | percent |\n"
                            "| --- | ---: | ---: | ---: |\n| LUT4 | 12 | 100 | 12 |\n"
                            "| odd, \"one\" \\| two | 3 |  |  |\n"));
        QCOMPARE(csvOf(tableOf(report, Table::Cells)),
                 QByteArray("cell,count,blackBox\nLUT,7,true\n"));
        QCOMPARE(csvOf(tableOf(report, Table::Ports)),
                 QByteArray("port,direction,msb,lsb\nHCLK,input,,\nGPIO,inout,15,0\n"));
        QCOMPARE(jsonOf(tableOf({}, Table::Cells)), QByteArray("[]\n"));
    }

    void aTableIsWrittenWholeOrNotAtAll()
    {
        QString error;
        const QString folder = m_bench->folder();
        for (const TableFiles::Table table : TableFiles::tables()) {
            const auto contents = TableFiles::tableOf({}, table);
            for (const char *ending : {".csv", ".json", ".md", ".CSV"}) {
                const QString path =
                    folder + u'/' + TableFiles::fileNameOf(table) + QLatin1String(ending);
                QVERIFY2(TableFiles::write(contents, path, &error), qPrintable(error));
                QVERIFY(!contentsOf(path).isEmpty());
            }
            const QString other = folder + QStringLiteral("/table.xls");
            QVERIFY(!TableFiles::write(contents, other, &error));
            QVERIFY2(error.contains(other) && error.contains(QLatin1String(".csv")),
                     qPrintable(error));
            QVERIFY(!QFileInfo::exists(other));
            const QString nowhere = folder + QStringLiteral("/none/table.csv/x.csv");
            write(folder + QStringLiteral("/none"), "");
            QVERIFY(!TableFiles::write(contents, nowhere, &error));
            QVERIFY2(error.contains(QLatin1String("none")), qPrintable(error));
        }
    }

    void exportsWhatThereIs()
    {
        m_bench->window->openProject(m_bench->makeProject());
        QVERIFY(!m_bench->action("Block Diagram")->isEnabled());
        QVERIFY(!m_bench->action("Resources")->isEnabled()); // there was no run
        QString error;
        const QString picture = m_bench->folder() + QStringLiteral("/a.svg");
        QVERIFY(!m_bench->window->exportDiagramOf(m_bench->folder() + QStringLiteral("/no.ipc"),
                                                  picture, &error));
        QVERIFY2(error.contains(QLatin1String("no.ipc")), qPrintable(error));
        QVERIFY(!QFileInfo::exists(picture));
        QVERIFY(!m_bench->window->exportTableTo(0, m_bench->folder() + QStringLiteral("/a.csv"),
                                                &error));
        QVERIFY(!error.isEmpty());
    }

private:
    HelpWindow *guide()
    {
        m_bench->window->showGuide();
        QApplication::setActiveWindow(m_bench->window->help());
        m_bench->window->help()->browser()->setFocus();
        return m_bench->window->help();
    }

    std::unique_ptr<Bench> m_bench;
};

TARVO_TEST_MAIN(QApplication, TestHelp)
#include "tst_help.moc"

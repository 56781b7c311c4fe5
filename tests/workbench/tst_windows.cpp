#include "hands.h"

#include <longertexts.h>
#include <windowwalk.h>

#include <workbench/catalogue/pluginlist.h>
#include <workbench/companion/companion.h>
#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/editor/findbar.h>
#include <workbench/language/languages.h>
#include <workbench/messages/logview.h>
#include <workbench/results/resultpage.h>
#include <workbench/simulation/simulationpage.h>
#include <workbench/simulation/simulationrun.h>
#include <workbench/software/programpart.h>
#include <workbench/software/softwarepage.h>
#include <workbench/widgets/colours.h>
#include <workbench/widgets/infobar.h>
#include <workbench/widgets/programstyle.h>
#include <workbench/window/helpwindow.h>
#include <workbench/window/startpage.h>

#include <ipcore/synthesishelper.h>
#include <ipcore/synthesismonitor.h>

#include <QClipboard>
#include <QCommandLinkButton>
#include <QDialog>
#include <QDirIterator>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QTextBlock>
#include <QToolButton>
#include <QTreeView>

using namespace Workbench;
using namespace TestSupport;

class TestWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench = std::make_unique<Bench>("taking"); }
    void cleanup()
    {
        m_bench.reset();
        m_longerTexts.reset();
        m_languages.reset();
        QApplication::setFont(m_font);
    }

    void noMenuMarksAKeyTwice()
    {
        openEverything();
        QMetaObject::invokeMethod(m_bench->action("New Project"), "hover"); // menus are made
        const auto menus = window()->findChildren<QMenu *>();
        QVERIFY(menus.size() >= 7);
        for (QMenu *menu : menus) {
            Q_EMIT menu->aboutToShow();
            QStringList texts;
            for (const QAction *action : menu->actions())
                texts.append(action->text());
            QCOMPARE(sharedMnemonics(texts).join(u';'), QString());
        }
    }

    void noWindowMarksAKeyTwice_data() { addScenes(); }
    void noWindowMarksAKeyTwice()
    {
        show([](QWidget *window) {
            QStringList texts = mnemonicTexts(window);
            QVERIFY(!texts.isEmpty());
            // As some desktops have them.
            if (auto *buttons = window->findChild<QDialogButtonBox *>()) {
                if (buttons->button(QDialogButtonBox::Cancel)) {
                    texts.removeAll(buttons->button(QDialogButtonBox::Cancel)->text());
                    texts.append(QStringLiteral("&Cancel"));
                }
            }
            QCOMPARE(sharedMnemonics(texts).join(u';'), QString());
        });
    }

    void noLanguageMarksAKeyTwice_data() { addScenesInLanguages(); }
    void noLanguageMarksAKeyTwice()
    {
        QFETCH(QString, scene);
        QFETCH(QString, language);
        speak([&] { m_languages = std::make_unique<Languages>(language); });
        show([](QWidget *window) {
            QCOMPARE(sharedMnemonics(mnemonicTexts(window)).join(u';'), QString());
        });
        if (scene != QLatin1String("results"))
            return;
        QMetaObject::invokeMethod(m_bench->action("New Project"), "hover"); // menus are made
        const auto menus = window()->findChildren<QMenu *>();
        QVERIFY(menus.size() >= 7);
        for (QMenu *menu : menus) {
            Q_EMIT menu->aboutToShow();
            QStringList texts;
            for (const QAction *action : menu->actions())
                texts.append(action->text());
            QCOMPARE(sharedMnemonics(texts).join(u';'), QString());
        }
    }

    void noWindowCutsALongerText_data() { addScenes(); }
    void noWindowCutsALongerText()
    {
        speak([this] {
            m_longerTexts = std::make_unique<LongerTexts>();
            QCoreApplication::installTranslator(m_longerTexts.get());
        });
        show([](QWidget *window) {
            QStringList cut = cutOff(window, smallScreen());
            QCoreApplication::processEvents(); // labels that break their lines
            cut += cutTexts(window);
            QVERIFY2(cut.isEmpty(), qPrintable(cut.join(u'\n')));
        });
    }

    void theStartPageIsWholeInTheSmallestWindow_data()
    {
        QTest::addColumn<QString>("scene");
        for (const char *scene : {"start", "project"})
            QTest::newRow(scene) << QString::fromLatin1(scene);
    }
    void theStartPageIsWholeInTheSmallestWindow()
    {
        show([](QWidget *window) {
            window->resize(1, 1);
            QCoreApplication::processEvents();
            QCoreApplication::processEvents(); // what follows a change of the height
            const QStringList found = sidewaysPages(window) + misplaced(window);
            QCOMPARE(found.join(u'\n'), QString());
        });
    }

    void focusIsSeenWhereverTabLeads_data() { addScenes(); }
    void focusIsSeenWhereverTabLeads()
    {
        show([](QWidget *window) {
            const TabWalk walk(window);
            QVERIFY(!walk.stops.isEmpty());
            QCOMPARE(walk.unseen().join(u';'), QString());
        });
    }

    void everyWidgetHasANameAndIsReachedByTab_data() { addScenes(); }
    void everyWidgetHasANameAndIsReachedByTab()
    {
        show([](QWidget *window) {
            const QAccessible::Role role = QAccessible::queryAccessibleInterface(window)->role();
            QVERIFY2(role == QAccessible::Window || role == QAccessible::Dialog ||
                         role == QAccessible::AlertMessage,
                     qPrintable(QString::number(role)));
            QVERIFY(!interactiveWidgets(window).isEmpty());
            const auto parts = window->findChildren<QWidget *>();
            for (QWidget *part : parts) {
                if (!part->isWindow() && !part->inherits("QDockWidget"))
                    QVERIFY2(QAccessible::queryAccessibleInterface(part)->role() !=
                                 QAccessible::Window,
                             qPrintable(nameOf(part)));
            }
            QCOMPARE(unnamed(window).join(u';'), QString());
            const TabWalk walk(window, 400, false);
            QCOMPARE(unreached(window, walk).join(u';'), QString());
        });
    }

    void linksSayWhatTheyDo()
    {
        const auto links = window()->findChild<StartPage *>()->findChildren<QCommandLinkButton *>();
        QVERIFY(links.size() >= 2);
        for (QCommandLinkButton *link : links) {
            QVERIFY(!link->description().isEmpty());
            QCOMPARE(QAccessible::queryAccessibleInterface(link)->text(QAccessible::Description),
                     link->description());
        }
    }

    void addedColoursCanBeReadInEveryTheme_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << m_palette;
        QTest::newRow("dark") << themed(QColor(49, 54, 59), QColor(35, 38, 41),
                                        QColor(239, 240, 241), QColor(61, 174, 233));
        QTest::newRow("sepia") << themed(QColor(238, 232, 213), QColor(253, 246, 227),
                                         QColor(60, 60, 60), QColor(38, 139, 210));
        QTest::newRow("black") << themed(Qt::black, Qt::black, Qt::white, Qt::yellow);
        QTest::newRow("white") << themed(Qt::white, Qt::white, Qt::black, Qt::blue);
    }
    void addedColoursCanBeReadInEveryTheme()
    {
        QFETCH(QPalette, palette);
        QVERIFY(qAbs(Colours::contrast(Qt::black, Qt::white) - 21) < 0.01);
        QVERIFY(qAbs(Colours::contrast(QColor(119, 119, 119), Qt::white) - 4.48) < 0.01);
        const QVector<Colours::Use> uses = Colours::uses(palette);
        QVERIFY(uses.size() >= 9);
        for (const Colours::Use &use : uses) {
            QVERIFY(use.ratio >= Colours::markContrast);
            QVERIFY2(Colours::contrast(use.ink, use.paper) >= use.ratio, use.name);
        }
        // What is always read with the palette's own.
        for (const auto &[ink, paper] : {std::pair{QPalette::WindowText, QPalette::Window},
                                         std::pair{QPalette::Text, QPalette::Base},
                                         std::pair{QPalette::Text, QPalette::AlternateBase},
                                         std::pair{QPalette::ButtonText, QPalette::Button}})
            QVERIFY(Colours::contrast(palette.color(ink), palette.color(paper)) >=
                    Colours::textContrast);
        QVERIFY(Colours::contrast(palette.color(QPalette::Highlight),
                                  palette.color(QPalette::Base)) >= Colours::markContrast);
    }

    // No colour stands in the code of a widget: that of Colours is tried above.
    void noColourHidesFromTheTable()
    {
        const QRegularExpression literal(
            QStringLiteral("QColor\\s*\\w*[({]\\s*(?:\\d|0x|Qt::)|Qt::(?:dark|light)?(?:[Rr]ed|[Gg]"
                           "reen|[Bb]lue|[Yy]ellow|"
                           "[Cc]yan|[Mm]agenta|[Gg]ray)\\b|\"#[0-9a-fA-F]{6}\""));
        // Paper, and the borders of its tables.
        const QStringList printed{QStringLiteral("colours.cpp"), QStringLiteral("paper.cpp"),
                                  QStringLiteral("softwaredocument.cpp"),
                                  QStringLiteral("softwarebrowser.cpp")};
        QStringList found;
        int read = 0;
        QDirIterator files(QStringLiteral(TARVO_SOURCE_DIR "/src/workbench"),
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            ++read;
            const auto match = literal.match(QString::fromUtf8(contentsOf(file)));
            if (match.hasMatch() && !printed.contains(files.fileName()))
                found.append(files.fileName() + u' ' + match.captured());
        }
        QVERIFY(read > 100);
        QCOMPARE(found.join(u';'), QString());
    }

    void everyButtonIsOnASmallScreenWithALargeFont_data() { addScenes(); }
    void everyButtonIsOnASmallScreenWithALargeFont()
    {
        QFont large = m_font;
        large.setPointSize(16);
        QApplication::setFont(large);
        m_bench = std::make_unique<Bench>("taking");
        show(
            [](QWidget *window) { QCOMPARE(cutOff(window, smallScreen()).join(u';'), QString()); });
    }

    // On a screen of 1366x768 where everything is twice as large.
    void everyWindowFitsASmallScreenInTwiceTheSize_data() { addScenesInLanguages(); }
    void everyWindowFitsASmallScreenInTwiceTheSize()
    {
        QFETCH(QString, language);
        QFont usual = m_font;
        usual.setPointSize(9); // as displays without a desktop have it
        speak([&] {
            QApplication::setFont(usual);
            m_languages = std::make_unique<Languages>(language);
        });
        show([this](QWidget *window) {
            QFETCH(QString, scene);
            if (scene == QLatin1String("replace")) // not all bars at once, and messages
                this->window()->findChild<QDockWidget *>(QStringLiteral("outputDock"))->hide();
            QCoreApplication::processEvents();
            // Texts that break their lines ask for less when they have come up.
            window->resize(window->size().boundedTo(doubledSmallScreen()));
            QCoreApplication::processEvents();
            QCOMPARE(cutOff(window, doubledSmallScreen()).join(u'\n'), QString());
            QCOMPARE(sidewaysPages(window).join(u'\n'), QString());
        });
    }

    void tablesOfDialogsDoNotScrollSideways_data()
    {
        QTest::addColumn<QString>("scene");
        QTest::addColumn<QString>("language");
        for (const Languages::Choice &language : Languages::available()) {
            for (const char *scene : {"new project", "subsystem", "device", "about", "kept"})
                QTest::addRow("%s, %s", qPrintable(language.code), scene)
                    << QString::fromLatin1(scene) << language.code;
        }
    }
    void tablesOfDialogsDoNotScrollSideways()
    {
        QFETCH(QString, language);
        speak([&] { m_languages = std::make_unique<Languages>(language); });
        show([](QWidget *window) {
            for (const QSize &room : {window->size(), doubledSmallScreen()}) {
                window->resize(room);
                QCoreApplication::processEvents();
                QVERIFY(window->findChild<QAbstractItemView *>());
                QCOMPARE(sidewaysViews(window).join(u'\n'), QString());
            }
        });
    }

    void noButtonSticksToAField_data() { addScenes(); }
    void noButtonSticksToAField()
    {
        show([](QWidget *window) {
            window->ensurePolished();
            QCoreApplication::processEvents();
            QCOMPARE(stuckButtons(window).join(u'\n'), QString());
        });
    }

    void namesInTheCatalogueStayWhole()
    {
        auto *dock = window()->findChild<QDockWidget *>(QStringLiteral("catalogueDock"));
        const QAbstractItemView *tree =
            dock->findChild<QTreeView *>(QStringLiteral("catalogueTree"));
        const auto *header = static_cast<const QTreeView *>(tree)->header();
        dock->setFloating(true);
        const int names = tree->sizeHintForColumn(0);
        for (const bool isWide : {true, false, true}) {
            const int width = names + (isWide ? 200 : 40);
            dock->resize(width, 300);
            QCoreApplication::processEvents();
            QCOMPARE(header->isSectionHidden(1), !isWide);
            QVERIFY2(header->sectionSize(0) >= tree->sizeHintForColumn(0),
                     qPrintable(QStringLiteral("%1: %2 of %3")
                                    .arg(width)
                                    .arg(header->sectionSize(0))
                                    .arg(tree->sizeHintForColumn(0))));
        }
    }

    // Whose palette says nothing of it has white light on a dark ground.
    void disabledEntriesAreFainterThanOthers()
    {
        ProgramStyle style;
        QPalette palette = themed(QColor(49, 54, 59), QColor(35, 38, 41), QColor(239, 240, 241),
                                  QColor(61, 174, 233));
        palette.setColor(QPalette::Light, Qt::white);
        palette.setColor(QPalette::Disabled, QPalette::Text, QColor(110, 115, 120));
        const auto contrast = [&](bool isEnabled) {
            QMenu menu;
            menu.setStyle(&style);
            menu.setPalette(palette);
            QAction *action = menu.addAction(QStringLiteral("MMM"));
            action->setEnabled(isEnabled);
            menu.ensurePolished();
            menu.resize(menu.sizeHint());
            const QRect entry = menu.actionGeometry(action).adjusted(2, 2, -2, -2);
            const QImage image = menu.grab(entry).toImage();
            double most = 1;
            for (int x = 0; x < image.width(); ++x) {
                for (int y = 0; y < image.height(); ++y)
                    most = qMax(most,
                                Colours::contrast(image.pixelColor(x, y), image.pixelColor(0, 0)));
            }
            return most;
        };
        const double enabled = contrast(true);
        const double disabled = contrast(false);
        QVERIFY(enabled > Colours::textContrast);
        QVERIFY2(disabled > 1.5 && disabled < 0.6 * enabled,
                 qPrintable(QStringLiteral("%1 of %2").arg(disabled).arg(enabled)));
    }

    // The style's have 32 pixels at most, which a large screen shows.
    void symbolsOfMessageBoxesAreSharpAtAnySize_data()
    {
        QTest::addColumn<int>("picture");
        QTest::newRow("information") << int(QStyle::SP_MessageBoxInformation);
        QTest::newRow("question") << int(QStyle::SP_MessageBoxQuestion);
        QTest::newRow("warning") << int(QStyle::SP_MessageBoxWarning);
        QTest::newRow("critical") << int(QStyle::SP_MessageBoxCritical);
    }
    void symbolsOfMessageBoxesAreSharpAtAnySize()
    {
        QFETCH(int, picture);
        const ProgramStyle style;
        const QIcon icon = style.standardIcon(QStyle::StandardPixmap(picture));
        for (const int side : {32, 64, 128}) {
            const QPixmap drawn = icon.pixmap(side);
            QCOMPARE(drawn.size(), QSize(side, side));
            const QImage image = drawn.toImage();
            int seen = 0;
            for (int x = 0; x < side; ++x) {
                for (int y = 0; y < side; ++y)
                    seen += qAlpha(image.pixel(x, y)) > 128;
            }
            QVERIFY(seen > side * side / 20);
        }
    }

    // The ground of a bar is that of tool tips, which may be dark where windows are light.
    void theSymbolThatClosesABarIsInTheInkOfItsText()
    {
        QPalette palette = m_palette;
        palette.setColor(QPalette::ToolTipBase, QColor(30, 30, 60));
        palette.setColor(QPalette::ToolTipText, QColor(250, 250, 20));
        QApplication::setPalette(palette);
        InfoBar bar;
        bar.showMessage(QStringLiteral("text"), {});
        const auto *close = bar.findChild<QToolButton *>();
        const QImage image = close->icon().pixmap(64).toImage();
        QSet<QRgb> inks;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (qAlpha(image.pixel(x, y)) == 255)
                    inks.insert(image.pixel(x, y));
            }
        }
        QApplication::setPalette(m_palette);
        QCOMPARE(inks, QSet<QRgb>{QColor(250, 250, 20).rgb()});
    }

    void startPageFollowsTheFont()
    {
        const auto *page = window()->findChild<StartPage *>();
        const QWidget *link = page->widget()->findChild<QCommandLinkButton *>();
        const auto *label = page->widget()->findChild<QLabel *>();
        QVERIFY(link && label);
        const int before = link->sizeHint().height();
        const qreal heading = label->font().pointSizeF();
        QFont large = m_font;
        large.setPointSizeF(m_font.pointSizeF() * 2);
        QApplication::setFont(large);
        QCoreApplication::processEvents();
        QVERIFY(link->sizeHint().height() > before * 3 / 2);
        QVERIFY(label->font().pointSizeF() > heading * 1.9);
        // Both of its texts are as large as the others are.
        QVERIFY(link->heightForWidth(2000) >= 2 * QFontMetrics(large).height());
    }

    void theStartPageHasTheLargerPartOfASmallWindow()
    {
        QFont large = m_font;
        large.setPointSizeF(m_font.pointSizeF() * 1.25);
        QApplication::setFont(large);
        m_bench = std::make_unique<Bench>("taking");
        QCoreApplication::processEvents();
        QVERIFY(window()->width() <= window()->screen()->size().width());
        const auto *dock = window()->findChild<QDockWidget *>(QStringLiteral("catalogueDock"));
        const auto *page = window()->findChild<StartPage *>();
        QVERIFY2(page->width() > dock->width() * 4 / 3,
                 qPrintable(QStringLiteral("%1, %2").arg(page->width()).arg(dock->width())));
    }

    void selectedMessagesKeepTheirIcons_data()
    {
        QTest::addColumn<int>("severity");
        QTest::newRow("summary") << int(MessageModel::Summary);
        QTest::newRow("error") << int(MessageModel::Error);
        QTest::newRow("warning") << int(MessageModel::Warning);
    }
    void selectedMessagesKeepTheirIcons()
    {
        QFETCH(int, severity);
        for (const QColor &highlight : {QColor(48, 140, 198), QColor(200, 60, 50),
                                        QColor(200, 134, 0), m_palette.highlight().color()}) {
            QPalette palette = m_palette;
            palette.setColor(QPalette::Highlight, highlight);
            palette.setColor(QPalette::HighlightedText, Qt::white);
            QApplication::setPalette(palette);
            window()->messages()->clear();
            window()->messages()->append(MessageModel::Severity(severity), QStringLiteral("text"));
            auto *dock = window()->findChild<QDockWidget *>(QStringLiteral("outputDock"));
            dock->show();
            QCoreApplication::processEvents();
            auto *list = window()->findChild<QTreeView *>(QStringLiteral("messageList"));
            const QModelIndex index = window()->messages()->index(0, 0);
            list->setCurrentIndex(index);
            list->setFocus();
            QRect icon = list->visualRect(index);
            icon.setWidth(icon.height());
            const QImage shown = list->viewport()->grab(icon).toImage();
            int seen = 0;
            for (int x = 0; x < shown.width(); ++x) {
                for (int y = 0; y < shown.height(); ++y)
                    seen += qAbs(qGray(shown.pixel(x, y)) - qGray(highlight.rgb())) > 60;
            }
            QVERIFY2(seen >= 8, qPrintable(highlight.name()));
        }
        QApplication::setPalette(m_palette);
    }

    // Results and messages

    void blackBoxesAreNamedBesideTheTotals()
    {
        window()->openProject(m_bench->makeProject());
        finishRun();
        const auto *summary =
            window()->results()->findChild<QLabel *>(QStringLiteral("resultSummary"));
        QVERIFY2(summary->text().contains(QLatin1String("black box")), qPrintable(summary->text()));
        QCOMPARE(summary->text().count(QLatin1String("CortexM1Core")), 1);
    }

    void resultsAndMessagesCloseWithTheirProject()
    {
        window()->openProject(m_bench->makeProject());
        finishRun();
        m_bench->action("Results of the Last Run")->trigger();
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("Results")));
        window()->log()->appendPlainText(QStringLiteral("said"));
        QVERIFY(window()->messages()->rowCount() > 0);
        QVERIFY(window()->closeProject());
        QCOMPARE(window()->messages()->rowCount(), 0);
        QCOMPARE(window()->log()->toPlainText(), QString());
        QVERIFY(m_bench->tabTexts().isEmpty());
        QVERIFY(!m_bench->action("Results of the Last Run")->isEnabled());
        QVERIFY(!m_bench->action("Next Message")->isEnabled());
    }

    void theLastResultsComeBackAfterARestart()
    {
        const QString project = m_bench->makeProject();
        window()->openProject(project);
        const QStringList files = finishRun();
        m_bench->reopen();
        QVERIFY(!m_bench->action("Results of the Last Run")->isEnabled()); // of no project
        window()->openProject(project);
        QVERIFY(m_bench->action("Results of the Last Run")->isEnabled());
        m_bench->action("Results of the Last Run")->trigger();
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("Results")));
        ResultPage *page = window()->results();
        QVERIFY(page->findChild<QLabel *>(QStringLiteral("resultHeading"))
                    ->text()
                    .contains(QLatin1String("TV2KR-LV18")));
        QCOMPARE(page->files(), files);
        QCOMPARE(
            page->findChild<QTableView *>(QStringLiteral("resourceTable"))->model()->rowCount(), 1);
        QCOMPARE(page->findChild<QTableView *>(QStringLiteral("cellTable"))->model()->rowCount(),
                 2);
        QVERIFY(m_bench->message(0).contains(QLatin1String("Used 121 LUT4")));
        const auto *age = page->findChild<QLabel *>(QStringLiteral("resultAge"));
        QVERIFY(!age->isHidden());
        QVERIFY(age->text().contains(QString::number(QDate::currentDate().year() % 100)));
        QVERIFY2(age->text().contains(QLatin1String("as it left them")), qPrintable(age->text()));

        // Another run's results say nothing of an age.
        finishRun();
        QVERIFY(window()->results()->findChild<QLabel *>(QStringLiteral("resultAge"))->isHidden());
    }

    void oldResultsTellWhatHasChangedSince()
    {
        const QString project = m_bench->makeProject();
        window()->openProject(project);
        const QStringList files = finishRun();
        m_bench->reopen();
        write(files.at(0), "something else\n");
        QVERIFY(QFile::remove(files.at(1)));
        window()->openProject(project);
        m_bench->action("Results of the Last Run")->trigger();
        const QString age =
            window()->results()->findChild<QLabel *>(QStringLiteral("resultAge"))->text();
        QVERIFY2(age.contains(QFileInfo(files.at(0)).fileName()), qPrintable(age));
        QVERIFY2(age.contains(QFileInfo(files.at(1)).fileName() + QStringLiteral(" (missing)")),
                 qPrintable(age));
        QVERIFY2(!age.contains(QFileInfo(files.at(2)).fileName()), qPrintable(age));
    }

    void aKeptRunThatCannotBeReadIsTold_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no JSON") << QByteArray("\x00\xff{{{", 6);
        QTest::newRow("a list") << QByteArray("[1, 2]");
        QTest::newRow("a later format") << QByteArray("{\"format\": 99, \"report\": {}}");
        QTest::newRow("texts where numbers belong")
            << QByteArray("{\"format\": 1, \"report\": {\"summary\": 3, \"exitCode\": \"x\"}}");
        QTest::newRow("deep") << QByteArray("[").repeated(100000);
    }
    void aKeptRunThatCannotBeReadIsTold()
    {
        QFETCH(QByteArray, bytes);
        const QString folder = m_bench->folder() + QStringLiteral("/runs");
        const QString project = m_bench->makeProject();
        window()->setRunStore(RunStore(folder));
        window()->openProject(project);
        finishRun();
        m_bench->reopen();
        window()->setRunStore(RunStore(folder));
        const QStringList kept = entriesOf(folder);
        QCOMPARE(kept.size(), 1);
        write(folder + u'/' + kept.first(), bytes);
        window()->openProject(project);
        const auto boxes =
            boxesOf([this] { m_bench->action("Results of the Last Run")->trigger(); });
        QCOMPARE(boxes.size(), 1);
        QVERIFY2(boxes.first().text.contains(kept.first()), qPrintable(boxes.first().text));
        QVERIFY(m_bench->tabTexts().isEmpty());
    }

    void aRunThatCannotBeKeptIsAWarning()
    {
        const QString blocked = m_bench->folder() + QStringLiteral("/file");
        write(blocked, "x");
        window()->setRunStore(RunStore(blocked + QStringLiteral("/runs")));
        window()->openProject(m_bench->makeProject());
        finishRun();
        const int last = window()->messages()->rowCount() - 1;
        QVERIFY2(m_bench->message(last).contains(blocked), qPrintable(m_bench->message(last)));
        QVERIFY(m_bench->action("Results of the Last Run")->isEnabled());
    }

    void oneCauseIsOneMessageInTheList()
    {
        Synthesis::RunReport report;
        report.exitCode = 1;
        report.summary = QStringLiteral("The disk is full.");
        Synthesis::Message same;
        same.text = report.summary;
        report.messages = {same};
        window()->messages()->setReport(report);
        QCOMPARE(window()->messages()->rowCount(), 1);
        QCOMPARE(window()->messages()->count(MessageModel::Error), 1);
        // A headline that others explain is no error of its own.
        report.summary = QStringLiteral("TarvoSynthesis found an error.");
        window()->messages()->setReport(report);
        QCOMPARE(window()->messages()->rowCount(), 2);
        QCOMPARE(window()->messages()->count(MessageModel::Error), 1);
    }

    // Actions

    void editCommandsActOnlyWhereTheyCan()
    {
        const QString file = m_bench->folder() + QStringLiteral("/x.v");
        write(file, "hello\n");
        window()->openPath(file);
        EditorPage *page = window()->tabs()->currentPage();
        CodeEditor *editor = page->editor();
        QApplication::setActiveWindow(window());
        QGuiApplication::clipboard()->setText(QStringLiteral("clip"));
        focus(editor);
        QCOMPARE(enabledEdits(), QStringLiteral("Select All"));
        editor->selectAll();
        QCOMPARE(enabledEdits(), QStringLiteral("Copy, Select All")); // for reading
        page->startEditing();
        QCOMPARE(enabledEdits(), QStringLiteral("Cut, Copy, Paste, Select All"));
        m_bench->action("Cut")->trigger();
        QCOMPARE(editor->toPlainText(), QString());
        QCOMPARE(enabledEdits(), QStringLiteral("Undo, Paste"));
        m_bench->action("Undo")->trigger();
        QCOMPARE(editor->toPlainText(), QStringLiteral("hello\n"));
        QVERIFY(!m_bench->action("Undo")->isEnabled());
        QVERIFY(m_bench->action("Redo")->isEnabled());

        auto *filter = window()->findChild<QLineEdit *>(QStringLiteral("catalogueFilterEdit"));
        focus(filter);
        QCOMPARE(enabledEdits(), QStringLiteral("Paste"));
        QTest::keyClicks(filter, QStringLiteral("abc"));
        QCOMPARE(enabledEdits(), QStringLiteral("Undo, Paste, Select All"));
        filter->selectAll();
        QCOMPARE(enabledEdits(), QStringLiteral("Undo, Cut, Copy, Paste, Select All"));
        filter->clear();

        // A list without rows has nothing to give.
        window()->findChild<QDockWidget *>(QStringLiteral("outputDock"))->show();
        auto *list = window()->findChild<QTreeView *>(QStringLiteral("messageList"));
        focus(list);
        QCOMPARE(enabledEdits(), QString());
        window()->messages()->append(MessageModel::Warning, QStringLiteral("note"));
        QCOMPARE(enabledEdits(), QStringLiteral("Copy, Select All"));
        m_bench->action("Copy")->trigger();
        QVERIFY(QGuiApplication::clipboard()->text().contains(QLatin1String("note")));
        QGuiApplication::clipboard()->clear();
        QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QGuiApplication::clipboard()->text().contains(QLatin1String("note")));
    }

    void editCommandsWorkFromTheMenuBar()
    {
        const QString file = m_bench->folder() + QStringLiteral("/x.v");
        write(file, "hello\n");
        window()->openPath(file);
        CodeEditor *editor = window()->tabs()->currentPage()->editor();
        QApplication::setActiveWindow(window());
        focus(editor);
        editor->selectAll();
        // The menu bar takes the focus while it is used with the keyboard.
        window()->menuBar()->setFocus();
        QVERIFY(m_bench->action("Copy")->isEnabled());
        m_bench->action("Copy")->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("hello\n"));
    }

    void moveAndTabsAndMessagesActOnlyWhereTheyCan()
    {
        window()->openProject(m_bench->makeProject());
        const QString folder = window()->project()->path();
        QStringList files;
        for (const char *name : {"a.v", "b.v", "c.v"}) {
            files.append(folder + u'/' + QLatin1String(name));
            write(files.last(), "x\n");
        }
        window()->project()->addFiles(files);
        auto *tree = window()->findChild<QTreeView *>(QStringLiteral("projectTree"));
        const auto select = [tree](int row) {
            tree->setCurrentIndex(tree->model()->index(row, 0, tree->model()->index(1, 0)));
        };
        const auto moves = [this]() -> QString {
            return QString::fromLatin1(m_bench->action("Move Up")->isEnabled() ? "up" : "") +
                   QString::fromLatin1(m_bench->action("Move Down")->isEnabled() ? "down" : "");
        };
        select(0);
        QCOMPARE(moves(), QStringLiteral("down"));
        select(1);
        QCOMPARE(moves(), QStringLiteral("updown"));
        select(2);
        QCOMPARE(moves(), QStringLiteral("up"));
        tree->setCurrentIndex(tree->model()->index(1, 0));
        QCOMPARE(moves(), QString());

        for (const char *name : {"Next Tab", "Previous Tab", "Go to Editor", "Larger Text",
                                 "Smaller Text", "Save All", "Next Message"})
            QVERIFY2(!m_bench->action(name)->isEnabled(), name);
        window()->openPath(files.at(0));
        for (const char *name : {"Go to Editor", "Larger Text", "Smaller Text"})
            QVERIFY2(m_bench->action(name)->isEnabled(), name);
        QVERIFY(!m_bench->action("Next Tab")->isEnabled());
        window()->openPath(files.at(1));
        QVERIFY(m_bench->action("Next Tab")->isEnabled());
        QVERIFY(!m_bench->action("Save All")->isEnabled());
        window()->tabs()->currentPage()->startEditing();
        window()->tabs()->currentPage()->editor()->insertPlainText(QStringLiteral("y"));
        QVERIFY(m_bench->action("Save All")->isEnabled());
        window()->messages()->append(MessageModel::Warning, QStringLiteral("without a line"));
        QVERIFY(!m_bench->action("Next Message")->isEnabled());
        Synthesis::RunReport report;
        Synthesis::Message placed;
        placed.file = files.at(0);
        placed.line = 1;
        placed.text = QStringLiteral("here");
        report.messages = {placed};
        window()->messages()->setReport(report);
        QVERIFY(m_bench->action("Next Message")->isEnabled());
        window()->tabs()->currentPage()->editor()->undo();
    }

    // Help

    void f1OpensTheGuide()
    {
        QApplication::setActiveWindow(window());
        QVERIFY(QTest::qWaitForWindowActive(window()));
        QTest::keyClick(window(), Qt::Key_F1);
        QVERIFY(window()->help());
        HelpBrowser *browser = window()->help()->browser();
        QVERIFY(window()->help()->isVisible());
        QCOMPARE(browser->document()->begin().text(), QStringLiteral("User guide"));
        // The guide as the sources have it, with its pictures.
        const QString source = browser->source().toLocalFile();
        QCOMPARE(contentsOf(source),
                 contentsOf(QStringLiteral(TARVO_SOURCE_DIR "/docs/user-guide.md")));
        QTest::keyClick(browser, Qt::Key_Escape);
        QVERIFY(!window()->help()->isVisible());
    }

    // Of the guide and of every document that it leads to.
    void everyLinkAndPictureOfTheGuideLeadsSomewhere()
    {
        window()->showGuide();
        HelpBrowser *browser = window()->help()->browser();
        QList<QUrl> documents{browser->source()};
        int linkCount = 0;
        int pictureCount = 0;
        for (int i = 0; i < documents.size(); ++i) {
            const QUrl from = documents[i]; // the list grows below
            browser->setSource(from);
            QVERIFY2(browser->document()->characterCount() > 100, qPrintable(from.path()));
            QSet<QString> links;
            QSet<QString> pictures;
            for (QTextBlock block = browser->document()->begin(); block.isValid();
                 block = block.next()) {
                for (auto it = block.begin(); !it.atEnd(); ++it) {
                    const QTextCharFormat format = it.fragment().charFormat();
                    if (format.isAnchor())
                        links.insert(format.anchorHref());
                    if (format.isImageFormat())
                        pictures.insert(format.toImageFormat().name());
                }
            }
            linkCount += links.size();
            pictureCount += pictures.size();
            for (const QString &picture : qAsConst(pictures)) {
                const QVariant loaded =
                    browser->loadResource(QTextDocument::ImageResource, QUrl(picture));
                QVERIFY2(!loaded.value<QImage>().isNull(), qPrintable(picture));
                QVERIFY(loaded.value<QImage>().width() <= browser->viewport()->width());
            }
            for (const QString &link : qAsConst(links)) {
                browser->setSource(from);
                browser->verticalScrollBar()->setValue(0);
                browser->setSource(QUrl(link));
                const QString told = from.fileName() + QStringLiteral(": ") + link;
                if (link.contains(u'#'))
                    QVERIFY2(browser->verticalScrollBar()->value() > 0, qPrintable(told));
                const QUrl to = browser->source().adjusted(QUrl::RemoveFragment);
                if (!documents.contains(to))
                    documents.append(to);
            }
        }
        QVERIFY(documents.size() >= 4);
        QVERIFY(linkCount >= 3);
        QVERIFY(pictureCount >= 4);
    }

    // Back and Forward take a way of their own through the library.
    void theWayBackShowsTheDocumentAsItWas()
    {
        window()->showGuide();
        HelpBrowser *browser = window()->help()->browser();
        const int length = browser->document()->characterCount();
        browser->verticalScrollBar()->setValue(700);
        browser->setSource(QUrl(QStringLiteral("drivers.md")));
        const int other = browser->document()->characterCount();
        QVERIFY(other > 100 && other != length);
        browser->backward();
        QCOMPARE(browser->document()->characterCount(), length);
        QCOMPARE(browser->verticalScrollBar()->value(), 700);
        browser->forward();
        QCOMPARE(browser->document()->characterCount(), other);
    }

    void theDocumentOfAnIpIsReachable()
    {
        m_bench->action("Help on the Selected IP")->trigger();
        QVERIFY(window()->help());
        QVERIFY(window()->help()->browser()->source().toLocalFile().endsWith(
            QLatin1String("help/tarvo_orix_m1.html")));
        QVERIFY(window()->help()->browser()->document()->characterCount() > 100);
        // The other IP has none.
        auto *tree = window()->findChild<QTreeView *>(QStringLiteral("catalogueTree"));
        QStringList offered;
        for (QModelIndex index = tree->model()->index(0, 0); index.isValid();
             index = tree->indexBelow(index)) {
            tree->setCurrentIndex(index);
            if (m_bench->action("Help on the Selected IP")->isEnabled())
                offered.append(index.data().toString());
        }
        QCOMPARE(offered, QStringList(QStringLiteral("Tarvo_ORIX_M1")));
    }

    void f1InTheDialogOfAnIpOpensItsDocument()
    {
        window()->openProject(m_bench->makeProject());
        QString source;
        bool isUsable = false;
        const ModalWatcher watcher([&](QWidget *modal) {
            QTest::keyClick(modal, Qt::Key_F1);
            if (HelpWindow *help = window()->help()) {
                source = help->browser()->source().toLocalFile();
                isUsable = help->parentWidget() == modal;
            }
            qobject_cast<QDialog *>(modal)->reject();
        });
        window()->createSelectedIp(0);
        QVERIFY2(source.endsWith(QLatin1String("help/tarvo_orix_m1.html")), qPrintable(source));
        QVERIFY(isUsable);          // a window behind a modal dialog is not
        QVERIFY(!window()->help()); // it goes with the dialog
    }

private:
    using Look = std::function<void(QWidget *)>;

    MainWindow *window() const { return m_bench->window.get(); }

    static QPalette themed(const QColor &window, const QColor &base, const QColor &text,
                           const QColor &highlight)
    {
        QPalette palette(text, window, window.lighter(150), window.darker(150), window.darker(120),
                         text, text, base, window);
        palette.setColor(QPalette::AlternateBase, base);
        palette.setColor(QPalette::Highlight, highlight);
        palette.setColor(QPalette::Disabled, QPalette::Text, window.lighter(130));
        palette.setColor(QPalette::Disabled, QPalette::WindowText, window.lighter(130));
        return palette;
    }

    static void focus(QWidget *widget)
    {
        widget->setFocus();
        QVERIFY(QTest::qWaitFor([widget] { return widget->hasFocus(); }));
    }

    QString enabledEdits() const
    {
        QStringList names;
        for (const char *name : {"Undo", "Redo", "Cut", "Copy", "Paste", "Select All"}) {
            if (m_bench->action(name)->isEnabled())
                names.append(QLatin1String(name));
        }
        return names.join(QLatin1String(", "));
    }

    // A run that succeeded, as the host tells of it. Returns the files of the results.
    QStringList finishRun() const
    {
        const QString folder = window()->project()->path();
        Synthesis::RunReport report;
        report.job.targetName =
            QStringLiteral("lamp") + QStringLiteral("_of_a_long_name").repeated(6);
        report.job.device = window()->project()->device();
        report.summary = QStringLiteral("Used 121 LUT4 (1 %).");
        report.milliseconds = 1500;
        report.cells = {{QStringLiteral("CortexM1Core"), 1, true},
                        {QStringLiteral("TV_LUT4"), 121, false}};
        report.resources = {{QStringLiteral("LUT4"), 121, 20000}};
        report.ports = {{QStringLiteral("clk"), QStringLiteral("input"), 0, 0, false}};
        for (const char *name : {"lamp.v", "lamp_tmp.v", "lamp.vg"}) {
            report.files.append(folder + u'/' + QLatin1String(name));
            write(report.files.last(), name);
        }
        Q_EMIT IPCore::SynthesisMonitor::instance().runFinished(report);
        return report.files;
    }

    // Project, results, messages, an editor with its bars.
    void openEverything() const
    {
        window()->openProject(m_bench->makeProject());
        finishRun();
        window()->findChild<QDockWidget *>(QStringLiteral("outputDock"))->show();
        const QString name = QStringLiteral("a_source_file_with_a_rather_long_name_").repeated(3);
        const QString file = window()->project()->path() + u'/' + name + QStringLiteral(".v");
        write(file, "module x;\nendmodule\n");
        window()->project()->addFiles({file});
        window()->openPath(file);
        EditorPage *page = window()->tabs()->currentPage();
        page->findBar()->start();
        QTest::keyClick(page->editor(), Qt::Key_X); // offers editing
        QVERIFY(!page->infoBar()->isHidden());
        window()->infoBar()->showMessage(
            QStringLiteral("A message of the window. ").repeated(6) + name,
            {{MainWindow::tr("Choose &a Device…"), [] {}}, {PluginList::tr("Detai&ls"), [] {}}});
        QCoreApplication::processEvents();
    }

    // The page on the software of an IP with a long path, and a message on it.
    void showSoftware(const char *path) const
    {
        const QString folder = window()->project()->path() + u'/' +
                               QStringLiteral("a_folder_with_a_long_name/").repeated(4);
        QDir().mkpath(folder);
        write(folder + QStringLiteral("lamp.ipc"),
              "[General]\ntype=fake.blinker\ntarget_device=TV5K-138B-PBGA484-C1/I0\n"
              "[Config]\nLamps=7\n");
        SoftwarePage *page = window()->showSoftware(folder + QStringLiteral("lamp.ipc"));
        page->select(QString::fromLatin1(path));
        page->check();
        page->infoBar()->showMessage(QStringLiteral("The configuration has changed. ").repeated(9),
                                     {});
        QCoreApplication::processEvents();
    }

    // Its part for programs, with long names and what became of one.
    void showProgram() const
    {
        showSoftware("lamp.h");
        SoftwarePage *page = window()->findChild<SoftwarePage *>();
        page->showProgram();
        ProgramPart *part = page->programPart();
        QVERIFY(part);
        const QString image = QStringLiteral("a_program_with_a_long_name_").repeated(6);
        write(QFileInfo(page->ipcFile()).path() + u'/' + image, "?12345678");
        part->setImage(image);
        QVERIFY2(part->writeFiles(), qPrintable(part->told()));
        QCoreApplication::processEvents();
    }

    // The page on which programs run, after a run, with long names.
    void showSimulation() const
    {
        qputenv("FAKE_SIMULATOR", TARVO_FAKE_TOOLS "/simulator/simulate");
        const QString folder = window()->project()->path() + u'/' +
                               QStringLiteral("a_folder_with_a_long_name/").repeated(4);
        write(folder + QStringLiteral("lamp.ipc"),
              "[General]\ntype=fake.blinker\ntarget_device=TV5K-138B-PBGA484-C1/I0\n"
              "[Config]\nLamps=2\n");
        const QString program = folder + QStringLiteral("a_program_with_a_long_name_").repeated(6) +
                                QStringLiteral(".c");
        write(program, "hello\n");
        SimulationPage *page = window()->showSimulation(folder + QStringLiteral("lamp.ipc"));
        page->choose(QStringLiteral("c"), {program, program});
        QVERIFY(page->run());
        QTRY_VERIFY(!page->process());
        page->infoBar()->showMessage(QStringLiteral("The waves are elsewhere. ").repeated(9), {});
        QCoreApplication::processEvents();
    }

    static constexpr const char *scenes[] = {
        "start",    "project",  "editor",    "results",   "log",        "new project",
        "device",   "plug-ins", "about",     "line",      "guide",      "message",
        "kept",     "software", "datasheet", "program",   "simulation", "example",
        "settings", "tools",    "replace",   "subsystem", "companion"};

    static void addScenes()
    {
        QTest::addColumn<QString>("scene");
        for (const char *scene : scenes)
            QTest::newRow(scene) << QString::fromLatin1(scene);
    }

    static void addScenesInLanguages()
    {
        QTest::addColumn<QString>("scene");
        QTest::addColumn<QString>("language");
        for (const Languages::Choice &language : Languages::available()) {
            for (const char *scene : scenes)
                QTest::addRow("%s, %s", qPrintable(language.code), scene)
                    << QString::fromLatin1(scene) << language.code;
        }
    }

    // Has a new window come up in the language that `install` brings.
    void speak(const std::function<void()> &install)
    {
        const QStringList names = m_bench->namesOfActions();
        m_bench.reset();
        install();
        m_bench = std::make_unique<Bench>("taking");
        m_bench->englishNames = names;
    }

    // Brings about the scene of the row and lets `look` see its window.
    void show(const Look &look)
    {
        QFETCH(QString, scene);
        bool seen = false;
        const auto lookOnce = [&](QWidget *window) {
            seen = true;
            look(window);
        };
        const ModalWatcher watcher([&](QWidget *modal) {
            if (scene == QLatin1String("tools"))
                modal->findChild<QTabWidget *>()->setCurrentIndex(1);
            QTRY_VERIFY(scene != QLatin1String("companion") ||
                        (window()->companion() && window()->companion()->isVisible()));
            lookOnce(scene == QLatin1String("companion") ? window()->companion() : modal);
            if (auto *dialog = qobject_cast<QDialog *>(modal))
                dialog->reject();
        });
        if (scene != QLatin1String("start"))
            openEverything();
        if (scene == QLatin1String("new project")) {
            window()->newProject();
        } else if (scene == QLatin1String("subsystem")) {
            window()->newSubsystem(0);
        } else if (scene == QLatin1String("companion")) {
            m_bench->settings.setValue(QStringLiteral("companion/measure"), false);
            window()->createSelectedIp(0);
        } else if (scene == QLatin1String("device")) {
            m_bench->action("Device")->trigger();
        } else if (scene == QLatin1String("plug-ins")) {
            m_bench->action("Plug-ins")->trigger();
        } else if (scene == QLatin1String("about")) {
            m_bench->action("About Tarvo Workbench")->trigger();
        } else if (scene == QLatin1String("settings") || scene == QLatin1String("tools")) {
            m_bench->action("Settings")->trigger();
        } else if (scene == QLatin1String("kept")) {
            m_bench->action("Bring Back a Configuration")->trigger();
        } else if (scene == QLatin1String("message")) {
            window()->openPath(u'/' + QStringLiteral("a_folder_with_a_long_name/").repeated(12));
        } else if (scene == QLatin1String("example")) {
            window()->openExample(0, 0);
        } else if (scene == QLatin1String("line")) {
            m_bench->action("Go to Line")->trigger();
        } else if (scene == QLatin1String("guide")) {
            window()->showGuide();
            lookOnce(window()->help());
        } else {
            window()->resize(smallScreen());
            if (scene == QLatin1String("project"))
                window()->tabs()->closeAll();
            if (scene == QLatin1String("replace"))
                window()->tabs()->currentPage()->findBar()->startReplacing();
            if (scene == QLatin1String("results"))
                m_bench->action("Results of the Last Run")->trigger();
            if (scene == QLatin1String("software") || scene == QLatin1String("datasheet"))
                showSoftware(scene == QLatin1String("software") ? "lamp.h" : "sheet/lamp.html");
            if (scene == QLatin1String("program"))
                showProgram();
            if (scene == QLatin1String("simulation"))
                showSimulation();
            if (scene == QLatin1String("log"))
                window()->findChild<QTabWidget *>(QStringLiteral("outputTabs"))->setCurrentIndex(1);
            lookOnce(window());
        }
        QVERIFY(seen);
    }

    std::unique_ptr<LongerTexts> m_longerTexts;
    std::unique_ptr<Languages> m_languages;
    std::unique_ptr<Bench> m_bench;
    const QFont m_font = QApplication::font();
    const QPalette m_palette = QApplication::palette();
};

TARVO_TEST_MAIN(QApplication, TestWindows)
#include "tst_windows.moc"

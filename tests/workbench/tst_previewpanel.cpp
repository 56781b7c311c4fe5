#include <shownitems.h>
#include <testsupport.h>

#include <workbench/catalogue/answers.h>
#include <workbench/companion/previewpanel.h>
#include <workbench/companion/sidebyside.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTreeWidget>
#include <QtTest>

#include <cmath>
#include <stdexcept>

using namespace Workbench;

namespace
{

QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

// A dialog of an IP that has one option.
class FakeDialog : public QDialog
{
    Q_OBJECT

public:
    int value = 0;
    mutable int asked = 0;

    Q_INVOKABLE QVariantMap configuration() const
    {
        ++asked;
        return {{latin1("options"), QVariantMap{{latin1("value"), value}}}};
    }
    void setValue(int next)
    {
        value = next;
        Q_EMIT configurationChanged();
    }

Q_SIGNALS:
    void configurationChanged();
};

class FakeRoot : public QObject
{
    Q_OBJECT

public:
    QVariantMap answer; // empty: one that is made of the configuration
    bool throws = false;

    Q_INVOKABLE QVariantMap previewGeneration(const QVariantMap &configuration) const
    {
        if (throws)
            throw std::runtime_error("it broke");
        if (!answer.isEmpty())
            return answer;
        if (!configuration[latin1("keepsComments")].toBool())
            return {{latin1("error"), latin1("another host")}};
        const int value = configuration[latin1("options")].toMap()[latin1("value")].toInt();
        return made(value);
    }

    static QVariantMap file(const char *path, const char *state, const QVariant &before,
                            const QVariant &after, const QStringList &notes = {})
    {
        QVariantMap map{{latin1("path"), latin1(path)},
                        {latin1("state"), latin1(state)},
                        {latin1("notes"), notes}};
        if (before.isValid())
            map.insert(latin1("before"), before);
        if (after.isValid())
            map.insert(latin1("after"), after);
        return map;
    }
    static QVariantMap made(int value)
    {
        QStringList lines;
        for (int i = 0; i < 60; ++i)
            lines.append(latin1("`define LINE_%1").arg(i));
        const QString before = lines.join(u'\n') + u'\n';
        lines[20] = latin1("`define VALUE %1").arg(value);
        lines.removeAt(40);
        const QString after = lines.join(u'\n') + u'\n';
        const QVariantList files{
            file("name.ipc", "changed", latin1("[Config]\nvalue=0\n"),
                 latin1("[Config]\nvalue=%1\n").arg(value)),
            file("temp/core.v", "equal", latin1("same\n"), latin1("same\n")),
            file("temp/bus.v", "edited", before, after,
                 {latin1("What stands there will be in \"bus.v.edited\".")}),
            file("temp/bus.v.edited", "new", QVariant(), before),
            file("name.v", "remade", latin1("netlist\n"), QVariant(),
                 {latin1("Made by the tool.")}),
            file("name.vhd", "stays", latin1("old\n"), latin1("old\n")),
            file("name.xyz", "strange", latin1("a\n"), latin1("b\n")),
            file("left_name.vhd", "removed", latin1("old\n"), QVariant()),
        };
        const auto difference = [](const char *kind, const QString &text) {
            return QVariantMap{{latin1("kind"), latin1(kind)}, {latin1("text"), text}};
        };
        const QVariantList differences{
            difference("option", latin1("~ value: 0 -> %1").arg(value)),
            difference("port", latin1("+ LED: direction output")),
            difference("port", latin1("- KEY: direction input")),
            difference("resource", latin1("~ LUT4: used 10 -> 20")),
        };
        return {{latin1("error"), QString()},
                {latin1("text"), latin1("all of it, %1\n").arg(value)},
                {latin1("files"), files},
                {latin1("differences"), differences},
                {latin1("notes"), QStringList()}};
    }
};

// Of two colours, from 1 to 21.
double contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double part) {
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QPalette darkPalette()
{
    QPalette palette;
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Button})
        palette.setColor(role, QColor(45, 45, 48));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, Qt::white);
    return palette;
}

} // namespace

class TestPreviewPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dialog = std::make_unique<FakeDialog>();
        m_root = std::make_unique<FakeRoot>();
        m_panel = std::make_unique<PreviewPanel>(m_dialog.get(), m_root.get(), nullptr);
    }
    void cleanup()
    {
        m_panel.reset();
        m_root.reset();
        m_dialog.reset();
        QApplication::setPalette(m_palette);
    }

    void showsFilesStatesAndDifferences()
    {
        m_panel->refresh();
        const QTreeWidget *files = tree("Files");
        QCOMPARE(files->topLevelItemCount(), 8);
        QStringList states;
        for (int i = 0; i < files->topLevelItemCount(); ++i) {
            const QTreeWidgetItem *item = files->topLevelItem(i);
            states.append(item->text(1));
            QVERIFY(!item->icon(1).isNull());
        }
        QCOMPARE(states, (QStringList{latin1("Changed"), latin1("Equal"), latin1("Edited by hand"),
                                      latin1("New"), latin1("Made by the tool"), latin1("Stays"),
                                      latin1("strange"), latin1("Removed")}));
        const QTreeWidget *differences = tree("Differences");
        QCOMPARE(differences->topLevelItemCount(), 3);
        QCOMPARE(differences->topLevelItem(1)->text(0), latin1("Ports (2)"));
        QCOMPARE(differences->topLevelItem(1)->child(1)->text(0), latin1("- KEY: direction input"));
        QVERIFY(labels().contains(latin1("OK would write 5 of 8 files.")));
        // The first that changes is shown at once.
        QCOMPARE(lines("Before"), (QStringList{latin1("  1  [Config]"), latin1("  2  value=0")}));
        QVERIFY(lines("After").contains(latin1("  1  [Config]")));
        choose("left_name.vhd");
        QCOMPARE(lines("Before"), QStringList{latin1("- 1  old")});
    }

    void marksWhatIsRemovedAndAdded()
    {
        m_dialog->value = 7;
        m_panel->refresh();
        choose("temp/bus.v");
        const QStringList before = lines("Before");
        const QStringList after = lines("After");
        QCOMPARE(before.size(), after.size());
        QCOMPARE(before.at(20), latin1("- 21  `define LINE_20"));
        QCOMPARE(after.at(20), latin1("+ 21  `define VALUE 7"));
        QCOMPARE(before.at(40), latin1("- 41  `define LINE_40"));
        QCOMPARE(after.at(40), QString());
        QCOMPARE(after.at(41), latin1("  41  `define LINE_41"));
        QVERIFY(labels().contains(latin1("bus.v.edited")));
        // It begins at the first place, and goes on to the next and round.
        auto *pane = m_panel->findChildren<QPlainTextEdit *>().last();
        QCOMPARE(pane->textCursor().blockNumber(), 20);
        button("Next Change")->click();
        QCOMPARE(pane->textCursor().blockNumber(), 40);
        button("Next Change")->click();
        QCOMPARE(pane->textCursor().blockNumber(), 20);
    }

    void everyLineCanBeReadLightAndDark()
    {
        for (const QPalette &palette : {m_palette, darkPalette()}) {
            QApplication::setPalette(palette);
            init();
            m_panel->refresh();
            choose("temp/bus.v");
            const QList<QPlainTextEdit *> panes = m_panel->findChildren<QPlainTextEdit *>();
            int coloured = 0;
            for (const QPlainTextEdit *pane : panes) {
                for (QTextBlock block = pane->document()->begin(); block.isValid();
                     block = block.next()) {
                    const bool isMarked = block.text().startsWith(u'-') ||
                                          block.text().startsWith(u'+') || block.text().isEmpty();
                    const QBrush back = block.blockFormat().background();
                    QCOMPARE(back.style() != Qt::NoBrush, isMarked);
                    if (!isMarked || block.text().isEmpty())
                        continue;
                    ++coloured;
                    const QColor text = block.begin().fragment().charFormat().foreground().color();
                    QVERIFY2(contrast(text, back.color()) >= 4.5,
                             qPrintable(text.name() + back.color().name()));
                    QVERIFY(contrast(back.color(), pane->palette().color(QPalette::Base)) > 1.1);
                }
            }
            QCOMPARE(coloured, 3);
            const SideColors colors = sideColors(palette);
            QVERIFY(contrast(colors.removed, colors.text) >= 4.5);
            QVERIFY(contrast(colors.added, colors.text) >= 4.5);
        }
    }

    void asksOnceAfterAPauseAndOnlyWhileItIsSeen()
    {
        QSignalSpy refreshed(m_panel.get(), &PreviewPanel::refreshed);
        m_dialog->setValue(1);
        QCoreApplication::processEvents();
        QCOMPARE(m_dialog->asked, 0);
        m_panel->show();
        QVERIFY(refreshed.wait());
        QCOMPARE(m_dialog->asked, 1);
        for (int value = 2; value < 10; ++value)
            m_dialog->setValue(value);
        QVERIFY(refreshed.wait());
        QCOMPARE(m_dialog->asked, 2);
        QVERIFY(lines("After").contains(latin1("+ 2  value=9")));
        m_panel->hide();
        m_dialog->setValue(20);
        m_panel->show();
        QVERIFY(refreshed.wait());
        QCOMPARE(m_dialog->asked, 3);
        QVERIFY(lines("After").contains(latin1("+ 2  value=20")));
        // Nothing has changed since.
        m_panel->hide();
        m_panel->show();
        QCoreApplication::processEvents();
        QCOMPARE(m_dialog->asked, 3);
    }

    void namesOfFilesAreSeenWhereItIsNarrow()
    {
        m_panel->show();
        m_panel->refresh();
        QTreeWidget *files = tree("Files");
        const auto elideModes = TestSupport::elideModesOf(files);
        QCOMPARE(elideModes.size(), 2);
        QCOMPARE(elideModes.value(0), Qt::ElideLeft);
        QCOMPARE(elideModes.value(1), Qt::ElideRight);
        const int margins =
            2 * (files->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, files) + 1);
        bool hasShortened = false;
        for (int width = m_panel->minimumSizeHint().width(); width < 1200; width += 30) {
            m_panel->resize(width, 500);
            QCoreApplication::processEvents();
            const int state = files->header()->sectionSize(1);
            for (int i = 0; i < files->topLevelItemCount(); ++i) {
                const QTreeWidgetItem *item = files->topLevelItem(i);
                const QString shown = files->fontMetrics().elidedText(
                    item->text(0), elideModes.value(0), files->columnWidth(0) - margins);
                QVERIFY2(shown.endsWith(QFileInfo(item->text(0)).fileName()) || state < 40,
                         qPrintable(QStringLiteral("%1 at %2").arg(shown).arg(width)));
                QCOMPARE(item->toolTip(0), item->text(0));
                QCOMPARE(item->toolTip(1), item->text(1));
            }
            hasShortened |= state < 80;
            QVERIFY(state >= 32);
        }
        QVERIFY(hasShortened);
        // Where there is room, nothing is shortened.
        QVERIFY(files->header()->sectionSize(1) >
                files->fontMetrics().horizontalAdvance(files->topLevelItem(4)->text(1)));
    }

    void theChosenFileStaysChosen()
    {
        m_panel->refresh();
        choose("temp/bus.v");
        m_dialog->value = 5;
        m_panel->refresh();
        QCOMPARE(tree("Files")->currentItem()->text(0), latin1("temp/bus.v"));
        QVERIFY(lines("After").contains(latin1("+ 21  `define VALUE 5")));
    }

    void worksByKeyboardAndHasNames()
    {
        m_panel->show();
        m_panel->refresh();
        QVERIFY(!m_panel->accessibleName().isEmpty());
        QTreeWidget *files = tree("Files");
        files->setFocus();
        QTest::keyClick(files, Qt::Key_Home);
        QTest::keyClick(files, Qt::Key_Down);
        QCOMPARE(files->currentItem()->text(0), latin1("temp/core.v"));
        QCOMPARE(lines("After"), QStringList{latin1("  1  same")});
        // Tab leaves the texts, too.
        QSet<QWidget *> reached;
        QWidget *at = files;
        for (int i = 0; i < 12; ++i) {
            reached.insert(at);
            at = at->nextInFocusChain();
            while (at != files && !(at->focusPolicy() & Qt::TabFocus))
                at = at->nextInFocusChain();
        }
        const QList<QPlainTextEdit *> panes = m_panel->findChildren<QPlainTextEdit *>();
        for (QPlainTextEdit *pane : panes) {
            QVERIFY(pane->tabChangesFocus());
            QVERIFY(!pane->accessibleName().isEmpty());
            QVERIFY(reached.contains(pane));
        }
        QVERIFY(reached.contains(tree("Differences")));
        button("Copy as Text")->click();
        QCOMPARE(QApplication::clipboard()->text(), latin1("all of it, 0\n"));
    }

    void longTextsAreToldAndNotShown()
    {
        const QString netlist(60 << 20, u'x');
        QVariantMap answer = FakeRoot::made(1);
        answer[latin1("files")] =
            QVariantList{FakeRoot::file("name.v", "changed", netlist, QString(netlist + u'y')),
                         FakeRoot::file("lines.v", "changed", QString(30000, u'\n'), latin1("a"))};
        m_root->answer = answer;
        QElapsedTimer timer;
        timer.start();
        m_panel->refresh();
        choose("lines.v");
        QVERIFY(labels().contains(latin1("too long to be shown side by side")));
        choose("name.v");
        QVERIFY(labels().contains(latin1("too long to be shown side by side")));
        QVERIFY2(timer.elapsed() < 5000, "it froze");
    }

    void whatOnlyTheToolCanTellIsSaid()
    {
        m_panel->refresh();
        choose("name.v");
        QVERIFY(labels().contains(latin1("Made by the tool.")));
        QVERIFY(!button("Next Change")->isEnabled());
    }

    void saysWhyThereIsNothing_data()
    {
        QTest::addColumn<QVariantMap>("answer");
        QTest::addColumn<QString>("text");
        const auto with = [](const char *key, const QVariant &value) {
            QVariantMap answer = FakeRoot::made(1);
            answer[latin1(key)] = value;
            return answer;
        };
        const auto withFile = [&with](const QVariantMap &file) {
            return with("files", QVariantList{file});
        };
        QTest::newRow("the plug-in's own reason")
            << QVariantMap{{latin1("error"), latin1("No folder.")}} << latin1("No folder.");
        QTest::newRow("an error that is no text")
            << with("error", 7) << latin1("its \"error\" is no plain text");
        QTest::newRow("no text") << with("text", 7) << latin1("its \"text\" is no text");
        QTest::newRow("files that are no list") << with("files", 7) << latin1("its \"files\"");
        QVariantList many;
        for (int i = 0; i <= Answers::previewFileLimit; ++i)
            many.append(FakeRoot::file("a", "new", QVariant(), latin1("x")));
        QTest::newRow("too many files") << with("files", many) << latin1("its \"files\"");
        for (const char *path : {"../a", "/a", "a//b", "a/../b", "", "a\nb"})
            QTest::newRow(qPrintable(latin1("the path ") + latin1(path)))
                << withFile(FakeRoot::file(path, "new", QVariant(), latin1("x")))
                << latin1("is no path below the output folder");
        QTest::newRow("a file without a state")
            << withFile(FakeRoot::file("a", "", QVariant(), latin1("x")))
            << latin1("what it says of \"a\" makes no sense");
        QTest::newRow("contents that are no text")
            << withFile(FakeRoot::file("a", "new", QVariant(), 7))
            << latin1("what it says of \"a\" makes no sense");
        QTest::newRow("a difference with a control character")
            << with("differences", QVariantList{QVariantMap{{latin1("kind"), latin1("port")},
                                                            {latin1("text"), latin1("\x1b[0m")}}})
            << latin1("one of its differences is no plain text");
        QTest::newRow("notes that are no texts") << with("notes", 7) << latin1("its \"notes\"");
    }
    void saysWhyThereIsNothing()
    {
        QFETCH(QVariantMap, answer);
        QFETCH(QString, text);
        m_panel->refresh();
        QVERIFY(tree("Files")->topLevelItemCount() > 0);
        m_root->answer = answer;
        m_panel->refresh();
        QVERIFY2(labels().contains(text), qPrintable(labels()));
        QCOMPARE(tree("Files")->topLevelItemCount(), 0);
        QCOMPARE(tree("Differences")->topLevelItemCount(), 0);
        QVERIFY(!button("Copy as Text")->isEnabled());
    }

    void survivesAPlugInThatThrowsOrIsGone()
    {
        m_root->throws = true;
        m_panel->refresh();
        QVERIFY2(labels().contains(latin1("it broke")), qPrintable(labels()));
        m_root.reset();
        m_panel->refresh();
        QVERIFY(labels().contains(latin1("This IP does not tell what it would generate.")));
        QDialog plain;
        QObject object;
        PreviewPanel panel(&plain, &object, nullptr);
        panel.show();
        panel.refresh();
        QVERIFY(panel.findChild<QLabel *>());
    }

    void rowsHoldBothTexts_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("changed");
        QTest::newRow("two empty texts") << QString() << QString() << 0 << 0;
        QTest::newRow("a new text") << QString() << latin1("a\nb\n") << 2 << 2;
        QTest::newRow("a line in place of another")
            << latin1("a\nb\nc\n") << latin1("a\nx\nc\n") << 3 << 1;
        QTest::newRow("two lines in place of one")
            << latin1("a\nb\nc\n") << latin1("a\nx\ny\nc\n") << 4 << 2;
        QTest::newRow("a line end that is missing") << latin1("a\n") << latin1("a") << 1 << 1;
        QTest::newRow("a line that is gone") << latin1("a\nb\n") << latin1("b\n") << 2 << 1;
    }
    void rowsHoldBothTexts()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        QFETCH(int, rows);
        QFETCH(int, changed);
        const QVector<SideRow> made = sideRows(before, after);
        QCOMPARE(made.size(), rows);
        QStringList left;
        QStringList right;
        int count = 0;
        for (const SideRow &row : made) {
            count += row.kind == SideRow::Changed;
            if (row.before > 0)
                left.append(row.left);
            if (row.after > 0)
                right.append(row.right);
            QCOMPARE(row.before, row.before > 0 ? left.size() : 0);
            QCOMPARE(row.after, row.after > 0 ? right.size() : 0);
        }
        QCOMPARE(count, changed);
        QCOMPARE(left.size(), before.count(u'\n'));
        QCOMPARE(right.size(),
                 after.count(u'\n') + (after.endsWith(u'\n') || after.isEmpty() ? 0 : 1));
    }

private:
    QTreeWidget *tree(const char *name) const
    {
        const QList<QTreeWidget *> trees = m_panel->findChildren<QTreeWidget *>();
        for (QTreeWidget *one : trees) {
            if (one->accessibleName() == latin1(name))
                return one;
        }
        return nullptr;
    }
    QPushButton *button(const char *text) const
    {
        const QList<QPushButton *> buttons = m_panel->findChildren<QPushButton *>();
        for (QPushButton *one : buttons) {
            if (one->text().remove(u'&') == latin1(text))
                return one;
        }
        return nullptr;
    }
    QStringList lines(const char *pane) const
    {
        const QList<QPlainTextEdit *> panes = m_panel->findChildren<QPlainTextEdit *>();
        for (const QPlainTextEdit *one : panes) {
            if (one->accessibleName() == latin1(pane))
                return one->toPlainText().split(u'\n');
        }
        return {};
    }
    QString labels() const
    {
        QStringList texts;
        const QList<QLabel *> all = m_panel->findChildren<QLabel *>();
        for (const QLabel *label : all)
            texts.append(label->text());
        return texts.join(u'\n');
    }
    void choose(const char *path)
    {
        QTreeWidget *files = tree("Files");
        const QList<QTreeWidgetItem *> found = files->findItems(latin1(path), Qt::MatchExactly);
        QCOMPARE(found.size(), 1);
        files->setCurrentItem(found.first());
    }

    const QPalette m_palette = QApplication::palette();
    std::unique_ptr<FakeDialog> m_dialog;
    std::unique_ptr<FakeRoot> m_root;
    std::unique_ptr<PreviewPanel> m_panel;
};

TARVO_TEST_MAIN(QApplication, TestPreviewPanel)

#include "tst_previewpanel.moc"

#include <dialogdriver.h>
#include <smalldisk.h>
#include <testsupport.h>
#include <unprivileged.h>

#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/editor/editortabs.h>
#include <workbench/editor/findbar.h>
#include <workbench/editor/highlighting.h>
#include <workbench/editor/textfile.h>
#include <workbench/editor/unsavedcopy.h>
#include <workbench/widgets/infobar.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSyntaxHighlighter>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QtTest>

using namespace Workbench;
using namespace TestSupport;

namespace
{

QByteArray manyLines(int size)
{
    QByteArray text;
    while (text.size() < size)
        text += "assign a" + QByteArray::number(text.size()) + " = b;\n";
    return text;
}

} // namespace

class TestEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_path = QFileInfo(m_dir->path()).canonicalFilePath() + QStringLiteral("/a ö.v");
        write(m_path, "module a;\n// two\nendmodule\n");
        m_tabs = std::make_unique<EditorTabs>();
        m_tabs->resize(600, 400);
        m_tabs->show();
    }
    void cleanup() { m_tabs.reset(); }

    void everyTextSurvivesARoundTrip_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("lines") << QByteArray("a\nb\n");
        QTest::newRow("no line end at the end") << QByteArray("a\nb");
        QTest::newRow("carriage returns") << QByteArray("a\r\nb\r\n");
        QTest::newRow("UTF-8") << QByteArray("\xC3\xA4\n");
        QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFx\n");
        QTest::newRow("Latin-1") << QByteArray("\xE4 \xFF\n");
    }

    void everyTextSurvivesARoundTrip()
    {
        QFETCH(QByteArray, bytes);
        const TextFormat format = TextFormat::of(bytes);
        QCOMPARE(format.encode(format.decode(bytes)), bytes);
    }

    void refusesWhatIsNoText_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("binary") << QByteArray("a\0b", 3);
    }

    void refusesWhatIsNoText()
    {
        QFETCH(QByteArray, bytes);
        write(m_path, bytes);
        QString error;
        QVERIFY(!m_tabs->openFile(m_path, 0, &error));
        QVERIFY2(error.contains(m_path) && error.contains(QLatin1String("not a text")),
                 qPrintable(error));
        QVERIFY(!m_tabs->openFile(m_dir->path(), 0, &error));
        QVERIFY(error.contains(QLatin1String("folder")));
        QVERIFY(!m_tabs->openFile(m_path + QStringLiteral("x"), 0, &error));
        QCOMPARE(m_tabs->count(), 0);
    }

    void opensAFileOnceAndGoesToTheLine()
    {
        EditorPage *page = open();
        QCOMPARE(page->editor()->toPlainText(), QStringLiteral("module a;\n// two\nendmodule\n"));
        QCOMPARE(m_tabs->tabText(0), QStringLiteral("a ö.v"));
        QString error;
        QCOMPARE(m_tabs->openFile(m_path, 3, &error), page);
        QCOMPARE(m_tabs->count(), 1);
        QCOMPARE(page->editor()->currentLine(), 3);
        page->goToLine(1000); // no such line: the last
        QCOMPARE(page->editor()->currentLine(), 4);
    }

    void cannotBeChangedUntilAsked()
    {
        EditorPage *page = open();
        QVERIFY(page->infoBar()->isHidden());
        QTest::keyClick(page->editor(), Qt::Key_X);
        QVERIFY(!page->isModified());
        QVERIFY(!page->infoBar()->isHidden()); // says how
        page->infoBar()->findChild<QPushButton *>()->click();
        QVERIFY(page->isEditable());
        QVERIFY(page->infoBar()->isHidden());
        QTest::keyClick(page->editor(), Qt::Key_X);
        QVERIFY(page->isModified());
        QCOMPARE(m_tabs->tabText(0), QStringLiteral("a ö.v*"));
    }

    void savesWhatWasTyped()
    {
        EditorPage *page = open();
        page->startEditing();
        QTest::keyClicks(page->editor(), QStringLiteral("// "));
        QVERIFY(m_tabs->savePage(page));
        QCOMPARE(contentsOf(m_path), QByteArray("// module a;\n// two\nendmodule\n"));
        QVERIFY(!page->isModified());
        QCOMPARE(entriesOf(m_dir->path()).size(), 1); // nothing left over
    }

    void saysWhyAFileCannotBeChanged()
    {
        QFile::setPermissions(m_path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
        QFile::setPermissions(m_dir->path(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                                 QFile::ExeGroup | QFile::ReadOther |
                                                 QFile::ExeOther);
        EditorPage *page = open();
        bool binding = false;
        {
            const Unprivileged unprivileged;
            binding = unprivileged.holds();
            page->startEditing();
        }
        QFile::setPermissions(m_dir->path(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        if (!binding)
            QSKIP("permissions do not bind here");
        QVERIFY(!page->isEditable());
        QVERIFY(page->infoBar()->text().contains(QLatin1String("permission")));
    }

    void losesNothingOnAFullDisk()
    {
        QString reason;
        EditorPage *page = changeOnAFullDisk(&reason);
        if (!page)
            QSKIP(qPrintable(reason));
        const bool saved = m_tabs->savePage(page);
        const QByteArray kept = contentsOf(m_path);
        const QString told = page->infoBar()->text();
        unmount(m_dir->path());
        QVERIFY(!saved);
        QCOMPARE(kept, QByteArray("old\n"));
        QVERIFY2(told.contains(m_path), qPrintable(told));
        QVERIFY(page->isModified());
    }

    void keepsUnsavedChangesWhenItMustEnd()
    {
        const QString other = m_path + QStringLiteral("h");
        write(other, "// nothing\n");
        QString error;
        QVERIFY(m_tabs->openFile(other, 0, &error));
        EditorPage *page = open();
        page->startEditing();
        QTest::keyClicks(page->editor(), QStringLiteral("// "));
        const QString kept = m_path + QStringLiteral(".unsaved");
        const QStringList told = m_tabs->keepChanges();
        QCOMPARE(told.size(), 1);
        QVERIFY2(told.first().contains(m_path) && told.first().contains(kept),
                 qPrintable(told.first()));
        QCOMPARE(contentsOf(kept), QByteArray("// module a;\n// two\nendmodule\n"));
        QCOMPARE(contentsOf(m_path), QByteArray("module a;\n// two\nendmodule\n"));
        // Those of an earlier end are not lost either.
        QVERIFY(m_tabs->keepChanges().first().contains(kept + u'2'));
        QCOMPARE(entriesOf(m_dir->path()).size(), 4);

        // The next time the file is opened, it tells. Others are none of its own.
        write(m_path + QStringLiteral(".unsavedness"), "");
        write(m_path + QStringLiteral(".unsaved02"), "");
        m_tabs = std::make_unique<EditorTabs>();
        m_tabs->show();
        page = open();
        QVERIFY(!page->infoBar()->isHidden());
        QVERIFY(page->infoBar()->text().contains(QStringLiteral("a ö.v.unsaved")));
        button(page, "Open")->click();
        const QString opened = m_tabs->currentPage()->path();
        QVERIFY2(opened == kept || opened == kept + u'2', qPrintable(opened));
        QVERIFY(page->infoBar()->isHidden());
        QCOMPARE(Highlighting::languageOf(opened), QString());
        QVERIFY(m_tabs->currentPage()->findChild<QSyntaxHighlighter *>()); // as the original's

        // One copy after the other.
        m_tabs = std::make_unique<EditorTabs>();
        m_tabs->show();
        page = open();
        button(page, "Delete")->click();
        QVERIFY(!QFileInfo::exists(opened));
        QVERIFY(!page->infoBar()->isHidden());
        button(page, "Delete")->click();
        QVERIFY(!QFileInfo::exists(kept) && !QFileInfo::exists(kept + u'2'));
        QVERIFY(page->infoBar()->isHidden());
        QCOMPARE(entriesOf(m_dir->path()).size(), 4);
        QCOMPARE(contentsOf(m_path), QByteArray("module a;\n// two\nendmodule\n"));
    }

    void knowsCopiesByTheirNames_data()
    {
        QTest::addColumn<QString>("original");
        for (const char *name : {"/p/a.v.unsaved", "/p/a.v.unsaved2", "/p/a.v.unsaved10"})
            QTest::newRow(name) << QStringLiteral("/p/a.v");
        QTest::newRow("a.v.unsaved") << QStringLiteral("a.v");
        QTest::newRow("a.unsaved.unsaved") << QStringLiteral("a.unsaved");
        for (const char *name :
             {"", "a.v", "a.v.unsaved1", "a.v.unsaved02", "a.v.unsaved-2", "a.v.unsavedness",
              "a.v.unsaved99999999999", ".unsaved", "/p/.unsaved", "/p.unsaved/a.v"})
            QTest::newRow(name) << QString();
    }

    void knowsCopiesByTheirNames()
    {
        QFETCH(QString, original);
        QCOMPARE(UnsavedCopy::originalOf(QString::fromLatin1(QTest::currentDataTag())), original);
    }

    void keepsUnsavedChangesElsewhereOnAFullDisk()
    {
        QString reason;
        const EditorPage *page = changeOnAFullDisk(&reason);
        if (!page)
            QSKIP(qPrintable(reason));
        QString error;
        const QString kept = page->keepChanges(&error);
        const QStringList beside = entriesOf(m_dir->path());
        unmount(m_dir->path());
        QVERIFY2(kept.startsWith(QDir::tempPath() + QStringLiteral("/a ö.v.unsaved")),
                 qPrintable(kept));
        QCOMPARE(contentsOf(kept).size(), 80000);
        QVERIFY(QFile::remove(kept));
        QVERIFY2(!beside.contains(QStringLiteral("a ö.v.unsaved")), qPrintable(beside.join(u' ')));
    }

    void readsAgainWhatWasChangedOutside()
    {
        EditorPage *page = open();
        write(m_path, "module b;\nendmodule\n");
        QTRY_COMPARE(page->editor()->toPlainText(), QStringLiteral("module b;\nendmodule\n"));
        QVERIFY(!page->isModified());
    }

    void followsAFileThatIsReplaced()
    {
        EditorPage *page = open();
        for (int i = 0; i < 3; ++i) {
            const QByteArray text = "module m" + QByteArray::number(i) + ";\n";
            write(m_path + QStringLiteral(".new"), text);
            QVERIFY(::rename(QFile::encodeName(m_path + QStringLiteral(".new")).constData(),
                             QFile::encodeName(m_path).constData()) == 0);
            QTRY_COMPARE(page->editor()->toPlainText(), QString::fromLatin1(text));
        }
    }

    void asksBeforeItLosesChangesToOneOutside()
    {
        EditorPage *page = open();
        page->startEditing();
        QTest::keyClicks(page->editor(), QStringLiteral("mine "));
        write(m_path, "theirs\n");
        QTRY_VERIFY(!page->infoBar()->isHidden());
        QVERIFY(page->editor()->toPlainText().startsWith(QLatin1String("mine ")));
        button(page, "Keep")->click();
        QVERIFY(page->editor()->toPlainText().startsWith(QLatin1String("mine ")));
        write(m_path, "theirs again\n");
        QTRY_VERIFY(!page->infoBar()->isHidden());
        button(page, "Read")->click();
        QCOMPARE(page->editor()->toPlainText(), QStringLiteral("theirs again\n"));
    }

    void tellsThatAFileWasDeletedAndWritesItAgain()
    {
        EditorPage *page = open();
        QFile::remove(m_path);
        QTRY_VERIFY(page->isModified());
        QVERIFY(page->infoBar()->text().contains(QLatin1String("deleted")));
        QVERIFY(m_tabs->savePage(page));
        QCOMPARE(contentsOf(m_path), QByteArray("module a;\n// two\nendmodule\n"));
        QVERIFY(!page->isModified());
    }

    void asksBeforeItClosesUnsavedChanges_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<bool>("saved");
        QTest::newRow("save") << int(QMessageBox::Save) << true << true;
        QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
    }

    void asksBeforeItClosesUnsavedChanges()
    {
        QFETCH(int, answer);
        QFETCH(bool, closed);
        QFETCH(bool, saved);
        EditorPage *page = open();
        page->startEditing();
        QTest::keyClicks(page->editor(), QStringLiteral("new "));
        const auto boxes =
            boxesOf([this] { m_tabs->closeTab(0); }, QMessageBox::StandardButton(answer));
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(m_tabs->count() == 0, closed);
        QCOMPARE(contentsOf(m_path).startsWith("new "), saved);
    }

    void asksOnceForAllFiles()
    {
        const QString other = m_dir->filePath(QStringLiteral("b.v"));
        write(other, "x\n");
        QString error;
        for (const QString &path : {m_path, other}) {
            EditorPage *page = m_tabs->openFile(path, 0, &error);
            page->startEditing();
            QTest::keyClicks(page->editor(), QStringLiteral("1"));
        }
        const auto boxes = boxesOf([this] { m_tabs->closeAll(); }, QMessageBox::Save);
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(m_tabs->count(), 0);
        QVERIFY(contentsOf(other).startsWith("1"));
        QVERIFY(contentsOf(m_path).startsWith("1"));
    }

    void coloursTheLanguagesOfDesigns_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("language");
        const auto row = [](const char *name, const char *language) {
            QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(language);
        };
        row("a.v", "Verilog");
        row("a.vo", "Verilog");
        row("a.vh", "Verilog");
        row("A.SV", "SystemVerilog");
        row("a.vhd", "VHDL");
        row("a.vho", "VHDL");
        row("a.ipc", "INI Files");
        row("a.tvproj", "JSON");
        row("a.log", "Log File (simplified)");
        row("a.txt", "");
        row("none", "");
    }

    void coloursTheLanguagesOfDesigns()
    {
        QFETCH(QString, name);
        QFETCH(QString, language);
        QCOMPARE(Highlighting::languageOf(name), language);
        if (language.isEmpty())
            return;
        QTextDocument document;
        QVERIFY2(Highlighting::attach(&document, name, QApplication::palette()),
                 qPrintable(language));
    }

    void showsKeywordsInAnotherFormat()
    {
        EditorPage *page = open();
        const auto formats = page->editor()->document()->firstBlock().layout()->formats();
        QVERIFY(!formats.isEmpty());
    }

    void coloursFollowThePalette()
    {
        EditorPage *page = open();
        const auto colour = [page] {
            const auto formats = page->editor()->document()->firstBlock().layout()->formats();
            return formats.isEmpty() ? QColor() : formats.first().format.foreground().color();
        };
        const QColor before = colour();
        QPalette dark = page->palette();
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, Qt::white);
        page->setPalette(dark);
        QVERIFY(colour() != before);
    }

    void largeFilesComeInPieces()
    {
        QByteArray text;
        while (text.size() < 3 * EditorPage::pieceLimit)
            text +=
                "  TV_LUT4 #(.INIT(16'h8000)) lut_" + QByteArray::number(text.size()) + " ();\n";
        write(m_path, text);
        EditorPage *page = open();
        QVERIFY(page->isLoading());
        QVERIFY(!page->isModified());
        QVERIFY(page->editor()->lineCount() > 100); // the first piece is there at once
        const int lines = text.count('\n');
        page->goToLine(lines);
        page->startEditing();
        QVERIFY(!page->isEditable());
        QTRY_VERIFY(!page->isLoading());
        QCOMPARE(page->editor()->toPlainText(), QString::fromLatin1(text));
        QCOMPARE(page->editor()->currentLine(), lines);
        QVERIFY(!page->isModified());
        QVERIFY(!page->findChild<QSyntaxHighlighter *>());
        QVERIFY(page->infoBar()->isHidden());
        page->startEditing();
        QVERIFY(page->isEditable());
    }

    void theEditorTakesNoMoreThanAPieceOfALargeFileInATurn()
    {
        write(m_path, manyLines(3 * EditorPage::pieceLimit));
        EditorPage *page = open();
        int before = page->editor()->document()->characterCount();
        QVERIFY(before <= EditorPage::pieceSize + 1);
        int most = 0;
        connect(page->editor(), &QPlainTextEdit::textChanged, page, [&] {
            const int now = page->editor()->document()->characterCount();
            most = qMax(most, now - before);
            before = now;
        });
        QTRY_VERIFY(!page->isLoading());
        QVERIFY2(most <= EditorPage::pieceSize, qPrintable(QString::number(most)));
        QVERIFY(most > 0);
    }

    void aLargeFileThatChangesOnDiskIsShownAsItIsThen()
    {
        QByteArray text = manyLines(2 * EditorPage::pieceLimit);
        write(m_path, text);
        EditorPage *page = open();
        QTRY_VERIFY(!page->isLoading());
        page->goToLine(2000);
        text.replace(text.size() / 2, 1, "#");
        text += "// the end\n";
        write(m_path, text);
        page->checkDisk();
        QTRY_COMPARE(page->editor()->toPlainText().size(), text.size());
        QTRY_VERIFY(!page->isBusy());
        QCOMPARE(page->editor()->toPlainText(), QString::fromLatin1(text));
        QCOMPARE(page->editor()->currentLine(), 2000);
        QVERIFY(!page->isModified());
        QVERIFY(page->infoBar()->isHidden());
        write(m_path, "short\n");
        page->checkDisk();
        QTRY_COMPARE(page->editor()->toPlainText(), QStringLiteral("short\n"));
        QVERIFY(page->findChild<QSyntaxHighlighter *>());
    }

    void aLargeFileWithChangesIsNotReadOverThem()
    {
        const QByteArray text = manyLines(2 * EditorPage::pieceLimit);
        write(m_path, text);
        EditorPage *page = open();
        QTRY_VERIFY(!page->isLoading());
        page->startEditing();
        page->editor()->insertPlainText(QStringLiteral("mine"));
        write(m_path, text + "theirs\n");
        page->checkDisk();
        QTRY_VERIFY(!page->infoBar()->isHidden());
        QVERIFY(page->isModified());
        // What a comparison has read before the text is saved is no news afterwards.
        page->checkDisk();
        QString error;
        QVERIFY2(page->save(&error), qPrintable(error));
        QTRY_VERIFY(!page->isBusy());
        QVERIFY(page->editor()->toPlainText().startsWith(QLatin1String("mine")));
    }

    void whatIsNoTextFarFromTheBeginningIsTold()
    {
        write(m_path, manyLines(2 * EditorPage::pieceLimit) + '\0');
        EditorPage *page = open();
        QTRY_VERIFY(!page->isLoading());
        QVERIFY2(page->infoBar()->text().contains(QLatin1String("not a text")),
                 qPrintable(page->infoBar()->text()));
        page->startEditing();
        QVERIFY(!page->isEditable());
        QVERIFY(!page->isModified());
    }

    void closingALargeFileWhileItIsReadAsksNothing()
    {
        write(m_path, QByteArray(3 * EditorPage::pieceLimit, 'x'));
        open();
        const auto boxes = boxesOf([this] { m_tabs->closeTab(0); });
        QVERIFY(boxes.isEmpty());
        QCOMPARE(m_tabs->count(), 0);
    }

    void findsWhileTypingAndRoundTheEnd()
    {
        write(m_path, "alpha\nbeta\nAlpha\n");
        EditorPage *page = open();
        page->findBar()->start();
        auto *edit = page->findBar()->findChild<QLineEdit *>();
        QTest::keyClicks(edit, QStringLiteral("alp"));
        QCOMPARE(page->editor()->currentLine(), 1);
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(page->editor()->currentLine(), 3);
        page->findBar()->findNext();
        QCOMPARE(page->editor()->currentLine(), 1);
        QTest::keyClick(edit, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(page->editor()->currentLine(), 3);
        QTest::keyClicks(edit, QStringLiteral("zzz"));
        QCOMPARE(page->findBar()->findChild<QLabel *>()->text(), QStringLiteral("Not found"));
        QTest::keyClick(edit, Qt::Key_Escape);
        QVERIFY(page->findBar()->isHidden());
    }

    void lineNumbersHaveRoomForAllDigits()
    {
        CodeEditor editor;
        const int narrow = editor.lineNumberWidth();
        editor.setPlainText(QString(123456, u'\n'));
        QVERIFY(editor.lineNumberWidth() > narrow);
        QVERIFY(editor.lineNumberWidth() >=
                editor.fontMetrics().horizontalAdvance(QStringLiteral("123457")));
    }

private:
    EditorPage *open()
    {
        QString error;
        EditorPage *page = m_tabs->openFile(m_path, 0, &error);
        if (!page)
            qFatal("%s", qPrintable(error));
        return page;
    }

    // A page with changes that its disk has no room for; null, and why, if none can be had here.
    EditorPage *changeOnAFullDisk(QString *reason)
    {
        *reason = mountSmallDisk(m_dir->path());
        if (!reason->isEmpty())
            return nullptr;
        write(m_path, "old\n");
        EditorPage *page = open();
        page->startEditing();
        page->editor()->setPlainText(QString(80000, u'x'));
        page->editor()->document()->setModified(true);
        fillDisk(m_dir->path(), 0);
        return page;
    }

    static QPushButton *button(EditorPage *page, const char *text)
    {
        const auto buttons = page->infoBar()->findChildren<QPushButton *>();
        for (QPushButton *candidate : buttons) {
            if (!candidate->isHidden() && candidate->text().contains(QLatin1String(text)))
                return candidate;
        }
        return nullptr;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;
    std::unique_ptr<EditorTabs> m_tabs;
};

TARVO_TEST_MAIN(QApplication, TestEditor)
#include "tst_editor.moc"

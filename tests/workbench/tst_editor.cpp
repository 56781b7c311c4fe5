#include <dialogdriver.h>
#include <smalldisk.h>
#include <testsupport.h>
#include <unprivileged.h>

#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/editor/editortabs.h>
#include <workbench/editor/findbar.h>
#include <workbench/editor/highlighting.h>
#include <workbench/editor/search.h>
#include <workbench/editor/textcopy.h>
#include <workbench/editor/textfile.h>
#include <workbench/editor/unsavedcopy.h>
#include <workbench/widgets/colours.h>
#include <workbench/widgets/infobar.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextDocumentLayout>
#include <QProcess>
#include <QPushButton>
#include <QRandomGenerator>
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
    text.reserve(size + 100); // which the sum of parts would do for each line
    while (text.size() < size)
        text += "assign a" + QByteArray::number(text.size()) + " = b;\n";
    return text;
}

// Sees dialogs before any event gets to them: what ends one of them has not come yet.
class ShownDialogs : public QObject
{
public:
    explicit ShownDialogs(const std::function<void(QDialog *)> &handle)
        : m_handle(handle)
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (dialog && event->type() == QEvent::Show)
            m_handle(dialog);
        return false;
    }

private:
    std::function<void(QDialog *)> m_handle;
};

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
        EditorPage *page = changeOnAFullDisk(&reason);
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
        QTRY_VERIFY_WITH_TIMEOUT(!page->isLoading(), 60000);
        QCOMPARE(page->editor()->toPlainText(), QString::fromLatin1(text));
        QCOMPARE(page->editor()->currentLine(), lines);
        QVERIFY(!page->isModified());
        QVERIFY(!page->findChild<QSyntaxHighlighter *>());
        QVERIFY(page->infoBar()->isHidden());
        page->startEditing();
        QVERIFY(page->isEditable());
    }

    void aLineThatCannotBeLaidOutIsNotShown()
    {
        const QByteArray longest(EditorPage::lineLimit, 'a');
        QString error;
        write(m_path, "b\n" + longest);
        {
            EditorPage page(m_path);
            QVERIFY2(page.load(&error), qPrintable(error));
            QCOMPARE(page.editor()->document()->blockCount(), 2);
        }
        write(m_path, "b\n" + longest + "a\n");
        EditorPage small(m_path);
        QVERIFY(!small.load(&error));
        QVERIFY2(error.contains(QDir::toNativeSeparators(m_path)) &&
                     error.contains(QLatin1String("its line 2 has 1,000,001 characters")),
                 qPrintable(error));
        {
            // Such a line comes as one piece: each of its own pieces would lay it out again.
            write(m_path, manyLines(EditorPage::pieceLimit / 2) + longest + "\nend\n");
            EditorPage page(m_path);
            QVERIFY(page.load(&error));
            int changes = 0;
            QPlainTextEdit *editor = page.editor();
            connect(editor, &QPlainTextEdit::textChanged, editor, [&] {
                changes += editor->document()->lastBlock().length() > EditorPage::pieceSize;
            });
            QTRY_VERIFY_WITH_TIMEOUT(!page.isLoading(), 60000);
            QVERIFY(editor->toPlainText().endsWith(QLatin1String("a\nend\n")));
            QVERIFY2(changes <= 1, qPrintable(QString::number(changes)));
        }
        // Of a large one it comes out later; nothing of it can be written then.
        const QByteArray bytes = manyLines(EditorPage::pieceLimit) + longest + longest + "\n";
        write(m_path, bytes);
        EditorPage large(m_path);
        QVERIFY(large.load(&error));
        QTRY_VERIFY_WITH_TIMEOUT(!large.isLoading(), 60000);
        QVERIFY2(large.infoBar()->text().contains(QLatin1String("has 2,000,000 characters")),
                 qPrintable(large.infoBar()->text()));
        large.startEditing();
        QVERIFY(!large.isEditable());
        QVERIFY(!large.isModified());
        // And of one that has got it since.
        write(m_path, "short\n");
        EditorPage *page = open();
        write(m_path, bytes);
        page->checkDisk();
        QTRY_VERIFY_WITH_TIMEOUT(page->infoBar()->text().contains(QLatin1String("2,000,000")),
                                 60000);
        QCOMPARE(page->editor()->toPlainText(), QStringLiteral("short\n"));
        QCOMPARE(contentsOf(m_path), bytes);
    }

    void theEditorTakesNoMoreThanAPieceOfALargeFileInATurn()
    {
        write(m_path, manyLines(3 * EditorPage::pieceLimit));
        EditorPage *page = open();
        int before = page->editor()->document()->characterCount();
        QVERIFY(before <= EditorPage::headSize + 1);
        int most = 0;
        connect(page->editor(), &QPlainTextEdit::textChanged, page, [&] {
            const int now = page->editor()->document()->characterCount();
            most = qMax(most, now - before);
            before = now;
        });
        QTRY_VERIFY_WITH_TIMEOUT(!page->isLoading(), 60000);
        QVERIFY2(most <= EditorPage::pieceSize, qPrintable(QString::number(most)));
        QVERIFY(most > 0);
    }

    void aLargeFileThatChangesOnDiskIsShownAsItIsThen()
    {
        QByteArray text = manyLines(2 * EditorPage::pieceLimit);
        write(m_path, text);
        EditorPage *page = open();
        QTRY_VERIFY_WITH_TIMEOUT(!page->isLoading(), 60000);
        page->goToLine(2000);
        text.replace(text.size() / 2, 1, "#");
        text += "// the end\n";
        write(m_path, text);
        page->checkDisk();
        QTRY_COMPARE(page->editor()->toPlainText().size(), text.size());
        QTRY_VERIFY_WITH_TIMEOUT(!page->isBusy(), 60000);
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
        QTRY_VERIFY_WITH_TIMEOUT(!page->isLoading(), 60000);
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
        QTRY_VERIFY_WITH_TIMEOUT(!page->isBusy(), 60000);
        QVERIFY(page->editor()->toPlainText().startsWith(QLatin1String("mine")));
    }

    // Whatever is edited between two steps.
    void aCopyOfATextIsThatOfItsEnd()
    {
        QRandomGenerator random(7);
        for (int round = 0; round < 20; ++round) {
            QTextDocument document;
            document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
            document.setPlainText(QString::fromLatin1(manyLines(1 << 20)));
            TextCopy copy(&document);
            for (int edits = round; !copy.advance(0);) {
                if (edits-- <= 0)
                    continue;
                const int size = document.characterCount() - 1;
                QTextCursor cursor(&document);
                cursor.beginEditBlock();
                for (int i = random.bounded(3); i >= 0; --i) {
                    const int at = random.bounded(size - 2000);
                    cursor.setPosition(at);
                    cursor.setPosition(at + random.bounded(1000), QTextCursor::KeepAnchor);
                    cursor.insertText(QStringLiteral("x\ny").repeated(random.bounded(300)));
                }
                cursor.endEditBlock();
                if (random.bounded(3) == 0)
                    document.undo();
            }
            QVERIFY(copy.take() == document.toRawText());
        }
    }

    void whatIsEditedWhileALargeFileIsSavedStaysModified()
    {
        EditorPage *page = openLarge();
        QSignalSpy ends(page, &EditorPage::saveEnded);
        type(page, "first ");
        page->startSaving();
        QVERIFY(page->isSaving());
        type(page, "second "); // before the text has been copied: it goes along
        const QByteArray saved = textOf(page);
        QVERIFY(untilItIsWritten(page));
        QVERIFY(page->isModified()); // not on the disk yet
        QVERIFY(m_tabs->tabText(0).endsWith(u'*'));
        type(page, "third ");
        QTRY_VERIFY_WITH_TIMEOUT(!page->isSaving(), 60000);
        QCOMPARE(contentsOf(m_path), saved);
        QVERIFY(page->isModified());
        page->editor()->undo();
        QCOMPARE(textOf(page), saved);
        QVERIFY(!page->isModified());
        QVERIFY(!m_tabs->tabText(0).endsWith(u'*'));
        QCOMPARE(ends.size(), 1);
        QCOMPARE(ends.first().first().toString(), QString());
    }

    void aSaveDuringASaveWaitsForIt()
    {
        EditorPage *page = openLarge();
        QSignalSpy ends(page, &EditorPage::saveEnded);
        type(page, "first ");
        page->startSaving();
        QVERIFY(untilItIsWritten(page));
        type(page, "second ");
        page->startSaving();
        QTRY_VERIFY_WITH_TIMEOUT(!page->isSaving(), 60000);
        QCOMPARE(contentsOf(m_path), textOf(page));
        QVERIFY(contentsOf(m_path).startsWith("first second "));
        QVERIFY(!page->isModified());
        QCOMPARE(ends.size(), 1);
    }

    void closingWhileAFileIsSavedWaitsForIt_data()
    {
        QTest::addColumn<bool>("isWritten");
        QTest::newRow("while it is copied") << false;
        QTest::newRow("while it is written") << true;
    }

    void closingWhileAFileIsSavedWaitsForIt()
    {
        QFETCH(bool, isWritten);
        EditorPage *page = openLarge();
        type(page, "first ");
        const QByteArray saved = textOf(page);
        page->startSaving();
        if (isWritten)
            QVERIFY(untilItIsWritten(page));
        QStringList told;
        const ShownDialogs shown([&told](QDialog *dialog) {
            told.append(dialog->findChild<QLabel *>()->text());
            dialog->reject(); // which it does not do
            QTest::keyClick(dialog, Qt::Key_Escape);
            if (dialog->isVisible())
                told.append(QStringLiteral("stays"));
        });
        QVERIFY(m_tabs->closeTab(0));
        QCOMPARE(m_tabs->count(), 0);
        QCOMPARE(contentsOf(m_path), saved);
        QCOMPARE(told.size(), 2);
        QVERIFY2(told.first().contains(QStringLiteral("a ö.v")), qPrintable(told.first()));
    }

    void aProgramThatEndsWaitsForASave()
    {
        EditorPage *page = openLarge();
        type(page, "first ");
        const QByteArray saved = textOf(page);
        page->startSaving();
        QCOMPARE(m_tabs->keepChanges(), QStringList());
        QCOMPARE(contentsOf(m_path), saved);
        // Without a question, too.
        type(page, "second ");
        const QByteArray second = textOf(page);
        page->startSaving();
        m_tabs.reset();
        QCOMPARE(contentsOf(m_path), second);
    }

    void aSaveThatFailsLaterIsToldAndLosesNothing()
    {
        EditorPage *page = openLarge();
        type(page, "first ");
        page->startSaving();
        QVERIFY(QFile::remove(m_path));
        QVERIFY(QDir().mkdir(m_path));
        QTRY_VERIFY_WITH_TIMEOUT(!page->isSaving(), 60000);
        QVERIFY2(page->infoBar()->text().contains(m_path), qPrintable(page->infoBar()->text()));
        QVERIFY(page->isModified());
        QVERIFY(m_tabs->tabText(0).endsWith(u'*'));
        page->editor()->undo();
        QVERIFY(page->isModified()); // nor is what it was before on the disk
        page->editor()->redo();

        // Who closes it is asked.
        page->startSaving();
        const auto boxes = boxesOf([this] { m_tabs->closeTab(0); }, QMessageBox::Cancel);
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(m_tabs->count(), 1);
        QVERIFY(page->isModified());

        QVERIFY(QDir().rmdir(m_path));
        QVERIFY(button(page, "gain"));
        button(page, "gain")->click();
        QTRY_VERIFY_WITH_TIMEOUT(!page->isSaving(), 60000);
        QCOMPARE(contentsOf(m_path), textOf(page));
        QVERIFY(!page->isModified());
        QVERIFY(page->infoBar()->isHidden());
    }

    void aFileInTheBackSaysThatItIsNotSaved()
    {
        EditorPage *page = openLarge();
        QSignalSpy failures(m_tabs.get(), &EditorTabs::saveFailed);
        type(page, "first ");
        m_tabs->saveAll();
        const QString other = m_dir->filePath(QStringLiteral("b.v"));
        write(other, "x\n");
        QString error;
        QVERIFY(m_tabs->openFile(other, 0, &error));
        QVERIFY(QFile::remove(m_path));
        QVERIFY(QDir().mkdir(m_path));
        QTRY_COMPARE(failures.size(), 1);
        QVERIFY(failures.first().first().toString().contains(m_path));
        QVERIFY(page->isModified());
    }

    void aCharacterThatLatin1LacksIsToldWithItsLine()
    {
        write(m_path, manyLines(2 * EditorPage::pieceLimit) + "\xE4\n");
        EditorPage *page = open();
        QTRY_VERIFY_WITH_TIMEOUT(!page->isLoading(), 60000);
        const QByteArray before = contentsOf(m_path);
        page->startEditing();
        page->goToLine(2000);
        type(page, "\u20AC");
        page->startSaving();
        QTRY_VERIFY_WITH_TIMEOUT(!page->isSaving(), 60000);
        QVERIFY(page->needsUtf8());
        QVERIFY2(page->infoBar()->text().contains(QLatin1String("line 2000")),
                 qPrintable(page->infoBar()->text()));
        QCOMPARE(contentsOf(m_path), before);
        button(page, "UTF-8")->click();
        QTRY_VERIFY_WITH_TIMEOUT(!page->isSaving(), 60000);
        QVERIFY(!page->isModified());
        QVERIFY(contentsOf(m_path).endsWith("\xC3\xA4\n"));
    }

    // It is none of another program.
    void aSaveIsNoChangeOnDisk()
    {
        EditorPage *page = openLarge();
        type(page, "first ");
        page->startSaving();
        while (page->isSaving()) {
            page->checkDisk();
            QCoreApplication::processEvents();
        }
        type(page, "second ");
        QTRY_VERIFY_WITH_TIMEOUT(!page->isBusy(), 60000);
        QVERIFY(page->isModified());
        QVERIFY(page->infoBar()->isHidden());
        QVERIFY(textOf(page).startsWith("first second "));
    }

    // Another process, which saves one of two texts again and again until it is killed.
    void aKilledSaveLeavesTheOldTextOrTheNew()
    {
        const QByteArray killed = qgetenv("TARVO_TEST_SAVES");
        if (!killed.isEmpty()) {
            m_path = QFile::decodeName(killed);
            EditorPage *page = open();
            QTRY_VERIFY_WITH_TIMEOUT(!page->isLoading(), 60000);
            page->startEditing();
            for (;;) {
                type(page, "x");
                page->startSaving();
                while (page->isSaving())
                    QCoreApplication::processEvents();
                page->editor()->undo();
                page->startSaving();
                while (page->isSaving())
                    QCoreApplication::processEvents();
            }
        }
        const QByteArray text = manyLines(2 * EditorPage::pieceLimit);
        for (int round = 0; round < 8; ++round) {
            write(m_path, text);
            QProcess saver;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("TARVO_TEST_SAVES"), m_path);
            environment.insert(QStringLiteral("TMPDIR"), m_dir->path()); // for what it leaves
            saver.setProcessEnvironment(environment);
            saver.start(QCoreApplication::applicationFilePath(),
                        {QString::fromLatin1(QTest::currentTestFunction())});
            const auto size = [this] { return QFileInfo(m_path).size(); };
            QTRY_VERIFY_WITH_TIMEOUT(size() == text.size() + 1, 60000);
            for (int turns = 0; turns < round * 3; ++turns)
                QVERIFY(!saver.waitForFinished(7));
            saver.kill();
            QVERIFY(saver.waitForFinished());
            const QByteArray left = contentsOf(m_path);
            QVERIFY(left == text || left == "x" + text);
        }
    }

    void whatIsNoTextFarFromTheBeginningIsTold()
    {
        write(m_path, manyLines(2 * EditorPage::pieceLimit) + '\0');
        EditorPage *page = open();
        QTRY_VERIFY_WITH_TIMEOUT(!page->isLoading(), 60000);
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

    void tellsWhichOfHowManyAndWhereItContinues()
    {
        write(m_path, "alpha\nbeta\nAlpha alphabet\n");
        EditorPage *page = open();
        page->findBar()->start();
        type(page, "findEdit", "alpha");
        QCOMPARE(state(page), QStringLiteral("1 of 3"));
        page->findBar()->findNext();
        page->findBar()->findNext();
        QCOMPARE(state(page), QStringLiteral("3 of 3"));
        page->findBar()->findNext();
        QCOMPARE(state(page), QStringLiteral("1 of 3, continued at the start"));
        page->findBar()->findPrevious();
        QCOMPARE(state(page), QStringLiteral("3 of 3, continued at the end"));
        page->findBar()->findPrevious();
        QCOMPARE(state(page), QStringLiteral("2 of 3"));
        page->editor()->moveCursor(QTextCursor::Start);
        QCOMPARE(state(page), QStringLiteral("Matches: 3"));
        check(page, "wholeWordsBox", true);
        QCOMPARE(state(page), QStringLiteral("1 of 2"));
        check(page, "matchCaseBox", true);
        QCOMPARE(state(page), QStringLiteral("1 of 1"));
        type(page, "findEdit", "lph");
        QCOMPARE(state(page), QStringLiteral("Not found"));
    }

    void countsFollowTheText()
    {
        EditorPage *page = open();
        page->startEditing();
        page->findBar()->start();
        type(page, "findEdit", "two");
        QCOMPARE(state(page), QStringLiteral("1 of 1"));
        page->editor()->moveCursor(QTextCursor::End);
        page->editor()->insertPlainText(QStringLiteral("two two"));
        QTRY_COMPARE(state(page), QStringLiteral("Matches: 3"));
    }

    void anExpressionFindsWhatItSays_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QStringList>("found");
        const QString text = QStringLiteral("wire [7:0] a;\nwire b;\n\nreg b2;");
        const auto row = [&](const char *name, const char *expression, const QStringList &found) {
            QTest::newRow(name) << text << QString::fromUtf8(expression) << found;
        };
        row("begin of a line", "^wire", {QStringLiteral("wire"), QStringLiteral("wire")});
        row("end of a line", "\\w+;$",
            {QStringLiteral("a;"), QStringLiteral("b;"), QStringLiteral("b2;")});
        row("empty lines", "^$", {QString()});
        row("across lines", ";\\nwire", {QStringLiteral(";\nwire")});
        row("across everything", "w[\\s\\S]*reg", {text.left(text.indexOf(QLatin1String(" b2")))});
        row("looking back", "(?<=wire )b", {QStringLiteral("b")});
        row("looking ahead", "b(?=2)", {QStringLiteral("b")});
        row("the very begin", "\\Awire", {QStringLiteral("wire")});
        row("the very end", ";\\z", {QStringLiteral(";")});
        row("a group again", "(\\n)\\1", {QStringLiteral("\n\n")});
        row("what begins later", "wire \\Kb", {QStringLiteral("b")});
    }
    void anExpressionFindsWhatItSays()
    {
        QFETCH(QString, text);
        QFETCH(QString, expression);
        QFETCH(QStringList, found);
        Search search(text, {expression, false, false, true});
        while (search.advance(0) == Search::Running)
            ;
        QCOMPARE(search.state(), Search::Done);
        QStringList texts;
        for (const Search::Place &place : search.places())
            texts.append(text.mid(place.position, place.length));
        QCOMPARE(texts, found);
    }

    // Against the same expression on the whole text at once: no piece is too short for a match.
    void piecesFindWhatTheWholeTextHas_data()
    {
        QTest::addColumn<QString>("expression");
        for (const char *expression :
             {"a", "ab+", "b\\nc", "(?<=ab)c", "c[^a]*a", "\\bab\\b", "^a", "c$", "(a|ab)(c|bcd)?",
              "x{3,}", "b{40,}", "(?:ab)+", "\\s+", "a.*c", "\\x{1F600}", "[^a]"})
            QTest::newRow(expression) << QString::fromLatin1(expression);
    }
    void piecesFindWhatTheWholeTextHas()
    {
        QFETCH(QString, expression);
        QString text;
        quint32 random = 7;
        for (int i = 0; i < 40000; ++i) {
            random = random * 1664525U + 1013904223U;
            const QStringList pieces{QStringLiteral("a"),  QStringLiteral("b"),
                                     QStringLiteral("c"),  QStringLiteral(" "),
                                     QStringLiteral("\n"), QString(int(random >> 8 & 63), u'b'),
                                     QStringLiteral("x"),  QStringLiteral("\U0001F600")};
            text += pieces.at(int(random >> 24 & 7));
        }
        const SearchFor wanted{expression, true, false, true};
        Search search(text, wanted);
        while (search.advance(0) == Search::Running)
            ;
        QVector<QPair<int, int>> got;
        for (const Search::Place &place : search.places())
            got.append({place.position, place.length});
        QVector<QPair<int, int>> all;
        auto matches = wanted.expression().globalMatch(text);
        while (matches.hasNext()) {
            const auto match = matches.next();
            all.append({match.capturedStart(), match.capturedLength()});
        }
        QVERIFY(all.size() > 3);
        QCOMPARE(got, all);
        // And each is found again when it is replaced.
        const Replacement same(QStringLiteral("$0"), search.groups());
        for (int i = 0; i < got.size(); ++i) {
            const auto edits = search.editsFor(i, same);
            QCOMPARE(edits.size(), 1);
            QCOMPARE(edits[0].text, text.mid(got[i].first, got[i].second));
        }
    }

    void aWrongExpressionIsToldWithItsPlace()
    {
        EditorPage *page = open();
        page->findBar()->start();
        check(page, "expressionBox", true);
        type(page, "findEdit", "mod(ule");
        const QString told = message(page);
        QVERIFY2(told.contains(QLatin1String("character 8")), qPrintable(told));
        QCOMPARE(state(page), QString());
        type(page, "findEdit", "mod(ule)");
        QCOMPARE(message(page), QString());
        QVERIFY(state(page).startsWith(QLatin1String("1 of")));
    }

    void anExpressionThatTakesForEverIsTold()
    {
        write(m_path, "ok\n" + QByteArray("a").repeated(5000) + "\nok\n");
        EditorPage *page = open();
        page->startEditing();
        page->findBar()->startReplacing();
        check(page, "expressionBox", true);
        type(page, "findEdit", "(a+)+b|ok");
        QTRY_VERIFY2_WITH_TIMEOUT(message(page).contains(QLatin1String("line 2")),
                                  qPrintable(message(page)), 20000);
        page->findBar()->replaceAll();
        QTRY_VERIFY(message(page).contains(QLatin1String("Nothing was replaced")));
        QVERIFY(!page->isModified());
    }

    void replacesOneAfterTheOther()
    {
        write(m_path, "a b a b a\n");
        EditorPage *page = open();
        page->startEditing();
        page->findBar()->startReplacing();
        type(page, "findEdit", "a");
        type(page, "replaceEdit", "aa");
        page->findBar()->replace();
        QCOMPARE(page->editor()->toPlainText(), QStringLiteral("aa b a b a\n"));
        QCOMPARE(state(page), QStringLiteral("3 of 4"));
        QTest::keyClick(page->findBar()->findChild<QLineEdit *>(QStringLiteral("replaceEdit")),
                        Qt::Key_Return);
        QCOMPARE(page->editor()->toPlainText(), QStringLiteral("aa b aa b a\n"));
        page->editor()->undo();
        QCOMPARE(page->editor()->toPlainText(), QStringLiteral("aa b a b a\n"));
    }

    void aReplacementKnowsGroups_data()
    {
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<QString>("text"); // empty: refused
        QTest::newRow("dollar") << QStringLiteral("$2-$1") << QStringLiteral("b-a");
        QTest::newRow("backslash") << QStringLiteral("\\2-\\1") << QStringLiteral("b-a");
        QTest::newRow("braces") << QStringLiteral("${2}1") << QStringLiteral("b1");
        QTest::newRow("everything") << QStringLiteral("<$0|\\0>") << QStringLiteral("<ab|ab>");
        QTest::newRow("a digit behind") << QStringLiteral("$12") << QStringLiteral("a2");
        QTest::newRow("dollar itself") << QStringLiteral("$$1") << QStringLiteral("$1");
        QTest::newRow("backslash itself") << QStringLiteral("\\\\1") << QStringLiteral("\\1");
        QTest::newRow("line end and tab")
            << QStringLiteral("1\\n2\\t3") << QStringLiteral("1\n2\t3");
        QTest::newRow("as it stands")
            << QStringLiteral("\\q $x ${ $") << QStringLiteral("\\q $x ${ $");
        QTest::newRow("no such group") << QStringLiteral("$3") << QString();
        QTest::newRow("no such group in braces") << QStringLiteral("${12}") << QString();
    }
    void aReplacementKnowsGroups()
    {
        QFETCH(QString, replacement);
        QFETCH(QString, text);
        write(m_path, "ab");
        EditorPage *page = open();
        page->startEditing();
        page->findBar()->startReplacing();
        check(page, "expressionBox", true);
        type(page, "findEdit", "(a)(b)");
        type(page, "replaceEdit", replacement);
        page->findBar()->replaceAll();
        QCOMPARE(page->editor()->toPlainText(), text.isEmpty() ? QStringLiteral("ab") : text);
        QCOMPARE(message(page).contains(QLatin1String("names group")), text.isEmpty());
        // Without an expression every character stands for itself.
        page->editor()->selectAll();
        page->editor()->insertPlainText(QStringLiteral("ab"));
        check(page, "expressionBox", false);
        type(page, "findEdit", "ab");
        page->findBar()->replaceAll();
        QCOMPARE(page->editor()->toPlainText(), replacement);
    }

    void replacesOnlyWhileEditing()
    {
        EditorPage *page = open();
        page->findBar()->startReplacing();
        type(page, "findEdit", "two");
        auto *all = page->findBar()->findChild<QPushButton *>(QStringLiteral("replaceAllButton"));
        QVERIFY(!all->isEnabled());
        QVERIFY(message(page).contains(QLatin1String("Ctrl+E")));
        page->findBar()->replaceAll();
        page->findBar()->replace();
        QVERIFY(!page->isModified());
        page->startEditing();
        QVERIFY(all->isEnabled());
        QCOMPARE(message(page), QString());
        type(page, "replaceEdit", "2");
        all->click();
        QCOMPARE(page->editor()->toPlainText(), QStringLiteral("module a;\n// 2\nendmodule\n"));
        QVERIFY2(message(page).contains(QLatin1String("1")), qPrintable(message(page)));
    }

    void upBringsBackWhatWasLookedForInAnyFile()
    {
        EditorPage *page = open();
        page->findBar()->start();
        for (const char *text : {"first", "two"}) {
            type(page, "findEdit", text);
            page->findBar()->findNext();
        }
        QString error;
        const QString other = m_dir->path() + QStringLiteral("/b.v");
        write(other, "two first\n");
        EditorPage *second = m_tabs->openFile(other, 0, &error);
        second->findBar()->start();
        auto *edit = second->findBar()->findChild<QLineEdit *>(QStringLiteral("findEdit"));
        QCOMPARE(edit->text(), QStringLiteral("two"));
        edit->clear();
        QTest::keyClick(edit, Qt::Key_Up);
        QCOMPARE(edit->text(), QStringLiteral("two"));
        QTest::keyClick(edit, Qt::Key_Up);
        QCOMPARE(edit->text(), QStringLiteral("first"));
        QCOMPARE(state(second), QStringLiteral("1 of 1"));
        QTest::keyClick(edit, Qt::Key_Down);
        QCOMPARE(edit->text(), QStringLiteral("two"));
    }

    void aSelectionFillsTheField()
    {
        write(m_path, "a.b a+b a.b\n");
        EditorPage *page = open();
        QTextCursor cursor = page->editor()->textCursor();
        cursor.setPosition(3, QTextCursor::KeepAnchor);
        page->editor()->setTextCursor(cursor);
        page->findBar()->start();
        QCOMPARE(state(page), QStringLiteral("1 of 2"));
        check(page, "expressionBox", true);
        page->findBar()->start(); // as an expression that finds just this
        QCOMPARE(page->findBar()->findChild<QLineEdit *>()->text(), QStringLiteral("a\\.b"));
        QCOMPARE(state(page), QStringLiteral("1 of 2"));
    }

    void everyMatchThatIsSeenHasAFrame()
    {
        write(m_path, "alpha beta alpha\nbeta\nalpha\n");
        EditorPage *page = open();
        CodeEditor *editor = page->editor();
        const QColor usual = Colours::match(editor->palette());
        const QColor current = editor->palette().color(QPalette::Text);
        QVERIFY(usual != current);
        QCOMPARE(framed(editor, usual), QVector<int>());
        page->findBar()->start();
        type(page, "findEdit", "alpha");
        QCOMPARE(editor->textCursor().selectionStart(), 0);
        QTRY_COMPARE(framed(editor, usual), (QVector<int>{11, 22}));
        QCOMPARE(framed(editor, current, 2), (QVector<int>{0}));
        page->findBar()->findNext();
        QCOMPARE(framed(editor, usual), (QVector<int>{0, 22}));
        QCOMPARE(framed(editor, current, 2), (QVector<int>{11}));
        type(page, "findEdit", "b");
        QTRY_COMPARE(framed(editor, usual).size() + framed(editor, current, 2).size(), 2);
        QTest::keyClick(page->findBar(), Qt::Key_Escape);
        QCOMPARE(framed(editor, usual), QVector<int>());
    }

    // As they are typed, and behind the last that is counted.
    void matchesAreFramedWhereTheSearchHasNotCome()
    {
        QByteArray text;
        for (int i = 0; i < 11000; ++i)
            text += QByteArray(100, 'a') + '\n';
        write(m_path, text + "b\n");
        EditorPage *page = open();
        QTRY_VERIFY_WITH_TIMEOUT(!page->isLoading(), 60000);
        CodeEditor *editor = page->editor();
        page->findBar()->start();
        type(page, "findEdit", "a");
        QTRY_VERIFY(state(page).contains(QLatin1String("more than")));
        editor->moveCursor(QTextCursor::End);
        const int last = 10999 * 101;
        QVERIFY(framed(editor, Colours::match(editor->palette())).contains(last));
        page->startEditing();
        editor->insertPlainText(QStringLiteral("a"));
        const int typed = 11000 * 101 + 2;
        QVERIFY(framed(editor, Colours::match(editor->palette())).contains(typed));
    }

    // However long the text or a line of it is.
    void onlyWhatIsSeenIsAskedForMatches_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("many lines") << QStringLiteral("some words\n").repeated(50000);
        QTest::newRow("a long line") << QStringLiteral("some words ").repeated(50000);
    }
    void onlyWhatIsSeenIsAskedForMatches()
    {
        QFETCH(QString, text);
        CodeEditor editor;
        editor.resize(600, 400);
        editor.setPlainText(text);
        int asked = 0;
        int calls = 0;
        editor.setMarkedPlaces([&](int from, int to) {
            asked += to - from;
            ++calls;
            return QVector<CodeEditor::Place>();
        });
        editor.show();
        for (const QTextCursor::MoveOperation place : {QTextCursor::Start, QTextCursor::End}) {
            editor.moveCursor(place);
            asked = 0;
            calls = 0;
            editor.viewport()->grab();
            QVERIFY(calls > 0);
            QVERIFY2(calls < 100 && asked < 1000, qPrintable(QString::number(asked)));
        }
    }

    // Whatever the themes of the languages have.
    void coloursOfALanguageCanBeRead_data()
    {
        QTest::addColumn<QColor>("base");
        QTest::addColumn<QColor>("text");
        QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black);
        QTest::newRow("dark") << QColor(35, 38, 41) << QColor(239, 240, 241);
        QTest::newRow("sepia") << QColor(253, 246, 227) << QColor(60, 60, 60);
    }
    void coloursOfALanguageCanBeRead()
    {
        QFETCH(QColor, base);
        QFETCH(QColor, text);
        QPalette palette;
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, text);
        int letters = 0;
        QSet<QRgb> inks;
        const std::pair<const char *, const char *> programs[] = {
            {"a.v", "// two\n`define A 1\nmodule a #(parameter B = 8'hff) (input wire c);\n"
                    "/* TODO FIXME */ initial $display(\"x\\n\");\nendmodule\n"},
            {"a.vhd", "-- one\nlibrary ieee;\nentity a is port (b : in std_logic := '0');\nend;\n"},
            {"a.ipc", "[General]\ntype=a.b\n; note\nx=true\n"},
            {"a.json", "{\"a\": [1, 2.5, true, null, \"x\", bad]}\n"},
            {"a.log", "ERROR: bad\nWARNING: so so\nINFO: good\n2020-01-01 debug\n"},
            {"a.tcl", "# c\nset a [expr {1 + 2}]\nputs \"$a\"\n"},
            {"a.c", "#include <stdio.h>\n/* a */ int main(void) { return 0x1f; } // b\n"},
        };
        for (const auto &[name, program] : programs) {
            QTextDocument document;
            document.setPlainText(QString::fromLatin1(program));
            QSyntaxHighlighter *highlighter =
                Highlighting::attach(&document, QString::fromLatin1(name), palette);
            QVERIFY2(highlighter, name);
            highlighter->rehighlight();
            for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
                const auto formats = block.layout()->formats();
                for (const QTextLayout::FormatRange &range : formats) {
                    const QTextCharFormat &format = range.format;
                    QVERIFY2(!format.hasProperty(QTextFormat::BackgroundBrush), name);
                    if (!format.hasProperty(QTextFormat::ForegroundBrush))
                        continue;
                    const QColor ink = format.foreground().color();
                    inks.insert(ink.rgb());
                    ++letters;
                    for (const QColor &paper : {base, Colours::cursorLine(palette)})
                        QVERIFY2(Colours::contrast(ink, paper) >= Colours::textContrast,
                                 qPrintable(QString::fromLatin1(name) + u' ' + ink.name()));
                }
            }
        }
        QVERIFY(letters > 30);
        QVERIFY(inks.size() > 5); // they still tell something apart
    }

    // 60 MB with a match in each line: the window gets its turn again and again, and all of it is
    // one step of undo.
    void aLargeFileIsSearchedAndReplacedInPieces()
    {
        QByteArray bytes;
#ifdef __SANITIZE_ADDRESS__
        const int lines = 30000; // of which the sanitizer takes as long
#else
        const int lines = 300000;
#endif
        bytes.reserve(lines * 206);
        for (int i = 0; i < lines; ++i)
            bytes += QByteArray(200, char('c' + i % 20)) + (i % 3 ? "ab\n" : "\n");
        write(m_path, bytes);
        EditorPage *page = open();
        QTRY_VERIFY_WITH_TIMEOUT(!page->isLoading(), 60000);
        page->startEditing();
        page->findBar()->startReplacing();
        check(page, "expressionBox", true);
        page->editor()->moveCursor(QTextCursor::Start); // whatever was looked for before
        type(page, "findEdit", "(a)(b)$");
        QTRY_COMPARE_WITH_TIMEOUT(
            state(page), QStringLiteral("1 of %1").arg(QLocale().toString(lines / 3 * 2)), 60000);
        type(page, "replaceEdit", "$2$1");
        page->findBar()->replaceAll();
        int turns = 0;
        QTimer ticks;
        connect(&ticks, &QTimer::timeout, &ticks, [&turns] { ++turns; });
        ticks.start(0);
        if (page->findBar()->isReplacing()) {
            QVERIFY(page->isEditable());
            QVERIFY(page->editor()->isReadOnly()); // for as long
            QTRY_VERIFY_WITH_TIMEOUT(!page->findBar()->isReplacing(), 60000);
            QVERIFY(turns > 3);
        }
        QVERIFY(!page->editor()->isReadOnly());
        QVERIFY(m_tabs->savePage(page));
        QCOMPARE(contentsOf(m_path), QByteArray(bytes).replace("ab\n", "ba\n"));
        page->editor()->undo();
        QVERIFY(m_tabs->savePage(page));
        QCOMPARE(contentsOf(m_path), bytes);
    }

    void savingInTheMidstOfReplacingSavesAllOfIt()
    {
        write(m_path, QByteArray("a ").repeated(400000));
        EditorPage *page = open();
        QTRY_VERIFY_WITH_TIMEOUT(!page->isLoading(), 60000);
        page->startEditing();
        page->findBar()->startReplacing();
        type(page, "findEdit", "a");
        type(page, "replaceEdit", "b");
        page->findBar()->replaceAll();
        QTRY_VERIFY_WITH_TIMEOUT(page->isModified(), 60000);
        QVERIFY(m_tabs->savePage(page));
        QCOMPARE(contentsOf(m_path), QByteArray("b ").repeated(400000));
        QVERIFY(!page->findBar()->isReplacing());
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
    // One that is saved in the background.
    EditorPage *openLarge()
    {
        write(m_path, manyLines(2 * EditorPage::pieceLimit));
        EditorPage *page = open();
        if (!QTest::qWaitFor([page] { return !page->isLoading(); }, 60000))
            qFatal("it is not loaded");
        page->startEditing();
        return page;
    }
    static void type(EditorPage *page, const char *text)
    {
        page->editor()->insertPlainText(QString::fromUtf8(text));
    }
    static QByteArray textOf(EditorPage *page)
    {
        return page->editor()->toPlainText().toUtf8();
    }
    // Whether a save has come to where it does not take along what is typed.
    static bool untilItIsWritten(EditorPage *page)
    {
        while (page->isSaving() && page->editor()->document()->isModified())
            QCoreApplication::processEvents();
        return page->isSaving();
    }
    // Where frames of this colour and width begin, of the lines that are seen; two that touch count
    // as one.
    static QVector<int> framed(CodeEditor *editor, const QColor &colour, int width = 1)
    {
        const QImage image = editor->viewport()->grab().toImage();
        QVector<int> result;
        QTextCursor cursor = editor->cursorForPosition(QPoint(0, 0));
        const auto rectAt = [&](int position) {
            cursor.setPosition(position);
            return editor->cursorRect(cursor);
        };
        for (QTextBlock block = cursor.block(); block.isValid(); block = block.next()) {
            const int top = rectAt(block.position()).top();
            if (top + 3 > image.height())
                break;
            bool wasOn = false;
            for (int i = block.position(); i < block.position() + block.length() - 1; ++i) {
                const int x = (rectAt(i).center().x() + rectAt(i + 1).center().x()) / 2;
                int rows = 0; // more of them are the background of the selection
                while (image.rect().contains(x, top + rows) &&
                       image.pixelColor(x, top + rows) == colour)
                    ++rows;
                if (rows == width && !wasOn)
                    result.append(i);
                wasOn = rows == width;
            }
        }
        return result;
    }
    static void type(EditorPage *page, const char *field, const QString &text)
    {
        auto *edit = page->findBar()->findChild<QLineEdit *>(QLatin1String(field));
        edit->setText(text);
        Q_EMIT edit->textEdited(text);
    }
    static void type(EditorPage *page, const char *field, const char *text)
    {
        type(page, field, QString::fromLatin1(text));
    }
    static void check(EditorPage *page, const char *box, bool isChecked)
    {
        page->findBar()->findChild<QCheckBox *>(QLatin1String(box))->setChecked(isChecked);
    }
    static QString state(EditorPage *page)
    {
        return page->findBar()->findChild<QLabel *>(QStringLiteral("findState"))->text();
    }
    static QString message(EditorPage *page)
    {
        return page->findBar()->findChild<QLabel *>(QStringLiteral("findMessage"))->text();
    }

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

// What was not edited is saved as it was read.

#include <rapidcheck.h>
#include <testsupport.h>

#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/editor/editortabs.h>
#include <workbench/editor/findbar.h>
#include <workbench/editor/textfile.h>
#include <workbench/widgets/infobar.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QtTest>

using namespace Workbench;
using namespace TestSupport;

namespace
{

// What text files hold, and what hurts.
const std::vector<QByteArray> pieces{
    "a",
    "wire x;",
    " ",
    "\t",
    "\n",
    "\n",
    "\r\n",
    "\r\n",
    "\r",
    "\xC3\xA4",         // ä
    "\xE4",             // ä in Latin-1
    "\xC2\xA0",         // no-break space
    "\xA0",             // the same in Latin-1
    "\xE2\x80\xA8",     // line separator
    "\xE2\x80\xA9",     // paragraph separator
    "\xC2\x85",         // next line
    "\xC2\xAD",         // soft hyphen
    "\xE2\x80\xAE",     // right-to-left override
    "\xEF\xBB\xBF",     // byte order mark
    "\xEF\xB7\x90",     // U+FDD0, which an editor takes for the start of a frame
    "\xEF\xBF\xBC",     // object replacement
    "\xEF\xBF\xBD",     // replacement character
    "\xEF\x90\x80",     // U+F400, the first stand-in
    "\xEF\x94\x81",     // U+F501, the mark of CRLF
    "\xF0\x9F\x98\x80", // beyond 16 bits
    "\xED\xA0\x80",     // a surrogate
    "\xC0\x80",         // too long a form
    "\xF4\x90\x80\x80", // above U+10FFFF
    "\xC3",             // half a character
    "\x80",
    "\xFF",
    "\x01",
    "\x0C",
    "\x1B",
    "\x7F",
};

rc::Gen<QByteArray> anyText()
{
    const auto piece = rc::gen::weightedOneOf<QByteArray>(
        {{5, rc::gen::elementOf(pieces)}, {1, rc::gen::map(rc::gen::inRange(1, 256), [](int byte) {
                                               return QByteArray(1, char(byte));
                                           })}});
    return rc::gen::map(rc::gen::container<std::vector<QByteArray>>(piece),
                        [](const std::vector<QByteArray> &parts) {
                            QByteArray text;
                            for (const QByteArray &part : parts)
                                text += part;
                            return text;
                        });
}

// Of a line end at that place of a file; 0: there is none.
int lengthOfLineEnd(const QByteArray &bytes, int at, const TextFormat &format)
{
    if (bytes.mid(at, 2) == "\r\n")
        return 2;
    const QByteArray one = bytes.mid(at, 1);
    return one == "\n" || (one == "\r" && format.lineEnd == TextFormat::Cr) ? 1 : 0;
}

// The lines of a file with their ends.
QList<QByteArray> linesOf(const QByteArray &bytes)
{
    QList<QByteArray> lines;
    const char end = bytes.contains('\n') ? '\n' : '\r';
    int start = 0;
    while (start < bytes.size()) {
        const int at = bytes.indexOf(end, start);
        const int next = at < 0 ? bytes.size() : at + 1;
        lines.append(bytes.mid(start, next - start));
        start = next;
    }
    return lines;
}

} // namespace

class TestEditorBytes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_path = QFileInfo(m_dir.path()).canonicalFilePath() + QStringLiteral("/a.v");
        m_tabs = std::make_unique<EditorTabs>();
        m_tabs->resize(600, 400);
        m_tabs->show();
    }
    void cleanup() { m_tabs.reset(); }

    void theMappingLosesNothing()
    {
        QVERIFY(rc::check([] {
            for (int text = 0; text < 20; ++text) {
                const QByteArray bytes = *anyText();
                const TextFormat format = TextFormat::of(bytes);
                const QString shown = format.decode(bytes);
                RC_ASSERT(format.encode(shown) == bytes);
                RC_ASSERT(format.canEncode(shown));
                // Whatever format the file is taken for.
                for (const auto encoding : {TextFormat::Utf8, TextFormat::Latin1}) {
                    for (const auto end : {TextFormat::Lf, TextFormat::CrLf, TextFormat::Cr}) {
                        TextFormat other;
                        other.encoding = encoding;
                        other.lineEnd = end;
                        RC_ASSERT(other.encode(other.decode(bytes)) == bytes);
                    }
                }
            }
        }));
    }

    void aCharacterThatCameAndWentLeavesEveryByte()
    {
        QVERIFY(rc::check([this] {
            const QByteArray bytes = *anyText();
            EditorPage *page = edit(bytes);
            const int length = page->editor()->document()->characterCount();
            QTextCursor cursor = page->editor()->textCursor();
            cursor.setPosition(*rc::gen::inRange(0, length));
            // Nobody's cursor can stand within a character of two code units.
            if (page->editor()->document()->characterAt(cursor.position()).isLowSurrogate())
                cursor.movePosition(QTextCursor::PreviousCharacter);
            page->editor()->setTextCursor(cursor);
            QTest::keyClick(page->editor(), Qt::Key_X);
            RC_ASSERT(m_tabs->savePage(page));
            const QByteArray with = contentsOf(m_path);
            RC_ASSERT(with.size() == bytes.size() + 1);
            QTest::keyClick(page->editor(), Qt::Key_Backspace);
            RC_ASSERT(m_tabs->savePage(page));
            RC_ASSERT(contentsOf(m_path) == bytes);
        }));
    }

    void aCharacterThatCameAndWentWithTheFileReopenedLeavesEveryByte()
    {
        QVERIFY(rc::check([this] {
            const QByteArray bytes = (*anyText()).replace('~', '-');
            EditorPage *page = edit(bytes);
            const int length = page->editor()->document()->characterCount();
            QTextCursor cursor = page->editor()->textCursor();
            cursor.setPosition(*rc::gen::inRange(0, length));
            page->editor()->setTextCursor(cursor);
            QTest::keyClick(page->editor(), Qt::Key_AsciiTilde);
            RC_ASSERT(m_tabs->savePage(page));
            // It may be taken for another encoding now.
            page = edit(contentsOf(m_path));
            QTextCursor found = page->editor()->document()->find(QStringLiteral("~"));
            RC_ASSERT(found.hasSelection());
            page->editor()->setTextCursor(found);
            QTest::keyClick(page->editor(), Qt::Key_Delete);
            RC_ASSERT(m_tabs->savePage(page));
            RC_ASSERT(contentsOf(m_path) == bytes);
        }));
    }

    void aLineThatCameAndWentLeavesEveryByte()
    {
        QVERIFY(rc::check([this] {
            const QByteArray bytes = *anyText();
            EditorPage *page = edit(bytes);
            const int length = page->editor()->document()->characterCount();
            QTextCursor cursor = page->editor()->textCursor();
            cursor.setPosition(*rc::gen::inRange(0, length));
            page->editor()->setTextCursor(cursor);
            QTest::keyClick(page->editor(), Qt::Key_Return);
            RC_ASSERT(m_tabs->savePage(page));
            QTest::keyClick(page->editor(), Qt::Key_Backspace);
            RC_ASSERT(m_tabs->savePage(page));
            RC_ASSERT(contentsOf(m_path) == bytes);
        }));
    }

    void aCharacterStaysWhole()
    {
        const QByteArray bytes = "\xF0\x9F\x98\x80";
        EditorPage *page = edit(bytes);
        QTextCursor cursor = page->editor()->textCursor();
        cursor.setPosition(1); // between its two code units
        page->editor()->setTextCursor(cursor);
        QTest::keyClick(page->editor(), Qt::Key_X);
        QVERIFY(m_tabs->savePage(page));
        QCOMPARE(contentsOf(m_path), QByteArray("x" + bytes));
    }

    void undoAndRedoLeaveEveryByte()
    {
        QVERIFY(rc::check([this] {
            const QByteArray bytes = *anyText();
            EditorPage *page = edit(bytes);
            page->editor()->selectAll();
            QTest::keyClick(page->editor(), Qt::Key_Delete);
            QTest::keyClicks(page->editor(), QStringLiteral("other"));
            RC_ASSERT(m_tabs->savePage(page));
            RC_ASSERT(contentsOf(m_path).endsWith("other"));
            while (page->editor()->document()->isUndoAvailable())
                page->editor()->undo();
            RC_ASSERT(m_tabs->savePage(page));
            RC_ASSERT(contentsOf(m_path) == bytes);
            while (page->editor()->document()->isRedoAvailable())
                page->editor()->redo();
            RC_ASSERT(m_tabs->savePage(page));
            RC_ASSERT(contentsOf(m_path).endsWith("other"));
        }));
    }

    void cutAndPasteLeaveEveryByte()
    {
        QVERIFY(rc::check([this] {
            const QByteArray bytes = *anyText();
            EditorPage *page = edit(bytes);
            const int length = page->editor()->document()->characterCount();
            QTextCursor cursor = page->editor()->textCursor();
            cursor.setPosition(*rc::gen::inRange(0, length));
            cursor.setPosition(*rc::gen::inRange(0, length), QTextCursor::KeepAnchor);
            page->editor()->setTextCursor(cursor);
            if (!page->editor()->textCursor().hasSelection())
                return;
            page->editor()->cut();
            page->editor()->paste();
            RC_ASSERT(m_tabs->savePage(page));
            RC_ASSERT(contentsOf(m_path) == bytes);
        }));
    }

    void linesThatWereNotEditedKeepTheirBytes()
    {
        QVERIFY(rc::check([this] {
            const QByteArray bytes = *anyText();
            EditorPage *page = edit(bytes);
            QTextDocument *document = page->editor()->document();
            const int row = *rc::gen::inRange(0, document->blockCount());
            QTextCursor cursor(document->findBlockByNumber(row));
            cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
            page->editor()->setTextCursor(cursor);
            QTest::keyClicks(page->editor(), QStringLiteral("edited"));
            RC_ASSERT(m_tabs->savePage(page));
            const QList<QByteArray> before = linesOf(bytes);
            const QList<QByteArray> after = linesOf(contentsOf(m_path));
            RC_ASSERT(qMax(row + 1, before.size()) == after.size());
            for (int i = 0; i < before.size(); ++i) {
                if (i != row)
                    RC_ASSERT(after.at(i) == before.at(i));
            }
            RC_ASSERT(after.at(row).contains("edited"));
        }));
    }

    void largeFilesKeepTheirBytes_data()
    {
        QTest::addColumn<QByteArray>("line");
        for (const char *line : {"a\r\nb\n", "\xC2\xA0 \xFF\xE2\x80\xA8 x\r\r\n", "a\xE4\r",
                                 "\xF0\x9F\x98\x80\xC3\xA4\n"})
            QTest::newRow(QByteArray(line).toPercentEncoding().constData()) << QByteArray(line);
        QTest::newRow("one line") << QByteArray("\xF0\x9F\x98\x80");
    }

    void largeFilesKeepTheirBytes()
    {
        QFETCH(QByteArray, line);
        QByteArray bytes = QByteArray("\xEF\xBB\xBF").repeated(line.startsWith('a') ? 0 : 2);
        while (bytes.size() <= EditorPage::pieceLimit + EditorPage::pieceSize)
            bytes += line.repeated(1000);
        bytes += "no end";
        write(m_path, bytes);
        EditorPage *page = open();
        QVERIFY(page->isLoading());
        QTRY_VERIFY(!page->isLoading());
        page->startEditing();
        page->editor()->moveCursor(QTextCursor::End);
        QTest::keyClick(page->editor(), Qt::Key_X);
        QVERIFY(m_tabs->savePage(page));
        QVERIFY(contentsOf(m_path) == bytes + 'x');
        QTest::keyClick(page->editor(), Qt::Key_Backspace);
        QVERIFY(m_tabs->savePage(page));
        QVERIFY(contentsOf(m_path) == bytes);
    }

    void unsavedCopiesAreWhole()
    {
        const QByteArray bytes = "\xC2\xA0\xFF\r\nb\nc\xE2\x80\xA8\n";
        EditorPage *page = edit(bytes);
        QTest::keyClick(page->editor(), Qt::Key_X);
        QString error;
        const QString kept = page->keepChanges(&error);
        QCOMPARE(contentsOf(kept), QByteArray("x" + bytes));
        QVERIFY(QFile::remove(kept));
    }

    void newLinesEndAsMostLinesDo_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("LF") << QByteArray("a\nb\nc\r\n") << QByteArray("1\n2\n3\na\nb\nc\r\n");
        QTest::newRow("CRLF") << QByteArray("a\r\nb\r\nc\n")
                              << QByteArray("1\r\n2\r\n3\r\na\r\nb\r\nc\n");
        QTest::newRow("CR") << QByteArray("a\rb\r") << QByteArray("1\r2\r3\ra\rb\r");
        QTest::newRow("none yet") << QByteArray("a") << QByteArray("1\n2\n3\na");
    }

    void newLinesEndAsMostLinesDo()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        EditorPage *page = edit(before);
        QTest::keyClick(page->editor(), Qt::Key_1);
        QTest::keyClick(page->editor(), Qt::Key_Return);
        QTest::keyClick(page->editor(), Qt::Key_2);
        QTest::keyClick(page->editor(), Qt::Key_Return, Qt::ShiftModifier);
        QGuiApplication::clipboard()->setText(QStringLiteral("3\r\n"));
        page->editor()->paste();
        QVERIFY(m_tabs->savePage(page));
        QCOMPARE(contentsOf(m_path), after);
    }

    void otherProgramsGetPlainText()
    {
        EditorPage *page = edit("\xC2\xA0\xE2\x80\xA8x\xFF\xC3\xA4\r\nb\n\xEF\x90\x80\n");
        page->editor()->selectAll();
        page->editor()->copy();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QString::fromUtf8("\xC2\xA0\xE2\x80\xA8x\uFFFD\xC3\xA4\nb\n\xEF\x90\x80\n"));
        // And back from them.
        auto *data = new QMimeData;
        data->setText(QGuiApplication::clipboard()->text());
        QGuiApplication::clipboard()->setMimeData(data);
        page->editor()->selectAll();
        page->editor()->paste();
        QVERIFY(m_tabs->savePage(page));
        QCOMPARE(contentsOf(m_path), QByteArray("\xC2\xA0\xE2\x80\xA8x\xEF\xBF\xBD\xC3\xA4\nb\n"
                                                "\xEF\x90\x80\n"));
    }

    void doesNotGuessWhereLatin1LacksACharacter()
    {
        const QByteArray bytes = "\xE4 \xFF\nsecond\n";
        EditorPage *page = edit(bytes);
        page->editor()->moveCursor(QTextCursor::End);
        page->editor()->insertPlainText(QStringLiteral("\u20AC"));
        QVERIFY(!m_tabs->savePage(page));
        QCOMPARE(contentsOf(m_path), bytes);
        QVERIFY(page->isModified());
        const QString said = page->infoBar()->text();
        for (const QString &part : {m_path, QStringLiteral("\u20AC"), QStringLiteral("line 3")})
            QVERIFY2(said.contains(part), qPrintable(said));
        page->infoBar()->findChild<QPushButton *>()->click();
        QCOMPARE(contentsOf(m_path), QByteArray("\xC3\xA4 \xC3\xBF\nsecond\n\xE2\x82\xAC"));
        QVERIFY(!page->isModified());
    }

    void whatDiffersLooksDifferent_data()
    {
        QTest::addColumn<QByteArray>("one");
        QTest::addColumn<QByteArray>("other");
        const auto row = [](const char *name, const char *one, const char *other) {
            QTest::newRow(name) << QByteArray(one) << QByteArray(other);
        };
        row("blank and no-break space", "a b\xC3\xA4",
            "a\xC2\xA0"
            "b\xC3\xA4");
        row("soft hyphen", "ab\xC3\xA4",
            "a\xC2\xAD"
            "b\xC3\xA4");
        row("reordering", "ab\xC3\xA4",
            "a\xE2\x80\xAE"
            "b\xC3\xA4");
        row("bytes that are no UTF-8", "\xC3\xA4\xFF", "\xC3\xA4\xFE");
        row("byte and replacement character", "\xC3\xA4\xFF", "\xC3\xA4\xEF\xBF\xBD");
        row("line ends", "a\nb\nc\n", "a\nb\r\nc\n");
        row("carriage return", "a\nb\n", "a\r\rb\n");
        row("stand-in and byte", "\xC3\xA4\xFF", "\xC3\xA4\xEF\x93\xBF");
    }

    void whatDiffersLooksDifferent()
    {
        QFETCH(QByteArray, one);
        QFETCH(QByteArray, other);
        const QImage first = pictureOf(one);
        QVERIFY(first != pictureOf(other));
        QCOMPARE(first, pictureOf(one));
    }

    void explainsWhatItShows()
    {
        const TextFormat utf8;
        const QString line = utf8.decode("\xE2\x80\xA8 \xFF\r");
        QVERIFY(TextFormat::explanation(line, 0).contains(QLatin1String("U+2028")));
        QVERIFY(TextFormat::explanation(line, 2).contains(QLatin1String("U+2028")));
        QCOMPARE(TextFormat::explanation(line, 3), QString()); // the blank
        QVERIFY(TextFormat::explanation(line, 4).contains(QLatin1String("FF")));
        QVERIFY(TextFormat::explanation(line, 5).contains(QLatin1String("U+000D")));
        QVERIFY(TextFormat::explanation(utf8.decode("a\r\n"), 1).contains(QLatin1String("CRLF")));
        QCOMPARE(TextFormat::explanation(line, 99), QString());
    }

    void findsBesideStandIns()
    {
        EditorPage *page = edit("a\xC2\xA0wire\r\n\xFFneedle\xE2\x80\xA8\nb\n");
        page->findBar()->start();
        auto *edit = page->findBar()->findChild<QLineEdit *>();
        const auto finds = [&](const QString &text) {
            page->editor()->moveCursor(QTextCursor::Start);
            edit->setText(text);
            page->findBar()->findNext();
            return page->findBar()->findChild<QLabel *>()->text() != QLatin1String("Not found");
        };
        QVERIFY(finds(QStringLiteral("needle")));
        QCOMPARE(page->editor()->currentLine(), 2);
        QVERIFY(finds(QStringLiteral("a\u00A0wire")));
        QVERIFY(finds(QStringLiteral("needle\u2028")));
        QVERIFY(!finds(QStringLiteral("noodle")));
    }

    // Every file with every kind of line end and byte: what is found changes, nothing else does.
    void replacingEverythingChangesNothingElse()
    {
        QVERIFY(rc::check([this] {
            const QByteArray bytes = *anyText();
            RC_PRE(!bytes.contains('Q'));
            edit(bytes);
            const int found = replaceAll("wire", "reg Q", false);
            QByteArray wanted = bytes;
            wanted.replace("wire", "reg Q");
            RC_ASSERT(found == bytes.count("wire"));
            RC_ASSERT(m_tabs->savePage(m_tabs->currentPage()));
            RC_ASSERT(contentsOf(m_path) == wanted);
            RC_ASSERT(replaceAll("reg Q", "wire", false) == found);
            RC_ASSERT(m_tabs->savePage(m_tabs->currentPage()));
            RC_ASSERT(contentsOf(m_path) == bytes);
        }));
    }

    void replacingExpressionsAndBackGivesTheSameBytes()
    {
        QVERIFY(rc::check([this] {
            const QByteArray bytes = *anyText();
            RC_PRE(!bytes.contains('Q'));
            EditorPage *page = edit(bytes);
            const int found = replaceAll("(a)(.?)$", "Q$1\\2", true);
            RC_ASSERT(replaceAll("Q(a)", "\\1", true) == found);
            RC_ASSERT(m_tabs->savePage(page));
            RC_ASSERT(contentsOf(m_path) == bytes);
            // Nor do line ends change when whole lines do.
            const int lines = replaceAll("^(.*)$", "Q$1Q", true);
            RC_ASSERT(replaceAll("^Q(.*)Q$", "$1", true) == lines);
            RC_ASSERT(m_tabs->savePage(page));
            RC_ASSERT(contentsOf(m_path) == bytes);
            // All of them are one step of undo.
            RC_ASSERT(replaceAll(".", "<$0>", true) == 0 || page->isModified());
            if (page->isModified())
                page->editor()->undo();
            RC_ASSERT(m_tabs->savePage(page));
            RC_ASSERT(contentsOf(m_path) == bytes);
        }));
    }

    void joinedAndPartedLinesKeepTheOtherEnds()
    {
        QVERIFY(rc::check([this] {
            const QByteArray bytes = *anyText();
            const TextFormat format = TextFormat::of(bytes);
            edit(bytes);
            replaceAll("\\n", "", true);
            QByteArray wanted = bytes;
            wanted.replace("\r\n", "");
            wanted.replace("\n", "");
            if (format.lineEnd == TextFormat::Cr)
                wanted.replace("\r", "");
            RC_ASSERT(m_tabs->savePage(m_tabs->currentPage()));
            RC_ASSERT(contentsOf(m_path) == wanted);

            // An end that stays one keeps its kind, and so do those of lines that are joined.
            edit(bytes);
            replaceAll("(a?)\\n", "$1;\\n", true);
            RC_ASSERT(m_tabs->savePage(m_tabs->currentPage()));
            wanted.clear();
            for (int i = 0; i < bytes.size();) {
                const int length = lengthOfLineEnd(bytes, i, format);
                wanted += (length > 0 ? ";" : "") + bytes.mid(i, qMax(1, length));
                i += qMax(1, length);
            }
            RC_ASSERT(contentsOf(m_path) == wanted);

            edit(bytes);
            replaceAll("a\\n", "a", true);
            RC_ASSERT(m_tabs->savePage(m_tabs->currentPage()));
            wanted.clear();
            for (int i = 0; i < bytes.size(); ++i) {
                wanted += bytes.at(i);
                if (bytes.at(i) == 'a')
                    i += lengthOfLineEnd(bytes, i + 1, format);
            }
            RC_ASSERT(contentsOf(m_path) == wanted);
        }));
    }

private:
    // The number that was found.
    int replaceAll(const char *what, const char *with, bool isExpression)
    {
        FindBar *bar = m_tabs->currentPage()->findBar();
        bar->startReplacing();
        bar->findChild<QCheckBox *>(QStringLiteral("matchCaseBox"))->setChecked(true);
        bar->findChild<QCheckBox *>(QStringLiteral("expressionBox"))->setChecked(isExpression);
        bar->findChild<QLineEdit *>(QStringLiteral("findEdit"))->setText(QLatin1String(what));
        bar->findChild<QLineEdit *>(QStringLiteral("replaceEdit"))->setText(QLatin1String(with));
        bar->replaceAll();
        QElapsedTimer clock;
        clock.start();
        auto *told = bar->findChild<QLabel *>(QStringLiteral("findMessage"));
        auto *state = bar->findChild<QLabel *>(QStringLiteral("findState"));
        while (told->text().isEmpty() && state->text() != QLatin1String("Not found") &&
               clock.elapsed() < 10000)
            QCoreApplication::processEvents();
        const QString text = told->text();
        const QString before = QStringLiteral("Replaced matches: ");
        return text.startsWith(before) ? text.mid(before.size()).remove(u'.').remove(u',').toInt()
                                       : 0;
    }

    EditorPage *open()
    {
        QString error;
        EditorPage *page = m_tabs->openFile(m_path, 0, &error);
        if (!page)
            qFatal("%s", qPrintable(error));
        return page;
    }

    EditorPage *edit(const QByteArray &bytes)
    {
        while (m_tabs->count() > 0) {
            auto *page = m_tabs->widget(0);
            m_tabs->removeTab(0);
            delete page;
        }
        write(m_path, bytes);
        EditorPage *page = open();
        page->startEditing();
        return page;
    }

    QImage pictureOf(const QByteArray &bytes)
    {
        EditorPage *page = edit(bytes);
        page->editor()->setCursorWidth(0);
        return page->editor()->viewport()->grab().toImage();
    }

    // In memory where that can be: thousands of files are saved here.
    QTemporaryDir m_dir{QFileInfo(QStringLiteral("/dev/shm")).isWritable()
                            ? QStringLiteral("/dev/shm/editorbytes-XXXXXX")
                            : QDir::tempPath() + QStringLiteral("/editorbytes-XXXXXX")};
    QString m_path;
    std::unique_ptr<EditorTabs> m_tabs;
};

TARVO_TEST_MAIN(QApplication, TestEditorBytes)
#include "tst_editorbytes.moc"

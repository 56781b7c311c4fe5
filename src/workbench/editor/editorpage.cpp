#include "editorpage.h"

#include "codeeditor.h"
#include "findbar.h"
#include "highlighting.h"
#include "textcopy.h"
#include "unsavedcopy.h"
#include "widgets/focusforward.h"
#include "widgets/infobar.h"

#include <utils/fileutils.h>

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <QThreadPool>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Workbench
{

namespace
{

constexpr int oneSlice = 8; // milliseconds, of what takes many of them

} // namespace

EditorPage::EditorPage(const QString &path, QWidget *parent)
    : QWidget(parent)
    , m_path(path)
    , m_editor(new CodeEditor)
    , m_findBar(new FindBar(m_editor))
    , m_infoBar(new InfoBar)
{
    m_editor->setObjectName(QStringLiteral("codeEditor"));
    m_editor->setAccessibleName(QFileInfo(path).fileName());
    m_editor->setFrameShape(QFrame::NoFrame);
    m_editor->setReadOnly(true);
    m_editor->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    connect(m_editor, &CodeEditor::editRefused, this, &EditorPage::offerEditing);
    connect(m_editor, &QPlainTextEdit::modificationChanged, this, &EditorPage::stateChanged);
    connect(m_editor, &QPlainTextEdit::cursorPositionChanged, this, &EditorPage::cursorMoved);
    connect(m_editor->verticalScrollBar(), &QScrollBar::valueChanged, this, &EditorPage::scrolled);
    m_pieceTimer.setInterval(0);
    connect(&m_pieceTimer, &QTimer::timeout, this, &EditorPage::insertPieces);
    m_saveTimer.setInterval(0);
    connect(&m_saveTimer, &QTimer::timeout, this, &EditorPage::goOnSaving);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_infoBar);
    layout->addWidget(m_editor, 1);
    layout->addWidget(m_findBar);
    forwardFocus(this, m_editor);
}

EditorPage::~EditorPage()
{
    // Nobody is to hear of it: those who listen may be half gone.
    const QSignalBlocker silent(this);
    const QSignalBlocker silentEditor(m_editor);
    m_mayHaveChanged = false;
    finishSaving();
    m_editor->renewDocument();
}

QByteArray EditorPage::digestOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

QString EditorPage::longLineOf(const QString &text)
{
    int line = 1;
    for (int from = 0; from <= text.size(); ++line) {
        const int end = text.indexOf(u'\n', from);
        const int length = (end < 0 ? text.size() : end) - from;
        if (length > lineLimit)
            return tr("its line %L1 has %L2 characters, and more than %L3 cannot be shown in one")
                .arg(line)
                .arg(length)
                .arg(lineLimit);
        if (end < 0)
            break;
        from = end + 1;
    }
    return {};
}

EditorPage::Content EditorPage::read(const QString &path, const QByteArray &known)
{
    Content content;
    QByteArray bytes;
    if (!Utils::FileUtils::readFile(path, &bytes, &content.error))
        return content;
    content.isLarge = bytes.size() > pieceLimit;
    content.digest = digestOf(bytes);
    if (content.digest == known)
        return content;
    content.mistake = TextFormat::mistakeOf(bytes);
    if (!content.mistake.isEmpty())
        return content;
    content.format = TextFormat::of(bytes);
    content.text = content.format.decode(bytes);
    content.mistake = longLineOf(content.text);
    if (!content.mistake.isEmpty()) {
        content.text.clear();
        return content;
    }
    if (content.isLarge)
        content.lines = 1 + content.text.count(u'\n');
    return content;
}

QString EditorPage::refusal(const QString &mistake) const
{
    return tr("Cannot show \"%1\": %2.").arg(QDir::toNativeSeparators(m_path), mistake);
}

bool EditorPage::canLoad(QString *error) const
{
    const auto refuse = [this, error](const QString &reason) {
        *error = refusal(reason);
        return false;
    };
    const QFileInfo info(m_path);
    if (info.exists() && !info.isFile())
        return refuse(info.isDir() ? tr("it is a folder") : tr("it is not a plain file"));
    if (info.size() > sizeLimit)
        return refuse(tr("it has more than %1 MB").arg(sizeLimit >> 20));
    QFile file(m_path);
    QByteArray none;
    // Which has the words for it.
    return file.open(QIODevice::ReadOnly) || Utils::FileUtils::readFile(m_path, &none, error);
}

bool EditorPage::loadLater(QString *error)
{
    m_isUnread = canLoad(error);
    return m_isUnread;
}

void EditorPage::readNow()
{
    if (!m_isUnread)
        return;
    QString error;
    m_isTried = !load(&error);
    if (m_isTried)
        m_infoBar->showMessage(error, {});
}

CodeEditor *EditorPage::editor()
{
    if (!m_isTried)
        readNow();
    return m_editor;
}

void EditorPage::setLook(const EditorLook &look)
{
    m_editor->setLook(look);
}

bool EditorPage::load(QString *error)
{
    // Those who hear of the new state ask for the text.
    const bool wasUnread = std::exchange(m_isUnread, false);
    const bool isLoaded = tryToLoad(error);
    m_isUnread = wasUnread && !isLoaded;
    return isLoaded;
}

bool EditorPage::tryToLoad(QString *error)
{
    finishSaving();
    m_findBar->finishReplacing();
    if (!canLoad(error))
        return false;
    if (QFileInfo(m_path).size() > pieceLimit)
        return begin(error);
    const Content content = read(m_path);
    if (!content.error.isEmpty()) {
        *error = content.error;
        return false;
    }
    if (!content.mistake.isEmpty()) {
        *error = refusal(content.mistake);
        return false;
    }
    m_background.drop();
    show(content);
    return true;
}

// Shows how a large file begins, while all of it is read elsewhere.
bool EditorPage::begin(QString *error)
{
    QFile file(m_path);
    QByteArray head;
    if (!file.open(QIODevice::ReadOnly))
        return Utils::FileUtils::readFile(m_path, &head, error);
    head = file.read(headSize);
    const QString mistake = TextFormat::mistakeOf(head);
    if (!mistake.isEmpty()) {
        *error = refusal(mistake);
        return false;
    }
    m_pieceTimer.stop();
    m_rest.clear();
    m_isLoading = true;
    tellOfSize();
    if (m_digest.isEmpty()) {
        m_format = TextFormat::of(head);
        const QString text = m_format.decode(head.left(head.lastIndexOf('\n') + 1));
        m_editor->setUndoRedoEnabled(false);
        m_editor->setPlainText(text);
        m_inserted = text.size();
    }
    m_background.start([path = m_path] { return read(path); },
                       [this](const Content &content) {
                           if (content.error.isEmpty() && content.mistake.isEmpty()) {
                               show(content);
                               return;
                           }
                           m_isLoading = false;
                           m_infoBar->showMessage(
                               content.mistake.isEmpty() ? content.error : refusal(content.mistake),
                               {});
                           Q_EMIT stateChanged();
                       });
    Q_EMIT stateChanged();
    return true;
}

void EditorPage::tellOfSize()
{
    m_infoBar->showMessage(tr("This file is large: it is being read, and is shown without "
                              "colours."),
                           {});
}

void EditorPage::show(const Content &content)
{
    const bool wasShown = !m_digest.isEmpty();
    const int line = m_editor->currentLine();
    const int scrolled = m_editor->verticalScrollBar()->value();
    if (wasShown && m_wantedLine == 0) // unless this is the reading of a reading
        m_wantedLine = line;
    m_format = content.format;
    m_digest = content.digest;
    m_deleted = false;
    m_pieceTimer.stop();
    delete m_highlighter;
    m_highlighter = nullptr;
    if (content.isLarge) {
        // What stands there is the beginning of it, or of another text.
        const bool begun = !wasShown && content.text.startsWith(m_editor->shownText().replace(
                                            QChar(QChar::ParagraphSeparator), QChar(u'\n')));
        if (!begun) {
            m_findBar->forget();
            m_editor->renewDocument();
            m_inserted = 0;
        }
        m_editor->expectLines(content.lines);
        m_isLoading = true;
        tellOfSize();
        m_rest = content.text;
        m_editor->setUndoRedoEnabled(false);
        insertPieces();
        if (m_isLoading)
            m_pieceTimer.start();
        Q_EMIT stateChanged();
        return;
    }
    const QString original = UnsavedCopy::originalOf(m_path);
    m_highlighter = Highlighting::attach(m_editor->document(),
                                         original.isEmpty() ? m_path : original, palette());
    m_rest.clear();
    m_isLoading = false;
    m_editor->setUndoRedoEnabled(true);
    m_editor->setPlainText(content.text);
    m_editor->expectLines(0);
    finishLoading();
    if (wasShown)
        m_editor->verticalScrollBar()->setValue(scrolled);
    Q_EMIT stateChanged();
}

void EditorPage::insertPieces()
{
    QElapsedTimer clock;
    clock.start();
    QTextCursor cursor(m_editor->document());
    cursor.movePosition(QTextCursor::End);
    const bool first = m_inserted == 0;
    do {
        // Whole lines: each piece of one would have all of it laid out again.
        int end = qMin(m_rest.size(), m_inserted + pieceSize);
        if (end < m_rest.size()) {
            int lineEnd = m_rest.lastIndexOf(u'\n', end - 1);
            if (lineEnd < m_inserted)
                lineEnd = m_rest.indexOf(u'\n', end);
            end = lineEnd < 0 ? m_rest.size() : lineEnd + 1;
        }
        cursor.insertText(m_rest.mid(m_inserted, end - m_inserted));
        m_inserted = end;
    } while (m_inserted < m_rest.size() && clock.elapsed() < oneSlice);
    if (first)
        m_editor->moveCursor(QTextCursor::Start);
    if (m_inserted < m_rest.size())
        return;
    m_pieceTimer.stop();
    QThreadPool::globalInstance()->start([rest = std::exchange(m_rest, {})] {}); // it takes a while
    m_isLoading = false;
    m_infoBar->hide();
    m_editor->setUndoRedoEnabled(true);
    finishLoading();
    Q_EMIT stateChanged();
}

void EditorPage::finishLoading()
{
    m_editor->document()->setModified(false);
    if (m_wantedLine > 0)
        m_editor->goToLine(m_wantedLine);
    m_wantedLine = 0;
    if (m_wantedPlace)
        setPlace(*m_wantedPlace);
}

EditorPage::Place EditorPage::place() const
{
    if (m_wantedPlace)
        return *m_wantedPlace;
    Place place;
    place.line = m_editor->currentLine();
    place.column = m_editor->textCursor().positionInBlock() + 1;
    place.top = m_editor->verticalScrollBar()->value() + 1;
    place.left = m_editor->horizontalScrollBar()->value();
    return place;
}

void EditorPage::setPlace(const Place &place)
{
    m_wantedPlace = place;
    if (isLoading() || m_isUnread)
        return;
    showPlace(place);
    // An editor that comes up scrolls to its cursor.
    if (isVisible())
        m_wantedPlace.reset();
}

void EditorPage::showPlace(const Place &place)
{
    const QTextDocument *document = m_editor->document();
    const QTextBlock block =
        document->findBlockByNumber(qBound(1, place.line, document->blockCount()) - 1);
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + qBound(1, place.column, block.length()) - 1);
    m_editor->setTextCursor(cursor);
    m_editor->verticalScrollBar()->setValue(place.top - 1);
    m_editor->horizontalScrollBar()->setValue(place.left);
}

void EditorPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    readNow();
    if (m_wantedPlace)
        setPlace(*m_wantedPlace);
    if (m_isNew)
        offerKeptChanges();
    m_isNew = false;
}

void EditorPage::goToLine(int line)
{
    readNow();
    m_wantedPlace.reset();
    if (isLoading() && line > m_editor->lineCount())
        m_wantedLine = line;
    else
        m_editor->goToLine(line);
}

bool EditorPage::isModified() const
{
    return !isLoading() && (m_deleted || isSaving() || m_editor->document()->isModified());
}

bool EditorPage::isEditable() const
{
    return !m_editor->isReadOnly() || m_findBar->isReplacing();
}

void EditorPage::startEditing()
{
    readNow();
    if (isEditable() || isLoading() || m_digest.isEmpty())
        return;
    const QFileInfo info(m_path);
    if (info.exists() && !info.isWritable()) {
        m_infoBar->showMessage(
            tr("This file cannot be changed: you have no permission to write it."), {});
        return;
    }
    m_infoBar->hide();
    m_editor->setReadOnly(false);
    m_findBar->setEditable(true);
    m_editor->setFocus();
    Q_EMIT stateChanged();
    Q_EMIT editingStarted();
}

void EditorPage::offerEditing()
{
    if (isLoading() || !m_infoBar->isHidden())
        return;
    m_infoBar->showMessage(tr("This file is open for reading. Press Ctrl+E to edit it."),
                           {{tr("Edit"), [this] { startEditing(); }}});
}

bool EditorPage::save(QString *error)
{
    startSaving();
    finishSaving();
    if (!m_saveError.isEmpty())
        *error = m_saveError;
    return m_saveError.isEmpty();
}

void EditorPage::startSaving()
{
    if (isSaving()) {
        m_wantsSave = m_writing.isBusy(); // the copy still gets what is there
        return;
    }
    m_saveError.clear();
    readNow();
    // There is no text that could be written.
    if (m_isUnread || isLoading()) {
        if (m_isUnread)
            load(&m_saveError);
        Q_EMIT saveEnded(m_saveError);
        return;
    }
    m_background.drop(); // what stands there is no news afterwards
    m_copy = std::make_unique<TextCopy>(m_editor->document());
    if (m_editor->document()->characterCount() <= pieceLimit)
        finishSaving();
    else
        m_saveTimer.start();
}

void EditorPage::goOnSaving()
{
    // All of a replacement or nothing of it.
    if (!m_findBar->isReplacing() && m_copy->advance(oneSlice))
        beginWriting();
}

void EditorPage::finishSaving()
{
    if (m_copy) {
        m_findBar->finishReplacing();
        m_copy->advance(-1);
        beginWriting();
    }
    m_writing.finish();
    // Another one that has waited for it.
    if (isSaving())
        finishSaving();
}

EditorPage::Written EditorPage::write(const QString &path, const TextFormat &format,
                                      const QString &text)
{
    Written written;
    const int missing = format.firstMissing(text);
    if (missing >= 0) {
        written.missing = text.mid(missing, 1);
        written.line = 1 + int(std::count_if(text.begin(), text.begin() + missing, [](QChar c) {
                           return c == QChar::ParagraphSeparator;
                       }));
        return written;
    }
    const QByteArray bytes = format.encode(text);
    if (Utils::FileUtils::writeFile(path, bytes, &written.error))
        written.digest = digestOf(bytes);
    return written;
}

void EditorPage::beginWriting()
{
    m_saveTimer.stop();
    QString text = m_copy->take();
    m_copy.reset();
    if (text.size() < pieceLimit) {
        const Written written = write(m_path, m_format, text);
        if (!written.digest.isEmpty())
            m_editor->document()->setModified(false);
        endSaving(written);
        return;
    }
    // Nobody else holds the text, so that the other thread gives it back.
    m_writing.start([path = m_path, format = m_format,
                     text = std::move(text)] { return write(path, format, text); },
                    [this](const Written &written) {
                        if (written.digest.isEmpty())
                            m_editor->document()->setModified(true);
                        endSaving(written);
                    });
    // Whoever takes back what comes now is at what is being written.
    m_editor->document()->setModified(false);
    Q_EMIT stateChanged();
}

void EditorPage::endSaving(const Written &written)
{
    m_needsUtf8 = !written.missing.isEmpty();
    m_saveError = written.error;
    if (m_needsUtf8)
        m_saveError = tr("\"%1\" is not saved: its text is Latin-1, which has no \"%2\" (line %3).")
                          .arg(QDir::toNativeSeparators(m_path), written.missing,
                               QString::number(written.line));
    if (m_saveError.isEmpty()) {
        m_digest = written.digest;
        m_deleted = false;
        m_infoBar->hide();
    }
    Q_EMIT stateChanged();
    if (std::exchange(m_wantsSave, false) && isModified()) {
        startSaving();
        return;
    }
    Q_EMIT saveEnded(m_saveError);
    if (std::exchange(m_mayHaveChanged, false))
        checkDisk();
}

void EditorPage::convertToUtf8()
{
    m_format.encoding = TextFormat::Utf8;
    m_needsUtf8 = false;
    m_editor->document()->setModified(true);
    Q_EMIT stateChanged();
}

QString EditorPage::keepChanges(QString *error)
{
    m_findBar->finishReplacing();
    const QString text = m_editor->shownText();
    TextFormat format = m_format;
    if (!format.canEncode(text))
        format.encoding = TextFormat::Utf8;
    const QString inTemp = QDir::tempPath() + u'/' + QFileInfo(m_path).fileName();
    for (const QString &base : {m_path, inTemp}) {
        const QString kept = UnsavedCopy::freePath(base);
        if (Utils::FileUtils::writeFile(kept, format.encode(text), error))
            return kept;
    }
    return {};
}

void EditorPage::offerKeptChanges()
{
    const QString kept = UnsavedCopy::newestOf(m_path);
    if (kept.isEmpty())
        return;
    m_infoBar->showMessage(
        tr("The program was ended with unsaved changes of this file. They are in \"%1\".")
            .arg(QFileInfo(kept).fileName()),
        {{tr("&Open Them"), [this, kept] { Q_EMIT openRequested(kept); }},
         {tr("&Delete Them"), [this, kept] {
              QFile file(kept);
              if (file.remove())
                  offerKeptChanges(); // an older copy
              else
                  m_infoBar->showMessage(
                      tr("Cannot delete \"%1\": %2.").arg(kept, file.errorString()), {});
          }}});
}

void EditorPage::checkDisk()
{
    if (m_isUnread) {
        if (isVisible())
            readNow();
        return;
    }
    if (isSaving()) {
        m_mayHaveChanged = true;
        return;
    }
    if (!QFileInfo::exists(m_path)) {
        if (m_deleted)
            return;
        m_deleted = true;
        m_infoBar->showMessage(tr("This file was deleted or moved. Saving writes it again, here."),
                               {});
        Q_EMIT stateChanged();
        return;
    }
    if (m_isLoading) {
        QString reason;
        if (!load(&reason))
            m_infoBar->showMessage(reason, {});
        return;
    }
    const qint64 size = QFileInfo(m_path).size();
    if (size > sizeLimit) {
        m_infoBar->showMessage(refusal(tr("it has more than %1 MB").arg(sizeLimit >> 20)), {});
        return;
    }
    if (size <= pieceLimit) {
        compare(read(m_path, m_digest));
        return;
    }
    m_background.start([path = m_path, known = m_digest] { return read(path, known); },
                       [this](const Content &content) { compare(content); });
}

void EditorPage::compare(const Content &content)
{
    if (!content.error.isEmpty() || content.digest == m_digest) {
        if (m_deleted) { // it is back as it was
            m_deleted = false;
            m_infoBar->hide();
            Q_EMIT stateChanged();
        }
        return;
    }
    const auto reload = [this] {
        QString reason;
        if (!load(&reason))
            m_infoBar->showMessage(reason, {});
    };
    if (!m_editor->document()->isModified()) {
        m_infoBar->hide();
        if (content.mistake.isEmpty())
            show(content);
        else
            m_infoBar->showMessage(refusal(content.mistake), {});
        return;
    }
    m_deleted = false;
    m_digest = content.digest; // asked once for each change
    m_infoBar->showMessage(
        tr("This file was changed by another program. You have changes of your own here."),
        {{tr("&Read Again (loses yours)"), reload}, {tr("&Keep Mine"), [] {}}});
}

void EditorPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_highlighter)
        Highlighting::setPalette(m_highlighter, palette());
}

} // namespace Workbench

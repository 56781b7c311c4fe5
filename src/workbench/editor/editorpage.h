#pragma once

#include "textfile.h"
#include "widgets/background.h"

#include <QByteArray>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QSyntaxHighlighter)

namespace Workbench
{

class CodeEditor;
struct EditorLook;
class FindBar;
class InfoBar;
class TextCopy;

// One file in the editor. It can be read at first; startEditing() lets it be changed.
//
// Files above `pieceLimit` are shown piece by piece while the program goes on, and without colours;
// those above `sizeLimit`, or with a line above `lineLimit`, are refused.
class EditorPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int pieceSize = 1 << 14;  // in characters
    static constexpr int headSize = 1 << 17;   // in bytes, of what is seen first
    static constexpr int pieceLimit = 1 << 20; // in bytes
    static constexpr qint64 sizeLimit = 256 << 20;
    // A line is laid out as a whole, at each change of it.
    static constexpr int lineLimit = 1000000; // in characters

    explicit EditorPage(const QString &path, QWidget *parent = nullptr);
    ~EditorPage() override;

    QString path() const { return m_path; }
    // Of a page that is to be read later this is the time.
    CodeEditor *editor();
    FindBar *findBar() const { return m_findBar; }
    InfoBar *infoBar() const { return m_infoBar; }

    // Reads the file, in place of what is shown. False and a sentence in `*error` if it cannot be
    // shown; the page keeps what it had.
    bool load(QString *error);
    // Has the file read as soon as the page is seen or its text is asked for, where the info bar
    // says what may be wrong. False, and a sentence in `*error`, if it is clear now that the file
    // cannot be shown.
    bool loadLater(QString *error);
    // Whether the file is still to be read.
    bool isUnread() const { return m_isUnread; }
    void setLook(const EditorLook &look);
    // Whether pieces of the file are still to come.
    bool isLoading() const { return m_isLoading; }
    // The same, or whether the file is being saved, or compared with what is shown.
    bool isBusy() const { return m_isLoading || m_background.isBusy() || isSaving(); }
    // Once that line has come.
    void goToLine(int line);
    // Where one reads, from 1: cursor and first line shown; and the scrolling sideways, in pixels.
    struct Place {
        int line = 1;
        int column = 1;
        int top = 1;
        int left = 0;
    };
    Place place() const;
    // What lies outside of the file is bounded. Once the file has been read and the page is shown.
    void setPlace(const Place &place);

    // Whether there is what the disk does not have yet.
    bool isModified() const;
    bool isEditable() const;
    // Says in the info bar why the file cannot be changed, if it cannot.
    void startEditing();
    // What was not edited is written as it was read. Of a text of more than `pieceLimit` characters
    // this is only begun, and what is edited meanwhile stays modified; while one save is going on,
    // another one waits for its end. saveEnded() tells of the end in any case.
    void startSaving();
    bool isSaving() const { return m_copy || m_writing.isBusy(); }
    // Waits for the end, without events. What startSaving() has begun is lost by nobody who does
    // not wait, but for its failure.
    void finishSaving();
    // Both; false, and a sentence in `*error`, if the file was not written.
    bool save(QString *error);
    // Of the last save that has ended: a sentence if it failed.
    QString saveError() const { return m_saveError; }
    // Whether the last save failed because the file's encoding lacks a character of the text.
    bool needsUtf8() const { return m_needsUtf8; }
    // From now on the file is saved as UTF-8: every character beyond ASCII gets other bytes.
    void convertToUtf8();
    // How its text stands on disk: "UTF-8, LF".
    QString formatName() const { return m_format.name(); }
    // Writes what is shown into a new file, "<path>.unsaved" ("<path>.unsaved2" if there is one) or
    // in the folder for temporary files if that cannot be; returns its path. Empty, and a sentence
    // in `*error`, if neither can be written. A page that opens the file later tells of a copy
    // beside it.
    QString keepChanges(QString *error);

    // Compares with the disk: what was not changed here is read again, otherwise the info bar asks.
    // Of a large file this is only begun.
    void checkDisk();

Q_SIGNALS:
    void stateChanged(); // modified, editable, loading
    // The error is a sentence; empty: everything up to here has been written.
    void saveEnded(const QString &error);
    void openRequested(const QString &path);
    void editingStarted();
    void cursorMoved();
    void scrolled();

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    // What is in a file. A mistake is a clause that says why it cannot be shown.
    struct Content {
        QString error;
        QString mistake;
        bool isLarge = false;
        int lines = 0; // if it is large
        QByteArray digest;
        TextFormat format;
        QString text;
    };
    // Needs no page. With the digest `known` there is no more than that.
    static Content read(const QString &path, const QByteArray &known = {});
    // A clause about the first line that is too long to be shown; empty if there is none.
    static QString longLineOf(const QString &text);
    // What became of a save.
    struct Written {
        QString error;
        QByteArray digest;
        QString missing; // a character that the encoding lacks
        int line = 0;    // where it is
    };
    static Written write(const QString &path, const TextFormat &format, const QString &text);
    void beginWriting();
    void goOnSaving();
    void endSaving(const Written &written);
    QString refusal(const QString &mistake) const;
    // Sees nothing of what is in the file.
    bool canLoad(QString *error) const;
    bool tryToLoad(QString *error);
    void readNow();
    bool begin(QString *error);
    void tellOfSize();
    void show(const Content &content);
    void compare(const Content &content);
    void insertPieces();
    void finishLoading();
    void showPlace(const Place &place);
    void offerEditing();
    void offerKeptChanges();
    static QByteArray digestOf(const QByteArray &bytes);

    QString m_path;
    CodeEditor *m_editor;
    FindBar *m_findBar;
    InfoBar *m_infoBar;
    QSyntaxHighlighter *m_highlighter = nullptr;
    TextFormat m_format;
    QByteArray m_digest; // of the bytes that were read or written last
    bool m_deleted = false;
    std::unique_ptr<TextCopy> m_copy; // for a save, until it is complete
    Background m_writing;
    QTimer m_saveTimer;
    QString m_saveError;           // of the last save
    bool m_wantsSave = false;      // once more
    bool m_mayHaveChanged = false; // on disk, during a save
    bool m_needsUtf8 = false;
    bool m_isNew = true; // until it has been read for the first time
    bool m_isUnread = false;
    bool m_isTried = false; // to read, without success
    bool m_isLoading = false;
    QString m_rest;     // of a file that comes in pieces: all of it, until everything is inserted
    int m_inserted = 0; // characters of it; before it is there, those of the beginning
    Background m_background;
    int m_wantedLine = 0;
    std::optional<Place> m_wantedPlace;
    QTimer m_pieceTimer;
};

} // namespace Workbench

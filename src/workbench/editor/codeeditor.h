#pragma once

#include <QPlainTextEdit>
#include <QVector>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QMimeData)
QT_FORWARD_DECLARE_CLASS(QPainter)
QT_FORWARD_DECLARE_CLASS(QTextBlock)

namespace Workbench
{

// How the text is shown, as people choose it.
struct EditorLook {
    QFont font;
    int tabWidth = 8; // characters
    bool hasLineNumbers = true;
    bool wraps = false;
};

// A plain text editor with line numbers and a mark at the line of the cursor. Its text is one of
// TextFormat: it shows the stand-ins and marks as what they are, and copies and pastes accordingly.
class CodeEditor : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit CodeEditor(QWidget *parent = nullptr);

    // Puts the cursor at the start of a line (from 1; clamped) and shows it in the middle.
    void goToLine(int line);
    int currentLine() const; // from 1
    int lineCount() const { return blockCount(); }

    // Begins with an empty text. What a large one took is given back in another thread.
    void renewDocument();
    // Leaves room for so many line numbers: more room moves, and lays out, all lines that are
    // there.
    void expectLines(int lines);

    // The text as TextFormat::encode() takes it. toPlainText() changes some characters.
    QString shownText() const { return document()->toRawText(); }

    // What was made larger or smaller stays so.
    void setLook(const EditorLook &look);

    // Places of the text to be framed, the selected one thick. They are asked for when they are
    // painted, line by line of what is seen: from a position to the one behind the last.
    struct Place {
        int position;
        int length;
    };
    using MarkedPlaces = std::function<QVector<Place>(int from, int to)>;
    void setMarkedPlaces(const MarkedPlaces &places) { m_markedPlaces = places; }

    int lineNumberWidth() const;
    void paintLineNumbers(QPaintEvent *event);

    // Ctrl and the wheel, or these: the size of the text.
    void zoomBy(int steps);
    void resetZoom();

Q_SIGNALS:
    // A key that would change the text was pressed while it cannot be changed.
    void editRefused();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    QMimeData *createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    void paintMarks(QPainter *painter, const QTextBlock &block, const QPointF &origin);
    void paintStandIns(QPainter *painter, const QTextBlock &block, const QPointF &origin);
    void insert(const QString &text);
    void layoutLineNumbers();
    void leaveHalfCharacters();
    void markCurrentLine();

    QWidget *m_lineNumbers;
    int m_zoom = 0;
    int m_tabWidth = 8;
    bool m_hasLineNumbers = true;
    int m_expectedLines = 0;
    MarkedPlaces m_markedPlaces;
};

} // namespace Workbench

#pragma once

#include "codeeditor.h"
#include "search.h"

#include <QHash>
#include <QPair>
#include <QTimer>
#include <QWidget>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPushButton)

namespace Workbench
{

struct FindChoices {
    bool matchCase = false;
    bool wholeWords = false;
    bool isExpression = false;
};

// Searches the text while it is typed, from the cursor on and round the end, and replaces what it
// finds. Enter: next, Shift+Enter: previous, Up and Down: what was looked for before, Escape: back
// to the text.
//
// Long searches and replacements go on in pieces while the window can be used. While places are
// replaced in pieces the editor is read-only. While the bar is shown the editor marks every match.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    explicit FindBar(CodeEditor *editor, QWidget *parent = nullptr);

    // Shows the bar, with the selected text if that is a piece of one line.
    void start();
    // The same, with the line for replacing.
    void startReplacing();
    void findNext();
    void findPrevious();
    // Replaces the selected match and goes to the next one.
    void replace();
    // Every match, as one step of undo.
    void replaceAll();

    // How is looked for. Setting it searches with the next start().
    FindChoices choices() const;
    void setChoices(const FindChoices &choices);

    // Whether the text may be changed.
    void setEditable(bool isEditable);
    bool isReplacing() const { return m_replacing >= 0; }
    // Replaces what is still to be replaced, without a pause.
    void finishReplacing();
    // What is known of the text; before the editor gets another document.
    void forget();

Q_SIGNALS:
    // By somebody's hand.
    void choicesChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum Jump { Nowhere, Here, Next, Previous };

    void buildRows();
    SearchFor wanted() const;
    void go(Jump direction);
    void jump(Jump jump, int from = -1);
    // A search of the text as it is; null if there is nothing to look for.
    Search *search();
    void goOn(int milliseconds);
    void settleJump();
    void showState();
    void showMarks();
    void tell(const QString &message);
    void remember();
    void recall(int step);
    void beginReplacing();
    void replaceSome(int milliseconds);
    void apply(const QVector<Search::Edit> &edits);
    void leave();
    // What CodeEditor::setMarkedPlaces() asks for.
    QVector<CodeEditor::Place> placesWithin(int from, int to);

    CodeEditor *m_editor;
    QLineEdit *m_text;
    QLineEdit *m_newText;
    QWidget *m_newRow;
    QPushButton *m_replace;
    QPushButton *m_replaceAll;
    QCheckBox *m_matchCase;
    QCheckBox *m_wholeWords;
    QCheckBox *m_isExpression;
    QLabel *m_state;
    QLabel *m_message;

    std::unique_ptr<Search> m_search;
    // Of lines that are seen, where m_search has not come to or is of another text.
    QHash<QPair<int, int>, QVector<CodeEditor::Place>> m_seen;
    SearchFor m_seenFor;
    int m_seenRevision = -1;
    bool m_isSeenSlow = false; // the expression takes too many steps
    SearchFor m_searched;
    int m_revision = -1; // of the text that m_search has
    Jump m_jump = Nowhere;
    int m_from = 0;
    bool m_wrapped = false;
    bool m_backward = false;
    bool m_wantsAll = false; // to replace, when they are known
    int m_replacing = -1;    // the place that is replaced next
    int m_replaced = 0;
    std::unique_ptr<Replacement> m_replacement;
    bool m_isEditable = false;
    int m_recalled = -1;
    QTimer m_goOn;
    QTimer m_changed;
};

} // namespace Workbench

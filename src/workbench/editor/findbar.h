#pragma once

#include <QTextDocument>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPlainTextEdit)

namespace Workbench
{

// Searches the text while it is typed, from the cursor on and round the end. Enter: next,
// Shift+Enter: previous, Escape: back to the text.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    explicit FindBar(QPlainTextEdit *editor, QWidget *parent = nullptr);

    // Shows the bar, with the selected text if that is a piece of one line.
    void start();
    void findNext();
    void findPrevious();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void find(QTextDocument::FindFlags direction, bool fromSelectionStart);
    void leave();

    QPlainTextEdit *m_editor;
    QLineEdit *m_text;
    QCheckBox *m_matchCase;
    QLabel *m_state;
};

} // namespace Workbench

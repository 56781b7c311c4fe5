#pragma once

#include "system/find.h"

#include <QFrame>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QListWidget)

namespace TARVOORIXM1
{

// What can be found, and what is missing among it.
struct FindIndex {
    QVector<Findable> all;
    QString failure; // a sentence of what could not be read; empty: nothing
};

// A line over the upper edge of its parent in which one looks for things, with the list of what
// is found. The keyboard stays in the line: Up and Down choose, Enter takes, Escape gives up, Tab
// goes to what is chosen.
class FindLine : public QFrame
{
    Q_OBJECT

public:
    explicit FindLine(QWidget *parent);

    void open(const FindIndex &index);
    // Says why something cannot be done; until the next key.
    void setNotice(const QString &text);
    QString notice() const;
    // Goes; see closed().
    void leave(bool stays);
    // To the middle of the parent's upper edge, as wide and high as the hits need and it allows.
    void place();

Q_SIGNALS:
    // Enter or a click: what is wanted. The line stays; whoever follows it closes it.
    void taken(const QString &name, const QString &box);
    // The box that the chosen hit belongs to; empty: none.
    void chosen(const QString &box);
    // It is no longer there. `stays`: the keyboard wants to go on at what was chosen.
    void closed(bool stays);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void search(const QString &query);
    void onCurrentChanged(int row);
    void take();

private:
    bool onKey(QKeyEvent *event);
    void step(int by);

    QLineEdit *m_edit;
    QListWidget *m_list;
    QLabel *m_notice;
    FindIndex m_index;
    QVector<Findable> m_hits;
};

} // namespace TARVOORIXM1

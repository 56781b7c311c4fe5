#pragma once

#include "widgets/colours.h"

#include <QPalette>
#include <QString>
#include <QVector>
#include <QWidget>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QPlainTextEdit)
QT_FORWARD_DECLARE_CLASS(QStackedLayout)

namespace Workbench
{

// A row of two texts beside each other.
struct SideRow {
    enum Kind {
        Same,
        Changed, // of one or both texts
    };

    Kind kind = Same;
    // Numbers from 1; 0: the text has no line there.
    int before = 0;
    int after = 0;
    QString left;
    QString right;
};

// The lines of two texts, with equal ones in one row. A last line that differs by its line end
// alone says so.
QVector<SideRow> sideRows(const QString &before, const QString &after);

// The colours of changed lines on a palette's base: text can be read on both (at least 4.5:1).
using SideColors = Colours::Sides;
inline SideColors sideColors(const QPalette &palette)
{
    return Colours::sides(palette);
}

// Two texts beside each other, read-only: what is removed has a "-" in front of it, what is added a
// "+". Long texts are told and not shown.
class SideBySide : public QWidget
{
    Q_OBJECT

public:
    static constexpr int longestText = 1 << 20; // characters
    static constexpr int mostLines = 20000;

    explicit SideBySide(QWidget *parent = nullptr);

    // Nothing: there is no such text. The place that is shown stays if nothing has changed.
    void setTexts(const std::optional<QString> &before, const std::optional<QString> &after);
    // Instead of texts.
    void setMessage(const QString &message);
    // Goes to the next place where the texts differ, from the top again behind the last.
    void showNextChange();

protected:
    void changeEvent(QEvent *event) override;

private:
    void fill();

    QStackedLayout *m_pages;
    QLabel *m_message;
    QPlainTextEdit *m_before;
    QPlainTextEdit *m_after;
    std::optional<QString> m_beforeText;
    std::optional<QString> m_afterText;
    QVector<SideRow> m_rows;
};

} // namespace Workbench

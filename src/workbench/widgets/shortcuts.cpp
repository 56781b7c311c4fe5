#include "shortcuts.h"

#include <QtGlobal>

#include <algorithm>
#include <iterator>

namespace Workbench
{

namespace
{

struct Row {
    QKeySequence::StandardKey key;
    int first;
    int second; // 0: none
};

constexpr int shiftZ = int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_Z;

constexpr Row rows[] = {
    {QKeySequence::New, Qt::CTRL + Qt::Key_N, 0},
    {QKeySequence::Open, Qt::CTRL + Qt::Key_O, 0},
    {QKeySequence::Save, Qt::CTRL + Qt::Key_S, 0},
    {QKeySequence::Close, Qt::CTRL + Qt::Key_W, 0},
    {QKeySequence::Quit, Qt::CTRL + Qt::Key_Q, 0},
    {QKeySequence::Undo, Qt::CTRL + Qt::Key_Z, 0},
    {QKeySequence::Redo, shiftZ, Qt::CTRL + Qt::Key_Y},
    {QKeySequence::Cut, Qt::CTRL + Qt::Key_X, 0},
    {QKeySequence::Copy, Qt::CTRL + Qt::Key_C, 0},
    {QKeySequence::Paste, Qt::CTRL + Qt::Key_V, 0},
    {QKeySequence::SelectAll, Qt::CTRL + Qt::Key_A, 0},
    {QKeySequence::Find, Qt::CTRL + Qt::Key_F, 0},
    // "+" needs Shift on many keyboards.
    {QKeySequence::ZoomIn, Qt::CTRL + Qt::Key_Plus, Qt::CTRL + Qt::Key_Equal},
    {QKeySequence::ZoomOut, Qt::CTRL + Qt::Key_Minus, 0},
    {QKeySequence::HelpContents, Qt::Key_F1, 0},
};

bool isTaken(const QKeySequence &sequence)
{
    return std::any_of(std::begin(rows), std::end(rows), [&sequence](const Row &row) {
        return sequence == QKeySequence(row.first) ||
               (row.second != 0 && sequence == QKeySequence(row.second));
    });
}

} // namespace

QList<QKeySequence> keysOf(QKeySequence::StandardKey key)
{
    QList<QKeySequence> result;
    for (const Row &row : rows) {
        if (row.key != key)
            continue;
        result.append(QKeySequence(row.first));
        if (row.second != 0)
            result.append(QKeySequence(row.second));
    }
    const QList<QKeySequence> desktop = QKeySequence::keyBindings(key);
    for (const QKeySequence &sequence : desktop) {
        if (!result.contains(sequence) && !isTaken(sequence))
            result.append(sequence);
    }
    return result;
}

} // namespace Workbench

#pragma once

#include "textcopy.h"

#include <QRegularExpression>
#include <QString>
#include <QVector>

#include <memory>

namespace Workbench
{

// What somebody looks for.
struct SearchFor {
    QString text; // as typed
    bool matchCase = false;
    bool wholeWords = false;
    bool isExpression = false; // a Perl-compatible regular expression, "^" and "$" of a line

    bool operator==(const SearchFor &other) const;
    // Why the expression is none: a sentence with the character; empty if it can be searched for.
    QString mistake() const;
    // With a limit on the steps of one match, so that none takes for ever.
    QRegularExpression expression() const;
};

// What takes the place of what was found. Of an expression: "$1", "${1}" or "\1" is a group and
// "$0" or "\0" everything, "\n" a line end, "\t" a tab, "$$" a dollar and "\\" a backslash;
// anything else stands for itself, as everything does without an expression.
class Replacement
{
public:
    // `groups`: how many the expression has; -1: it is none.
    Replacement(const QString &typed, int groups);

    // A sentence if it names a group that the expression does not have; otherwise empty.
    QString mistake() const;
    QString textFor(const QRegularExpressionMatch &match) const;

private:
    struct Part {
        QString text;
        int group = -1;
    };
    void addText(const QString &text);

    QVector<Part> m_parts;
    int m_groups;
};

// A search of a text as an editor shows it (TextFormat), in steps of a limited time. The marks of
// line ends are not seen by it: "$" is before a mark, and "\n" takes it along.
class Search
{
public:
    struct Place {
        int position; // in the shown text
        int length;
        int seen; // where the match begins without the marks
        int from; // and where it was looked for, to find it again
    };
    struct Edit {
        int position;
        int length;
        QString text;
    };
    enum State {
        Running,
        Done,
        TooMany, // `mostPlaces` were found
        TooSlow  // the expression takes too many steps at `stoppedAt()`
    };
    static constexpr int mostPlaces = 1000000;

    // `shown` may end its lines with paragraph separators.
    Search(const QString &shown, const SearchFor &wanted);
    // Of a text that is still to be copied.
    Search(std::unique_ptr<TextCopy> shown, const SearchFor &wanted);

    // Goes on for about so many milliseconds, at least one step.
    State advance(int milliseconds);
    State state() const { return m_state; }
    // Ascending, without overlap.
    const QVector<Place> &places() const { return m_places; }
    // Every place that begins before this position of the shown text is known.
    int knownUpTo() const { return shownStart(m_at); }
    int stoppedAt() const { return knownUpTo(); }
    int groups() const { return m_expression.captureCount(); }

    // The first place at or behind a position, the last that begins before one; -1: none is known.
    int firstFrom(int position) const;
    int lastBefore(int position) const;
    // The number of exactly this place; -1: it is none.
    int indexOf(int position, int length) const;

    // What changes in the shown text when a place is replaced, last position first and none before
    // the end of the place before. A line end that stays one keeps its kind. Empty only if the
    // place cannot be matched again.
    QVector<Edit> editsFor(int index, const Replacement &replacement) const;

private:
    QRegularExpressionMatch matchFrom(int from, int starts, bool *hitEnd, int *begin) const;
    void findSlowPlace();
    int shownStart(int seen) const; // of a character
    int shownEnd(int seen) const;   // behind the character before

    Search(const SearchFor &wanted, const QString &shown);
    bool copyText(int milliseconds);

    std::unique_ptr<TextCopy> m_copy; // until it is complete
    QString m_shown;                  // until m_text has all of it
    int m_stripped = 0;               // characters of it that m_text has
    QString m_text;                   // without marks, "\n" between lines
    QVector<int> m_marks;             // places in m_text before which a mark was left out
    QVector<QChar> m_markKinds;
    QRegularExpression m_expression;
    QVector<Place> m_places;
    int m_at = 0;
    int m_starts = 2048; // characters at which a match may begin in one step
    State m_state = Running;
};

} // namespace Workbench

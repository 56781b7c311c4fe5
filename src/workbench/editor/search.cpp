#include "search.h"

#include "textfile.h"
#include "tr.h"

#include <QElapsedTimer>

#include <algorithm>

namespace Workbench
{

namespace
{

// Of one match at one place: some hundred times what an expression takes that was written for
// lines.
constexpr char stepLimit[] = "(*LIMIT_MATCH=200000)";
constexpr int lookBack = 1024; // characters that an expression sees before the place
constexpr int fewestStarts = 64;
constexpr int mostStarts = 1 << 16;

QRegularExpression::PatternOptions optionsOf(const SearchFor &wanted)
{
    QRegularExpression::PatternOptions options =
        QRegularExpression::MultilineOption | QRegularExpression::UseUnicodePropertiesOption;
    if (!wanted.matchCase)
        options |= QRegularExpression::CaseInsensitiveOption;
    return options;
}

QString patternOf(const SearchFor &wanted)
{
    QString pattern = TextFormat::toShown(wanted.text);
    if (!wanted.isExpression) {
        // A no-break space looks like a blank and is found as one.
        pattern.replace(QChar(QChar::Nbsp), QChar(QChar::Space));
        pattern = QRegularExpression::escape(pattern);
        pattern.replace(QLatin1String("\\ "), QLatin1String("[ \\x{A0}]"));
    }
    if (wanted.wholeWords)
        pattern = QLatin1String("(?<!\\w)(?:") + pattern + QLatin1String(")(?!\\w)");
    return pattern;
}

} // namespace

bool SearchFor::operator==(const SearchFor &other) const
{
    return text == other.text && matchCase == other.matchCase && wholeWords == other.wholeWords &&
           isExpression == other.isExpression;
}

QString SearchFor::mistake() const
{
    if (!isExpression)
        return {};
    const QRegularExpression typed(text, optionsOf(*this));
    if (!typed.isValid()) {
        const int place = qBound(0, typed.patternErrorOffset(), text.size());
        return Tr::tr("The expression is wrong at character %1: %2.")
            .arg(place + 1)
            .arg(typed.errorString());
    }
    const QRegularExpression whole = expression();
    return whole.isValid() ? QString()
                           : Tr::tr("The expression cannot be searched for as whole words: %1.")
                                 .arg(whole.errorString());
}

QRegularExpression SearchFor::expression() const
{
    return QRegularExpression(QLatin1String(stepLimit) + patternOf(*this), optionsOf(*this));
}

Replacement::Replacement(const QString &typed, int groups)
    : m_groups(groups)
{
    const QString text = TextFormat::toShown(typed);
    if (groups < 0) {
        addText(text);
        return;
    }
    const auto isDigit = [&text](int at) {
        return at < text.size() && text.at(at) >= u'0' && text.at(at) <= u'9';
    };
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const QChar next = i + 1 < text.size() ? text.at(i + 1) : QChar();
        const bool isBraced = c == u'$' && next == u'{' && isDigit(i + 2);
        int digits = 0;
        const int first = i + (isBraced ? 2 : 1);
        while ((c == u'$' || c == u'\\') && digits < 2 && isDigit(first + digits))
            ++digits;
        if (isBraced && (first + digits >= text.size() || text.at(first + digits) != u'}'))
            digits = 0;
        if (digits > 0) {
            // "$12" is group 1 and a "2" where there are fewer groups.
            if (!isBraced && digits == 2 && text.midRef(first, 2).toInt() > groups)
                digits = 1;
            m_parts.append({{}, text.midRef(first, digits).toInt()});
            i = first + digits - (isBraced ? 0 : 1);
        } else if (c == u'$' && next == u'$') {
            addText(QStringLiteral("$"));
            ++i;
        } else if (c == u'\\' && (next == u'n' || next == u't' || next == u'\\')) {
            addText(next == u'n'   ? QStringLiteral("\n")
                    : next == u't' ? QStringLiteral("\t")
                                   : next);
            ++i;
        } else {
            addText(c);
        }
    }
}

void Replacement::addText(const QString &text)
{
    if (m_parts.isEmpty() || m_parts.last().group >= 0)
        m_parts.append({text, -1});
    else
        m_parts.last().text += text;
}

QString Replacement::mistake() const
{
    for (const Part &part : m_parts) {
        if (part.group > qMax(0, m_groups))
            return Tr::tr("The replacement names group %1; groups of the expression: %2.")
                .arg(part.group)
                .arg(m_groups);
    }
    return {};
}

QString Replacement::textFor(const QRegularExpressionMatch &match) const
{
    QString text;
    for (const Part &part : m_parts)
        text += part.group < 0 ? part.text : match.captured(part.group);
    return text;
}

Search::Search(const SearchFor &wanted, const QString &shown)
    : m_shown(shown)
    , m_expression(wanted.expression())
{
    if (wanted.text.isEmpty() || !m_expression.isValid()) {
        m_shown.clear();
        m_state = Done;
    }
}

Search::Search(const QString &shown, const SearchFor &wanted)
    : Search(wanted, shown)
{
}

Search::Search(std::unique_ptr<TextCopy> shown, const SearchFor &wanted)
    : Search(wanted, QString())
{
    if (m_state == Running)
        m_copy = std::move(shown);
}

// In steps; true if m_text is complete.
bool Search::copyText(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    if (m_copy) {
        if (!m_copy->advance(milliseconds))
            return false;
        m_shown = m_copy->take();
        m_copy.reset();
    }
    if (m_stripped == m_shown.size())
        return true;
    int length = m_stripped == 0 ? 0 : m_text.size();
    m_text.reserve(m_shown.size());
    while (m_stripped < m_shown.size()) {
        const int end = qMin(m_shown.size(), m_stripped + mostStarts);
        m_text.resize(length + end - m_stripped);
        QChar *out = m_text.data();
        const QChar *in = m_shown.constData();
        for (; m_stripped < end; ++m_stripped) {
            const QChar c = in[m_stripped];
            if (TextFormat::isMark(c)) {
                m_marks.append(length);
                m_markKinds.append(c);
            } else {
                out[length++] =
                    c == QChar::ParagraphSeparator || c == QChar::LineSeparator ? QChar(u'\n') : c;
            }
        }
        m_text.resize(length);
        if (clock.elapsed() >= milliseconds)
            break;
    }
    if (m_stripped < m_shown.size())
        return false;
    m_shown.clear();
    m_stripped = 0;
    return true;
}

int Search::shownStart(int seen) const
{
    return seen + int(std::upper_bound(m_marks.begin(), m_marks.end(), seen) - m_marks.begin());
}

int Search::shownEnd(int seen) const
{
    return seen == 0 ? 0 : shownStart(seen - 1) + 1;
}

// The first match from a place on, in a piece with room for `starts` characters at which it may
// begin, or in a longer one if it does not end there. `*begin`: of the piece. `*hitEnd`: there is
// none in the piece; a next one begins at `*begin` if that is behind `from`, else at from + starts.
// Without `hitEnd` the match is known to begin in the piece.
QRegularExpressionMatch Search::matchFrom(int from, int starts, bool *hitEnd, int *begin) const
{
    if (hitEnd)
        *hitEnd = false;
    *begin = qMax(0, from - lookBack);
    if (*begin > 0 && m_text.at(*begin).isLowSurrogate())
        --*begin;
    int room = starts;
    while (true) {
        int end = int(qMin<qint64>(m_text.size(), qint64(from) + room));
        if (end < m_text.size() && end > from && m_text.at(end).isLowSurrogate())
            ++end;
        const bool isAll = end == m_text.size();
        // Of a piece, whatever reaches its end says that more is wanted.
        const QString piece = QString::fromRawData(m_text.constData() + *begin, end - *begin);
        QRegularExpressionMatch match = m_expression.match(
            piece, from - *begin,
            isAll ? QRegularExpression::NormalMatch : QRegularExpression::PartialPreferFirstMatch);
        if (!match.hasPartialMatch()) {
            if (hitEnd)
                *hitEnd = match.isValid() && !match.hasMatch() && !isAll;
            return match;
        }
        // Nothing begins before it.
        const int partial = *begin + match.capturedStart();
        if (hitEnd && partial - from >= starts / 2 && partial > from) {
            *hitEnd = true;
            *begin = partial;
            return {};
        }
        room *= 4;
    }
}

Search::State Search::advance(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    if (m_state == Running && !copyText(milliseconds))
        return m_state;
    while (m_state == Running) {
        const qint64 begun = clock.nsecsElapsed();
        bool hitEnd = false;
        int begin = 0;
        const QRegularExpressionMatch match = matchFrom(m_at, m_starts, &hitEnd, &begin);
        const qint64 taken = clock.nsecsElapsed() - begun;
        if (hitEnd) {
            m_at = begin > m_at ? begin : qMin(m_text.size(), m_at + m_starts);
            if (m_at < m_text.size() && m_text.at(m_at).isLowSurrogate())
                --m_at;
        } else if (match.hasMatch()) {
            const int start = begin + match.capturedStart();
            const int end = qMax(start, begin + match.capturedEnd());
            const int distance = start - m_at;
            Place place{shownEnd(start), 0, start, m_at};
            if (end > start) {
                // A line end is found with the marks before it, anything else without them.
                if (m_text.at(start) != u'\n')
                    place.position = shownStart(start);
                place.length = shownEnd(end) - place.position;
            }
            m_places.append(place);
            m_at = end > start ? end : end + 1;
            if (end == start && m_at < m_text.size() && m_text.at(m_at).isLowSurrogate())
                ++m_at;
            if (m_at > m_text.size())
                m_state = Done;
            else if (m_places.size() == mostPlaces)
                m_state = TooMany;
            m_starts = qMin(m_starts, qMax(4 * distance, 4 * fewestStarts));
        } else {
            if (!match.isValid() && m_starts > fewestStarts) {
                m_starts = fewestStarts; // to tell where
                continue;
            }
            m_state = match.isValid() ? Done : TooSlow;
            if (m_state == TooSlow)
                findSlowPlace();
        }
        if (taken > 10000000)
            m_starts = qMax(fewestStarts, m_starts / 4);
        else if (taken < 1000000 && hitEnd)
            m_starts = qMin(mostStarts, m_starts * 2);
        if (clock.elapsed() >= milliseconds)
            break;
    }
    if (m_state == Done)
        m_at = m_text.size() + 1;
    return m_state;
}

// In the piece that begins at m_at.
void Search::findSlowPlace()
{
    const int begin = qMax(0, m_at - lookBack);
    const QString piece =
        QString::fromRawData(m_text.constData() + begin,
                             int(qMin<qint64>(m_text.size(), qint64(m_at) + mostStarts)) - begin);
    for (int at = m_at; at < qMin(m_text.size(), m_at + fewestStarts); ++at) {
        const auto match = m_expression.match(piece, at - begin, QRegularExpression::NormalMatch,
                                              QRegularExpression::AnchoredMatchOption);
        if (match.isValid())
            continue;
        m_at = at;
        return;
    }
}

int Search::firstFrom(int position) const
{
    const auto found =
        std::lower_bound(m_places.begin(), m_places.end(), position,
                         [](const Place &place, int at) { return place.position < at; });
    return found == m_places.end() ? -1 : int(found - m_places.begin());
}

int Search::lastBefore(int position) const
{
    const auto found =
        std::lower_bound(m_places.begin(), m_places.end(), position,
                         [](const Place &place, int at) { return place.position < at; });
    return int(found - m_places.begin()) - 1;
}

int Search::indexOf(int position, int length) const
{
    const int index = firstFrom(position);
    return index >= 0 && m_places.at(index).position == position &&
                   m_places.at(index).length == length
               ? index
               : -1;
}

QVector<Search::Edit> Search::editsFor(int index, const Replacement &replacement) const
{
    const Place &place = m_places.at(index);
    const int before =
        index == 0 ? 0 : m_places.at(index - 1).position + m_places.at(index - 1).length;
    int begin = 0;
    const QRegularExpressionMatch match =
        matchFrom(place.from, place.seen - place.from + fewestStarts, nullptr, &begin);
    if (!match.hasMatch() || begin + match.capturedStart() != place.seen)
        return {};
    const int start = place.seen;
    const int end = qMax(start, begin + match.capturedEnd());
    const QString text = replacement.textFor(match);
    const QChar *const matched = m_text.constData() + start;
    const bool takesLineEnd =
        std::find(matched, matched + (end - start), u'\n') < matched + (end - start);
    const auto mark = std::lower_bound(m_marks.begin(), m_marks.end(), start);
    const int markAt = mark == m_marks.end() ? -1 : *mark + int(mark - m_marks.begin());
    const bool takesMark = markAt >= 0 && markAt < place.position + place.length;
    if (!takesMark && (!takesLineEnd || m_marks.isEmpty()))
        return {{place.position, place.length, text}};

    // The kinds of the line ends that go, as marks; null: the file's own. The last mark of a line
    // counts, wherever it stands. One that stands before the place goes with its line end.
    QVector<Edit> edits;
    QVector<QChar> kinds;
    QChar kind;
    const int lineStart = start == 0 ? 0 : m_text.lastIndexOf(u'\n', start - 1) + 1;
    int number = int(std::lower_bound(m_marks.begin(), m_marks.end(), lineStart) - m_marks.begin());
    QVector<Edit> inLine;
    for (int i = lineStart; i <= end; ++i) {
        const bool endsLine = i < end && i >= start && m_text.at(i) == u'\n';
        for (; number < m_marks.size() && m_marks.at(number) <= i; ++number) {
            const int shown = m_marks.at(number) + number;
            if (shown >= place.position + place.length)
                continue;
            kind = m_markKinds.at(number);
            if (shown >= before && shown < place.position)
                inLine.prepend({shown, 1, {}});
        }
        if (endsLine) {
            kinds.append(kind);
            kind = QChar();
            edits = inLine + edits;
            inLine.clear();
        }
    }
    QString marked;
    int lines = 0;
    for (const QChar c : text) {
        if (c == u'\n' && !kinds.isEmpty()) {
            const QChar own = kinds.at(qMin(lines++, kinds.size() - 1));
            if (!own.isNull())
                marked += own;
        }
        marked += c;
    }
    // One that stands within what goes and whose line end stays.
    const int lastLine = end == 0 ? 0 : qMax(lineStart, m_text.lastIndexOf(u'\n', end - 1) + 1);
    for (int last = number - 1; last >= 0; --last) {
        const int shown = m_marks.at(last) + last;
        if (m_marks.at(last) < lastLine || shown < place.position)
            break;
        if (shown < place.position + place.length) {
            marked += m_markKinds.at(last);
            break;
        }
    }
    edits.prepend({place.position, place.length, marked});
    return edits;
}

} // namespace Workbench

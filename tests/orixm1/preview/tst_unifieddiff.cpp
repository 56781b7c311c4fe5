#include "testsupport.h"

#include <preview/unifieddiff.h>

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

const QString noEnd = QStringLiteral("\\ No newline at end of file");

QStringList diffOf(const QByteArray &before, const QByteArray &after)
{
    return unifiedDiff(before, after, QStringLiteral("a"), QStringLiteral("b"));
}

// Lines with their ends.
QStringList linesOf(const QByteArray &text)
{
    QStringList lines = QString::fromUtf8(text).split(u'\n');
    for (int i = 0; i + 1 < lines.size(); ++i)
        lines[i] += u'\n';
    if (lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
}

// What the diff makes of `before`, or why it cannot be applied: as strictly as a program for
// patches, without fuzz or offsets.
QByteArray applied(const QByteArray &before, QStringList diff, QString *mistake)
{
    const QStringList old = linesOf(before);
    // An element may hold a line and the mark behind it.
    diff = diff.join(u'\n').split(u'\n');
    QString result;
    int at = 0; // in `old`
    int written = 0;
    static const QRegularExpression head(
        QStringLiteral("^@@ -(\\d+)(?:,(\\d+))? \\+(\\d+)(?:,(\\d+))? @@$"));
    if (diff.value(0) != QLatin1String("--- a") || diff.value(1) != QLatin1String("+++ b")) {
        *mistake = QStringLiteral("no head");
        return {};
    }
    int i = 2;
    while (i < diff.size()) {
        const auto match = head.match(diff.at(i++));
        if (!match.hasMatch()) {
            *mistake = QStringLiteral("no hunk at line %1").arg(i);
            return {};
        }
        const auto number = [&match](int group) {
            const QString text = match.captured(group);
            return text.isEmpty() ? 1 : text.toInt();
        };
        int olds = number(2);
        int nexts = number(4);
        const int begin = number(1) - (olds > 0 ? 1 : 0);
        if (begin < at) {
            *mistake = QStringLiteral("hunks overlap");
            return {};
        }
        for (; at < begin; ++at, ++written)
            result += old.value(at);
        if (written != number(3) - (nexts > 0 ? 1 : 0))
            *mistake = QStringLiteral("the new place is not that of line %1").arg(i);
        int ahead = 0;  // context in front of the first change
        int behind = 0; // and behind the last one
        bool isChanged = false;
        while (olds > 0 || nexts > 0) {
            const QString line = diff.value(i++);
            const QChar mark = line.isEmpty() ? QChar() : line.at(0);
            QString text = line.mid(1) + u'\n';
            if (diff.value(i) == noEnd) {
                text.chop(1);
                ++i;
            }
            if (mark == u' ' || mark == u'-') {
                --olds;
                if (old.value(at++) != text)
                    *mistake = QStringLiteral("line %1 is not in the text").arg(i);
            }
            if (mark == u' ' || mark == u'+') {
                --nexts;
                ++written;
                result += text;
            }
            if (mark != u' ' && mark != u'-' && mark != u'+')
                *mistake = QStringLiteral("line %1 has no mark").arg(i);
            isChanged = isChanged || mark != u' ';
            behind = mark == u' ' ? behind + 1 : 0;
            ahead += mark == u' ' && !isChanged ? 1 : 0;
            if (!mistake->isEmpty())
                return {};
        }
        if (!isChanged || ahead > 3 || behind > 3)
            *mistake = QStringLiteral("a hunk has too little or too much");
    }
    for (; at < old.size(); ++at)
        result += old.at(at);
    return result.toUtf8();
}

int changesIn(const QStringList &diff)
{
    int count = 0;
    for (int i = 2; i < diff.size(); ++i)
        count += diff.at(i).startsWith(u'+') || diff.at(i).startsWith(u'-') ? 1 : 0;
    return count;
}

} // namespace

class tst_UnifiedDiff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatPeopleKnow_data();
    void saysWhatPeopleKnow();
    void makesOneTextOfTheOther();
    void isShort();
    void takesLongTexts();
};

void tst_UnifiedDiff::saysWhatPeopleKnow_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("lines"); // behind the head
    const auto row = [](const char *name, const QByteArray &before, const QByteArray &after,
                        const char *lines) {
        QTest::newRow(name) << before << after << QString::fromUtf8(lines);
    };
    row("one line is another", "a\nb\nc\n", "a\nx\nc\n", "@@ -1,3 +1,3 @@\n a\n-b\n+x\n c");
    row("a line at the end", "a\n", "a\nb\n", "@@ -1 +1,2 @@\n a\n+b");
    row("a first line goes", "a\nb\n", "b\n", "@@ -1,2 +1 @@\n-a\n b");
    row("everything is new", "", "a\nb\n", "@@ -0,0 +1,2 @@\n+a\n+b");
    row("nothing is left", "a\n", "", "@@ -1 +0,0 @@\n-a");
    row("the last line has no end any more", "a\n", "a",
        "@@ -1 +1 @@\n-a\n+a\n\\ No newline at end of file");
    row("the last line gets an end", "a", "a\n",
        "@@ -1 +1 @@\n-a\n\\ No newline at end of file\n+a");
    row("neither has an end", "a\nb", "x\nb",
        "@@ -1,2 +1,2 @@\n-a\n+x\n b\n\\ No newline at end of file");
    row("seven lines between two changes part them", "a\n1\n2\n3\n4\n5\n6\n7\nb\n",
        "A\n1\n2\n3\n4\n5\n6\n7\nB\n",
        "@@ -1,4 +1,4 @@\n-a\n+A\n 1\n 2\n 3\n@@ -6,4 +6,4 @@\n 5\n 6\n 7\n-b\n+B");
    row("six do not", "a\n1\n2\n3\n4\n5\n6\nb\n", "A\n1\n2\n3\n4\n5\n6\nB\n",
        "@@ -1,8 +1,8 @@\n-a\n+A\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n+B");
    row("an empty line", "a\n\nb\n", "a\nb\n", "@@ -1,3 +1,2 @@\n a\n-\n b");
    row("other letters", "ä\n", "€\n", "@@ -1 +1 @@\n-ä\n+€");
    row("other line ends", "a\r\n", "a\n", "@@ -1 +1 @@\n-a\r\n+a");
}

void tst_UnifiedDiff::saysWhatPeopleKnow()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, lines);
    QCOMPARE(diffOf(before, before), QStringList());
    QCOMPARE(diffOf(before, after).join(u'\n'), QLatin1String("--- a\n+++ b\n") + lines);
    QString mistake;
    QCOMPARE(applied(before, diffOf(before, after), &mistake), after);
    QCOMPARE(mistake, QString());
}

void tst_UnifiedDiff::makesOneTextOfTheOther()
{
    bool given = false;
    uint seed = uint(qEnvironmentVariableIntValue("TARVO_TEST_SEED", &given));
    if (!given)
        seed = QRandomGenerator::global()->generate() & 0x7fffffff;
    QRandomGenerator random(seed);
    for (int round = 0; round < 3000; ++round) {
        // Few different lines: the more of them are equal, the more ways there are.
        const int letters = 1 + random.bounded(6);
        const auto line = [&] {
            return random.bounded(8) == 0 ? QByteArray()
                                          : QByteArray(1, char('a' + random.bounded(letters)));
        };
        QByteArrayList old;
        for (int i = random.bounded(40); i > 0; --i)
            old.append(line());
        QByteArrayList next = old;
        for (int i = random.bounded(8); i > 0; --i) {
            const int at = random.bounded(next.size() + 1);
            if (random.bounded(2) == 0)
                next.insert(at, line());
            else if (at < next.size())
                next.removeAt(at);
        }
        const auto text = [&random](const QByteArrayList &lines) {
            QByteArray joined = lines.join('\n');
            if (!joined.isEmpty() && random.bounded(3) != 0)
                joined += '\n';
            return joined;
        };
        const QByteArray before = text(old);
        const QByteArray after = text(next);
        const QStringList diff = diffOf(before, after);
        QString mistake;
        const QByteArray result = diff.isEmpty() ? before : applied(before, diff, &mistake);
        if (!mistake.isEmpty() || result != after)
            qFatal("TARVO_TEST_SEED=%u: %s\n%s", seed, qPrintable(mistake),
                   qPrintable(diff.join(u'\n')));
        QCOMPARE(diff.isEmpty(), before == after);
    }
}

// Of lines that moved only one side is told.
void tst_UnifiedDiff::isShort()
{
    QByteArray before;
    for (int i = 0; i < 300; ++i)
        before += QByteArray::number(i) + '\n';
    QByteArray after = before;
    after.replace("\n100\n", "\n100\nnew\n").replace("\n200\n", "\n").prepend("first\n");
    const QStringList diff = diffOf(before, after);
    QCOMPARE(changesIn(diff), 3);
    QCOMPARE(diff.filter(QStringLiteral("@@")).size(), 3);
}

// More lines than are compared with each other.
void tst_UnifiedDiff::takesLongTexts()
{
    QByteArray before;
    for (int i = 0; i < 20000; ++i)
        before += "line " + QByteArray::number(i) + '\n';
    QByteArray after = before;
    after.replace("line 10\n", "").replace("line 19990\n", "other\n");
    const QStringList diff = diffOf(before, after);
    QString mistake;
    QCOMPARE(applied(before, diff, &mistake), after);
    QCOMPARE(mistake, QString());
}

TARVO_TEST_MAIN(QCoreApplication, tst_UnifiedDiff)
#include "tst_unifieddiff.moc"

#include "counterexample.h"

#include <QRegularExpression>
#include <QSet>
#include <QVector>

#include <random>

namespace Synthesis
{

namespace
{

constexpr int mostSteps = 1000;
constexpr int mostNumbers = 1 << 28;
constexpr int triedSteps = 4;
constexpr int tries = 64; // of 64 runs each

// A number of decimal digits, and what ends it.
bool takeNumber(const QByteArray &bytes, int *at, qint64 *number)
{
    const int from = *at;
    *number = 0;
    while (*at < bytes.size() && bytes.at(*at) >= '0' && bytes.at(*at) <= '9' &&
           *number < mostNumbers)
        *number = *number * 10 + (bytes.at((*at)++) - '0');
    return *at > from && *at < bytes.size();
}

bool takeDelta(const QByteArray &bytes, int *at, quint32 *delta)
{
    *delta = 0;
    for (int shift = 0; shift < 32 && *at < bytes.size(); shift += 7) {
        const uchar byte = uchar(bytes.at((*at)++));
        *delta |= quint32(byte & 0x7f) << shift;
        if (!(byte & 0x80))
            return true;
    }
    return false;
}

quint64 valueOf(const QVector<quint64> &values, quint32 literal)
{
    const quint64 value = values.at(int(literal >> 1));
    return literal & 1 ? ~value : value;
}

QByteArrayList differing(const AndCircuit &circuit, const QVector<quint64> &said, int run)
{
    QByteArrayList places;
    for (int i = 0; i < said.size(); ++i) {
        const QByteArray &name = circuit.outputNames().at(i);
        if (name.startsWith("cmp_") && !(said.at(i) >> run & 1)) // says whether they are equal
            places << name.mid(4);
    }
    return places;
}

Counterexample counterexampleIn(const AndCircuit &circuit, const QVector<QVector<quint64>> &steps)
{
    Counterexample result;
    const QVector<quint64> said = circuit.play(steps);
    for (int run = 0; run < 64 && result.places.isEmpty(); ++run) {
        result.places = differing(circuit, said, run);
        if (result.places.isEmpty())
            continue;
        result.steps = steps.size();
        const int output = circuit.outputNames().indexOf("cmp_" + result.places.first());
        for (const int input : circuit.inputsOf(output)) {
            QByteArray name = circuit.inputNames().at(input);
            if (name.startsWith("in_"))
                name.remove(0, 3);
            result.values.append({name, bool(steps.last().at(input) >> run & 1)});
        }
    }
    return result;
}

} // namespace

bool AndCircuit::read(const QByteArray &bytes)
{
    if (!bytes.startsWith("aig "))
        return false;
    int at = 4;
    qint64 header[5];
    for (qint64 &number : header) {
        if (!takeNumber(bytes, &at, &number) || number >= mostNumbers)
            return false;
        ++at;
    }
    if (header[0] != header[1] + header[2] + header[4])
        return false;
    while (at < bytes.size() && bytes.at(at - 1) != '\n')
        ++at;
    const auto literal = [&](quint32 *value) {
        qint64 number = 0;
        if (!takeNumber(bytes, &at, &number) || number > 2 * header[0] + 1)
            return false;
        *value = quint32(number);
        return true;
    };
    m_inputs = int(header[1]);
    for (qint64 i = 0; i < header[2]; ++i) {
        Latch latch;
        if (!literal(&latch.next))
            return false;
        if (bytes.at(at) == ' ') {
            quint32 reset = 0;
            ++at;
            if (!literal(&reset))
                return false;
            latch.isSet = reset == 1;
        }
        ++at;
        m_latches.append(latch);
    }
    for (qint64 i = 0; i < header[3]; ++i) {
        quint32 output = 0;
        if (!literal(&output))
            return false;
        ++at;
        m_outputs.append(output);
    }
    for (qint64 i = 0; i < header[4]; ++i) {
        const quint32 own = quint32(2 * (header[1] + header[2] + 1 + i));
        quint32 first = 0;
        quint32 second = 0;
        if (!takeDelta(bytes, &at, &first) || !takeDelta(bytes, &at, &second) || first > own ||
            second > own - first)
            return false;
        m_ands.append({own - first, own - first - second});
    }
    m_inputNames.clear();
    m_outputNames.clear();
    for (int i = 0; i < m_inputs; ++i)
        m_inputNames << "input " + QByteArray::number(i);
    for (int i = 0; i < m_outputs.size(); ++i)
        m_outputNames << "output " + QByteArray::number(i);
    const QByteArrayList symbols = bytes.mid(at).split('\n');
    for (const QByteArray &symbol : symbols) {
        if (symbol.startsWith('c') && symbol.size() == 1)
            break;
        const int blank = symbol.indexOf(' ');
        const int number = blank > 1 ? symbol.mid(1, blank - 1).toInt() : 0;
        QByteArrayList *names = symbol.startsWith('i')   ? &m_inputNames
                                : symbol.startsWith('o') ? &m_outputNames
                                                         : nullptr;
        if (blank > 1 && names && number >= 0 && number < names->size())
            (*names)[number] = symbol.mid(blank + 1);
    }
    return true;
}

QVector<quint64> AndCircuit::play(const QVector<QVector<quint64>> &steps) const
{
    QVector<quint64> values(1 + m_inputs + m_latches.size() + m_ands.size(), 0);
    const int firstLatch = 1 + m_inputs;
    const int firstAnd = firstLatch + m_latches.size();
    for (int i = 0; i < m_latches.size(); ++i)
        values[firstLatch + i] = m_latches.at(i).isSet ? ~quint64(0) : 0;
    QVector<quint64> said(m_outputs.size(), 0);
    for (const QVector<quint64> &step : steps) {
        for (int i = 0; i < m_inputs; ++i)
            values[1 + i] = step.value(i);
        for (int i = 0; i < m_ands.size(); ++i)
            values[firstAnd + i] =
                valueOf(values, m_ands.at(i).first) & valueOf(values, m_ands.at(i).second);
        for (int i = 0; i < m_outputs.size(); ++i)
            said[i] = valueOf(values, m_outputs.at(i));
        QVector<quint64> next;
        for (const Latch &latch : m_latches)
            next.append(valueOf(values, latch.next));
        for (int i = 0; i < next.size(); ++i)
            values[firstLatch + i] = next.at(i);
    }
    return said;
}

QVector<int> AndCircuit::inputsOf(int output) const
{
    QVector<bool> seen(1 + m_inputs + m_latches.size() + m_ands.size(), false);
    QVector<quint32> open{m_outputs.value(output)};
    while (!open.isEmpty()) {
        const int node = int(open.takeLast() >> 1);
        if (seen.at(node))
            continue;
        seen[node] = true;
        const int latch = node - 1 - m_inputs;
        const int gate = latch - m_latches.size();
        if (gate >= 0)
            open << m_ands.at(gate).first << m_ands.at(gate).second;
        else if (latch >= 0)
            open << m_latches.at(latch).next;
    }
    QVector<int> inputs;
    for (int i = 0; i < m_inputs; ++i) {
        if (seen.at(1 + i))
            inputs << i;
    }
    return inputs;
}

Counterexample counterexampleOf(const AndCircuit &circuit, const QByteArray &found)
{
    static const QRegularExpression entry(QStringLiteral("^pi(\\d+)(?:@(\\d+))?=1$"));
    QVector<QVector<quint64>> steps(1, QVector<quint64>(circuit.inputCount(), 0));
    const QByteArrayList lines = found.simplified().split(' ');
    for (const QByteArray &line : lines) {
        const auto match = entry.match(QString::fromLatin1(line));
        const int input = match.captured(1).toInt();
        const int step = match.captured(2).toInt();
        if (!match.hasMatch() || input >= circuit.inputCount() || step >= mostSteps)
            continue;
        while (step >= steps.size())
            steps.append(QVector<quint64>(circuit.inputCount(), 0));
        steps[step][input] = ~quint64(0);
    }
    Counterexample result = counterexampleIn(circuit, steps);
    std::mt19937_64 random(1); // NOLINT: the same values each time are wanted
    for (int i = 0; i < tries && result.steps == 0; ++i) {
        steps.clear();
        for (int step = 0; step < 1 + i % triedSteps; ++step) {
            QVector<quint64> words;
            for (int input = 0; input < circuit.inputCount(); ++input)
                words.append(random());
            steps.append(words);
        }
        result = counterexampleIn(circuit, steps);
    }
    return result;
}

} // namespace Synthesis

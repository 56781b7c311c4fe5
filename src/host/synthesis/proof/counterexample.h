#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QStringList>

namespace Synthesis
{

// A circuit of and-gates, inverters and flip-flops in the binary AIGER form, which Yosys writes.
class AndCircuit
{
public:
    // False if it is none, or not whole.
    bool read(const QByteArray &bytes);

    int inputCount() const { return m_inputs; }
    const QByteArrayList &inputNames() const { return m_inputNames; }
    const QByteArrayList &outputNames() const { return m_outputNames; }

    // What the outputs say in the last of some steps, 64 runs side by side: a word of each input
    // for each step.
    QVector<quint64> play(const QVector<QVector<quint64>> &steps) const;
    // The inputs on which an output depends, over flip-flops as well.
    QVector<int> inputsOf(int output) const;

private:
    struct Latch {
        quint32 next = 0;
        bool isSet = false; // at the start
    };

    int m_inputs = 0;
    QVector<Latch> m_latches;
    QVector<quint32> m_outputs;
    QVector<std::pair<quint32, quint32>> m_ands;
    QByteArrayList m_inputNames;
    QByteArrayList m_outputNames;
};

// Where two designs differ, and with which values.
struct Counterexample {
    QByteArrayList places;                   // names of outputs that differ
    QVector<QPair<QByteArray, bool>> values; // on which the first one depends
    int steps = 0;                           // 0: none was found
};

// `circuit` has an output for each place, called "cmp_" and its name, and inputs called "in_" and
// theirs; `found` is what ABC has written of it: "pi0003=1", or "pi0003@2=1" in the third step. If
// that shows nothing some values are tried, always the same ones.
Counterexample counterexampleOf(const AndCircuit &circuit, const QByteArray &found);

} // namespace Synthesis

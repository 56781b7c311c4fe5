#include "simulationoffer.h"

#include "catalogue/answers.h"
#include "tr.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace Workbench
{

using Answers::takeNumber;
using Answers::takeText;
using Answers::takeTexts;

namespace
{

bool isFile(const QString &path)
{
    return QDir::isAbsolutePath(path) && QFileInfo(path).isFile();
}

// A file name's end.
bool isSuffix(const QString &text)
{
    return !text.isEmpty() && text.size() <= 10 &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

bool takeInput(const QVariantMap &map, SimulationInput *input)
{
    const QVariant several = map.value(QStringLiteral("several"));
    input->takesSeveral = several.toBool();
    return several.userType() == QMetaType::Bool &&
           takeText(map, QStringLiteral("name"), &input->name) && !input->name.isEmpty() &&
           takeText(map, QStringLiteral("title"), &input->title) && !input->title.isEmpty() &&
           takeTexts(map, QStringLiteral("arguments"), SimulationAnswer::argumentLimit,
                     &input->arguments) &&
           takeTexts(map, QStringLiteral("patterns"), SimulationAnswer::argumentLimit,
                     &input->patterns);
}

bool takeEngine(const QVariantMap &map, SimulationEngine *engine)
{
    return takeText(map, QStringLiteral("name"), &engine->name) && !engine->name.isEmpty() &&
           takeText(map, QStringLiteral("title"), &engine->title) && !engine->title.isEmpty() &&
           takeText(map, QStringLiteral("purpose"), &engine->purpose) &&
           takeTexts(map, QStringLiteral("arguments"), SimulationAnswer::argumentLimit,
                     &engine->arguments);
}

// Entries with names of their own, at least one.
template <typename Entry, typename Take>
bool takeList(const QVariant &value, Take take, QVector<Entry> *entries)
{
    const QVariantList list = value.toList();
    if (value.userType() != QMetaType::QVariantList || list.isEmpty() ||
        list.size() > SimulationAnswer::kindLimit)
        return false;
    QSet<QString> names;
    for (const QVariant &item : list) {
        Entry entry;
        if (item.userType() != QMetaType::QVariantMap || !take(item.toMap(), &entry) ||
            names.contains(entry.name))
            return false;
        names.insert(entry.name);
        entries->append(entry);
    }
    return true;
}

template <typename Entry>
const Entry *find(const QVector<Entry> &entries, const QString &name)
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&name](const Entry &entry) { return entry.name == name; });
    return found == entries.end() ? nullptr : &*found;
}

} // namespace

const SimulationInput *SimulationOffer::input(const QString &name) const
{
    return find(inputs, name);
}

const SimulationEngine *SimulationOffer::engine(const QString &name) const
{
    return find(engines, name);
}

QStringList SimulationOffer::commandLine(const SimulationInput &input, const QStringList &files,
                                         const SimulationEngine &engine, const QString &waves) const
{
    QStringList all = arguments + engine.arguments;
    if (!waves.isEmpty())
        all += wavesArguments + QStringList(waves);
    return all + input.arguments + files;
}

namespace SimulationAnswer
{

Utils::Result<SimulationOffer> offerOf(const QVariantMap &answer)
{
    SimulationOffer offer;
    if (!takeText(answer, QStringLiteral("error"), &offer.error))
        return Utils::Failure{Tr::tr("its \"error\" is no text of a line")};
    if (!offer.error.isEmpty())
        return offer;
    if (!takeText(answer, QStringLiteral("program"), &offer.program) || !isFile(offer.program) ||
        !QFileInfo(offer.program).isExecutable())
        return Utils::Failure{Tr::tr("its \"program\" is no program with a full path")};
    if (!takeTexts(answer, QStringLiteral("arguments"), argumentLimit, &offer.arguments))
        return Utils::Failure{Tr::tr("its \"arguments\" are no list of texts")};
    if (!takeList(answer.value(QStringLiteral("inputs")), takeInput, &offer.inputs))
        return Utils::Failure{
            Tr::tr("its \"inputs\" are no list of kinds of files with names of their own")};
    if (!takeList(answer.value(QStringLiteral("engines")), takeEngine, &offer.engines))
        return Utils::Failure{
            Tr::tr("its \"engines\" are no list of simulators with names of their own")};
    if (!takeTexts(answer, QStringLiteral("wavesArguments"), argumentLimit,
                   &offer.wavesArguments) ||
        !takeText(answer, QStringLiteral("wavesSuffix"), &offer.wavesSuffix) ||
        (!offer.wavesArguments.isEmpty() && !isSuffix(offer.wavesSuffix)))
        return Utils::Failure{Tr::tr("it does not tell how waves are written")};
    if (!takeNumber(answer, QStringLiteral("uarts"), 0, uartLimit, &offer.uarts) ||
        !takeNumber(answer, QStringLiteral("pins"), 0, pinLimit, &offer.pins) ||
        !takeNumber(answer, QStringLiteral("clock"), 1, 2000000000, &offer.clock))
        return Utils::Failure{Tr::tr("its numbers of UARTs, pins or clock cycles are none")};
    return offer;
}

Utils::Result<QVector<SimulationExample>> examplesOf(const QVariantList &answer)
{
    if (answer.size() > exampleLimit)
        return Utils::Failure{Tr::tr("it has more than %1 examples").arg(exampleLimit)};
    QVector<SimulationExample> examples;
    for (const QVariant &entry : answer) {
        const QVariantMap map = entry.toMap();
        SimulationExample example;
        QSet<QString> names;
        bool isSound = takeText(map, QStringLiteral("title"), &example.title) &&
                       !example.title.isEmpty() &&
                       takeText(map, QStringLiteral("purpose"), &example.purpose) &&
                       takeText(map, QStringLiteral("configuration"), &example.configuration) &&
                       isFile(example.configuration) &&
                       takeTexts(map, QStringLiteral("files"), fileLimit, &example.files) &&
                       takeText(map, QStringLiteral("input"), &example.input) &&
                       takeText(map, QStringLiteral("program"), &example.program) &&
                       example.files.contains(example.program);
        for (const QString &file : qAsConst(example.files)) {
            const QString name = QFileInfo(file).fileName();
            isSound = isSound && isFile(file) && !names.contains(name);
            names.insert(name);
        }
        if (!isSound)
            return Utils::Failure{Tr::tr("one of its examples is none that can be copied")};
        examples.append(example);
    }
    return examples;
}

} // namespace SimulationAnswer

} // namespace Workbench

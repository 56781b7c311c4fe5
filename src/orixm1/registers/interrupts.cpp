#include "interrupts.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "config/optionvalue.h"

#include <reading/jsontext.h>
#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

QString nameOf(const QString &path)
{
    return u'"' + QDir::toNativeSeparators(path) + u'"';
}

// A failure is a clause.
Utils::Result<void> checkEntry(const QJsonObject &entry, const InterruptSource &source)
{
    if (source.name.isEmpty())
        return Utils::Failure{QStringLiteral("an entry has no name")};
    const auto fail = [&source](const QString &reason) {
        return Utils::Failure{source.name + ": "_l1 + reason};
    };
    if (!entry.value("number"_l1).isDouble() || source.number < 0 || source.count < 1 ||
        source.number > interruptInputs - source.count)
        return fail("the number is none from 0 to "_l1 + QString::number(interruptInputs - 1));
    if (!isSwitch(source.option))
        return fail(u'"' + source.option + "\" is no switch of the configuration"_l1);
    for (auto it = entry.begin(); it != entry.end(); ++it) {
        const QStringList known = {QStringLiteral("name"), QStringLiteral("number"),
                                   QStringLiteral("count"), QStringLiteral("option")};
        if (!known.contains(it.key()))
            return fail("unknown key \""_l1 + it.key() + u'"');
    }
    return {};
}

int numberOfInputs(const OptionMap &options)
{
    return numberOf(options, Key::numberOfInterrupts);
}

// The smallest number of inputs that can be chosen and includes input `last`.
QString enoughFor(int last)
{
    const QStringList choices = findOption(Key::numberOfInterrupts)->choices;
    const auto enough = std::find_if(choices.begin(), choices.end(), [last](const QString &choice) {
        return choice.toInt() > last;
    });
    return enough == choices.end() ? QString() : *enough;
}

} // namespace

Utils::Result<QVector<InterruptSource>> readOtherInterrupts(const QString &dataPath)
{
    QVector<InterruptSource> sources;
    const QString path = dataPath + "/interrupts.json"_l1;
    const auto fail = [&path](const QString &reason) {
        return Utils::Failure{nameOf(path) + ": "_l1 + reason};
    };
    if (!QFileInfo::exists(path))
        return sources;
    QByteArray bytes;
    QString reason;
    if (!Reading::readPlainFile(path, Reading::Limits::registerFile, &bytes, &reason))
        return fail("cannot be read: "_l1 + reason);
    const Reading::JsonText read = Reading::readJson(bytes);
    if (read.mistake.offset >= 0)
        return fail("line "_l1 +
                    QString::number(Reading::placeIn(bytes, read.mistake.offset).line) + ": "_l1 +
                    read.mistake.reason);
    const QJsonValue list = read.document.object().value("interrupts"_l1);
    if (!list.isArray())
        return fail("\"interrupts\" is no list"_l1);
    const QJsonArray entries = list.toArray();
    for (const QJsonValue &value : entries) {
        const QJsonObject entry = value.toObject();
        InterruptSource source;
        source.name = entry.value("name"_l1).toString();
        source.number = entry.value("number"_l1).toInt(-1);
        source.count = entry.value("count"_l1).toInt(1);
        source.option = entry.value("option"_l1).toString();
        if (const Utils::Result<void> checked = checkEntry(entry, source); !checked)
            return fail(checked.reason());
        sources.append(source);
    }
    return sources;
}

QVector<InterruptSource> interruptSources(const QVector<Peripheral> &peripherals,
                                          const QVector<InterruptSource> &others)
{
    QVector<InterruptSource> sources = others;
    for (const Peripheral &peripheral : peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            bool isNumber = false;
            const int number = instance.interrupt.toInt(&isNumber);
            if (isNumber)
                sources.append({instance.name, number, 1, instance.option, instance.isPolled});
        }
    }
    std::sort(
        sources.begin(), sources.end(),
        [](const InterruptSource &a, const InterruptSource &b) { return a.number < b.number; });
    return sources;
}

QVector<InterruptSource> enabledInterrupts(const QVector<InterruptSource> &sources,
                                           const OptionMap &options)
{
    QVector<InterruptSource> enabled;
    for (const InterruptSource &source : sources) {
        if (isSwitchedOn(options, source.option))
            enabled.append(source);
    }
    return enabled;
}

QString maskedInterrupt(const InterruptSource &source, const OptionMap &options)
{
    const int inputs = numberOfInputs(options);
    const int last = source.number + source.count - 1;
    if (last < inputs)
        return {};
    QString which = "its interrupt "_l1 + QString::number(source.number) + " is"_l1;
    if (source.count > 1)
        which = "its interrupts "_l1 + QString::number(source.number) + " to "_l1 +
                QString::number(last) + " are"_l1;
    return which + " masked: \""_l1 + Key::numberOfInterrupts + "\" is "_l1 +
           QString::number(inputs) + ", and "_l1 + enoughFor(last) + " would be enough"_l1;
}

QVector<Finding> interruptFindings(const QVector<InterruptSource> &sources,
                                   const OptionMap &options)
{
    QVector<Finding> findings;
    const QVector<InterruptSource> enabled = enabledInterrupts(sources, options);
    for (const InterruptSource &source : enabled) {
        const QString masked = maskedInterrupt(source, options);
        if (!masked.isEmpty() && !source.isPolled)
            findings.append(
                {Finding::Warning, source.option, source.name + " never interrupts: "_l1 + masked});
    }
    return findings;
}

} // namespace TARVOORIXM1

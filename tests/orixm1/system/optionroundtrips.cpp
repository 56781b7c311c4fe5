// optionroundtrips SEED DRAWS: random configurations are read, set, compared, minimized and written
// over and over; whatever says the same thing has to agree. Prints the seed of what does not.

#include <config/choices.h>
#include <config/descriptor.h>
#include <config/ipcfile.h>
#include <config/ipctext.h>
#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <config/optionvalue.h>
#include <dev/devicedb.h>
#include <generate/plan.h>
#include <reading/inientries.h>
#include <rules/check.h>
#include <rules/optionmeaning.h>
#include <rules/randomoptions.h>
#include <rules/settings.h>
#include <system/facts.h>
#include <utils/descriptor.h>

#include <QCoreApplication>

#include <cstdio>
#include <random>

using namespace TARVOORIXM1;

namespace
{

class Lot
{
public:
    explicit Lot(quint64 seed)
        : m_engine(seed)
    {
    }
    int below(int limit) { return int(m_engine() % quint64(limit)); }

private:
    std::mt19937_64 m_engine;
};

struct Subject {
    OptionMap options;
    DEV::DeviceArg device;
};

QVector<OptionDifference> differences(const Subject &a, const Subject &b)
{
    return optionDifferences(a.options, a.device, b.options, b.device);
}

// The text of a value that the option may have.
QString drawnText(const Option &option, Lot &lot)
{
    if (option.type == OptionType::Bool)
        return lot.below(2) == 0 ? QStringLiteral("false") : QStringLiteral("true");
    if (!option.choices.isEmpty())
        return option.choices.at(lot.below(option.choices.size()));
    if (option.type == OptionType::Int)
        return QString::number(option.minimum + lot.below(option.maximum - option.minimum + 1));
    if (option.key == Key::namePrefix) {
        static const QStringList prefixes = {QString(), QStringLiteral("cpu0_"),
                                             QStringLiteral("a_b_")};
        return prefixes.at(lot.below(prefixes.size()));
    }
    static const QStringList texts = {QString(), QStringLiteral("fw"), QStringLiteral("a, b; c=d"),
                                      QStringLiteral("/srv/fw \u00fc\u2026\\\"%20\"")};
    return texts.at(lot.below(texts.size()));
}

// The options that a file's text holds, every value as a text.
OptionMap optionsIn(const QByteArray &text)
{
    OptionMap options;
    const QVector<Reading::IniEntry> entries = Reading::iniEntries(text);
    for (const Reading::IniEntry &entry : entries) {
        if (entry.section == IpcFile::configGroup)
            options.insert(entry.key, entry.values.size() == 1 ? QVariant(entry.values.first())
                                                               : QVariant(entry.values));
    }
    return options;
}

QStringList planTexts(const Subject &subject, const QVariantMap &ipInfo)
{
    const GenerationPlan plan = generationPlan(
        {subject.options, ipInfo, subject.device,
         effectiveTool(valueOf(subject.options, Key::synthesisTool)),
         effectiveLanguage(valueOf(subject.options, Key::lang)), QStringLiteral("/out")});
    QStringList texts = {plan.folder};
    for (const IncludeFile &file : plan.includeFiles)
        texts += QStringList{file.name} + file.lines;
    texts += plan.sources;
    texts += {plan.request.outputDir, plan.request.ipName, plan.request.targetName,
              plan.request.device.id()};
    for (auto it = plan.request.options.cbegin(); it != plan.request.options.cend(); ++it)
        texts += {it.key(), valueText(it.value())};
    return texts;
}

class Trips
{
public:
    Trips(const QVariantMap &ipInfo, const SystemDescription &description)
        : m_ipInfo(ipInfo)
        , m_description(description)
    {
    }

    // An empty text, or what does not agree.
    QString run(quint64 seed)
    {
        Lot lot(seed);
        // What follows from a configuration takes ten times as long as its options.
        m_whole = lot.below(10) == 0;
        const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
        Subject subject;
        subject.device = devices.at(lot.below(devices.size()));
        subject.options = randomOptions(seed, subject.device);
        spoil(&subject.options, lot);
        Subject other;
        other.device = lot.below(2) == 0 ? subject.device : devices.at(lot.below(devices.size()));
        other.options = randomOptions(seed + 1, other.device);
        for (const QString &mistake : {written(subject), set(subject, lot), minimal(subject, lot),
                                       compared(subject, other)}) {
            if (!mistake.isEmpty())
                return mistake;
        }
        return {};
    }

private:
    // Files hold what nobody should write, too.
    static void spoil(OptionMap *options, Lot &lot)
    {
        if (lot.below(3) != 0)
            return;
        static const QVariantList odd = {QString(),
                                         QStringLiteral("yes"),
                                         QStringLiteral("-1"),
                                         QStringLiteral(" 4"),
                                         QStringLiteral("1e3"),
                                         QStringList{QStringLiteral("a"), QStringLiteral("b")}};
        const QVector<Option> &table = optionTable();
        for (int i = 0; i < 3; ++i)
            options->insert(table.at(lot.below(table.size())).key, odd.at(lot.below(odd.size())));
        options->insert(QStringLiteral("nobody knows"), odd.at(lot.below(odd.size())));
    }

    QString written(const Subject &subject)
    {
        const QVariantMap frame = IpcFile::header(subject.device.id(), m_ipInfo);
        const auto text = editedIpcText({}, frame, subject.options);
        if (!text)
            return QStringLiteral("no text: ") + text.reason();
        const Subject read = {optionsIn(*text), subject.device};
        if (!differences(subject, read).isEmpty())
            return QStringLiteral("the file says something else at ") +
                   differences(subject, read).first().before.key;
        const auto again = editedIpcText(*text, frame, read.options);
        return again && *again == *text ? QString() : QStringLiteral("written twice, it differs");
    }

    QString set(const Subject &subject, Lot &lot)
    {
        const QVector<Option> &table = optionTable();
        const Option &option = table.at(lot.below(table.size()));
        const QString text = drawnText(option, lot);
        const auto setting = settingFromText(option.key + u'=' + text);
        if (!setting)
            return setting.reason();
        Subject edited = subject;
        applySetting(*setting, QStringLiteral("/out"), &edited.options);
        const OptionMeaning got = meaningOf(edited.options, option.key, edited.device);
        if (!got.isStored() || valueText(got.value) != text)
            return QStringLiteral("set and got differ: ") + option.key;
        const bool hadIt = meaningOf(subject.options, option.key, subject.device).isSameAs(got);
        int told = 0;
        const QVector<OptionDifference> changes = differences(subject, edited);
        for (const OptionDifference &change : changes) {
            if (change.before.key == option.key)
                ++told;
            else if (option.key != Key::itcmInitializationPath ||
                     change.before.key != Key::itcmInitializationAbsolutePath)
                return QStringLiteral("setting %1 changed %2").arg(option.key, change.before.key);
        }
        const bool namesDevice = option.key == Key::ipDevice || option.key == Key::ipDeviceId;
        if (told != (hadIt ? 0 : 1) && !namesDevice)
            return QStringLiteral("a change that is not told: ") + option.key;

        edited.options.remove(option.key);
        const OptionMeaning absent = meaningOf(edited.options, option.key, edited.device);
        if (absent.isStored() || !absent.isSameAs(meaningOf({}, option.key, edited.device)))
            return QStringLiteral("unset, it is still there: ") + option.key;
        return {};
    }

    QString minimal(const Subject &subject, Lot &lot)
    {
        const Subject small = {minimized(subject.options, subject.device), subject.device};
        if (!differences(subject, small).isEmpty())
            return QStringLiteral("minimized, it means something else");
        if (minimized(small.options, small.device) != small.options)
            return QStringLiteral("minimized twice, it differs");
        if (!small.options.isEmpty()) {
            const QString key = small.options.keys().at(lot.below(small.options.size()));
            Subject less = small;
            less.options.remove(key);
            if (differences(small, less).isEmpty())
                return QStringLiteral("not minimal: ") + key;
        }
        if (!m_whole)
            return {};
        if (planTexts(subject, m_ipInfo) != planTexts(small, m_ipInfo))
            return QStringLiteral("minimized, it generates something else");
        const QVector<FactGroup> facts = factsOf(mapOf(subject));
        const QVector<FactGroup> smallFacts = factsOf(mapOf(small));
        for (int i = 0; i < facts.size(); ++i) {
            if (!(facts.at(i).facts == smallFacts.at(i).facts))
                return QStringLiteral("minimized, it is another subsystem: ") + facts.at(i).id;
        }
        return {};
    }

    QString compared(const Subject &subject, const Subject &other)
    {
        const QVector<OptionDifference> there = differences(subject, other);
        const QVector<OptionDifference> back = differences(other, subject);
        if (there.size() != back.size())
            return QStringLiteral("the differences depend on the direction");
        QMap<QString, OptionMeaning> moved;
        const QVector<OptionMeaning> own = meaningsOf(subject.options, subject.device);
        for (const OptionMeaning &meaning : own)
            moved.insert(meaning.key, meaning);
        for (const OptionDifference &difference : there)
            moved.insert(difference.after.key, difference.after);
        const QVector<OptionMeaning> wanted = meaningsOf(other.options, other.device);
        for (const OptionMeaning &meaning : wanted) {
            const bool namesDevice = meaning.key == Key::ipDevice || meaning.key == Key::ipDeviceId;
            if (!moved.take(meaning.key).isSameAs(meaning) && !namesDevice)
                return QStringLiteral("the differences do not lead from one to the other: ") +
                       meaning.key;
        }
        for (const OptionMeaning &meaning : qAsConst(moved)) {
            if (meaning.origin != OptionMeaning::Unknown)
                return QStringLiteral("a key that only one has is not told: ") + meaning.key;
        }
        if (!m_whole)
            return {};
        return comparedFacts(factsOf(mapOf(subject)), factsOf(mapOf(other)));
    }

    static QString comparedFacts(const QVector<FactGroup> &before, const QVector<FactGroup> &after)
    {
        const QVector<FactChanges> changes = factChanges(before, after);
        for (int i = 0; i < before.size(); ++i) {
            QMap<QString, Fact> facts;
            for (const Fact &fact : before.at(i).facts)
                facts.insert(fact.name, fact);
            for (const FactChanges &group : changes) {
                if (group.id != before.at(i).id)
                    continue;
                for (const FactChange &change : group.changes) {
                    if (change.kind == FactChange::Removed)
                        facts.remove(change.before.name);
                    else
                        facts.insert(change.after.name, change.after);
                }
            }
            QMap<QString, Fact> wanted;
            for (const Fact &fact : after.at(i).facts)
                wanted.insert(fact.name, fact);
            if (wanted.size() != after.at(i).facts.size() || !(facts == wanted))
                return QStringLiteral("the changes do not lead from one to the other: ") +
                       before.at(i).id;
        }
        return {};
    }

    SystemMap mapOf(const Subject &subject) const
    {
        return systemMap(subject.options, subject.device, m_description);
    }

    const QVariantMap m_ipInfo;
    const SystemDescription m_description;
    bool m_whole = false;
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const quint64 seed = arguments.value(1, QStringLiteral("1")).toULongLong();
    const int draws = arguments.value(2, QStringLiteral("1000")).toInt();
    const QString data = QStringLiteral(TARVO_IP_DATA_DIR);
    const auto description = readSystemDescription(data);
    const auto descriptor = Utils::readDescriptor(descriptorPath(data));
    if (!description || !descriptor || draws < 1) {
        std::fprintf(stderr, "usage: optionroundtrips SEED DRAWS\n");
        return 2;
    }
    QVariantMap ipInfo = *descriptor;
    addDataFolders(ipInfo, data);
    Trips trips(ipInfo, *description);
    int failures = 0;
    for (int i = 0; i < draws; ++i) {
        // Neighbouring seeds would share their second configuration.
        const QString mistake = trips.run(2 * (seed + quint64(i)));
        if (!mistake.isEmpty()) {
            std::printf("seed %llu: %s\n", seed + quint64(i), qPrintable(mistake));
            ++failures;
        }
    }
    std::printf("%d of %d round trips agree\n", draws - failures, draws);
    return failures == 0 ? 0 : 1;
}

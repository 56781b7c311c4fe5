// Many faults, kills and pairs of runs, by hand: longfaults [--faults N] [--start N] [--fast]
// [--pairs N] [--kills N] [--seed N] [--command PROGRAM]. Prints what it finds and figures; the
// exit status is 0 if nothing did harm.

#include "campaign.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <cstring>

using namespace Faults;

int main(int argc, char *argv[])
{
    TestSupport::useUtf8();
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const auto add = [&parser](const char *name, const char *text, const char *value) {
        parser.addOption(
            {QLatin1String(name), QLatin1String(text), QStringLiteral("N"), QLatin1String(value)});
    };
    add("faults", "Injected faults.", "10000");
    add("start", "Leaves out that many places first, to go on with another run.", "0");
    add("pairs", "Pairs of runs into one folder.", "1000");
    add("kills", "Kills at random moments.", "500");
    add("seed", "Of what is random.", "1");
    add("command", "The program.", TARVO_COMMAND);
    parser.addOption({QStringLiteral("fast"), QStringLiteral("Faults without whole runs.")});
    parser.process(application);
    const auto number = [&parser](const char *name) {
        return parser.value(QLatin1String(name)).toInt();
    };

    QRandomGenerator random(quint32(number("seed")));
    Campaign campaign(parser.value(QStringLiteral("command")));
    int harm = 0;
    const auto take = [&harm](const QString &complaint) {
        if (complaint.isEmpty())
            return;
        ++harm;
        std::printf("%s\n", qPrintable(complaint));
        std::fflush(stdout);
    };
    if (const QString complaint = campaign.prepare(); !complaint.isEmpty()) {
        std::printf("%s\n", qPrintable(complaint));
        return 1;
    }

    struct Place {
        Command command;
        Fault fault;
    };
    // Each call with each error, over what each start of a run finds; then each for good.
    QVector<Place> places;
    for (const bool lasting : {false, true}) {
        for (const Before before : {Other, Nothing, Same}) {
            for (const Command command : {New, IncludeFiles, Export, Generate}) {
                if (command == Generate && parser.isSet(QStringLiteral("fast")))
                    continue;
                for (const char *kind : kinds) {
                    for (const char *programs : {"orixm1", "yosys:yosys-abc"}) {
                        if (command != Generate && *programs != 'o')
                            continue;
                        const int count = campaign.calls(command, kind, programs, before);
                        if (!lasting)
                            std::printf("command %d, before %d: %d calls of %s in %s\n", command,
                                        before, count, kind, programs);
                        for (int at = 1; at <= count; ++at) {
                            for (const int effect :
                                 {ENOSPC, EIO, EACCES, EMFILE, int(ShortCount), int(KillBefore),
                                  int(KillAfter), int(KillMain)}) {
                                if ((effect == ShortCount && strcmp(kind, "write") != 0) ||
                                    (lasting && effect < 0) ||
                                    // The tool's first process is gone when a later one is there.
                                    (effect == KillMain && *programs != 'o'))
                                    continue;
                                places << Place{command,
                                                {kind, at, effect, lasting, programs, before}};
                            }
                        }
                    }
                }
            }
        }
    }
    std::shuffle(places.begin(), places.end(), random);
    std::printf("%d places\n", places.size());
    std::fflush(stdout);

    int faults = 0;
    int succeeded = 0;
    int killed = 0;
    const int wanted = number("faults");
    for (int i = number("start"); i < places.size() && faults < wanted; ++i) {
        take(campaign.run(places.at(i).command, places.at(i).fault));
        if (!campaign.fired())
            continue;
        ++faults;
        succeeded += campaign.status() == 0 ? 1 : 0;
        killed += campaign.status() < 0 ? 1 : 0;
        if (faults % 100 == 0 || faults == wanted) {
            std::printf("up to %d: %d faults, %d of them in a run that succeeded, %d kills; %d did "
                        "harm\n",
                        i + 1, faults, succeeded, killed, harm);
            std::fflush(stdout);
        }
    }

    int refused = 0;
    for (int i = 0; i < number("pairs"); ++i) {
        take(campaign.pair(i % 2 == 0 ? IncludeFiles : Generate, random.bounded(20000)));
        refused += campaign.refused();
    }
    std::printf("%d pairs, %d runs refused, %d did harm\n", number("pairs"), refused, harm);
    std::fflush(stdout);

    int hit = 0;
    for (int i = 0; i < number("kills"); ++i) {
        const Command command = Command(i % commandCount);
        take(campaign.killAfter(command, random.bounded(command == Generate ? 600 : 40)));
        hit += campaign.fired() ? 1 : 0;
    }
    std::printf("%d kills, %d of them during the run\n", number("kills"), hit);
    std::printf("%d did harm\n", harm);
    return harm == 0 ? 0 : 1;
}

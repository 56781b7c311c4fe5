// Many faults, kills and pairs of runs, by hand: longfaults [--faults N] [--pairs N] [--kills N]
// [--seed N] [--command PROGRAM]. Prints what it finds and figures; the exit status is 0 if nothing
// did harm.

#include "campaign.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

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
    add("faults", "Injected faults, at least; all places once come first.", "10000");
    add("pairs", "Pairs of runs into one folder.", "1000");
    add("kills", "Kills at random moments.", "500");
    add("seed", "Of what is random.", "1");
    add("command", "The program.", TARVO_COMMAND);
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

    struct Places {
        Command command;
        QByteArray kind;
        QByteArray programs;
        int count;
    };
    QVector<Places> places;
    int total = 0;
    for (const Command command : {New, IncludeFiles, Generate}) {
        for (const char *kind : kinds) {
            QByteArrayList programs{"orixm1"};
            if (command == Generate)
                programs << "yosys:yosys-abc";
            for (const QByteArray &program : qAsConst(programs)) {
                const int count = campaign.calls(command, kind, program);
                std::printf("command %d: %d calls of %s in %s\n", command, count, kind,
                            program.constData());
                places << Places{command, kind, program, count};
                total += count;
            }
        }
    }
    std::printf("%d places\n", total);
    std::fflush(stdout);

    int faults = 0;
    int succeeded = 0;
    int killed = 0;
    const auto inject = [&](const Places &place, int at, int effect, bool lasting) {
        Fault fault;
        fault.kind = place.kind;
        fault.programs = place.programs;
        fault.at = at;
        fault.effect = effect;
        fault.lasting = lasting;
        take(campaign.run(place.command, fault));
        if (!campaign.fired())
            return;
        ++faults;
        succeeded += campaign.status() == 0 ? 1 : 0;
        killed += campaign.status() < 0 ? 1 : 0;
    };
    const int wanted = number("faults");
    for (int round = 0; faults < wanted; ++round) {
        const int before = faults;
        for (const Places &place : qAsConst(places)) {
            for (int at = 1; at <= place.count && faults < wanted; ++at) {
                // Each place with each error, then with the other effects, then for good.
                constexpr int effects[] = {ENOSPC,     EIO,        EACCES,    EMFILE,
                                           ShortCount, KillBefore, KillAfter, KillMain};
                const int effect = effects[round % 8];
                const bool lasting = round >= 8;
                if (effect == ShortCount && place.kind != "write")
                    continue;
                inject(place, at, effect, lasting && effect > 0);
            }
        }
        std::printf("round %d: %d faults, %d in a run that succeeded, %d kills, %d did harm\n",
                    round, faults, succeeded, killed, harm);
        std::fflush(stdout);
        if (faults == before && round > 8)
            break;
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
        const Command command = Command(i % 3);
        take(campaign.killAfter(command, random.bounded(command == Generate ? 600 : 40)));
        hit += campaign.fired() ? 1 : 0;
    }
    std::printf("%d kills, %d of them during the run\n", number("kills"), hit);
    std::printf("%d did harm\n", harm);
    return harm == 0 ? 0 : 1;
}

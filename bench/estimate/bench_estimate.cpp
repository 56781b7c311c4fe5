// How long an estimate takes, in comparison with the include files of the same configuration, which
// are lines of text and no more.

#include <dev/devicedb.h>
#include <estimate/estimate.h>
#include <generate/defines.h>
#include <rules/randomoptions.h>

#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace TARVOORIXM1;

namespace
{

// Microseconds of one call, the best of several rounds.
template <typename Call>
double timeOf(const Call &call)
{
    constexpr int calls = 2000;
    double best = 1e9;
    for (int round = 0; round < 5; ++round) {
        const auto before = std::chrono::steady_clock::now();
        for (int i = 0; i < calls; ++i)
            call(i);
        const std::chrono::duration<double, std::micro> elapsed =
            std::chrono::steady_clock::now() - before;
        best = std::min(best, elapsed.count() / calls);
    }
    return best;
}

} // namespace

int main()
{
    const auto table = readEstimateTable(QStringLiteral(TARVO_IP_DATA_DIR));
    if (!table) {
        std::fprintf(stderr, "%s\n", qPrintable(table.reason()));
        return 1;
    }
    const DEV::DeviceArg device = DEV::DeviceDb::bundled().devices().last();
    QVector<OptionMap> drawn;
    for (quint64 seed = 1; seed <= 50; ++seed)
        drawn << randomOptions(seed, device);
    int sum = 0;
    const double one = timeOf([&](int i) {
        sum += estimate(drawn.at(i % drawn.size()), device, *table)->resources.first().value;
    });
    const double files =
        timeOf([&](int i) { sum += buildIncludeFiles(drawn.at(i % drawn.size()), device).size(); });
    std::printf("estimate %.1f us, include files %.1f us, ratio %.2f (%d)\n", one, files,
                one / files, sum);
    return 0;
}

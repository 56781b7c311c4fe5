// How long constructing, showing and painting each block's dialog takes, with every switch on, next
// to a block dialog without options and pins. Both are timed in turn; printed are the medians and
// their ratio. bench_blockdialogs [RUNS]

#include <dialogs/blockdialogs.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>

using namespace TARVOORIXM1;
using Dialog = IPCore::MicroSysChildIPGenDlg;

namespace
{

using Make = std::function<std::unique_ptr<Dialog>(OptionMap *)>;

double microseconds(const Make &make, OptionMap *options)
{
    QElapsedTimer timer;
    timer.start();
    const std::unique_ptr<Dialog> dialog = make(options);
    dialog->show();
    QApplication::processEvents();
    dialog->repaint();
    return double(timer.nsecsElapsed()) / 1000;
}

double median(QVector<double> samples)
{
    std::sort(samples.begin(), samples.end());
    return samples.at(samples.size() / 2);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    const QApplication application(argc, argv);
    const int runs = qMax(1, argc > 1 ? atoi(argv[1]) : 51);

    OptionMap options;
    for (const Block &block : blocks()) {
        for (const SwitchRow &row : block.switches)
            options.insert(row.key(), true);
    }
    const Make empty = [](OptionMap * /*options*/) { return std::make_unique<Dialog>(); };
    microseconds(empty, &options); // loads fonts and styles
    std::printf("%-18s %5s %12s %12s %7s\n", "dialog", "pins", "ms", "empty ms", "ratio");
    for (const Block &block : blocks()) {
        const Make make = [&block](OptionMap *map) { return makeBlockDialog(block.dialog, map); };
        QVector<double> own;
        QVector<double> others;
        microseconds(make, &options);
        for (int i = 0; i < runs; ++i) {
            own.append(microseconds(make, &options));
            others.append(microseconds(empty, &options));
        }
        const std::unique_ptr<Dialog> dialog = make(&options);
        std::printf("%-18s %5d %12.2f %12.2f %7.2f\n", qPrintable(dialog->labelText()),
                    dialog->figurePins().size(), median(own) / 1000, median(others) / 1000,
                    median(own) / median(others));
    }
    return 0;
}

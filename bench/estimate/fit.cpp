#include "fit.h"

#include <config/latin1literal.h>
#include <estimate/estimate.h>
#include <estimate/terms.h>

#include <algorithm>
#include <cmath>

using namespace TARVOORIXM1;

namespace
{

using Number = long double;

// In the order of the report of a run.
struct Resource {
    QLatin1String name;
    bool isExact;
    // Each term costs a whole number, since nothing is shared between terms.
    bool isWhole;
};

constexpr Resource resources[] = {{"LUT4"_l1, false, false},
                                  {"Flip-flops"_l1, false, true},
                                  {"Carry"_l1, true, true},
                                  {"Tri-state drivers"_l1, true, true},
                                  {"Block RAM"_l1, true, true}};

constexpr Tolerance promised = {40, 5};

struct Row {
    QVector<TermUse> uses;
    const Measurement *measurement;
};

// The costs that make the sum of squares smallest, and of those that do the smallest.
QVector<Number> solve(const QVector<Row> &all, const QString &resource, const QVector<int> &column,
                      int columns)
{
    QVector<Row> rows = all;
    const bool areTables = resource == resources[0].name;
    for (Row &row : rows)
        row.uses.erase(std::remove_if(row.uses.begin(), row.uses.end(),
                                      [areTables](const TermUse &use) {
                                          return !(areTables ? costsTables(use.term)
                                                             : costsOthers(use.term));
                                      }),
                       row.uses.end());
    // What keeps terms apart that always come together; far below any cell.
    const Number ridge = areTables ? 1e-7L : 1e-12L;
    QVector<QVector<Number>> matrix(columns, QVector<Number>(columns + 1, 0));
    for (int i = 0; i < columns; ++i)
        matrix[i][i] = ridge;
    for (const Row &row : rows) {
        const int used = row.measurement->used.value(resource);
        const Number weight = 1 / Number(promised.of(used) * promised.of(used));
        for (const TermUse &a : row.uses) {
            for (const TermUse &b : row.uses)
                matrix[column[a.term]][column[b.term]] += weight * a.count * b.count;
            matrix[column[a.term]][columns] += weight * a.count * used;
        }
    }
    for (int i = 0; i < columns; ++i) {
        int pivot = i;
        for (int row = i + 1; row < columns; ++row) {
            if (std::fabs(matrix[row][i]) > std::fabs(matrix[pivot][i]))
                pivot = row;
        }
        std::swap(matrix[i], matrix[pivot]);
        for (int row = 0; row < columns; ++row) {
            const Number factor = matrix[row][i] / matrix[i][i];
            if (row == i || factor == 0)
                continue;
            for (int k = i; k <= columns; ++k)
                matrix[row][k] -= factor * matrix[i][k];
        }
    }
    QVector<Number> solution(columns);
    for (int i = 0; i < columns; ++i)
        solution[i] = matrix[i][columns] / matrix[i][i];
    return solution;
}

// Without tolerances.
EstimateTable costsOf(const QVector<Row> &rows)
{
    EstimateTable table;
    QVector<int> column(termNames().size(), -1);
    int columns = 0;
    for (const Row &row : rows) {
        for (const TermUse &use : row.uses) {
            if (column[use.term] < 0)
                column[use.term] = columns++;
        }
    }
    table.costs.resize(termNames().size());
    for (const Resource &resource : resources) {
        table.resources << resource.name;
        table.tolerances << Tolerance();
        const QVector<Number> solution = solve(rows, resource.name, column, columns);
        for (int term = 0; term < column.size(); ++term) {
            if (column[term] < 0)
                continue;
            const double cost = double(solution[column[term]]);
            table.costs[term] << (resource.isWhole ? std::round(cost) : cost);
        }
    }
    return table;
}

int valueOf(const EstimateTable &table, int resource, const Row &row, bool *isKnown)
{
    double sum = 0;
    for (const TermUse &use : row.uses) {
        if (table.costs.at(use.term).isEmpty())
            *isKnown = false;
        else
            sum += table.costs.at(use.term).at(resource) * use.count;
    }
    return int(std::lround(sum));
}

double roundedUp(double value, double step)
{
    return std::ceil(value / step) * step;
}

} // namespace

Tolerance promisedTolerance(const QString &resource)
{
    for (const Resource &row : resources) {
        if (resource == row.name && row.isExact)
            return {};
    }
    return promised;
}

double missOf(const QString &resource, int estimated, int used)
{
    const double error = std::abs(estimated - used);
    const double allowed = promisedTolerance(resource).of(used);
    return allowed > 0 ? error / allowed : error == 0 ? 0 : 1 + error;
}

EstimateTable fittedTable(const Measurements &measurements, const DEV::DeviceDb &devices)
{
    QVector<Row> fit;
    QVector<Row> heldOut;
    for (const Measurement &one : measurements.list)
        (one.isHeldOut ? heldOut : fit)
            .append({termsOf(one.options, devices.findDevice(one.device)), &one});

    EstimateTable table = costsOf(fit);
    table.rtl = measurements.rtl;
    table.synthesis = measurements.synthesis;
    table.fitted = fit.size();
    table.checked = heldOut.size();

    // The largest error of each resource in promised tolerances, where the fit did not see it.
    QVector<double> worst(table.resources.size(), 0);
    const auto look = [&](const EstimateTable &costs, const Row &row) {
        for (int i = 0; i < costs.resources.size(); ++i) {
            bool isKnown = true;
            const int used = row.measurement->used.value(costs.resources.at(i));
            const int value = valueOf(costs, i, row, &isKnown);
            if (isKnown)
                worst[i] =
                    std::max(worst[i], std::abs(value - used) / promised.of(std::max(value, used)));
        }
    };
    for (const Row &row : qAsConst(heldOut))
        look(table, row);
    for (const Row &row : qAsConst(fit))
        look(table, row);
    for (int i = 0; i < fit.size(); ++i) {
        // The chosen ones have terms that nothing else has.
        const QString &name = fit.at(i).measurement->name;
        if (!name.startsWith("random"_l1) && !name.startsWith("sparse"_l1))
            continue;
        QVector<Row> others = fit;
        others.remove(i);
        look(costsOf(others), fit.at(i));
    }
    // What was measured is not all that there is.
    constexpr double margin = 1.5;
    for (int i = 0; i < worst.size(); ++i) {
        const double share = worst.at(i) * margin;
        if (share > 0)
            table.tolerances[i] = {std::ceil(promised.cells * share),
                                   roundedUp(promised.percent * share, 0.1)};
    }
    return table;
}

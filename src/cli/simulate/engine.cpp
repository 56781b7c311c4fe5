#include "engine.h"

#include "icarus.h"
#include "verilator.h"

namespace Cli
{

namespace
{

struct Row {
    const char *name;
    std::unique_ptr<Engine> (*make)();
};

template <class T>
std::unique_ptr<Engine> make()
{
    return std::make_unique<T>();
}

constexpr Row rows[] = {{"icarus", make<Icarus>}, {"verilator", make<Verilator>}};

} // namespace

QStringList engineNames()
{
    QStringList names;
    for (const Row &row : rows)
        names.append(QLatin1String(row.name));
    return names;
}

std::unique_ptr<Engine> makeEngine(const QString &name)
{
    for (const Row &row : rows) {
        if (name == QLatin1String(row.name))
            return row.make();
    }
    return nullptr;
}

} // namespace Cli

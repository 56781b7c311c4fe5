#pragma once

#include "simulate/buildcache.h"

#include <generate/manifest.h>
#include <generate/state.h>
#include <synthesis/runreport.h>

#include <optional>

namespace Cli
{

// Results of synthesis, kept by the contents of what they were made from and by the tool, for all
// projects of a user.
class ResultCache
{
public:
    static constexpr int mostEntries = 200;
    static constexpr qint64 mostBytes = qint64(256) << 20;

    // An instance that is not enabled finds nothing and keeps nothing.
    ResultCache(bool isEnabled, Synthesis::Tool tool);

    // What a run has left in the folder of the generated files, by names, and its report, with
    // placeholders for paths.
    struct Results {
        QVector<QPair<QString, QByteArray>> files;
        QJsonObject report;
    };
    // Nothing, and perhaps a sentence in `*note`, if there is no sound entry.
    std::optional<Results> find(const TARVOORIXM1::GenerationInput &input,
                                const TARVOORIXM1::GenerationPlan &plan,
                                const TARVOORIXM1::Origin &origin, QString *note) const;
    // The results of a run that stand in their places now.
    void keep(const TARVOORIXM1::GenerationInput &input, const TARVOORIXM1::GenerationPlan &plan,
              const TARVOORIXM1::Origin &origin, const QJsonObject &report) const;

    // Its version is asked of the tool only once for each installed program.
    TARVOORIXM1::ToolFacts toolFacts() const;

private:
    QByteArray keyOf(const TARVOORIXM1::GenerationPlan &plan,
                     const TARVOORIXM1::Origin &origin) const;

    BuildCache m_cache;
    bool m_isEnabled;
    Synthesis::Tool m_tool;
};

} // namespace Cli

#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

// Names in the folder of a sweep.
namespace SweepFile
{
inline constexpr QLatin1String points("points");        // folder with a folder for each point
inline constexpr QLatin1String index("points.json");    // what the points are
inline constexpr QLatin1String result("result.json");   // of a point that is done
inline constexpr QLatin1String failure("failure.json"); // of one that has failed
inline constexpr QLatin1String ninja("build.ninja");
inline constexpr QLatin1String snakemake("Snakefile");
inline constexpr QLatin1String csv("sweep.csv");
inline constexpr QLatin1String json("sweep.json");
inline constexpr QLatin1String picture("sweep.svg");
} // namespace SweepFile

// What the jobs take from the environment, so that no file has a path of a machine: the program
// (else the one on PATH), and its folders of data and devices where they are not its own.
inline constexpr char programVariable[] = "ORIXM1";
inline constexpr char dataVariable[] = "ORIXM1_DATA";
inline constexpr char devicesVariable[] = "ORIXM1_DEVICES";

// A Ninja file with a job for each of the points. `configuration` is the name of the file in a
// point's folder that the job works on.
QByteArray ninjaFile(const QStringList &points, const QString &configuration);

// A Snakemake workflow that runs the same jobs: those of the index that have no reason not to be.
QByteArray snakefile(const QString &configuration);

} // namespace TARVOORIXM1

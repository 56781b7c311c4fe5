#pragma once

#include "testsupport.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// Comparison of generated text with whole files under tests/golden/.
namespace TestSupport
{

inline bool acceptsGoldens()
{
    return qEnvironmentVariableIsSet("TARVO_ACCEPT_GOLDENS");
}

// An empty text if the golden file holds `actual`, else a unified diff.
inline QString differenceFromGolden(const QString &goldenPath, const QByteArray &actual)
{
    if (acceptsGoldens())
        write(goldenPath, actual);
    if (QFileInfo::exists(goldenPath) && contentsOf(goldenPath) == actual)
        return {};
    QTemporaryDir scratch;
    const QString actualPath = scratch.filePath(QStringLiteral("actual"));
    write(actualPath, actual);
    QProcess diff;
    diff.start(QStringLiteral("diff"),
               {QStringLiteral("-u"), QStringLiteral("-N"), goldenPath, actualPath});
    diff.waitForFinished(-1);
    return QString::fromUtf8(diff.readAllStandardOutput());
}

} // namespace TestSupport

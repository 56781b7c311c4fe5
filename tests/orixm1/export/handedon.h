#pragma once

#include "testsupport.h"

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <export/format.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// Maps of configurations that differ in what a hand-off holds, and the tools that judge it.
namespace HandedOn
{

using namespace TARVOORIXM1;

// The configurations by phrase.
inline QVector<QPair<QString, OptionMap>> configurations()
{
    OptionMap everything;
    for (const Option &option : optionTable()) {
        if (option.isOption && option.type == OptionType::Bool)
            everything.insert(option.key, true);
    }
    everything.insert(Key::bigEndian, false);
    const auto with = [](OptionMap options, const OptionMap &others) {
        for (auto it = others.begin(); it != others.end(); ++it)
            options.insert(it.key(), it.value());
        return options;
    };
    const OptionMap noInternal = {{Key::internalInstructionMemory, false},
                                  {Key::internalDataMemory, false}};
    return {
        {QStringLiteral("nothing said"), {}},
        {QStringLiteral("everything on"), everything},
        {QStringLiteral("no peripheral and no memory"), noInternal},
        {QStringLiteral("one interrupt"), with(everything, {{Key::numberOfInterrupts, 1}})},
        {QStringLiteral("eight interrupts"), with(everything, {{Key::numberOfInterrupts, 8}})},
        {QStringLiteral("sixteen interrupts"), with(everything, {{Key::numberOfInterrupts, 16}})},
        {QStringLiteral("data big-endian"), with(everything, {{Key::bigEndian, true}})},
        {QStringLiteral("memories outside"),
         with(with(everything, noInternal),
              {{Key::externalInstructionMemory, true}, {Key::externalDataMemory, true}})},
        {QStringLiteral("no OS extension and no debug"),
         with(everything, {{Key::osExtension, false}, {Key::enableDebug, false}})},
        {QStringLiteral("black boxes only"),
         {{Key::enableCan, true},
          {Key::enableEthernet, true},
          {Key::enableTrng, true},
          {Key::enablePsram, true},
          {Key::enableDdr3, true}}},
        {QStringLiteral("one port of each bus"),
         {{QStringLiteral("Enable_AHB_Master6"), true},
          {QStringLiteral("Enable_APB_Master16"), true}}},
    };
}

// Adds a column "options" and a row for each of them.
inline void addConfigurations()
{
    QTest::addColumn<OptionMap>("options");
    for (const auto &[phrase, options] : configurations())
        QTest::newRow(qPrintable(phrase)) << options;
}

inline DEV::DeviceArg device()
{
    DEV::ChipFilter filter;
    filter.device = QStringLiteral("TV2KR-18C");
    return DEV::DeviceDb::bundled().filterDevice(filter).value(0);
}

// What a program says, on both channels, and how it ends if that is not 0.
inline QString said(const QString &program, const QStringList &arguments,
                    const QString &folder = QString())
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    if (!folder.isEmpty())
        process.setWorkingDirectory(folder);
    process.start(program, arguments);
    if (!process.waitForFinished(-1))
        return program + u' ' + process.errorString();
    QString text = QString::fromUtf8(process.readAll());
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        text += QStringLiteral("exit %1").arg(process.exitCode());
    return text;
}

inline bool writeFiles(const QVector<ExportedFile> &files, const QString &folder)
{
    return std::all_of(files.begin(), files.end(), [&folder](const ExportedFile &file) {
        return TestSupport::write(folder + u'/' + file.path, file.bytes);
    });
}

} // namespace HandedOn

#pragma once

#include <core/elfimage.h>
#include <core/processor.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// Programs in assembly language for the processor's model.
namespace Assembled
{

// The vector table and what a program shares: each handler that it does not have ends it with
// BKPT 99. `log`: writes r0 where the bus keeps a list. r7 has the bus's address.
inline QByteArray withVectors(const QByteArray &program)
{
    QByteArray text = ".syntax unified\n.cpu cortex-m1\n.thumb\n"
                      ".macro log value\nmovs r0, #\\value\nstr r0, [r7]\n.endm\n"
                      ".word 0x20000400\n.word start + 1\n";
    text += ".word nmi + 1, fault + 1\n.rept 7\n.word 0\n.endr\n.word svc + 1, 0, 0, pendsv + 1\n"
            ".word systick + 1, irq0 + 1, irq1 + 1, irq2 + 1, irq3 + 1\n"
            "start: ldr r7, =0x40000000\n" +
            program + "\n";
    for (const char *name :
         {"nmi", "fault", "svc", "pendsv", "systick", "irq0", "irq1", "irq2", "irq3"})
        text += QByteArray(".ifndef ") + name + "\n" + name + ":\n.endif\n";
    return text + "bkpt 99\n.pool\n";
}

constexpr std::uint32_t vectorsEnd = 0x50; // where `start` stands

// The linked program; empty, and the test fails, if it cannot be assembled.
inline QByteArray elf(const QByteArray &program, const QByteArrayList &arguments = {})
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("a.s"));
    QFile file(source);
    file.open(QIODevice::WriteOnly);
    file.write(program);
    file.close();
    const QString result = folder.filePath(QStringLiteral("a.elf"));
    QStringList all = {QStringLiteral("-mcpu=cortex-m1"),
                       QStringLiteral("-mthumb"),
                       QStringLiteral("-nostdlib"),
                       QStringLiteral("-Wl,-Ttext=0,-e0"),
                       QStringLiteral("-o"),
                       result,
                       source};
    for (const QByteArray &argument : arguments)
        all.append(QString::fromLatin1(argument));
    QProcess compiler;
    compiler.setProcessChannelMode(QProcess::MergedChannels);
    compiler.start(QStringLiteral(ARM_GCC), all);
    if (!compiler.waitForFinished(-1) || compiler.exitCode() != 0) {
        QTest::qFail(compiler.readAll().constData(), __FILE__, __LINE__);
        return {};
    }
    QFile linked(result);
    linked.open(QIODevice::ReadOnly);
    return linked.readAll();
}

// What an instruction memory of this size is to hold.
inline std::vector<std::uint8_t> contents(const QByteArray &program, std::uint32_t bytes)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.elf"));
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(elf(withVectors(program)));
    file.close();
    std::vector<std::uint8_t> result(bytes);
    const std::string mistake = CortexM1::readElf(path.toStdString(), false, result);
    if (!mistake.empty())
        QTest::qFail(mistake.c_str(), __FILE__, __LINE__);
    return result;
}

inline CortexM1::Configuration smallCore()
{
    CortexM1::Configuration configuration;
    configuration.interrupts = 4;
    configuration.itcmBytes = 2048;
    configuration.dtcmBytes = 1024;
    return configuration;
}

} // namespace Assembled

#pragma once

#include "testsupport.h"

#include <QUuid>

#include <csignal>
#include <unistd.h>

namespace TestSupport
{

// Finds the processes that were started, directly or not, with this mark in their environment.
class Mark
{
public:
    const QByteArray &name() const { return m_name; }
    const QByteArray &value() const { return m_value; }

    // Live ones; with `program`, only those whose program has this file name.
    QList<qint64> processes(const QByteArray &program = {}) const
    {
        QList<qint64> found;
        const QStringList entries =
            QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &entry : entries) {
            bool isNumber = false;
            const qint64 pid = entry.toLongLong(&isNumber);
            const QString folder = QLatin1String("/proc/") + entry;
            if (!isNumber || pid == ::getpid() ||
                !environmentOf(folder).split('\0').contains(QByteArray(m_name + '=' + m_value)))
                continue;
            const Stat stat = statOf(folder);
            if (stat.state != "Z" && (program.isEmpty() || stat.program == program))
                found << pid;
        }
        return found;
    }

private:
    struct Stat {
        QByteArray program;
        QByteArray state;
        bool isWithoutEnvironment = false; // and will be, until it changes its program
    };

    // Of proc(5), "/proc/pid/stat".
    static Stat statOf(const QString &folder)
    {
        constexpr int firstField = 3;   // behind the name, which may have spaces
        constexpr int startOfCode = 26; // 0 until the program is there with all that it is given
        constexpr int startOfEnvironment = 50;
        constexpr int endOfEnvironment = 51;
        const QByteArray text = contentsOf(folder + QLatin1String("/stat"));
        const int name = text.indexOf('(') + 1;
        const int end = text.lastIndexOf(')');
        const QList<QByteArray> fields = text.mid(end + 2).split(' ');
        const auto field = [&](int number) { return fields.value(number - firstField, "0"); };
        return {text.mid(name, end - name), fields.value(0),
                field(startOfCode) != "0" && field(startOfEnvironment) == field(endOfEnvironment)};
    }

    // While a process changes its program it tells neither its old environment nor its new one; it
    // is asked again then. Kernel threads, the dead and processes of others cannot be asked at all.
    static QByteArray environmentOf(const QString &folder)
    {
        const QString program = folder + QLatin1String("/exe");
        for (;;) {
            const QByteArray environment = contentsOf(folder + QLatin1String("/environ"));
            if (!environment.isEmpty() || !QFileInfo(program).isSymLink() ||
                QFile::symLinkTarget(program).isEmpty() || statOf(folder).isWithoutEnvironment)
                return environment;
        }
    }

    const QByteArray m_name = "TARVO_TEST_MARK";
    const QByteArray m_value = QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
};

} // namespace TestSupport

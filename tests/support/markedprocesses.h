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
                !contentsOf(folder + QLatin1String("/environ"))
                     .split('\0')
                     .contains(QByteArray(m_name + '=' + m_value)))
                continue;
            const QByteArray stat = contentsOf(folder + QLatin1String("/stat"));
            const int name = stat.indexOf('(') + 1;
            const int end = stat.lastIndexOf(')');
            if (stat.mid(end + 2, 1) != "Z" &&
                (program.isEmpty() || stat.mid(name, end - name) == program))
                found << pid;
        }
        return found;
    }

private:
    const QByteArray m_name = "TARVO_TEST_MARK";
    const QByteArray m_value = QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
};

} // namespace TestSupport

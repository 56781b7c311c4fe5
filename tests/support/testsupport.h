#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>
#include <QTextCodec>

// Small helpers that the test programs share.
namespace TestSupport
{

inline QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool write(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(bytes) == bytes.size();
}

// The names in a folder, hidden ones included: shows left-over temporary files too.
inline QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

// File names are UTF-8 in every locale that the tests run under; call it first.
inline void useUtf8()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

} // namespace TestSupport

// QTEST_MAIN and its kin with UTF-8 file names.
#define TARVO_TEST_MAIN(Application, TestClass)                                                    \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        TestSupport::useUtf8();                                                                    \
        Application application(argc, argv);                                                       \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

// Writes eight small files into the folder given, each whole or not at all, and does nothing else.

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QString folder = QCoreApplication::arguments().value(1);
    if (!QDir().mkpath(folder))
        return 1;
    for (int i = 0; i < 8; ++i) {
        QSaveFile file(folder + QLatin1String("/file") + QString::number(i) + QLatin1String(".v"));
        if (!file.open(QIODevice::WriteOnly))
            return 1;
        for (int line = 0; line < 8; ++line)
            file.write("`define A_MACRO_OF_THE_USUAL_LENGTH 1\n");
        if (!file.flush() || !file.commit())
            return 1;
    }
    return 0;
}

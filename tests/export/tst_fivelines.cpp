#include <testsupport.h>

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace
{

// The commands that a document shows under a heading, a line each.
QStringList commandsIn(const char *document, const char *heading)
{
    const QString text = QString::fromUtf8(
        TestSupport::contentsOf(QStringLiteral(TARVO_SOURCE_DIR) + QString::fromUtf8(document)));
    const int at = text.indexOf(QLatin1Char('\n') + QLatin1String(heading) + QLatin1Char('\n'));
    const QString fence = QStringLiteral("```");
    const int begin = text.indexOf(fence + QLatin1String("sh\n"), at) + 6;
    const int end = text.indexOf(fence, begin);
    return at < 0 ? QStringList() : text.mid(begin, end - begin).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

// From a configuration to a C program: the lines of the README and of the guide, as they are.
class tst_FiveLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theReadmeAndTheGuideShowTheSame()
    {
        const QStringList lines = readme();
        QCOMPARE(lines.size(), 5);
        QStringList guide = commandsIn("/docs/user-guide.md",
                                       "### From a configuration to a C program in five lines");
        for (QString &line : guide)
            line.replace(QRegularExpression(QStringLiteral("^orixm1 ")), QStringLiteral("./run "));
        QCOMPARE(guide, lines);
    }

    void theyMakeAProgramThatTheNetlistStartsWith()
    {
        const QTemporaryDir dir;
        QVERIFY(QFile::link(QStringLiteral(TARVO_SOURCE_DIR "/examples"),
                            dir.filePath(QStringLiteral("examples"))));
        QVERIFY(QFile::link(QStringLiteral(TARVO_COMMAND), dir.filePath(QStringLiteral("run"))));
        const auto run = [&dir](const QString &line) {
            QProcess bash;
            bash.setWorkingDirectory(dir.path());
            bash.setProcessChannelMode(QProcess::MergedChannels);
            bash.start(QStringLiteral("bash"), {QStringLiteral("-euc"), line});
            const bool ended = bash.waitForFinished(300000);
            return ended && bash.exitStatus() == QProcess::NormalExit && bash.exitCode() == 0
                       ? QString()
                       : line + u'\n' + QString::fromUtf8(bash.readAll());
        };
        const QStringList lines = readme();
        for (const QString &line : lines) {
            const QString complaint = run(line);
            QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
        }
        // What the memory begins with: the end of the data memory and the way into the program.
        const QString image = dir.filePath(QStringLiteral("hello.bin"));
        QCOMPARE(run(QStringLiteral("arm-none-eabi-objcopy -O binary my-ip/hello.elf hello.bin")),
                 QString());
        const QByteArray program = TestSupport::contentsOf(image);
        QVERIFY(program.size() > 200);
        for (int lane = 0; lane < 4; ++lane) {
            const QList<QByteArray> bytes =
                TestSupport::contentsOf(dir.filePath(QStringLiteral("my-ip/itcm/itcm%1").arg(lane)))
                    .simplified()
                    .split(' ');
            for (int word = 0; word < 16; ++word)
                QCOMPARE(bytes.value(word).toInt(nullptr, 16),
                         int(uchar(program.at(4 * word + lane))));
        }
        QVERIFY(QFileInfo(dir.filePath(QStringLiteral("my-ip/tarvo_orix_m1.v"))).size() > 100000);
        for (const char *line :
             {"./run check my-ip/tarvo_orix_m1.ipc",
              "./run export my-ip/tarvo_orix_m1.ipc svd header linker startup drivers --out "
              "my-ip/software --check"})
            QCOMPARE(run(QString::fromUtf8(line)), QString());
        // What the memory begins with is part of the sources, so these are told as stale.
        QVERIFY(run(QStringLiteral("./run export my-ip/tarvo_orix_m1.ipc rtl --out my-ip/software "
                                   "--check"))
                    .contains(QLatin1String("rtl/itcm/itcm0: missing")));
    }

private:
    static QStringList readme()
    {
        return commandsIn("/README.md", "## From a configuration to a C program in five lines");
    }
};

TARVO_TEST_MAIN(QCoreApplication, tst_FiveLines)
#include "tst_fivelines.moc"

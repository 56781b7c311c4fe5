// What all commands have in common: help with an example, mistakes in one shape, suggestions, and
// what shells complete.

#include <testsupport.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace
{

struct Run {
    int status = -1;
    QByteArray out;
    QString err;
};

Run runIn(const QString &folder, const QString &program, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"), QFileInfo(QStringLiteral(TARVO_COMMAND)).path() +
                                                   u':' +
                                                   environment.value(QStringLiteral("PATH")));
    environment.insert(QStringLiteral("HOME"), folder);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(),
            QString::fromUtf8(process.readAllStandardError())};
}

Run orixm1(const QString &folder, const QStringList &arguments)
{
    return runIn(folder, QStringLiteral(TARVO_COMMAND), arguments);
}

// The commands that the help lists.
QStringList commands()
{
    const QString help =
        QString::fromUtf8(orixm1(QDir::tempPath(), {QStringLiteral("--help")}).out);
    const int begin = help.indexOf(QLatin1String("Subcommands:"));
    const int end = help.indexOf(QLatin1String("Exit status:"));
    static const QRegularExpression name(QStringLiteral("^  ([a-z]+) "),
                                         QRegularExpression::MultilineOption);
    QStringList names;
    auto found = name.globalMatch(help.mid(begin, end - begin));
    while (found.hasNext())
        names.append(found.next().captured(1));
    return names;
}

QString helpOf(const QString &command)
{
    return QString::fromUtf8(orixm1(QDir::tempPath(), {command, QStringLiteral("--help")}).out);
}

QString exampleOf(const QString &command)
{
    return helpOf(command).section(QLatin1String("Example:\n  "), 1).section(u'\n', 0, 0);
}

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    // What bash offers for a command line whose last word is being written.
    QStringList bashOffers(const QStringList &words) const
    {
        QStringList quoted;
        for (const QString &word : words)
            quoted.append(u'\'' + word + u'\'');
        const Run run =
            runIn(m_dir.path(), QStringLiteral("bash"),
                  {QStringLiteral("-c"),
                   QLatin1String("source <(orixm1 completions bash) && COMP_WORDS=(orixm1 ") +
                       quoted.join(u' ') + QLatin1String(") && COMP_CWORD=") +
                       QString::number(words.size()) +
                       QLatin1String(" && _orixm1 && printf '%s\\n' \"${COMPREPLY[@]}\"")});
        return QString::fromUtf8(run.out).split(u'\n', Qt::SkipEmptyParts);
    }

    QStringList fishOffers(const QStringList &words) const
    {
        const Run run =
            runIn(m_dir.path(), QStringLiteral("fish"),
                  {QStringLiteral("--no-config"), QStringLiteral("-c"),
                   QLatin1String("orixm1 completions fish | source; complete -C 'orixm1 ") +
                       QString(words.join(u' ')).replace(u'\\', QLatin1String("\\\\")) + u'\''});
        QStringList offers;
        const QStringList lines = QString::fromUtf8(run.out).split(u'\n', Qt::SkipEmptyParts);
        for (const QString &line : lines)
            offers.append(line.section(u'\t', 0, 0));
        return offers;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        TestSupport::write(
            m_dir.filePath(QStringLiteral("tarvo_orix_m1.ipc")),
            TestSupport::contentsOf(QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc")));
        TestSupport::write(m_dir.filePath(QStringLiteral("notes.txt")), "nothing\n");
        QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("build")));
        QVERIFY(commands().size() >= 13);
    }

    void everyHelpHasAnExampleThatIsRightUsage()
    {
        const QStringList names = commands();
        for (const QString &name : names) {
            const QString example = exampleOf(name);
            QVERIFY2(example.contains(QLatin1String("orixm1 ") + name), qPrintable(name));
            QVERIFY2(!example.contains(u'\n'), qPrintable(example));
            QTemporaryDir folder;
            QVERIFY(QFile::copy(m_dir.filePath(QStringLiteral("tarvo_orix_m1.ipc")),
                                folder.filePath(QStringLiteral("tarvo_orix_m1.ipc"))));
            // A program that the example needs is not there, which is no matter of usage. Nor is a
            // synthesis: it finds no tool.
            const Run run = runIn(
                folder.path(), QStringLiteral("bash"),
                {QStringLiteral("-c"),
                 QLatin1String("PATH=$(dirname \"$(command -v orixm1)\"):/bin/none; ") + example});
            QVERIFY2(run.status != 2 && run.status >= 0, qPrintable(example + u'\n' + run.err));
        }
    }

    void whoAsksForAnObjectGetsOneWhateverIsWrong()
    {
        const QString broken = m_dir.filePath(QStringLiteral("broken.ipc"));
        TestSupport::write(broken, "\x01\x02");
        const QString device = m_dir.filePath(QStringLiteral("device.ipc"));
        TestSupport::write(device, "[General]\ntarget_device=TV9\ntype=tarvo.tarvo_orix_m1\n"
                                   "version=1.0\n");
        int tried = 0;
        const QStringList names = commands();
        for (const QString &name : names) {
            const QString help = helpOf(name);
            if (!help.contains(QLatin1String("--json")))
                continue;
            QVector<QStringList> lines = {
                {name, QStringLiteral("--jsn"), QStringLiteral("--json")}};
            if (help.contains(QLatin1String("FILE REQUIRED"))) {
                lines.append({name, QStringLiteral("--json")});
                const QStringList files = {broken, QStringLiteral("missing.ipc"), m_dir.path()};
                for (const QString &file : files) {
                    QStringList line = {name, file, QStringLiteral("--json")};
                    if (help.contains(QLatin1String("IMAGE REQUIRED")))
                        line.insert(1, broken);
                    if (help.contains(QLatin1String("--device ID|NAME|PART REQUIRED")))
                        line += {QStringLiteral("--device"), QStringLiteral("TV1KL-5A")};
                    lines.append(line);
                }
            }
            for (const QStringList &line : qAsConst(lines)) {
                const Run run = orixm1(m_dir.path(), line);
                const QString told = line.join(u' ') + u'\n' + QString::fromUtf8(run.out) + run.err;
                QVERIFY2(run.status > 0, qPrintable(told));
                QJsonParseError mistake{};
                const QJsonObject object = QJsonDocument::fromJson(run.out, &mistake).object();
                QVERIFY2(mistake.error == QJsonParseError::NoError, qPrintable(told));
                const QJsonArray errors = object.value(QLatin1String("errors")).toArray();
                QVERIFY2(!errors.isEmpty(), qPrintable(told));
                for (const QJsonValue &error : errors) {
                    QCOMPARE(error.toObject().keys(),
                             QStringList({QStringLiteral("file"), QStringLiteral("fix"),
                                          QStringLiteral("key"), QStringLiteral("line"),
                                          QStringLiteral("text")}));
                    QVERIFY(!error.toObject().value(QLatin1String("text")).toString().isEmpty());
                }
                ++tried;
            }
        }
        QVERIFY(tried >= 30);
    }

    void anObjectOfSuccessHasNoErrors()
    {
        for (const QString &name : {QStringLiteral("check"), QStringLiteral("pins")}) {
            const Run run = orixm1(m_dir.path(), {name, QStringLiteral("tarvo_orix_m1.ipc"),
                                                  QStringLiteral("--json")});
            const QJsonObject object = QJsonDocument::fromJson(run.out).object();
            QVERIFY(object.value(QLatin1String("errors")).isArray());
            QVERIFY(object.value(QLatin1String("errors")).toArray().isEmpty());
        }
    }

    void whatIsMisspeltIsAnsweredWithTheNearest_data()
    {
        QTest::addColumn<QStringList>("line");
        QTest::addColumn<QString>("nearest");
        const auto row = [](const char *name, const char *line, const char *nearest) {
            QTest::newRow(name) << QString::fromLatin1(line).split(u' ')
                                << QString::fromLatin1(nearest);
        };
        row("command", "genrate tarvo_orix_m1.ipc", "generate");
        row("option", "generate tarvo_orix_m1.ipc --no-syth", "--no-synth");
        row("option of a group", "simulate tarvo_orix_m1.ipc --frmware=a.elf", "--firmware");
        row("option of the program", "check tarvo_orix_m1.ipc --dvices x", "--devices");
        row("device", "new --device TV3K-5A --out x", "TV3K-50A");
        row("key", "new --device TV1KL-5A-QFN32-C6/I5 --out x --set Enable_UART0=true",
            "Enable UART0");
        row("format", "export tarvo_orix_m1.ipc heder --out x", "header");
        row("series", "devices --series TV5KLRS", "TV5KLRT");
    }

    void whatIsMisspeltIsAnsweredWithTheNearest()
    {
        QFETCH(QStringList, line);
        QFETCH(QString, nearest);
        const Run run = orixm1(m_dir.path(), line);
        QCOMPARE(run.status, 2);
        QVERIFY2(run.err.contains(u'"' + nearest + u'"'), qPrintable(run.err));
    }

    void whatResemblesNothingGetsNoGuess()
    {
        const Run run = orixm1(m_dir.path(), {QStringLiteral("qwertyuiop")});
        QCOMPARE(run.status, 2);
        QVERIFY(!run.err.contains(QLatin1String("Did you mean")));
        QVERIFY(run.err.contains(QLatin1String("--help")));
    }

    void shellsComplete_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("offered");
        QTest::addColumn<QString>("notOffered");
        const auto row = [](const char *name, const QStringList &words, const char *offered,
                            const char *notOffered) {
            QTest::newRow(name) << words << QString::fromLatin1(offered)
                                << QString::fromLatin1(notOffered);
        };
        const auto words = [](const char *line) { return QString::fromLatin1(line).split(u' '); };
        row("command", words("gen"), "generate", "new");
        row("option", words("generate --no"), "--no-synth", "--json");
        row("option of the program", words("generate --dev"), "--devices", "--device");
        row("option of a group", words("simulate --fir"), "--firmware", "--c");
        row("choice", words("simulate --engine ver"), "verilator", "icarus");
        row("configuration", words("check tarvo"), "tarvo_orix_m1.ipc", "notes.txt");
        row("folder", words("new --out bu"), "build/", "notes.txt");
        row("device", words("retarget a.ipc --device TV1KL-5A-QFN32-C6"), "TV1KL-5A-QFN32-C6/I5",
            "TV3K-50A-PBGA256-C8/I7");
        row("format", words("export tarvo_orix_m1.ipc dev"), "devicetree", "svd");
        row("key",
            {QStringLiteral("new"), QStringLiteral("--set"), QStringLiteral("Enable\\ UART")},
            "Enable UART0=", "OS Extension=");
        row("shell", words("completions f"), "fish", "bash");
    }

    void shellsComplete()
    {
        QFETCH(QStringList, words);
        QFETCH(QString, offered);
        QFETCH(QString, notOffered);
        QStringList bash = bashOffers(words);
        for (QString &entry : bash) {
            entry.remove(u'\\');
            if (QFileInfo(m_dir.filePath(entry)).isDir())
                entry += u'/'; // readline adds it
        }
        QVERIFY2(bash.contains(offered), qPrintable(bash.join(u'\n')));
        QVERIFY2(!bash.contains(notOffered), qPrintable(bash.join(u'\n')));
        const QStringList fish = fishOffers(words);
        QVERIFY2(fish.contains(offered), qPrintable(fish.join(u'\n')));
        QVERIFY2(!fish.contains(notOffered), qPrintable(fish.join(u'\n')));
    }

    // zsh completes for a terminal only, so it gets one: what a line has become behind the tab is
    // printed.
    void zshCompletes()
    {
        const QStringList lines = {QStringLiteral("orixm1 gener"),
                                   QStringLiteral("orixm1 generate --no-s"),
                                   QStringLiteral("orixm1 simulate tarvo_orix_m1.ipc --engine ver"),
                                   QStringLiteral("orixm1 check tar"),
                                   QStringLiteral("orixm1 export tarvo_orix_m1.ipc devicet")};
        const QStringList completed = {
            QStringLiteral("orixm1 generate"), QStringLiteral("orixm1 generate --no-synth"),
            QStringLiteral("orixm1 simulate tarvo_orix_m1.ipc --engine verilator"),
            QStringLiteral("orixm1 check tarvo_orix_m1.ipc"),
            QStringLiteral("orixm1 export tarvo_orix_m1.ipc devicetree")};
        const QString script = m_dir.filePath(QStringLiteral("try.zsh"));
        TestSupport::write(script, R"(
zmodload zsh/zpty || exit 9
zpty session zsh -f -i
zpty -w session "PS1=; PS2=; autoload -Uz compinit; compinit -u -D; source <(orixm1 completions zsh); unsetopt beep zle_bracketed_paste; print REA''DY"
zpty -r session text '*READY*'
for line; do
    zpty -n -w session "$line"$'\t\C-aprint -r -- @\n'
done
zpty -w session "print DO''NE"
zpty -r session text '*DONE*'
print -r -- "$text"
)");
        const Run run = runIn(m_dir.path(), QStringLiteral("zsh"),
                              QStringList{QStringLiteral("-f"), script} + lines);
        const QString said = QString::fromUtf8(run.out).remove(u'\r');
        for (const QString &line : completed)
            QVERIFY2(said.contains(QRegularExpression(u'\n' + QString(u'@') +
                                                      QRegularExpression::escape(line) +
                                                      QStringLiteral(" *\n"))),
                     qPrintable(line + u'\n' + said));
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"

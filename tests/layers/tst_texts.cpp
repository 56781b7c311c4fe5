#include <dialogdriver.h>
#include <testsupport.h>

#include <workbench/catalogue/ipcatalogue.h>
#include <workbench/window/mainwindow.h>

#include <dev/devicedb.h>
#include <ipcore/ipcore.h>
#include <synthesis/simulationmodel.h>
#include <utils/boundedfile.h>

#include <QAction>
#include <QDialog>
#include <QDirIterator>
#include <QGraphicsView>
#include <QMetaMethod>
#include <QProcess>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

using namespace TestSupport;

namespace
{

// What lupdate makes of a folder of sources.
struct Found {
    QSet<QPair<QString, QString>> texts;   // context and text
    QSet<QPair<QString, QString>> inFiles; // canonical file and text
    QSet<QString> contexts;
    QString complaints;
};

Found lupdate(const QString &folder)
{
    const QTemporaryDir scratch;
    const QString ts = QFileInfo(scratch.path()).canonicalFilePath() + QStringLiteral("/all.ts");
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral(TARVO_LUPDATE),
                  {QStringLiteral("-silent"), QStringLiteral("-locations"),
                   QStringLiteral("absolute"), folder, QStringLiteral("-extensions"),
                   QStringLiteral("cpp,h,ui"), QStringLiteral("-ts"), ts});
    Found found;
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        found.complaints = QStringLiteral("lupdate failed. ");
    found.complaints += QString::fromLocal8Bit(process.readAll());

    QFile file(ts);
    if (!file.open(QIODevice::ReadOnly))
        return found;
    QXmlStreamReader xml(&file);
    QString context;
    QStringList files;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            files.clear();
        } else if (xml.name() == QLatin1String("location")) {
            const QString path = xml.attributes().value(QLatin1String("filename")).toString();
            files.append(QDir(scratch.path()).absoluteFilePath(path));
        } else if (xml.name() == QLatin1String("source")) {
            const QString text = xml.readElementText();
            found.contexts.insert(context);
            found.texts.insert({context, text});
            for (const QString &path : qAsConst(files))
                found.inFiles.insert({QFileInfo(path).canonicalFilePath(), text});
        }
    }
    return found;
}

// The value of a sequence of string literals.
QString literalValue(const QString &literals)
{
    static const QRegularExpression piece(QStringLiteral("\"((?:[^\"\\\\]|\\\\.)*)\""));
    QString value;
    auto pieces = piece.globalMatch(literals);
    while (pieces.hasNext()) {
        const QString part = pieces.next().captured(1);
        for (int i = 0; i < part.size(); ++i) {
            const bool escaped = part[i] == u'\\';
            const QChar c = escaped ? part[++i] : part[i];
            value += escaped && c == u'n' ? QChar(u'\n') : escaped && c == u't' ? QChar(u'\t') : c;
        }
    }
    return value;
}

// What is wrong with the translatable texts of a folder, in sentences. `binaries`: what is made of
// the sources.
QStringList mistakesIn(const QString &folder, const QByteArray &binaries)
{
    QStringList mistakes;
    const Found found = lupdate(folder);
    if (!found.complaints.isEmpty())
        mistakes.append(QStringLiteral("lupdate says: ") + found.complaints);

    // What looks like a text is one for lupdate too.
    static const QRegularExpression call(
        QStringLiteral("\\btr\\(\\s*((?:\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)"));
    static const QRegularExpression byHand(
        QStringLiteral("\\btr\\(const char|::translate\\(|\\bQObject::tr\\("));
    static const QRegularExpression declaration(QStringLiteral("Q_DECLARE_TR_FUNCTIONS\\((.*)\\)"));
    static const QRegularExpression space(QStringLiteral("^namespace ([\\w:]+)"),
                                          QRegularExpression::MultilineOption);
    static const QRegularExpression form(QStringLiteral("<class>(.*)</class>"));
    QSet<QString> asked; // contexts
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = QFileInfo(files.next()).canonicalFilePath();
        const QString text = QString::fromUtf8(contentsOf(path));
        if (path.endsWith(QLatin1String(".ui"))) {
            asked.insert(form.match(text).captured(1));
            continue;
        }
        if (byHand.match(text).hasMatch())
            mistakes.append(path + QStringLiteral(" names a context by hand."));
        auto calls = call.globalMatch(text);
        while (calls.hasNext()) {
            const QString value = literalValue(calls.next().captured(1));
            if (!found.inFiles.contains({path, value}))
                mistakes.append(
                    QStringLiteral("lupdate does not find \"%1\" in %2.").arg(value, path));
        }
        const QRegularExpressionMatch declared = declaration.match(text);
        if (!declared.hasMatch())
            continue;
        QStringList spaces;
        auto matches = space.globalMatch(text.left(declared.capturedStart()));
        while (matches.hasNext())
            spaces.append(matches.next().captured(1));
        const QString context = declared.captured(1);
        if (context != spaces.join(QLatin1String("::")))
            mistakes.append(
                QStringLiteral("The context %1 of %2 is not its namespace.").arg(context, path));
        asked.insert(context);
    }
    for (const QString &context : found.contexts) {
        // The other ones that are asked for are the names of classes with texts of their own.
        if (!asked.contains(context) && !binaries.contains(context.toUtf8() + '\0'))
            mistakes.append(QStringLiteral("Nothing asks for the context %1.").arg(context));
    }
    return mistakes;
}

// Notes what is asked for.
class Recorder : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        m_asked.insert({QString::fromUtf8(context), QString::fromUtf8(text)});
        return {};
    }
    bool isEmpty() const override { return false; }

    QSet<QPair<QString, QString>> asked() const { return m_asked; }

private:
    mutable QSet<QPair<QString, QString>> m_asked;
};

} // namespace

// A translation would have its effect: what lupdate finds is what the program asks for.
class TestTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextHasAContextThatIsAskedFor()
    {
        QByteArray binaries;
        const QStringList paths = QStringLiteral(TARVO_BINARIES).split(u'|');
        for (const QString &path : paths)
            binaries += contentsOf(path);
        QVERIFY(!binaries.isEmpty());
        const QStringList mistakes = mistakesIn(QStringLiteral(TARVO_SOURCES), binaries);
        QVERIFY2(mistakes.isEmpty(), qPrintable(mistakes.join(u'\n')));
    }

    void noticesTextsThatWouldNotBeFound_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("mistake");
        const QByteArray tr = "namespace A\n{\nstruct Tr {\n    Q_DECLARE_TR_FUNCTIONS(A)\n};\n"
                              "inline void f() { Tr::tr(\"t\"); }\n}\n";
        QTest::newRow("nothing") << QStringLiteral("a.cpp") << tr << QString();
        QTest::newRow("a function of the file")
            << QStringLiteral("a.cpp")
            << QByteArray("namespace A\n{\nstruct F {\n    void f();\n};\n"
                          "static QString tr(const char *text);\n"
                          "void F::f() { tr(\"t\"); }\n}\n")
            << QStringLiteral("lacks Q_OBJECT");
        QTest::newRow("a context by hand")
            << QStringLiteral("a.cpp")
            << QByteArray("QString f() { return QCoreApplication::translate(\"B\", \"t\"); }\n")
            << QStringLiteral("by hand");
        QTest::newRow("a context of nobody")
            << QStringLiteral("a.cpp")
            << tr + "const char *text = QT_TRANSLATE_NOOP(\"Aa\", \"t\");\n"
            << QStringLiteral("Nothing asks for the context Aa.");
        QTest::newRow("a context of another namespace")
            << QStringLiteral("a.cpp") << QByteArray(tr).replace("FUNCTIONS(A)", "FUNCTIONS(B)")
            << QStringLiteral("is not its namespace");
        QTest::newRow("a text where lupdate does not look")
            << QStringLiteral("a.inc") << QByteArray("f(Tr::tr(\"a \"\n  \"\\\"t\\\"\"));\n")
            << QStringLiteral("lupdate does not find \"a \"t\"\"");
    }

    void noticesTextsThatWouldNotBeFound()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, text);
        QFETCH(QString, mistake);
        const QTemporaryDir folder;
        write(folder.filePath(name), text);
        const QString mistakes = mistakesIn(folder.path(), {}).join(u'\n');
        QVERIFY2(mistakes.isEmpty() == mistake.isEmpty() && mistakes.contains(mistake),
                 qPrintable(mistakes));
    }

    void whatTheProgramAsksForIsFound()
    {
        const Found found = lupdate(QStringLiteral(TARVO_SOURCES));
        Recorder recorder;
        QCoreApplication::installTranslator(&recorder);
        useWorkbench();
        meetMistakes();
        QCoreApplication::removeTranslator(&recorder);

        QSet<QString> contexts;
        QStringList missing;
        int ours = 0;
        static const QRegularExpression ofQt(QStringLiteral("^(Q[A-Z]|MAC_)"));
        for (const QPair<QString, QString> &text : recorder.asked()) {
            if (ofQt.match(text.first).hasMatch())
                continue;
            ++ours;
            contexts.insert(text.first);
            if (!found.texts.contains(text))
                missing.append(text.first + QStringLiteral(": ") + text.second);
        }
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u'\n')));
        QVERIFY2(ours > 300, qPrintable(QString::number(ours)));
        for (const char *library :
             {"Reading", "Utils", "DEV", "Synthesis", "IPCore", "TARVOORIXM1", "Workbench"})
            QVERIFY2(contexts.contains(QLatin1String(library)), library);
    }

private:
    // Opens the window and whatever its menus ask.
    static void useWorkbench()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        const QTemporaryDir folder;
        QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
        Workbench::IpCatalogue catalogue;
        catalogue.setDataFolders({QStringLiteral(TARVO_SHARE_FOLDER)});
        catalogue.loadFolder(QStringLiteral(TARVO_PLUGIN_FOLDER), true);
        QVERIFY(!catalogue.entries().isEmpty());
        catalogue.loadFolder(QStringLiteral("/no/such/folder"), true);
        Workbench::MainWindow window(catalogue, settings);
        window.show();
        QString error;
        const auto project = Workbench::Project::create(
            folder.filePath(QStringLiteral("p")), QStringLiteral("p"),
            DEV::DeviceDb::bundled().findDevice(QStringLiteral("TV2KR-18C-QFN88P-C8/I7")), &error);
        QVERIFY2(project, qPrintable(error));
        QVERIFY(window.openProject(project->file()));
        const ModalWatcher watcher([](QWidget *modal) {
            auto *diagram = modal->findChild<QGraphicsView *>();
            if (!diagram || diagram->metaObject()->indexOfSlot("onCortexM1()") < 0)
                static_cast<QDialog *>(modal)->reject();
            else if (!diagram->property("used").toBool())
                QTimer::singleShot(0, diagram, [diagram] { useDiagram(diagram); });
        });
        const auto actions = window.findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
        for (QAction *action : actions) {
            if (action->text().endsWith(QChar(0x2026)))
                action->trigger();
        }
        window.createSelectedIp(0);
        window.openPath(QStringLiteral("/no/such.v"));
        window.openPath(QStringLiteral("/no/such.ipc"));
    }

    // Opens the dialogs of all blocks, which somebody else closes, and closes that of the IP.
    static void useDiagram(QGraphicsView *diagram)
    {
        diagram->setProperty("used", true);
        const QMetaObject *meta = diagram->metaObject();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            if (method.methodType() == QMetaMethod::Slot && method.parameterCount() == 0 &&
                method.name().startsWith("on"))
                method.invoke(diagram);
        }
        static_cast<QDialog *>(diagram->window())->reject();
    }

    static void meetMistakes()
    {
        const QTemporaryDir folder;
        QString error;
        QVERIFY(!Utils::readBoundedFile(folder.path(), 1));
        QVERIFY(!DEV::DeviceDb::fromFolder(folder.path()));
        const QString netlist = folder.filePath(QStringLiteral("a.vo"));
        write(netlist, "module a;\n");
        QVERIFY(IPCore::decode(QStringLiteral("/no/such"), netlist, netlist, error) != 0);
        QVERIFY(Synthesis::writeSimulationModel(netlist, netlist, &error) != 0);
    }
};

QTEST_MAIN(TestTexts)
#include "tst_texts.moc"

#include "hands.h"

#include <workbench/kept/keptconfigurations.h>
#include <workbench/software/paper.h>
#include <workbench/software/programpart.h>
#include <workbench/software/softwarebrowser.h>
#include <workbench/software/softwaredocument.h>
#include <workbench/software/softwaremodel.h>
#include <workbench/software/softwarepage.h>
#include <workbench/software/softwareset.h>
#include <workbench/widgets/infobar.h>
#include <workbench/widgets/vectorpicture.h>

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTextBlock>
#include <QTreeView>

using namespace Workbench;
using namespace TestSupport;

namespace
{

QVariantMap fileMap(const QVariant &path, const QVariant &bytes,
                    const QString &format = QStringLiteral("header"))
{
    return {{QStringLiteral("path"), path},
            {QStringLiteral("format"), format},
            {QStringLiteral("bytes"), bytes}};
}

QVariantMap answerOf(const QVariantList &files)
{
    return {{QStringLiteral("error"), QString()}, {QStringLiteral("files"), files}};
}

QVector<SoftwareFormat> twoFormats()
{
    SoftwareFormat header;
    header.name = QStringLiteral("header");
    header.title = QStringLiteral("Header");
    SoftwareFormat sheet = header;
    sheet.name = QStringLiteral("sheet");
    sheet.title = QStringLiteral("Sheet");
    return {header, sheet};
}

SoftwareFile file(const char *path, const QByteArray &bytes, const char *format = "header")
{
    return {QString::fromLatin1(path), QString::fromLatin1(format), bytes};
}

const QByteArray picture = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"200\" height=\"100\">"
                           "<rect width=\"200\" height=\"100\" fill=\"#00ff00\"/>"
                           "<text x=\"20\" y=\"50\">bulb</text></svg>";

QByteArray outputOf(const char *program, const QStringList &arguments)
{
    QProcess process;
    process.start(QString::fromLocal8Bit(program), arguments);
    return process.waitForFinished(-1) && process.exitCode() == 0 ? process.readAllStandardOutput()
                                                                  : QByteArray();
}

int count(const QImage &image, QRgb colour)
{
    int found = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            found += (image.pixel(x, y) & 0xffffffu) == (colour & 0xffffffu);
    }
    return found;
}

// The document as it is laid out.
QImage drawn(QTextDocument *document)
{
    document->setTextWidth(400);
    QImage image(400, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    document->drawContents(&painter);
    return image;
}

} // namespace

class TestSoftware : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_bench.reset(); }

    // What a plug-in answers

    void takesASoundAnswer()
    {
        const QVariantMap answer =
            answerOf({fileMap(QStringLiteral("a.h"), QByteArray("a")),
                      fileMap(QStringLiteral("drivers/b.c"), QByteArray()),
                      fileMap(QStringLiteral("drivers/c d.c"), QByteArray("\0", 1))});
        const auto read = SoftwareSet::filesOf(answer, twoFormats());
        QVERIFY2(read, qPrintable(read.reason()));
        QCOMPARE(read->error, QString());
        QCOMPARE(read->files.size(), 3);
        QCOMPARE(read->files.at(1), file("drivers/b.c", {}));
        const auto refused = SoftwareSet::filesOf(
            {{QStringLiteral("error"), QStringLiteral("Out of lamps.")}}, twoFormats());
        QVERIFY(refused);
        QCOMPARE(refused->error, QStringLiteral("Out of lamps."));
    }

    void refusesAHostileAnswerWhole_data()
    {
        QTest::addColumn<QVariantMap>("answer");
        QTest::addColumn<QString>("named");
        const auto paths = {"../x", "/etc/x", "a/../../x", "a//x", "",   "a/",  ".hidden",
                            "a/.x", "a\\x",   "c:x",       "a\nb", "..", "./a", "a/./b"};
        for (const char *path : paths)
            QTest::addRow("the path \"%s\"", path)
                << answerOf({fileMap(QStringLiteral("a.h"), QByteArray("a")),
                             fileMap(QString::fromLatin1(path), QByteArray("a"))})
                << QStringLiteral("path");
        const QString good = QStringLiteral("a.h");
        QTest::newRow("a path of 300 characters")
            << answerOf({fileMap(QString(300, u'a'), QByteArray())}) << QStringLiteral("path");
        QTest::newRow("a path that is a number")
            << answerOf({fileMap(3, QByteArray())}) << QStringLiteral("no map with a path");
        QTest::newRow("bytes that are a text")
            << answerOf({fileMap(good, QStringLiteral("x"))}) << QStringLiteral("bytes");
        QTest::newRow("no bytes") << answerOf({fileMap(good, {})}) << QStringLiteral("bytes");
        QTest::newRow("a format that is not offered")
            << answerOf({fileMap(good, QByteArray(), QStringLiteral("gold"))})
            << QStringLiteral("gold");
        QTest::newRow("a file that is no map") << answerOf({good}) << QStringLiteral("no map");
        QTest::newRow("a file twice")
            << answerOf({fileMap(good, QByteArray()), fileMap(good, QByteArray("x"))})
            << QStringLiteral("twice");
        QTest::newRow("a file that is a folder")
            << answerOf(
                   {fileMap(good, QByteArray()), fileMap(QStringLiteral("a.h/b"), QByteArray("x"))})
            << QStringLiteral("folder");
        QTest::newRow("a folder that is a file")
            << answerOf({fileMap(QStringLiteral("a/b/c"), QByteArray()),
                         fileMap(QStringLiteral("a/b"), QByteArray("x"))})
            << QStringLiteral("a/b");
        QTest::newRow("a file of 17 MiB")
            << answerOf({fileMap(good, QByteArray(17 << 20, 'x'))}) << QStringLiteral("16 MiB");
        QVariantList many;
        for (int i = 0; i < 5; ++i)
            many.append(fileMap(QString::number(i), QByteArray(15 << 20, 'x')));
        QTest::newRow("75 MiB in all") << answerOf(many) << QStringLiteral("64 MiB");
        QVariantList small;
        for (int i = 0; i < 3000; ++i)
            small.append(fileMap(QString::number(i), QByteArray()));
        QTest::newRow("3000 files") << answerOf(small) << QStringLiteral("2000");
        QTest::newRow("files that are a text")
            << QVariantMap{{QStringLiteral("files"), QStringLiteral("none")}}
            << QStringLiteral("list");
        for (const char *name : {"../x", "a/b", ".x"}) {
            QVariantMap answer = answerOf({});
            answer.insert(QStringLiteral("manifest"), QString::fromLatin1(name));
            QTest::addRow("the manifest \"%s\"", name) << answer << QStringLiteral("manifest");
        }
        QVariantMap own = answerOf({fileMap(QStringLiteral("m.json"), QByteArray())});
        own.insert(QStringLiteral("manifest"), QStringLiteral("m.json"));
        QTest::newRow("a file that is the manifest") << own << QStringLiteral("twice");
        QTest::newRow("nothing") << QVariantMap() << QStringLiteral("list");
        QTest::newRow("an error that is a list")
            << QVariantMap{{QStringLiteral("error"), QVariantList{1}}} << QStringLiteral("error");
    }
    void refusesAHostileAnswerWhole()
    {
        QFETCH(QVariantMap, answer);
        QFETCH(QString, named);
        const auto read = SoftwareSet::filesOf(answer, twoFormats());
        QVERIFY(!read);
        QVERIFY2(read.reason().contains(named), qPrintable(read.reason()));
        QVERIFY2(read.reason().size() < 300, qPrintable(read.reason()));
    }

    void refusesHostilePrograms_data()
    {
        QTest::addColumn<QVariantMap>("answer");
        QTest::addColumn<QString>("named");
        const auto row = [](const char *name, const char *key, const QVariant &value,
                            const char *named) {
            QVariantMap answer = goodProgram();
            answer.insert(QString::fromLatin1(key), value);
            QTest::newRow(name) << answer << QString::fromLatin1(named);
        };
        const auto fileOf = [](const QVariant &path, const QVariant &bytes = QByteArray("a")) {
            return QVariantMap{{QStringLiteral("path"), path}, {QStringLiteral("bytes"), bytes}};
        };
        const QString name = QStringLiteral("a");
        for (const char *path : {"../a", "/etc/a", "a/b", "", ".a", "..", "a\nb", "a\\b", "c:a"})
            row(path, "files", QVariantList{fileOf(QString::fromLatin1(path))}, "path");
        row("a path that is a number", "files", QVariantList{fileOf(3)}, "no map");
        row("bytes that are a text", "files", QVariantList{fileOf(name, name)}, "no map");
        row("a file that is a text", "files", QVariantList{name}, "no map");
        row("a file twice", "files", QVariantList{fileOf(name), fileOf(name)}, "twice");
        row("a file of 17 MiB", "files", QVariantList{fileOf(name, QByteArray(17 << 20, 'x'))},
            "16 MiB");
        QVariantList many;
        for (int i = 0; i < 65; ++i)
            many.append(fileOf(QString::number(i)));
        row("65 files", "files", many, "64");
        row("no files", "files", QVariantList(), "files");
        row("files that are a number", "files", 3, "files");
        row("more used than there is", "used", 30, "size");
        row("numbers that do not agree", "free", 3, "size");
        row("a size below 0", "size", -16, "size");
        row("a size that is a text", "size", QStringLiteral("16"), "size");
        row("no size", "size", {}, "size");
        row("warnings that are a number", "warnings", 3, "warnings");
        row("a warning of two lines", "warnings", QStringList{QStringLiteral("a\nb")}, "warnings");
        row("a warning of 3000 characters", "warnings", QStringList{QString(3000, u'x')},
            "warnings");
        QStringList warnings;
        for (int i = 0; i < 101; ++i)
            warnings.append(QString::number(i));
        row("101 warnings", "warnings", warnings, "warnings");
        row("an error that is a list", "error", QVariantList{1}, "error");
        QTest::newRow("nothing") << QVariantMap() << QStringLiteral("files");
    }
    void refusesHostilePrograms()
    {
        QFETCH(QVariantMap, answer);
        QFETCH(QString, named);
        QVERIFY(SoftwareSet::programOf(goodProgram()));
        const auto read = SoftwareSet::programOf(answer);
        QVERIFY(!read);
        QVERIFY2(read.reason().contains(named), qPrintable(read.reason()));
        QVERIFY2(read.reason().size() < 300, qPrintable(read.reason()));
    }

    void refusesHostileStarts()
    {
        const QVariantMap good{{QStringLiteral("error"), QString()},
                               {QStringLiteral("folder"), QStringLiteral("/a/../b")},
                               {QStringLiteral("changed"), true}};
        const auto read = SoftwareSet::startOf(good);
        QVERIFY(read);
        QCOMPARE(read->folder, QStringLiteral("/b"));
        const auto refused = [&good](const char *key, const QVariant &value) {
            QVariantMap answer = good;
            answer.insert(QString::fromLatin1(key), value);
            const auto start = SoftwareSet::startOf(answer);
            return !start && start.reason().contains(QLatin1String(key));
        };
        QVERIFY(refused("folder", QStringLiteral("b")));
        QVERIFY(refused("folder", QStringLiteral("/b\n")));
        QVERIFY(refused("folder", 3));
        QVERIFY(refused("folder", {}));
        QVERIFY(refused("changed", QStringLiteral("true")));
        QVERIFY(refused("changed", {}));
        QVERIFY(refused("error", 3));
    }

    void refusesHostileFormats_data()
    {
        QTest::addColumn<QVariantList>("answer");
        QTest::addColumn<QString>("named");
        const auto named = [](const QVariant &name) {
            return QVariantMap{{QStringLiteral("name"), name}};
        };
        QTest::newRow("one that is a text")
            << QVariantList{QStringLiteral("header")} << QStringLiteral("no map");
        QTest::newRow("one without a name")
            << QVariantList{QVariantMap()} << QStringLiteral("name");
        QTest::newRow("a name that is a number")
            << QVariantList{named(3)} << QStringLiteral("\"name\"");
        QTest::newRow("a name of two lines")
            << QVariantList{named(QStringLiteral("a\nb"))} << QStringLiteral("\"name\"");
        QTest::newRow("a name twice")
            << QVariantList{named(QStringLiteral("a")), named(QStringLiteral("a"))}
            << QStringLiteral("twice");
        QVariantMap endless = named(QStringLiteral("a"));
        endless.insert(QStringLiteral("purpose"), QString(100000, u'x'));
        QTest::newRow("a purpose of 100000 characters")
            << QVariantList{endless} << QStringLiteral("purpose");
        QVariantList many;
        for (int i = 0; i < 101; ++i)
            many.append(named(QString::number(i)));
        QTest::newRow("101 of them") << many << QStringLiteral("100");
    }
    void refusesHostileFormats()
    {
        QFETCH(QVariantList, answer);
        QFETCH(QString, named);
        const auto read = SoftwareSet::formatsOf(answer);
        QVERIFY(!read);
        QVERIFY2(read.reason().contains(named), qPrintable(read.reason()));
    }

    void asksOnlyPluginsThatCanAnswer()
    {
        IpCatalogue catalogue;
        catalogue.loadFolder(QStringLiteral(TARVO_FAKE_PLUGINS "/blinker"), true);
        QVERIFY(!catalogue.canExport(0));
        QVariantList formats;
        QVariantMap files;
        QString error;
        QVERIFY(!catalogue.softwareFormats(0, &formats, &error));
        QVERIFY2(error.contains(QLatin1String("Blinker")), qPrintable(error));
        error.clear();
        QVERIFY(!catalogue.exportSoftware(0, {}, {}, &files, &error));
        QVERIFY2(error.contains(QLatin1String("Blinker")), qPrintable(error));
        QVERIFY(!catalogue.canTakePrograms(0));
        error.clear();
        QVERIFY(!catalogue.firmwareFiles(0, {}, {}, &files, &error));
        QVERIFY2(error.contains(QLatin1String("Blinker")), qPrintable(error));
        error.clear();
        QVERIFY(!catalogue.startFromFirmware(0, {}, {}, true, &files, &error));
        QVERIFY2(error.contains(QLatin1String("Blinker")), qPrintable(error));
    }

    // Formats and files

    void theModelTellsWhatStandsInTheFolder()
    {
        using Entry = Utils::BundleEntry;
        SoftwareModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        model.setSet(twoFormats(), {file("a.h", "a"), file("b.h", "b"),
                                    file("s.html", "s", "sheet"), file("t.svg", "t", "sheet")});
        const auto state = [&model](const QModelIndex &index) {
            return index.sibling(index.row(), SoftwareModel::StateColumn).data().toString();
        };
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(state(model.index(0, 0)), QString());
        model.setStates({{QStringLiteral("a.h"), {}, Entry::Fresh, {}},
                         {QStringLiteral("b.h"), {}, Entry::Edited, {}},
                         {QStringLiteral("s.html"), {}, Entry::Missing, {}},
                         {QStringLiteral("t.svg"), {}, Entry::Missing, {}},
                         {QStringLiteral("old.h"), {}, Entry::LeftOver, {}}});
        QCOMPARE(state(model.index(0, 0)), QStringLiteral("1 of 2 fresh"));
        QCOMPARE(state(model.index(1, 0)), QStringLiteral("missing"));
        QCOMPARE(state(model.indexOf(QStringLiteral("b.h"))), QStringLiteral("edited"));
        QCOMPARE(model.rowCount(), 3);
        const QModelIndex group = model.index(2, 0);
        QCOMPARE(model.rowCount(group), 1);
        QCOMPARE(state(model.index(0, 0, group)), QStringLiteral("left over"));
        QVERIFY(!model.format(group) && !model.file(model.index(0, 0, group)));
        model.setStates({});
        QCOMPARE(model.rowCount(), 2);
    }

    void theModelKeepsTheChoice()
    {
        SoftwareModel model;
        model.setSet(twoFormats(), {file("a.h", "a"), file("s.html", "s", "sheet")});
        QCOMPARE(model.chosen().size(), 2);
        QSignalSpy changed(&model, &SoftwareModel::choiceChanged);
        QVERIFY(model.setData(model.index(0, 0), Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(model.chosen(), QStringList(QStringLiteral("sheet")));
        QCOMPARE(model.chosenFiles(), QVector<SoftwareFile>{file("s.html", "s", "sheet")});
        model.setSet(twoFormats(), {file("a.h", "b")});
        QCOMPARE(model.chosen(), QStringList(QStringLiteral("sheet")));
        QVERIFY(!model.setData(model.index(0, 0, model.index(0, 0)), Qt::Unchecked,
                               Qt::CheckStateRole));
    }

    // Documents

    void drawsThePicturesOfTheSetAlone()
    {
        const QTemporaryDir dir;
        const QString outside = dir.filePath(QStringLiteral("red.png"));
        QImage red(50, 50, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(outside));
        const QByteArray address = QUrl::fromLocalFile(outside).toEncoded();
        const auto documentOf = [](const QByteArray &source) {
            return QVector<SoftwareFile>{
                file("sheet/a.html", "<p><img src=\"" + source + "\"></p>"),
                file("sheet/a.svg", picture), file("b.svg", picture)};
        };
        for (const char *source : {"a.svg", "./a.svg", "../b.svg"}) {
            SoftwareDocument document(documentOf(source), QStringLiteral("sheet/a.html"));
            QVERIFY2(count(drawn(&document), qRgb(0, 255, 0)) > 10000, source);
        }
        const QByteArray own = "data:image/svg+xml;base64," + picture.toBase64();
        SoftwareDocument whole(documentOf(own), QStringLiteral("sheet/a.html"));
        QVERIFY(count(drawn(&whole), qRgb(0, 255, 0)) > 10000);
        QByteArrayList sources{address,
                               outside.toUtf8(),
                               "data:image/png;base64,iVBORw0KGgo=",
                               "data:image/svg+xml;base64,AAAA",
                               "http://nowhere.invalid/a.svg",
                               "../../b.svg",
                               "/sheet/a.svg"};
        for (const QByteArray &source : sources) {
            SoftwareDocument document(documentOf(source), QStringLiteral("sheet/a.html"));
            const QImage image = drawn(&document);
            QVERIFY2(count(image, qRgb(255, 0, 0)) == 0, source.constData());
            QVERIFY2(count(image, qRgb(0, 255, 0)) == 0, source.constData());
            QVERIFY2(
                document.resource(QTextDocument::ImageResource, QUrl(QString::fromUtf8(source)))
                    .isNull(),
                source.constData());
        }
    }

    void refusesDrawingsThatAreMoreThanShapes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray head = "<svg xmlns=\"http://www.w3.org/2000/svg\" "
                                "xmlns:xlink=\"http://www.w3.org/1999/xlink\">";
        QTest::newRow("a picture from a file")
            << head + "<image xlink:href=\"/etc/x.png\" width=\"9\" height=\"9\"/></svg>";
        QTest::newRow("a script") << head + "<script>x()</script></svg>";
        QTest::newRow("copies of copies") << head + "<g id=\"a\"/><use xlink:href=\"#a\"/></svg>";
        QTest::newRow("a style sheet from a file")
            << "<?xml-stylesheet href=\"/etc/x.css\"?>" + head + "</svg>";
        QTest::newRow("entities") << "<!DOCTYPE svg [<!ENTITY a \"aaaa\">]>" + head +
                                         "<text>&a;</text></svg>";
        QTest::newRow("an animation") << head + "<animate attributeName=\"x\"/></svg>";
        QTest::newRow("deep groups")
            << head + QByteArray("<g>").repeated(100) + QByteArray("</g>").repeated(100) + "</svg>";
        QTest::newRow("many shapes") << head + QByteArray("<g/>").repeated(200000) + "</svg>";
        const QByteArray line = head + "<line x2=\"9\" ";
        QTest::newRow("a line without end")
            << head + "<path d=\"M0 0L3e30,4\" stroke=\"red\"/></svg>";
        QTest::newRow("dashes without end") << line + "stroke-dasharray=\"1e-9\"/></svg>";
        QTest::newRow("dashes in a style") << line + "style=\"stroke-dasharray:1e-9 0\"/></svg>";
        QTest::newRow("dashes in a sheet")
            << head + "<style>line{stroke-dasharray: 1e-9}</style><line x2=\"9\"/></svg>";
        const auto sheet = [&head](const QByteArray &text) -> QByteArray {
            return head + "<style>" + text + "</style><line x2=\"9\"/></svg>";
        };
        QTest::newRow("dashes in parts of a sheet")
            << sheet("line{stroke-dash<![CDATA[array:1e-9}]]>");
        QTest::newRow("dashes behind a comment") << sheet("line{stroke-dasharray/*:*/: 1e-9}");
        QTest::newRow("large dashes") << sheet("line{STROKE-dasharray: 1e-9}");
        QTest::newRow("escaped dashes") << sheet("line{stroke-d\\61sharray: 1e-9}");
        QTest::newRow("dashes backwards") << line + "stroke-dasharray=\"5 -4.9\"/></svg>";
        QTest::newRow("dashes of another scale")
            << line + "vector-effect=\"non-scaling-stroke\"/></svg>";
        QTest::newRow("no XML") << QByteArray("lamps");
        QTest::newRow("half of one") << picture.left(60);
        QTest::newRow("nothing") << QByteArray();
    }
    void refusesDrawingsThatAreMoreThanShapes()
    {
        QFETCH(QByteArray, bytes);
        const auto read = VectorPicture::read(bytes);
        QVERIFY(!read);
        QVERIFY(!read.reason().isEmpty());
    }

    void aDocumentThatIsNestedWithoutEndIsNotLaidOut()
    {
        // Ends without a beginning first: they do not make room for more.
        const auto deep = [](const QByteArray &opening, const QByteArray &closing) -> QByteArray {
            return closing.repeated(5000) + opening.repeated(5000);
        };
        const QVector<SoftwareFile> files = {
            file("a.html", QByteArray("<table><tr><td>").repeated(5000)),
            file("b.html", QByteArray("<ul><li>").repeated(5000)),
            file("c.html", QByteArray("<p>x").repeated(2 << 20)),
            file("d.html", deep("<table><tr><td>", "</table>")),
            file("e.html", deep("<UL><li>", "</UL>")),
            file("f.html", deep("<blockquote>", "")),
            file("g.html", deep("<unknown style=\"color: red\">", "")),
            file("h.html", "<table>" + QByteArray("<tr><td>1").repeated(50000)),
            file("i.html", "<ol>" + QByteArray("<li>1").repeated(30000)),
            file("j.html", QByteArray("<img src=\"a.svg\">").repeated(30000)),
            file("k.html",
                 "<table><tr><td>" + QByteArray("<table><tr><td>1</table>").repeated(10000))};
        for (const SoftwareFile &entry : files) {
            SoftwareDocument document(files, entry.path);
            QVERIFY2(!document.mistake().isEmpty(), qPrintable(entry.path));
            QVERIFY(!pdfOf(&document));
        }
    }

    void aDocumentGoesOnPaper()
    {
        QByteArray html = "<html><head><title>The lamp sheet</title></head><body>";
        for (int i = 0; i < 100; ++i)
            html += "<p>Lamp " + QByteArray::number(i) + "</p>";
        html += "<img src=\"a.svg\"></body></html>";
        const QVector<SoftwareFile> files = {file("a.html", html), file("a.svg", picture)};
        const auto made = [&files] {
            SoftwareDocument document(files, QStringLiteral("a.html"));
            const auto pdf = pdfOf(&document);
            return pdf ? *pdf : QByteArray();
        };
        const QByteArray pdf = made();
        QVERIFY(pdf.startsWith("%PDF"));
        const QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("a.pdf"));
        QVERIFY(write(path, pdf));
        const QByteArray info = outputOf(TARVO_PDFINFO, {path});
        QVERIFY2(info.contains("The lamp sheet"), info.constData());
        QVERIFY2(info.contains("(A4)"), info.constData());
        QVERIFY2(!info.contains("CreationDate") && !info.contains("Producer") &&
                     !info.contains("Qt"),
                 info.constData());
        QVERIFY2(info.contains("Pages:           3\n") || info.contains("Pages:           4\n"),
                 info.constData());
        const QByteArray text =
            outputOf(TARVO_PDFTOTEXT, {QStringLiteral("-layout"), path, QStringLiteral("-")});
        QVERIFY2(text.contains("Lamp 0\n") && text.contains("Lamp 99\n"), text.constData());
        QVERIFY2(text.contains("Page 1 of ") && text.contains("Page 3 of "), text.constData());
        QCOMPARE(text.count("The lamp sheet"), text.count("Page "));
        // The picture is lines, not dots.
        const QByteArray images = outputOf(TARVO_PDFIMAGES, {QStringLiteral("-list"), path});
        QCOMPARE(images.trimmed().count('\n'), 1); // the table's head
        const QString last = QString::number(text.count("Page "));
        const QByteArray page =
            outputOf(TARVO_PDFTOPPM, {QStringLiteral("-png"), QStringLiteral("-r"),
                                      QStringLiteral("48"), QStringLiteral("-f"), last, path});
        QVERIFY(count(QImage::fromData(page), qRgb(0, 255, 0)) > 4000);
        QCOMPARE(made(), pdf);
    }

    void wideTablesAndHeadingsComeOutWholeOnPaper()
    {
        // 9 columns whose words have room in a small size alone, and headings everywhere.
        QByteArray html = "<style>td { padding: 3rem; } h2 { color: var(--x); }</style>";
        for (int i = 0; i < 40; ++i) {
            html += "<h2>Chapter " + QByteArray::number(i) + "</h2><table><tr>";
            for (int column = 0; column < 9; ++column)
                html += "<td>0x5000" + QByteArray::number(1000 + column) + "</td>";
            html += "</tr></table>";
        }
        SoftwareDocument document({file("a.html", html)}, QStringLiteral("a.html"));
        const auto pdf = pdfOf(&document);
        QVERIFY2(pdf, qPrintable(pdf.reason()));
        const QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("a.pdf"));
        QVERIFY(write(path, *pdf));
        const QList<QByteArray> pages =
            outputOf(TARVO_PDFTOTEXT, {QStringLiteral("-layout"), path, QStringLiteral("-")})
                .split('\f');
        QVERIFY(pages.size() > 2);
        int chapters = 0;
        for (const QByteArray &page : pages) {
            QCOMPARE(page.count("0x50001000"), page.count("Chapter"));
            QCOMPARE(page.count("0x50001008"), page.count("Chapter"));
            chapters += page.count("Chapter");
        }
        QCOMPARE(chapters, 40);
    }

    void noWordIsBrokenInANarrowView()
    {
        QByteArray html = "<p>Registers of the block</p><table><tr>";
        for (const char *word : {"register", "0x00000000", "GPIO_DATAOUT", "writing", "effects"})
            html += QByteArray("<th>") + word + "</th>";
        html += "</tr></table>";
        SoftwareBrowser browser;
        QString error;
        QVERIFY(browser.showFile({file("a.html", html)}, QStringLiteral("a.html"), &error));
        browser.show();
        for (int width = 100; width < 600; width += 50) {
            browser.resize(width, 300);
            QCoreApplication::processEvents();
            int lines = 0;
            for (QTextBlock block = browser.document()->begin(); block.isValid();
                 block = block.next()) {
                for (int i = 0; i < block.layout()->lineCount(); ++i, ++lines) {
                    const QTextLine line = block.layout()->lineAt(i);
                    const int end = line.textStart() + line.textLength();
                    QVERIFY2(end >= block.text().size() || block.text().at(end - 1).isSpace(),
                             qPrintable(block.text().left(end)));
                }
            }
            QVERIFY(lines >= 6);
        }
    }

    // The page

    void showsEachFormatWithItsFiles()
    {
        SoftwarePage *page = open();
        m_bench->window->resize(1280, 800);
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("Hand-off of lamp")));
        const SoftwareModel *model = page->model();
        QCOMPARE(model->formats().size(), 3);
        QCOMPARE(model->files().size(), 3);
        const auto label = [page](const char *name) {
            return page->findChild<QLabel *>(QLatin1String(name))->text();
        };
        QVERIFY(label("softwareAbout").contains(QLatin1String("TV5K-138B")));
        QCOMPARE(label("formatTitle"), QStringLiteral("Lamp header"));
        for (const char *part : {"Tells programs", "Standard: C99", "Checked by: gcc"})
            QVERIFY2(label("formatPurpose").contains(QLatin1String(part)), part);
        QVERIFY(text(page).contains(QLatin1String("#define LAMPS 7")));
        const auto *preview = page->findChild<QStackedWidget *>(QStringLiteral("softwarePreview"));
        page->select(QStringLiteral("sheet/lamp.html"));
        auto *document = page->findChild<SoftwareBrowser *>();
        QCOMPARE(preview->currentWidget(), document);
        QVERIFY(document->toPlainText().contains(QLatin1String("There are 7 of them.")));
        QTRY_VERIFY(count(document->grab().toImage(), qRgb(0, 255, 0)) > 1000);
        page->select(QStringLiteral("sheet/lamp.svg"));
        QCOMPARE(preview->currentWidget(), document);
        QTRY_VERIFY(count(document->grab().toImage(), qRgb(0, 255, 0)) > 1000);
        auto *tree = page->findChild<QTreeView *>(QStringLiteral("softwareTree"));
        tree->setCurrentIndex(model->index(2, 0));
        QVERIFY(label("previewMessage").contains(QLatin1String("nothing to hand on")));
    }

    void linksLeadToFilesOfTheSet()
    {
        SoftwarePage *page = open();
        page->select(QStringLiteral("sheet/lamp.html"));
        auto *document = page->findChild<SoftwareBrowser *>();
        for (const char *link : {"file:///etc/passwd", "http://nowhere.invalid/", "../nothing.h"}) {
            Q_EMIT document->anchorClicked(QUrl(QString::fromLatin1(link)));
            QVERIFY(document->isVisible());
        }
        Q_EMIT document->anchorClicked(QUrl(QStringLiteral("../lamp.h")));
        QVERIFY(text(page).contains(QLatin1String("#define LAMPS")));
    }

    void exportsTheChosenFormats()
    {
        SoftwarePage *page = open();
        const QString folder = m_bench->folder() + QStringLiteral("/board/lamp/software");
        QCOMPARE(page->folder(), folder);
        QVERIFY(
            page->model()->setData(page->model()->index(1, 0), Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(state(page, "lamp.h"), QStringLiteral("missing"));
        page->check();
        QVERIFY2(told(page).contains(QLatin1String("1 missing")), qPrintable(told(page)));
        QVERIFY(!QFileInfo::exists(folder));
        page->findChild<QPushButton *>(QStringLiteral("exportButton"))->click();
        QCOMPARE(contentsOf(folder + QStringLiteral("/lamp.h")),
                 QByteArray("#define LAMPS 7\n/* TV5K-138B-PBGA484-C1/I0 */\n"));
        QVERIFY(!QFileInfo::exists(folder + QStringLiteral("/sheet")));
        QVERIFY2(told(page).contains(QLatin1String("1 files are written")), qPrintable(told(page)));
        QCOMPARE(state(page, "lamp.h"), QStringLiteral("fresh"));
        QCOMPARE(state(page, "sheet/lamp.html"), QStringLiteral("missing"));
        page->check();
        QVERIFY2(told(page).contains(QLatin1String("as they are made now")),
                 qPrintable(told(page)));
        QVERIFY(page->exportFiles());
        QVERIFY2(told(page).contains(QLatin1String("nothing is written")), qPrintable(told(page)));

        // The next page of the configuration begins with this choice.
        m_bench->reopen();
        m_bench->window->openProject(m_bench->folder() + QStringLiteral("/board/board.tvproj"));
        page = m_bench->window->showSoftware(ipc());
        QCOMPARE(page->model()->chosen(),
                 (QStringList{QStringLiteral("header"), QStringLiteral("dark")}));
    }

    void keepsWhatSomebodyHasChanged()
    {
        SoftwarePage *page = open();
        QVERIFY(page->exportFiles());
        const QString header = page->folder() + QStringLiteral("/lamp.h");
        write(header, "mine\n");
        page->check();
        QCOMPARE(state(page, "lamp.h"), QStringLiteral("edited"));
        QVERIFY2(told(page).contains(QLatin1String("1 edited")), qPrintable(told(page)));
        QCOMPARE(contentsOf(header), QByteArray("mine\n"));
        QVERIFY(page->exportFiles());
        QVERIFY(contentsOf(header).startsWith("#define LAMPS"));
        QCOMPARE(contentsOf(header + QStringLiteral(".edited")), QByteArray("mine\n"));
        QVERIFY2(told(page).contains(QLatin1String("lamp.h.edited")), qPrintable(told(page)));
        QCOMPARE(state(page, "lamp.h"), QStringLiteral("fresh"));
    }

    void tellsWhyItCannotWrite()
    {
        SoftwarePage *page = open();
        write(m_bench->folder() + QStringLiteral("/taken"), "x");
        page->setFolder(m_bench->folder() + QStringLiteral("/taken"));
        QVERIFY(!page->exportFiles());
        QVERIFY2(told(page).contains(QLatin1String("taken")), qPrintable(told(page)));
        page->setFolder({});
        QVERIFY(!page->exportFiles());
        QVERIFY(!page->findChild<QPushButton *>(QStringLiteral("exportButton"))->isEnabled());
        // A relative one is beside the configuration.
        page->setFolder(QStringLiteral("firmware/made"));
        QCOMPARE(page->folder(),
                 QFileInfo(ipc()).absolutePath() + QStringLiteral("/firmware/made"));
    }

    void followsTheConfiguration()
    {
        SoftwarePage *page = open();
        QVERIFY(page->exportFiles());
        QVERIFY(page->infoBar()->isHidden());
        writeLamps(8, "TV5K-138B-PBGA484-C1/I0");
        QTRY_VERIFY(page->infoBar()->isVisible());
        QVERIFY(page->infoBar()->text().contains(QLatin1String("has changed")));
        QVERIFY(text(page).contains(QLatin1String("#define LAMPS 8")));
        QCOMPARE(state(page, "lamp.h"), QStringLiteral("stale"));
        page->infoBar()->hide();
        writeLamps(8, "TV5K-138C-PBGA484-C1/I0");
        QTRY_VERIFY(page->infoBar()->isVisible());
        QVERIFY2(page->infoBar()->text().contains(QLatin1String("TV5K-138C")),
                 qPrintable(page->infoBar()->text()));
        // What cannot be seen is made when it is looked at.
        m_bench->window->tabs()->closeAll();
        QFile::remove(ipc());
        m_bench->window->showSoftware(ipc());
        QVERIFY(page->model()->files().isEmpty());
        QVERIFY(page->findChild<QLabel *>(QStringLiteral("previewMessage"))
                    ->text()
                    .contains(QFileInfo(ipc()).fileName()));
        QVERIFY(!page->exportFiles());
        writeLamps(9, "TV5K-138B-PBGA484-C1/I0");
        QTRY_COMPARE(page->model()->files().size(), 3);
    }

    void exportsNothingOfAnEarlierConfiguration()
    {
        SoftwarePage *page = open();
        writeLamps(12, "TV5K-138B-PBGA484-C1/I0");
        QVERIFY(page->exportFiles()); // before the disk is looked at
        QVERIFY(contentsOf(page->folder() + QStringLiteral("/lamp.h")).contains("LAMPS 12"));
    }

    void tellsWhatIsWrongWithAPlugin_data()
    {
        QTest::addColumn<QString>("plugin");
        QTest::addColumn<QString>("named");
        const auto row = [](const char *plugin, const char *named) {
            QTest::newRow(plugin) << QString::fromLatin1(plugin) << QString::fromLatin1(named);
        };
        row("blinker", "hands on nothing");
        row("throwing-exporting", "the lamp is hot");
        row("late-exporting", "failed");
        row("refusing-exporting", "on strike");
        row("garbling-exporting", "\"name\"");
        row("outside-exporting", "../lamp.h");
        row("huge-exporting", "16 MiB");
    }
    void tellsWhatIsWrongWithAPlugin()
    {
        QFETCH(QString, plugin);
        QFETCH(QString, named);
        SoftwarePage *page = open(qPrintable(plugin));
        const QString message = page->findChild<QLabel *>(QStringLiteral("previewMessage"))->text();
        QVERIFY2(message.contains(named), qPrintable(message));
        QVERIFY(page->model()->files().isEmpty());
        QVERIFY(!page->exportFiles());
        QVERIFY(!QFileInfo::exists(page->folder()));
        for (const char *button : {"exportButton", "checkButton", "pdfButton"})
            QVERIFY2(!page->findChild<QPushButton *>(QLatin1String(button))->isEnabled(), button);
    }

    void savesTheDocumentAsPdf()
    {
        SoftwarePage *page = open();
        auto *button = page->findChild<QPushButton *>(QStringLiteral("pdfButton"));
        QVERIFY(!button->isEnabled()); // a header is selected
        const QString path = m_bench->folder() + QStringLiteral("/lamp.pdf");
        QVERIFY(!page->savePdf(path));
        auto *tree = page->findChild<QTreeView *>(QStringLiteral("softwareTree"));
        tree->setCurrentIndex(page->model()->index(1, 0));
        QVERIFY(button->isEnabled());
        QVERIFY(page->savePdf(path));
        QVERIFY(contentsOf(path).startsWith("%PDF"));
        QVERIFY2(told(page).contains(path), qPrintable(told(page)));
        QVERIFY(!page->savePdf(m_bench->folder() + QStringLiteral("/nowhere/lamp.pdf")));
        QVERIFY2(told(page).contains(QLatin1String("nowhere")), qPrintable(told(page)));
    }

    // Programs

    void aProgramIsOfferedWhereThePluginTakesOne()
    {
        SoftwarePage *page = open();
        QVERIFY(!page->programPart());
        const auto *parts = page->findChild<QTabBar *>(QStringLiteral("softwareParts"));
        QVERIFY(parts->isHidden());
        QVERIFY(!page->findChild<ProgramPart *>()->isVisible());
        page = open("taking");
        QVERIFY(page->programPart() && !page->programPart()->isVisible());
        QVERIFY(page->findChild<QTabBar *>(QStringLiteral("softwareParts"))->isVisible());
        page->showProgram();
        QVERIFY(page->programPart()->isVisible());
        QCOMPARE(page->programPart()->folder(), glow());
        QVERIFY(!page->findChild<QPushButton *>(QStringLiteral("programWriteButton"))->isEnabled());
    }

    void makesTheFilesOfAProgramAndSetsTheConfiguration()
    {
        ProgramPart *part = openProgram("taking", "?12345678");
        const QByteArray before = contentsOf(ipc());
        part->findChild<QPushButton *>(QStringLiteral("programWriteButton"))->click();
        QCOMPARE(filesIn(glow()), (QStringList{QStringLiteral("glow0"), QStringLiteral("glow1")}));
        QCOMPARE(contentsOf(glow() + QStringLiteral("/glow0")), QByteArray("?1234567"));
        QCOMPARE(contentsOf(glow() + QStringLiteral("/glow1")), QByteArray("8"));
        for (const char *told : {"9 of 16 bytes are used, 7 are free", "The lamp may stay dark.",
                                 "glow0, glow1", "starts from them now"})
            QVERIFY2(part->told().contains(QLatin1String(told)), qPrintable(part->told()));
        QVERIFY(contentsOf(ipc()).contains("Glow=" + glow().toUtf8()));
        const auto *kept = m_bench->window->findChild<KeptConfigurations *>();
        QCOMPARE(contentsOf(kept->newest().copy), before);
        QVERIFY(part->writeFiles());
        QVERIFY2(part->told().contains(QLatin1String("already")), qPrintable(part->told()));
    }

    void leavesTheConfigurationAloneUnlessTicked()
    {
        ProgramPart *part = openProgram("taking", "1");
        part->findChild<QCheckBox *>(QStringLiteral("programInitializeBox"))->click();
        part->setFolder(QStringLiteral("my/lamps"));
        const QByteArray before = contentsOf(ipc());
        QVERIFY(part->writeFiles());
        QCOMPARE(filesIn(QFileInfo(ipc()).path() + QStringLiteral("/my/lamps")).size(), 2);
        QVERIFY2(part->told().contains(QLatin1String("does not start")), qPrintable(part->told()));
        QCOMPARE(contentsOf(ipc()), before);
        // What the user has chosen stays when the configuration changes.
        writeLamps(9, "TV5K-138B-PBGA484-C1/I0");
        part->refresh();
        QVERIFY(part->folder().endsWith(QLatin1String("/my/lamps")));
    }

    void proposesTheFolderOfTheConfiguration()
    {
        ProgramPart *part = openProgram("taking", "1");
        write(ipc(), contentsOf(ipc()) + "Glow=/elsewhere/glow\n");
        QTRY_COMPARE(part->folder(), QStringLiteral("/elsewhere/glow"));
    }

    void nothingOfAProgramIsHalfWritten_data()
    {
        QTest::addColumn<QString>("plugin");
        QTest::addColumn<QByteArray>("image");
        QTest::addColumn<QString>("named");
        const QByteArray good("1");
        const auto row = [](const char *name, const char *plugin, const QByteArray &image,
                            const char *named) {
            QTest::newRow(name) << QString::fromLatin1(plugin) << image
                                << QString::fromLatin1(named);
        };
        row("a program that does not fit", "taking", QByteArray(17, '1'), "The lamp is too small.");
        row("a plug-in that throws", "throwing-taking", good, "the lamp is hot");
        row("no files", "garbling-taking", good, "\"files\"");
        row("a file outside of the folder", "outside-taking", good, "../glow1");
        row("a configuration that cannot be set", "stuck-taking", good,
            "The lamp is screwed down.");
        row("no such program", "taking", QByteArray(), "app.bin");
    }
    void nothingOfAProgramIsHalfWritten()
    {
        QFETCH(QString, plugin);
        QFETCH(QByteArray, image);
        QFETCH(QString, named);
        ProgramPart *part = openProgram(qPrintable(plugin), image);
        const QByteArray before = contentsOf(ipc());
        QVERIFY(!part->writeFiles());
        QVERIFY2(part->told().contains(named), qPrintable(part->told()));
        QVERIFY(!QFileInfo::exists(glow()));
        QCOMPARE(contentsOf(ipc()), before);
    }

    void tellsWhyTheFilesOfAProgramCannotBeWritten()
    {
        ProgramPart *part = openProgram("taking", "123456789");
        const QByteArray before = contentsOf(ipc());
        write(m_bench->folder() + QStringLiteral("/taken"), "x");
        part->setFolder(m_bench->folder() + QStringLiteral("/taken"));
        QVERIFY(!part->writeFiles());
        QVERIFY2(part->told().contains(QLatin1String("/taken")), qPrintable(part->told()));
        // All or none: the second file cannot have its place.
        const QString folder = m_bench->folder() + QStringLiteral("/half");
        QDir().mkpath(folder + QStringLiteral("/glow1"));
        write(folder + QStringLiteral("/glow0"), "old");
        part->setFolder(folder);
        QVERIFY(!part->writeFiles());
        QVERIFY2(part->told().contains(QLatin1String("glow1")), qPrintable(part->told()));
        QCOMPARE(contentsOf(folder + QStringLiteral("/glow0")), QByteArray("old"));
        QCOMPARE(contentsOf(ipc()), before);
    }

    void theConfiguratorTakesPrograms()
    {
        m_bench = std::make_unique<Bench>("blinker");
        m_bench->window->openProject(m_bench->makeProject());
        const QString path = m_bench->window->project()->path() + QStringLiteral("/ip/sensor.ipc");
        QDir().mkpath(QFileInfo(path).path());
        write(path, contentsOf(QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc")));
        const QString app = QFileInfo(path).path() + QStringLiteral("/app.bin");
        write(app, QByteArray("\x00\x04\x00\x20\x09\x00\x00\x00\xFE\xE7\xFE\xE7", 12));
        ProgramPart *part = m_bench->window->showSoftware(path)->programPart();
        QVERIFY(part);
        QVERIFY2(part->folder().endsWith(QLatin1String("/itcm")), qPrintable(part->folder()));
        part->setImage(app);
        QVERIFY2(part->writeFiles(), qPrintable(part->told()));
        QVERIFY2(part->told().contains(QLatin1String("12 of 16384 bytes are used")),
                 qPrintable(part->told()));
        QCOMPARE(filesIn(part->folder()).size(), 4);
        QVERIFY2(contentsOf(path).contains("ITCM"), contentsOf(path).constData());
        QVERIFY(part->writeFiles());
        QVERIFY2(part->told().contains(QLatin1String("already")), qPrintable(part->told()));
    }

    void theActionLeadsToThePageOfTheSelectedIp()
    {
        m_bench = std::make_unique<Bench>("exporting");
        QAction *action = m_bench->action("Hand-off");
        QVERIFY(!action->isEnabled());
        m_bench->window->openProject(m_bench->makeProject("TV5K-138B-PBGA484-C1/I0"));
        writeLamps(7, "TV5K-138B-PBGA484-C1/I0");
        m_bench->window->closeProject();
        m_bench->window->openProject(m_bench->folder() + QStringLiteral("/board/board.tvproj"));
        auto *tree = m_bench->window->findChild<QTreeView *>(QStringLiteral("projectTree"));
        tree->setCurrentIndex(tree->model()->index(0, 0, tree->model()->index(0, 0)));
        QVERIFY(action->isEnabled());
        QVERIFY(tree->actions().contains(action));
        action->trigger();
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("Hand-off of lamp")));
        action->trigger();
        QCOMPARE(m_bench->tabTexts().size(), 1);
        QVERIFY(m_bench->window->closeProject());
        QVERIFY(m_bench->tabTexts().isEmpty());
    }

    // The configurator and the workbench know each other's methods by name only.
    void theConfiguratorHandsOnItsConfigurations()
    {
        m_bench = std::make_unique<Bench>("blinker");
        m_bench->window->openProject(m_bench->makeProject());
        const QString path = m_bench->window->project()->path() + QStringLiteral("/ip/sensor.ipc");
        QDir().mkpath(QFileInfo(path).path());
        write(path, contentsOf(QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc")));
        QVERIFY(m_bench->catalogue.canExport(0));
        SoftwarePage *page = m_bench->window->showSoftware(path);
        const QString message = page->findChild<QLabel *>(QStringLiteral("previewMessage"))->text();
        QVERIFY2(!page->model()->files().isEmpty(), qPrintable(message));
        QVERIFY(page->exportFiles());
        for (const SoftwareFile &entry : page->model()->files())
            QCOMPARE(contentsOf(page->folder() + u'/' + entry.path), entry.bytes);
        QVERIFY(SoftwareSet::find(page->model()->files(), QStringLiteral("tarvo_orix_m1.h")));
        // Each picture is one that is drawn, and each document can be laid out.
        for (const SoftwareFile &entry : page->model()->files()) {
            if (SoftwareSet::isPicture(entry)) {
                const auto read = VectorPicture::read(entry.bytes);
                QVERIFY2(read, qPrintable(entry.path + u' ' + read.reason()));
            }
            if (SoftwareSet::isDocument(entry)) {
                const SoftwareDocument document(page->model()->files(), entry.path);
                QVERIFY2(document.mistake().isEmpty(), qPrintable(entry.path));
                page->select(entry.path);
                QVERIFY(page->savePdf(m_bench->folder() + QStringLiteral("/sheet.pdf")));
            }
        }
    }

private:
    QString ipc() const { return m_bench->folder() + QStringLiteral("/board/lamp/lamp.ipc"); }

    void writeLamps(int lamps, const char *device) const
    {
        QDir().mkpath(QFileInfo(ipc()).path());
        write(ipc(), "[General]\ntype=fake.blinker\ntarget_device=" + QByteArray(device) +
                         "\n[Config]\nLamps=" + QByteArray::number(lamps) + '\n');
    }

    // The page of an IP of a fake plug-in with 7 lamps.
    SoftwarePage *open(const char *plugin = "exporting")
    {
        m_bench = std::make_unique<Bench>(plugin);
        m_bench->window->openProject(m_bench->makeProject("TV5K-138B-PBGA484-C1/I0"));
        writeLamps(7, "TV5K-138B-PBGA484-C1/I0");
        return m_bench->window->showSoftware(ipc());
    }

    QString glow() const { return QFileInfo(ipc()).path() + QStringLiteral("/glow"); }

    // Its part for programs, with one in "app.bin" beside the configuration; empty: there is none.
    ProgramPart *openProgram(const char *plugin, const QByteArray &image)
    {
        SoftwarePage *page = open(plugin);
        page->showProgram();
        ProgramPart *part = page->programPart();
        if (!image.isEmpty())
            write(QFileInfo(ipc()).path() + QStringLiteral("/app.bin"), image);
        part->setImage(QStringLiteral("app.bin"));
        return part;
    }

    static QStringList filesIn(const QString &folder)
    {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    static QVariantMap goodProgram()
    {
        return {{QStringLiteral("error"), QString()},
                {QStringLiteral("files"),
                 QVariantList{QVariantMap{{QStringLiteral("path"), QStringLiteral("a")},
                                          {QStringLiteral("bytes"), QByteArray("a")}}}},
                {QStringLiteral("size"), 16},
                {QStringLiteral("used"), 1},
                {QStringLiteral("free"), 15},
                {QStringLiteral("warnings"), QStringList()}};
    }

    static QString text(SoftwarePage *page)
    {
        auto *edit = page->findChild<QPlainTextEdit *>(QStringLiteral("softwareText"));
        return edit->isVisible() ? edit->toPlainText() : QString();
    }

    static QString told(SoftwarePage *page)
    {
        return page->findChild<QLabel *>(QStringLiteral("exportTold"))->text();
    }

    static QString state(SoftwarePage *page, const char *path)
    {
        const QModelIndex index = page->model()->indexOf(QString::fromLatin1(path));
        return index.sibling(index.row(), SoftwareModel::StateColumn).data().toString();
    }

    std::unique_ptr<Bench> m_bench;
};

TARVO_TEST_MAIN(QApplication, TestSoftware)
#include "tst_software.moc"

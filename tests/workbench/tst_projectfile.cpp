#include <smalldisk.h>
#include <testsupport.h>

#include <workbench/project/projectfile.h>

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

using namespace Workbench;

class TestProjectFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyEntrySurvivesARoundTrip()
    {
        const ProjectFile read = roundTrip(sample());
        QCOMPARE(read.deviceId, sample().deviceId);
        QCOMPARE(read.files, sample().files);
        QCOMPARE(read.topModule, sample().topModule);
        QVERIFY(read == sample());
    }

    void hasOneLineForEachSource()
    {
        QCOMPARE(sample().toText(), QByteArray("{\n"
                                               "    \"device\": \"TV2KR-18C-QFN88P-C8/I7\",\n"
                                               "    \"files\": [\n"
                                               "        \"ip/core.v\",\n"
                                               "        \"src/größe 1.v\"\n"
                                               "    ],\n"
                                               "    \"format\": 1,\n"
                                               "    \"top\": \"board\"\n"
                                               "}\n"));
    }

    void keepsEntriesThatItDoesNotKnow()
    {
        const auto file = ProjectFile::fromText("{\"format\": 1, \"constraints\": [\"a.cst\"]}",
                                                QStringLiteral("p"));
        QVERIFY(file);
        QCOMPARE(roundTrip(*file).others.value(QStringLiteral("constraints")).toArray().size(), 1);
    }

    void dropsASourceThatIsListedTwice()
    {
        const auto file = ProjectFile::fromText(
            "{\"format\": 1, \"files\": [\"a.v\", \"b.v\", \"a.v\"]}", QStringLiteral("p"));
        QVERIFY(file);
        QCOMPARE(file->files, QStringList({QStringLiteral("a.v"), QStringLiteral("b.v")}));
    }

    void saysWhatIsWrong_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("error");
        const auto row = [](const char *name, const char *text, const char *error) {
            QTest::newRow(name) << QByteArray(text) << QString::fromLatin1(error);
        };
        row("an empty file", "", "line 1, column 1");
        row("a broken line", "{\n  \"format\": 1,\n  \"top\" \"a\"\n}", "line 3, column 9");
        row("another JSON", "[1, 2]", "it holds no JSON object");
        row("no format", "{\"device\": \"x\"}", "it has no format number");
        row("a format that is a text", "{\"format\": \"1\"}", "it has no format number");
        row("a newer format", "{\"format\": 2}",
            "it was written by a newer version of this program (format 2; this program reads "
            "format 1)");
        row("a device that is a number", "{\"format\": 1, \"device\": 3}", "\"device\" is no text");
        row("a top module that is a list", "{\"format\": 1, \"top\": []}", "\"top\" is no text");
        row("files that are a text", "{\"format\": 1, \"files\": \"a.v\"}", "\"files\" is no list");
        row("a file that is a number", "{\"format\": 1, \"files\": [1]}",
            "\"files\" holds an entry that is no file name");
    }

    void saysWhatIsWrong()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, error);
        const auto file = ProjectFile::fromText(text, QStringLiteral("/a/my.tvproj"));
        QVERIFY(!file);
        const QString said = file.reason();
        QVERIFY2(said.contains(error), qPrintable(said));
        QVERIFY2(said.contains(QLatin1String("/a/my.tvproj")), qPrintable(said));
    }

    void staysWholeOnAFullDisk()
    {
        QTemporaryDir disk;
        const QString reason = TestSupport::mountSmallDisk(disk.path());
        if (!reason.isEmpty())
            QSKIP(qPrintable(reason));
        const QString path = disk.filePath(QStringLiteral("p.tvproj"));
        QVERIFY(sample().write(path));
        const QByteArray before = TestSupport::contentsOf(path);
        QVERIFY(TestSupport::fillDisk(disk.path(), 100));
        ProjectFile larger = sample();
        for (int i = 0; i < 1000; ++i)
            larger.files.append(QStringLiteral("file%1.v").arg(i));
        const Utils::Result<void> written = larger.write(path);
        const QByteArray after = TestSupport::contentsOf(path);
        const QStringList entries = TestSupport::entriesOf(disk.path());
        TestSupport::unmount(disk.path());
        QVERIFY(!written);
        QVERIFY2(written.reason().contains(path), qPrintable(written.reason()));
        QCOMPARE(after, before);
        QCOMPARE(entries, QStringList({QStringLiteral("filler"), QStringLiteral("p.tvproj")}));
    }

private:
    static ProjectFile sample()
    {
        ProjectFile file;
        file.deviceId = QStringLiteral("TV2KR-18C-QFN88P-C8/I7");
        file.files = QStringList{QStringLiteral("ip/core.v"), QString::fromUtf8("src/größe 1.v")};
        file.topModule = QStringLiteral("board");
        return file;
    }

    static ProjectFile roundTrip(const ProjectFile &file)
    {
        const auto result = ProjectFile::fromText(file.toText(), QStringLiteral("p"));
        return result ? *result : ProjectFile();
    }
};

TARVO_TEST_MAIN(QCoreApplication, TestProjectFile)
#include "tst_projectfile.moc"

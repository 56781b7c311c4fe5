#include "testsupport.h"

#include <generate/manifest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

const QString path = QStringLiteral("/p/manifest.json");

QByteArray textOf(const GenerationManifest &manifest)
{
    return manifest.toLines().join(u'\n').toUtf8() + '\n';
}

// Compared member by member, so that one that is forgotten is seen.
void compare(const SynthesisRecord &one, const SynthesisRecord &other)
{
    QVERIFY(one.origin == other.origin);
    QCOMPARE(one.tool, other.tool);
    QCOMPARE(one.toolVersion, other.toolVersion);
    QVERIFY(one.files == other.files);
    QCOMPARE(one.report, other.report);
}

void compare(const GenerationManifest &one, const GenerationManifest &other)
{
    QCOMPARE(one.isFinished, other.isFinished);
    QVERIFY(one.origin == other.origin);
    QVERIFY(one.includeFiles == other.includeFiles);
    QVERIFY(one.pendingFiles == other.pendingFiles);
    QVERIFY(one.copies == other.copies);
    QCOMPARE(one.synthesis.has_value(), other.synthesis.has_value());
    if (one.synthesis)
        compare(*one.synthesis, *other.synthesis);
}

// Manifests as generations of any program could have left them.
class Draw
{
public:
    explicit Draw(uint seed)
        : m_random(seed)
    {
    }

    int below(int limit) { return m_random.bounded(limit); }

    QString text()
    {
        static const QString letters =
            QString::fromUtf8("ab Z09._-=\"\\/<>&%{}$:;,\t\n\r\x01\x7f äß€漢𝄞");
        QString text;
        for (int i = below(12); i > 0; --i) {
            const int at = below(letters.size());
            const bool isHalf = letters.at(at).isSurrogate();
            text += isHalf ? QString::fromUtf8("𝄞") : QString(letters.at(at));
        }
        return text;
    }

    QByteArray sum()
    {
        QByteArray digits;
        for (int i = 0; i < 64; ++i)
            digits += "0123456789abcdef"[below(16)];
        return digits;
    }

    QString name()
    {
        QStringList names;
        for (int i = 1 + below(3); i > 0; --i)
            names.append(text().replace(u'/', u'_') + QString::number(m_serial++));
        return names.join(u'/');
    }

    QVector<DigestedFile> files()
    {
        QVector<DigestedFile> files;
        for (int i = below(5); i > 0; --i)
            files.append({QString(), name(), sum()});
        return files;
    }

    QJsonValue value(int depth)
    {
        switch (below(depth > 0 ? 6 : 4)) {
        case 0:
            return below(2) == 1;
        case 1:
            return below(1 << 30) - (1 << 29);
        case 2:
            return text();
        case 3:
            return QJsonValue();
        case 4: {
            QJsonArray array;
            for (int i = below(4); i > 0; --i)
                array.append(value(depth - 1));
            return array;
        }
        default:
            return object(depth - 1);
        }
    }

    QJsonObject object(int depth)
    {
        QJsonObject object;
        for (int i = below(5); i > 0; --i)
            object.insert(text(), value(depth));
        return object;
    }

    Origin origin()
    {
        Origin origin{text(), text(), text(), object(1), {}};
        for (int i = below(5); i > 0; --i)
            origin.inputs.append({QStringLiteral("role") + text(),
                                  below(3) == 0 ? QString() : text(),
                                  below(4) == 0 ? QByteArray() : sum()});
        return origin;
    }

    GenerationManifest manifest()
    {
        GenerationManifest manifest;
        manifest.isFinished = below(2) == 1;
        manifest.origin = origin();
        manifest.includeFiles = files();
        manifest.pendingFiles = files();
        manifest.copies = files();
        // Several runs may have been about to write one.
        if (!manifest.pendingFiles.isEmpty() && below(2) == 1)
            manifest.pendingFiles.append({QString(), manifest.pendingFiles.first().name, sum()});
        if (below(3) != 0)
            manifest.synthesis = SynthesisRecord{below(2) == 1 ? manifest.origin : origin(), text(),
                                                 text(), files(), object(3)};
        return manifest;
    }

private:
    QRandomGenerator m_random;
    int m_serial = 0;
};

const char *const whole = R"({
    "format": 1,
    "finished": true,
    "program": "1", "descriptor": "d", "device": "D", "options": {},
    "inputs": [],
    "files": []
})";

} // namespace

class tst_Manifest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatItHasWritten();
    void eachMemberCounts_data();
    void eachMemberCounts();
    void refusesWhatIsNoManifest_data();
    void refusesWhatIsNoManifest();
    void takesWhatItCannotJudge();
    void knowsTheFilesOfAllRuns();
};

void tst_Manifest::readsWhatItHasWritten()
{
    bool given = false;
    uint seed = uint(qEnvironmentVariableIntValue("TARVO_TEST_SEED", &given));
    if (!given)
        seed = QRandomGenerator::global()->generate() & 0x7fffffff;
    Draw draw(seed);
    int withSynthesis = 0;
    for (int i = 0; i < 500; ++i) {
        const GenerationManifest manifest = draw.manifest();
        const QByteArray text = textOf(manifest);
        const auto read = GenerationManifest::fromText(text, path);
        if (!read || textOf(*read) != text)
            qFatal("TARVO_TEST_SEED=%u: %s\n%s", seed, qPrintable(read.reason()), text.constData());
        compare(manifest, *read);
        if (QTest::currentTestFailed())
            qFatal("TARVO_TEST_SEED=%u:\n%s", seed, text.constData());
        withSynthesis += manifest.synthesis ? 1 : 0;
        // A line each, so that version control shows what is another.
        for (const QString &line : manifest.toLines())
            QVERIFY(!line.contains(u'\n') && !line.contains(u'\r'));
    }
    QVERIFY(withSynthesis > 100);
}

void tst_Manifest::eachMemberCounts_data()
{
    QTest::addColumn<QByteArray>("member");
    for (const char *member :
         {"format", "finished", "program", "descriptor", "device", "options", "inputs", "files",
          "pending", "copies", "synthesis", "synthesis/tool", "synthesis/version",
          "synthesis/outputs", "synthesis/report", "synthesis/madeFrom"})
        QTest::newRow(member) << QByteArray(member);
}

// Without it the file is refused or means something else.
void tst_Manifest::eachMemberCounts()
{
    QFETCH(QByteArray, member);
    const QByteArray sum(64, 'a');
    GenerationManifest manifest;
    manifest.origin = {QStringLiteral("1"),
                       QStringLiteral("d"),
                       QStringLiteral("D"),
                       {{QStringLiteral("Enable GPIO"), true}},
                       {{QStringLiteral("source"), QStringLiteral("a.v"), sum}}};
    manifest.includeFiles = {{QString(), QStringLiteral("a.v"), sum}};
    manifest.pendingFiles = {{QString(), QStringLiteral("b.v"), sum}};
    manifest.copies = {{QString(), QStringLiteral("b.v.edited"), sum}};
    Origin other = manifest.origin;
    other.device = QStringLiteral("E");
    manifest.synthesis = SynthesisRecord{other,
                                         QStringLiteral("Yosys"),
                                         QStringLiteral("Yosys 1"),
                                         {{QString(), QStringLiteral("c.v"), sum}},
                                         {{QStringLiteral("summary"), QStringLiteral("s")}}};
    QJsonObject object = QJsonDocument::fromJson(textOf(manifest)).object();
    const QStringList names = QString::fromLatin1(member).split(u'/');
    if (names.size() == 1) {
        QVERIFY(object.contains(names.first()));
        object.remove(names.first());
    } else {
        QJsonObject part = object.value(names.first()).toObject();
        QVERIFY(part.contains(names.last()));
        part.remove(names.last());
        object.insert(names.first(), part);
    }
    const auto read = GenerationManifest::fromText(QJsonDocument(object).toJson(), path);
    QVERIFY(!read || textOf(*read) != textOf(manifest));
}

void tst_Manifest::refusesWhatIsNoManifest_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason"); // with its place
    const QByteArray sum(64, 'a');
    const auto row = [](const char *name, const QByteArray &text, const QString &reason) {
        QTest::newRow(name) << text << reason;
    };
    const auto with = [](const char *before, const QByteArray &after) {
        return QByteArray(whole).replace(before, after);
    };
    const auto files = [&with](const QByteArray &entries) {
        return with("\"files\": []", "\"files\": [" + entries + "]");
    };
    const auto file = [&sum](const QByteArray &name) -> QByteArray {
        return "{\"file\": \"" + name + "\", \"sha256\": \"" + sum + "\"}";
    };
    const QString noFile = QStringLiteral("1:1: an entry of \"files\" names no file.");
    const QString noSum = QStringLiteral("1:1: an entry of \"files\" has no SHA-256 sum.");

    row("an empty file", "", QStringLiteral("1:1: "));
    row("no JSON", "<<<<<<< HEAD\n", QStringLiteral("1:1: "));
    row("a merge's mark", with("\"device\": \"D\"", "\n<<<<<<< HEAD\n"), QStringLiteral("5:1: "));
    row("half of it", QByteArray(whole).left(60), QStringLiteral("4:"));
    row("a list", "[]", QStringLiteral("1:1: its format is not 1."));
    row("a later format", with("\"format\": 1", "\"format\": 2"),
        QStringLiteral("its format is not 1."));
    row("a format in quotes", with("\"format\": 1", "\"format\": \"1\""),
        QStringLiteral("2:15: its format is not 1."));
    row("files that are no list", with("\"files\": []", "\"files\": {}"),
        QStringLiteral("1:1: \"files\" is no list of files."));
    row("no files", with(",\n    \"files\": []", ""),
        QStringLiteral("1:1: \"files\" is no list of files."));
    row("no inputs", with("\"inputs\": [],", ""),
        QStringLiteral("1:1: \"inputs\" is no list of files."));
    row("a text for a file", files("\"a.v\""), noSum);
    row("a short sum", files("{\"file\": \"a.v\", \"sha256\": \"abc\"}"), noSum);
    row("a sum in capitals", files(file("a.v").replace("aaa", "AAA")), noSum);
    row("no sum", files("{\"file\": \"a.v\", \"sha256\": \"\"}"), noSum);
    row("no name", files(file("")), noFile);
    row("a folder above", files(file("../a.v")), noFile);
    row("a folder above, further on", files(file("b/../../a.v")), noFile);
    row("a full path", files(file("/etc/passwd")), noFile);
    row("an empty name in a path", files(file("a//b.v")), noFile);
    row("a dot", files(file("./a.v")), noFile);
    row("a zero in a name", files(file("a\\u0000.v")), noFile);
    row("a file twice", files(file("a.v") + ", " + file("a.v")),
        QStringLiteral("1:1: \"a.v\" is there twice."));
    row("an input without a role",
        with("\"inputs\": []", "\"inputs\": [{\"name\": \"a\", \"sha256\": \"\"}]"),
        QStringLiteral("1:1: an entry of \"inputs\" names no file."));
    row("pending files that are no list", with("\"files\": []", "\"files\": [], \"pending\": 3"),
        QStringLiteral("1:1: \"pending\" is no list of files."));
    row("a synthesis without outputs", with("\"files\": []", "\"files\": [], \"synthesis\": {}"),
        QStringLiteral("1:1: \"outputs\" is no list of files."));
    row("a synthesis that leaves the folder",
        with("\"files\": []",
             "\"files\": [], \"synthesis\": {\"outputs\": [" + file("../../a") + "]}"),
        QStringLiteral("1:1: an entry of \"outputs\" names no file."));
    row("what it was made from is no object",
        with("\"files\": []", "\"files\": [], \"synthesis\": {\"outputs\": [], \"madeFrom\": []}"),
        QStringLiteral("1:1: \"inputs\" is no list of files."));
    row("a file that is too long", QByteArray(whole) + QByteArray(5 << 20, ' '),
        QStringLiteral("1:1: the file is larger than 4 MiB."));
    row("very deep", with("{}", QByteArray(100000, '[')), QStringLiteral("4:"));
}

void tst_Manifest::refusesWhatIsNoManifest()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    QVERIFY(GenerationManifest::fromText(whole, path));
    const auto read = GenerationManifest::fromText(text, path);
    QVERIFY(!read);
    QVERIFY2(read.reason().startsWith(path + u':'), qPrintable(read.reason()));
    QVERIFY2(read.reason().contains(reason), qPrintable(read.reason()));
    QVERIFY(read.reason().endsWith(u'.'));
}

// Whatever a later program adds, and texts of any kind.
void tst_Manifest::takesWhatItCannotJudge()
{
    const QByteArray more =
        QByteArray(whole).replace("\"device\": \"D\"", "\"device\": 3, \"more\": [1, {}]");
    const auto read = GenerationManifest::fromText(more, path);
    QVERIFY2(read, qPrintable(read.reason()));
    QCOMPARE(read->origin.device, QString());
    QVERIFY(read->isFinished);
    QVERIFY(!read->synthesis);
    // What does not say that it has finished has not.
    const auto silent =
        GenerationManifest::fromText(QByteArray(whole).replace("\"finished\": true,", ""), path);
    QVERIFY(silent && !silent->isFinished);
}

void tst_Manifest::knowsTheFilesOfAllRuns()
{
    const QByteArray one(64, '1');
    const QByteArray two(64, '2');
    const QByteArray three(64, '3');
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    GenerationManifest manifest;
    manifest.includeFiles = {{QString(), a, one}};
    QVERIFY(manifest.find(a) && !manifest.find(b));
    manifest.synthesis = SynthesisRecord{{}, {}, {}, {{QString(), b, two}}, {}};
    QCOMPARE(manifest.find(b)->sha256, two);
    manifest.pendingFiles = {{QString(), a, three}};
    QCOMPARE(manifest.find(a)->sha256, one);
    QVERIFY(manifest.knows(a, one) && manifest.knows(a, three) && manifest.knows(b, two));
    QVERIFY(!manifest.knows(a, two) && !manifest.knows(b, three));
}

TARVO_TEST_MAIN(QCoreApplication, tst_Manifest)
#include "tst_manifest.moc"

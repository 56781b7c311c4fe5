#include <testsupport.h>

#include <utils/descriptor.h>

#include <QTemporaryDir>
#include <QTest>

namespace
{

// Empty if it cannot be read; the reason is in `*error` then.
QVariantMap readDescriptor(const QString &path, QString *error = nullptr)
{
    const Utils::Result<QVariantMap> read = Utils::readDescriptor(path);
    if (!read && error)
        *error = read.reason();
    return read ? *read : QVariantMap();
}

} // namespace

class TestDescriptor : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QVariantMap read(const QByteArray &text, QString *error = nullptr)
    {
        const QString path = file();
        return TestSupport::write(path, text) ? readDescriptor(path, error) : QVariantMap();
    }

    QString file() const { return m_dir.filePath(QStringLiteral("ip %1 \"core\".ipspec")); }

private Q_SLOTS:
    void flattensNestedObjects()
    {
        QString error = QStringLiteral("untouched");
        const QVariantMap map = read(
            R"({"ipcore": {"id": "a.b", "doc": {"summary": "Größe", "help": "x/y.html"}}, "z": 1})",
            &error);
        QCOMPARE(map, (QVariantMap{{QStringLiteral("ipcore.id"), QStringLiteral("a.b")},
                                   {QStringLiteral("ipcore.doc.summary"), QStringLiteral("Größe")},
                                   {QStringLiteral("ipcore.doc.help"), QStringLiteral("x/y.html")},
                                   {QStringLiteral("z"), 1.0}}));
        QCOMPARE(error, QStringLiteral("untouched"));
    }

    void keepsTheTypesOfValues()
    {
        const QVariantMap map =
            read(R"({"s": "true", "b": true, "n": 1.5, "i": -7, "e": "", "z": null})");
        QCOMPARE(map.size(), 6);
        QCOMPARE(map.value(QStringLiteral("s")), QVariant(QStringLiteral("true")));
        QCOMPARE(map.value(QStringLiteral("s")).type(), QVariant::String);
        QCOMPARE(map.value(QStringLiteral("b")).type(), QVariant::Bool);
        QCOMPARE(map.value(QStringLiteral("b")).toBool(), true);
        QCOMPARE(map.value(QStringLiteral("n")).toDouble(), 1.5);
        QCOMPARE(map.value(QStringLiteral("i")).toInt(), -7);
        QCOMPARE(map.value(QStringLiteral("e")), QVariant(QString()));
        QVERIFY(map.contains(QStringLiteral("z")));
        QVERIFY(!map.value(QStringLiteral("z")).toBool());
        QCOMPARE(map.value(QStringLiteral("z")).toString(), QString());
    }

    void arraysBecomeStringLists_data()
    {
        QTest::addColumn<QByteArray>("array");
        QTest::addColumn<QStringList>("list");
        QTest::newRow("strings") << QByteArray(R"(["a", "b c", ""])")
                                 << QStringList{QStringLiteral("a"), QStringLiteral("b c"),
                                                QString()};
        QTest::newRow("none") << QByteArray("[]") << QStringList();
        QTest::newRow("one") << QByteArray(R"(["TV2KR-18C"])")
                             << QStringList{QStringLiteral("TV2KR-18C")};
        QTest::newRow("numbers and booleans")
            << QByteArray("[1, 2.5, true, false]")
            << QStringList{QStringLiteral("1"), QStringLiteral("2.5"), QStringLiteral("true"),
                           QStringLiteral("false")};
    }

    void arraysBecomeStringLists()
    {
        QFETCH(QByteArray, array);
        QFETCH(QStringList, list);
        const QVariant value =
            read("{\"ip\": {\"list\": " + array + "}}").value(QStringLiteral("ip.list"));
        QCOMPARE(value.type(), QVariant::StringList);
        QCOMPARE(value.toStringList(), list);
    }

    void emptyObjectsGiveNothing()
    {
        QString error;
        QVERIFY(read("{}", &error).isEmpty());
        QVERIFY(read("{\"a\": {\"b\": {}}}", &error).isEmpty());
        QVERIFY(error.isEmpty());
    }

    void theLastOfEqualKeysCounts()
    {
        const QVariantMap map = read(R"({"a": {"k": "first"}, "b": 1, "a": {"k": "last"}})");
        QCOMPARE(map.value(QStringLiteral("a.k")).toString(), QStringLiteral("last"));
        QCOMPARE(map.size(), 2);
    }

    void skipsAByteOrderMark()
    {
        QCOMPARE(read("\xef\xbb\xbf{\"a\": \"b\"}").value(QStringLiteral("a")).toString(),
                 QStringLiteral("b"));
    }

    void readsDeepNesting()
    {
        QByteArray text;
        QString key;
        for (int level = 0; level < 500; ++level) {
            text += "{\"k\": ";
            key += QLatin1String("k.");
        }
        text += "\"deep\"" + QByteArray(500, '}');
        QString error;
        const QVariantMap map = read(text, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(map.value(key.chopped(1)).toString(), QStringLiteral("deep"));
    }

    // Each key holds those of all objects around it: a small file, gigabytes of keys.
    void boundsWhatTheKeysExpandTo()
    {
        QByteArray text = "{\"" + QByteArray(100000, 'k') + "\": {\"a0\": 0";
        for (int i = 1; i < 1000; ++i)
            text += ", \"a" + QByteArray::number(i) + "\": 0";
        QString error;
        QVERIFY(read(text + "}}", &error).isEmpty());
        QVERIFY2(error.contains(QLatin1String("have more than 16777216 characters altogether")),
                 qPrintable(error));
    }

    void aTargetIsTheNameOfAFile_data()
    {
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("a name") << QByteArray("tarvo_orix_m1") << true;
        QTest::newRow("blanks and dots") << QByteArray("an ip.v2 ..") << true;
        QTest::newRow("hidden") << QByteArray(".ip") << true;
        QTest::newRow("200 bytes") << QByteArray(200, 'x') << true;
        QTest::newRow("201 bytes") << QByteArray(201, 'x') << false;
        QTest::newRow("upwards") << QByteArray("../../x") << false;
        QTest::newRow("the folder above") << QByteArray("..") << false;
        QTest::newRow("the folder itself") << QByteArray(".") << false;
        QTest::newRow("a line end") << QByteArray("a\\nb") << false;
    }

    void aTargetIsTheNameOfAFile()
    {
        QFETCH(QByteArray, target);
        QFETCH(bool, accepted);
        QString error;
        const QVariantMap map = read("{\"ipcore\": {\"target\": \"" + target + "\"}}", &error);
        QCOMPARE(!map.isEmpty(), accepted);
        QCOMPARE(error.contains(QLatin1String(": \"ipcore.target\" is ")), !accepted);
    }

    void namesThePlaceOfAMistake_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        const auto row = [](const char *name, const QByteArray &text, int line, int column) {
            QTest::newRow(name) << text << line << column;
        };
        row("nothing in the file", "", 1, 1);
        row("blank lines only", "\n\n  \n", 4, 1);
        row("cut after the bracket", "{", 1, 2);
        row("cut after a key", "{\n  \"a\"", 2, 6);
        row("cut after a colon", "{\n  \"a\":", 2, 7);
        row("cut in a string", "{\n  \"a\": \"xy", 2, 11);
        row("cut after a number", "{\"a\": 12", 1, 9);
        row("cut after a comma", "{\"a\": 1,\n", 2, 1);
        row("value is missing", "{\n  \"a\": }\n", 2, 8);
        row("value is missing before other lines", "{\"a\":,\n\"b\": 1,\n\"c\": 2}", 1, 6);
        row("colon is missing", "{\n\"a\" 1\n}", 2, 5);
        row("comma is missing", "{\n  \"a\": 1\n  \"b\": 2\n}", 3, 3);
        row("comma too much in an object", "{\"a\": 1,\n}", 2, 1);
        row("comma too much in an array", "{\"a\": [1,\n  ]}", 2, 3);
        row("comma is missing in an array", "{\"a\": [1 2]}", 1, 10);
        row("wrong closing bracket", "{\"a\": [1, 2}", 1, 12);
        row("unknown word", "{\n  \"a\": tru\n}", 2, 8);
        row("word in capitals", "{\"a\": True}", 1, 7);
        row("key without quotes", "{\n\n a: 1}", 3, 2);
        row("single quotes", "{'a': 1}", 1, 2);
        row("sign without a number", "{\"a\": -}", 1, 8);
        row("number with a leading zero", "{\"a\": 01}", 1, 8);
        row("exponent without digits", "{\"a\": 1e}", 1, 9);
        row("short code in a string", "{\"a\": \"\\u12\"}", 1, 12);
        row("text behind the end", "{\"a\": 1}\nx", 2, 1);
        row("comment", "{\n  // why\n  \"a\": 1\n}", 2, 3);
        row("behind non-ASCII text", "{\"Größe\": \"ü\" 1}", 1, 15);
        row("behind a character outside the basic plane", "{\"\U0001F600\": ?}", 1, 7);
        row("below non-ASCII text", "{\"ä\": \"ö\",\n\"é\": \"ü\"; 1}", 2, 9);
        row("behind a byte order mark", "\xef\xbb\xbf{\"a\": }", 1, 7);
        row("not UTF-8", "{\n\"a\": \"x\xff\"}", 2, 8);
        row("Windows line ends", "{\r\n  \"a\": ?\r\n}", 2, 8);
        row("tab before it", "{\n\t\"a\" ?}", 2, 6);
        row("deeper than can be read", QByteArray(1500, '['), 1, 1025);
        row("far deeper than can be read", "{\"a\":" + QByteArray(1000000, '['), 1, 1029);
    }

    void namesThePlaceOfAMistake()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        QFETCH(int, column);
        QString error;
        QVERIFY(read(text, &error).isEmpty());
        const QString place = QString(file() + u':' + QString::number(line) + u':' +
                                      QString::number(column) + QLatin1String(": "));
        QVERIFY2(error.startsWith(place), qPrintable(error));
        QVERIFY2(error.size() > place.size() + 5 && error.endsWith(u'.'), qPrintable(error));
        QVERIFY(read(text).isEmpty());
    }

    void refusesWhatIsNoObject_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("array") << QByteArray("[{\"a\": 1}]");
        QTest::newRow("string") << QByteArray("\"x\"");
        QTest::newRow("number") << QByteArray("42");
        QTest::newRow("null") << QByteArray("null");
    }

    void refusesWhatIsNoObject()
    {
        QFETCH(QByteArray, text);
        QString error;
        QVERIFY(read(text, &error).isEmpty());
        QCOMPARE(error, QString(file() + QLatin1String(":1:1: the file holds no JSON object.")));
    }

    void namesAMissingFile()
    {
        const QString path = m_dir.filePath(QStringLiteral("missing %1.ipspec"));
        QString error;
        QVERIFY(readDescriptor(path, &error).isEmpty());
        QCOMPARE(error, QString(QLatin1String("Cannot read \"") + path +
                                QLatin1String("\": No such file or directory.")));
        QVERIFY(readDescriptor(m_dir.path(), &error).isEmpty());
        QVERIFY2(error.contains(m_dir.path()) && error.contains(QStringLiteral("folder")),
                 qPrintable(error));
        QVERIFY(readDescriptor(QString(), &error).isEmpty());
        QCOMPARE(error, QStringLiteral("Cannot read a file without a name."));
        QVERIFY(readDescriptor(path).isEmpty());
    }
};

TARVO_TEST_MAIN(QCoreApplication, TestDescriptor)
#include "tst_descriptor.moc"

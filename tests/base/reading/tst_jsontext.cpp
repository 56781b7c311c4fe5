#include "testsupport.h"

#include <reading/jsontext.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

using namespace Reading;

class tst_JsonText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsLinesAndCharacters_data();
    void countsLinesAndCharacters();
    void findsAValue_data();
    void findsAValue();
    void findsEveryValueWhereItStands();
    void hasQtsReasonForWhatQtAloneRefuses_data();
    void hasQtsReasonForWhatQtAloneRefuses();
    void readsWhatItFindsNoMistakeIn();

private:
    void checkPlaces(const QByteArray &text, const QJsonValue &value, const JsonPath &path);

    int m_checked = 0;
};

void tst_JsonText::countsLinesAndCharacters_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");
    QTest::newRow("the start") << QByteArray() << 1 << 1;
    QTest::newRow("letters") << QByteArray("abc") << 1 << 4;
    QTest::newRow("a new line") << QByteArray("abc\n") << 2 << 1;
    QTest::newRow("Windows line ends") << QByteArray("a\r\nb\r\n c") << 3 << 3;
    QTest::newRow("two bytes") << QByteArray("\n\xc3\xbc") << 2 << 2;
    QTest::newRow("four bytes") << QByteArray("\xf0\x9f\x98\x80") << 1 << 2;
    QTest::newRow("a byte order mark") << QByteArray("\xef\xbb\xbf") << 1 << 1;
}

void tst_JsonText::countsLinesAndCharacters()
{
    QFETCH(QByteArray, before);
    QFETCH(int, line);
    QFETCH(int, column);
    const TextPlace place = placeIn(before + "x\ny", before.size());
    QCOMPARE(place.line, line);
    QCOMPARE(place.column, column);
}

void tst_JsonText::findsAValue_data()
{
    QTest::addColumn<QByteArray>("text"); // the value begins at the first "@", which is left out
    QTest::addColumn<QString>("steps");   // separated by blanks
    const auto row = [](const char *name, const char *text, const char *steps) {
        QTest::newRow(name) << QByteArray(text) << QString::fromLatin1(steps);
    };
    row("the whole", " @[1]", "");
    row("behind a byte order mark", "\xef\xbb\xbf @{}", "");
    row("a member", "{\"a\": 1, \"b\" : @2}", "b");
    row("an entry", "[1, @[2, 3], 4]", "1");
    row("a member of an entry", "[{\"a\": 1}, {\"a\":\n@true}]", "1 a");
    row("not the same name elsewhere", "{\"x\": {\"b\": 0}, \"b\": [0], \"a\": {\"b\": @1}}",
        "a b");
    row("a missing member", "{\"a\": @{\"b\": 1}}", "a c");
    row("a missing entry", "{\"a\": @[1, 2]}", "a 2");
    row("a step into a text", "{\"a\": @\"b\"}", "a b");
    row("an entry of an object", "@{\"0\": 1}", "0");
    row("the later of two", "{\"a\": {\"b\": 1}, \"a\": {\"b\": @2}}", "a b");
    row("the later of two, where the value is missing", "{\"a\": {\"b\": 1}, \"a\": @{}}", "a b");
    row("a name with escapes", "{\"\\u0061\\n\": 1, \"a\": @2}", "a");
    row("a name that is escaped", "{\"b\": 1, \"\\u0061\": @2}", "a");
    row("a name behind an escaped quotation mark", "{\"\\\"a\": 1, \"a\": @\"\\\"\"}", "a");
}

void tst_JsonText::findsAValue()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, steps);
    const int expected = text.indexOf('@');
    text.remove(expected, 1);
    QCOMPARE(readJson(text).mistake.reason, QString());
    JsonPath path;
    const QStringList words = steps.split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        bool isNumber = false;
        const int number = word.toInt(&isNumber);
        path.append(isNumber ? JsonStep(number) : JsonStep(word));
    }
    QCOMPARE(findJsonValue(text, path), expected);
}

void tst_JsonText::checkPlaces(const QByteArray &text, const QJsonValue &value,
                               const JsonPath &path)
{
    ++m_checked;
    const int offset = findJsonValue(text, path);
    // What begins there is the value: the shortest piece that reads as one reads as this one.
    QJsonArray read;
    for (int length = 1; read.isEmpty() && offset + length <= text.size(); ++length) {
        const char next = offset + length < text.size() ? text.at(offset + length) : ' ';
        if (!isalnum(next) && next != '.')
            read = QJsonDocument::fromJson('[' + text.mid(offset, length) + ']').array();
    }
    QCOMPARE(read, QJsonArray{value});
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it)
        checkPlaces(text, it.value(), path + JsonPath{it.key()});
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i)
        checkPlaces(text, array.at(i), path + JsonPath{i});
}

void tst_JsonText::findsEveryValueWhereItStands()
{
    const QByteArray text = "{\"a\": [1, -2.5e3, {\"b\": [[], {}, \"]}\\\"\", null]}, true],\n"
                            " \"\\u00fc\": {\"a\": {\"a\": [0, [false, {\"a\": \"\xc3\xbc\"}]]}},\n"
                            " \"\": {\"\": 12}, \"b\": \"\", \"c\" : [ [ [ 7 ] ] ]}";
    const QJsonObject root = readJson(text).document.object();
    QVERIFY(!root.isEmpty());
    checkPlaces(text, root, {});
    QCOMPARE(m_checked, 26);
}

void tst_JsonText::hasQtsReasonForWhatQtAloneRefuses_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("no UTF-8") << QByteArray("{\"a\": \"\xff\"}");
    QTest::newRow("a number that is too large") << QByteArray("[1e999]");
}

void tst_JsonText::hasQtsReasonForWhatQtAloneRefuses()
{
    QFETCH(QByteArray, text);
    QCOMPARE(findJsonMistake(text).offset, -1);
    const JsonText json = readJson(text);
    QVERIFY(json.mistake.offset >= 0 && json.mistake.offset <= text.size());
    QVERIFY(!json.mistake.reason.isEmpty());
    QVERIFY(json.document.isNull());
}

void tst_JsonText::readsWhatItFindsNoMistakeIn()
{
    const JsonText json = readJson("\xef\xbb\xbf{\"a\": [1]}");
    QCOMPARE(json.mistake.offset, -1);
    QCOMPARE(json.document.object().value(QLatin1String("a")).toArray(), QJsonArray{1});
    QVERIFY(readJson("{\"a\": [1}").document.isNull());
}

TARVO_TEST_MAIN(QCoreApplication, tst_JsonText)

#include "tst_jsontext.moc"

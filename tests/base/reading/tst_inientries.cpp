#include <reading/inientries.h>
#include <testsupport.h>

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using Reading::foreignIniValue;
using Reading::iniEntries;
using Reading::IniEntry;

class tst_IniEntries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAsQSettingsDoes_data();
    void readsAsQSettingsDoes();
    void findsObjectsBeforeTheyAreDecoded_data();
    void findsObjectsBeforeTheyAreDecoded();
    void takesTextsThatLookLikeObjects_data();
    void takesTextsThatLookLikeObjects();
    void tellsBytesThatAreNotAscii();

private:
    QTemporaryDir m_dir;
};

void tst_IniEntries::readsAsQSettingsDoes_data()
{
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char *name, const QByteArray &text) { QTest::newRow(name) << text; };
    row("a plain entry", "a=b\n");
    row("blanks around all", " \t a b  =  c d  \n");
    row("a section", "[Config]\na=1\n[General]\nb=2\n[%General]\nc=3\n");
    row("odd letters in names", "[a%20b]\n%U20ACx%41=1\n %20c%20 =2\n[ %20d ]\ne=3\n");
    row("comments", ";x=1\na=1;b=2\n ; c=3\n#d=4\n");
    row("line ends", "a=1\rb=2\r\nc=3\n\rd=4");
    row("a value over two lines", "a=1\\\n2\nb=3\\\r\n4\n");
    row("a quoted line end", "a=\"1\n2\"\nb=3\n");
    row("quotation marks in a value", "a=x \"y \" z\nb=\"\"\nc=\" q\"  \n");
    row("a list", "a=1, 2 ,\"3, 4\" , ,5\n");
    row("an empty list entry", "a=,\n");
    row("an open quotation mark", "a=\"b=1\nc=2\n");
    row("escapes", "a=\\a\\b\\f\\n\\r\\t\\v\\\"\\?\\'\\\\\\q\\x\n");
    row("characters by number", "a=\\x41\\x20ac\\101\\0\\x1f600z\\8\n");
    row("no value", "a=\nb\n");
    row("a blank by number at the end", "a=b \\x20 \nc=d\\t\t, e\\x9\n");
    row("an escape at the end", "a=b\\");
    row("Latin-1", "a=\xfc\n");
    row("UTF-8 without a mark", "a=\xc3\xbc\n");
    row("UTF-8 with a mark", "\xef\xbb\xbf[General]\na=\xc3\xbc\n");
    row("an equals sign in quotation marks", "\"a=b\"=c\n");
}

void tst_IniEntries::readsAsQSettingsDoes()
{
    QFETCH(QByteArray, text);
    const QString path = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(TestSupport::write(path, text));
    const QSettings settings(path, QSettings::IniFormat);
    QMap<QString, QStringList> expected;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys)
        expected.insert(key, settings.value(key).toStringList());
    QMap<QString, QStringList> found;
    const QVector<IniEntry> entries = iniEntries(text);
    for (const IniEntry &entry : entries)
        found.insert(entry.name(), entry.values);
    if (found != expected)
        qWarning() << found << expected;
    QCOMPARE(found, expected);
}

void tst_IniEntries::findsObjectsBeforeTheyAreDecoded_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("kind");
    const auto row = [](const char *name, const QByteArray &value, const char *kind) {
        QTest::newRow(name) << value << QString::fromLatin1(kind);
    };
    row("any object", "@Variant(\\0\\0\\0\\x9)", "@Variant");
    row("bytes", "@ByteArray(x)", "@ByteArray");
    row("a time", "@DateTime(\\0)", "@DateTime");
    row("a rectangle", "@Rect(1 2 3 4)", "@Rect");
    row("a size", "@Size(1 2)", "@Size");
    row("a point", "@Point(1 2)", "@Point");
    row("between quotation marks", "\"@Variant(1)\"", "@Variant");
    row("with blanks around", "   @Variant(1)  ", "@Variant");
    row("in a list", "a, \"@Variant(1)\", b", "@Variant");
    row("the first letter by number", "\\x40Variant(1)", "@Variant");
    row("letters in octal", "\\100\\126ariant(1)", "@Variant");
    row("over two lines", "@Vari\\\nant(1)", "@Variant");
    row("over two lines with an unknown escape", "\\q@Variant(1)", "@Variant");
    row("unquoted after quotes", "\"\"@Variant(1)", "@Variant");
}

void tst_IniEntries::findsObjectsBeforeTheyAreDecoded()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, kind);
    for (const QByteArray &text : {QByteArray("[Config]\n\nITCM_Size=" + value + '\n'),
                                   QByteArray("[Config]\r\n;c=1\r\n  ITCM_Size = " + value)}) {
        QCOMPARE(foreignIniValue(text),
                 QStringLiteral("line 3: \"Config/ITCM_Size\" is no text but an object (\"%1\")")
                     .arg(kind));
    }
    // A line that other readers take for a comment is an entry here.
    QVERIFY(!foreignIniValue("#x=" + value).isEmpty());
    QVERIFY(foreignIniValue(";x=" + value.split('\n').first()).isEmpty());
}

void tst_IniEntries::takesTextsThatLookLikeObjects_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("a doubled sign, which stands for one") << QByteArray("@@Variant(1)");
    QTest::newRow("in the middle") << QByteArray("/home/@Variant(1)");
    QTest::newRow("no end") << QByteArray("@Variant(1");
    QTest::newRow("no bracket") << QByteArray("@Variant");
    QTest::newRow("a sign alone") << QByteArray("@");
    QTest::newRow("brackets without a name") << QByteArray("@(1)");
    QTest::newRow("a name with a slash") << QByteArray("@home/a (1)");
    QTest::newRow("a text with a zero character") << QByteArray("@String(a\\0b)");
    QTest::newRow("nothing") << QByteArray("@Invalid()");
    QTest::newRow("none") << QByteArray();
}

void tst_IniEntries::takesTextsThatLookLikeObjects()
{
    QFETCH(QByteArray, value);
    const QByteArray text = "[Config]\na=" + value + '\n';
    QCOMPARE(foreignIniValue(text), QString());
    // So QSettings has nothing to decode.
    const QString path = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(TestSupport::write(path, text));
    const QVariant read = QSettings(path, QSettings::IniFormat).value(QStringLiteral("Config/a"));
    QVERIFY2(!read.isValid() || read.type() == QVariant::String, read.typeName());
}

void tst_IniEntries::tellsBytesThatAreNotAscii()
{
    const QVector<IniEntry> entries = iniEntries("[Config]\na=x\n; \xc3\xbc\nb=\xc3\xbc\n\xfc=1\n");
    QCOMPARE(entries.size(), 3);
    QCOMPARE(entries.at(0).bytes, IniEntry::Ascii);
    QCOMPARE(entries.at(1).bytes, IniEntry::Utf8);
    QCOMPARE(entries.at(1).line, 4);
    QCOMPARE(entries.at(2).bytes, IniEntry::Latin1);
    QCOMPARE(iniEntries("\xef\xbb\xbf"
                        "b=\xc3\xbc\n")
                 .value(0)
                 .bytes,
             IniEntry::Ascii);
}

TARVO_TEST_MAIN(QCoreApplication, tst_IniEntries)

#include "tst_inientries.moc"

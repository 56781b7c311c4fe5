#include <smalldisk.h>
#include <testsupport.h>
#include <unprivileged.h>

#include <utils/inifile.h>

#include <QDateTime>
#include <QHash>
#include <QPoint>
#include <QRandomGenerator>
#include <QRect>
#include <QScopeGuard>
#include <QSet>
#include <QSettings>
#include <QSize>
#include <QTemporaryDir>
#include <QTest>

namespace
{

bool told(const Utils::Result<void> &result, QString *error)
{
    if (!result && error)
        *error = result.reason();
    return bool(result);
}

bool checkIniText(const QByteArray &bytes, QString *error)
{
    return told(Utils::checkIniText(bytes), error);
}

bool writeIniFile(const QString &path, const QVariantMap &header, const QString &group,
                  const QVariantMap &values, QString *error)
{
    return told(Utils::writeIniFile(path, header, group, values), error);
}

int hexDigits(const QByteArray &text, int from, int most)
{
    int count = 0;
    while (count < most && from + count < text.size() &&
           QByteArray("0123456789abcdefABCDEF").contains(text.at(from + count)))
        ++count;
    return count;
}

// "%20" and "%U20AC" in keys and section names.
QString decodedKey(const QByteArray &text)
{
    QString key;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != '%') {
            key += QLatin1Char(text.at(i));
            continue;
        }
        const bool wide = text.mid(i + 1, 1) == "U";
        const int from = i + (wide ? 2 : 1);
        const int length = wide ? 4 : 2;
        key += QChar(text.mid(from, length).toUShort(nullptr, 16));
        i = from + length - 1;
    }
    return key;
}

// A value that is one text, in double quotes or not.
QString decodedValue(QByteArray text)
{
    if (text.startsWith('"') && text.endsWith('"') && text.size() > 1)
        text = text.mid(1, text.size() - 2);
    const QHash<char, char> escapes = {{'n', '\n'},  {'r', '\r'}, {'t', '\t'}, {'"', '"'},
                                       {'\\', '\\'}, {'0', '\0'}, {'b', '\b'}, {'f', '\f'}};
    QString value;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != '\\') {
            value += QLatin1Char(text.at(i));
        } else if (text.mid(i + 1, 1) == "x") {
            const int digits = hexDigits(text, i + 2, 4);
            value += QChar(text.mid(i + 2, digits).toUShort(nullptr, 16));
            i += 1 + digits;
        } else {
            value += QLatin1Char(escapes.value(text.at(++i), '?'));
        }
    }
    return value.startsWith(QLatin1String("@@")) ? value.mid(1) : value;
}

// The text values of an INI file by "section/key", read without QSettings.
QHash<QString, QString> parsed(const QByteArray &text)
{
    QHash<QString, QString> values;
    QString section;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith('[')) {
            section = decodedKey(line.mid(1, line.indexOf(']') - 1));
        } else if (!line.isEmpty()) {
            const int equals = line.indexOf('=');
            const QString key = decodedKey(line.left(equals));
            values.insert(section + QLatin1Char('/') + key, decodedValue(line.mid(equals + 1)));
        }
    }
    return values;
}

} // namespace

class TestIniFile : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    int m_copies = 0;

    QString path(const QString &name = QStringLiteral("ip.ipc")) const
    {
        return m_dir.filePath(name);
    }

    // A copy of the file under a name that QSettings has not seen, so that it reads the text and
    // not its memory of what was written.
    QString freshCopy()
    {
        const QString copy = path(QStringLiteral("copy%1.ini").arg(++m_copies));
        return QFile::copy(path(), copy) ? copy : QString();
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void bringsBackEveryValue_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        const auto text = [](const char *name, const QString &value) {
            QTest::newRow(name) << QStringLiteral("key") << QVariant(value);
        };
        const auto key = [](const char *name, const QString &odd) {
            QTest::newRow(name) << odd << QVariant(QStringLiteral("value"));
        };
        const auto value = [](const char *name, const QVariant &variant) {
            QTest::newRow(name) << QStringLiteral("key") << variant;
        };
        text("plain text", QStringLiteral("32 KB"));
        text("empty text", QString(QLatin1String("")));
        text("blanks at both ends", QStringLiteral("  1.0 "));
        text("quotes", QStringLiteral("a \"b\" 'c'"));
        text("a comma", QStringLiteral("a, b"));
        text("a semicolon", QStringLiteral("a;b #c"));
        text("an equals sign", QStringLiteral("a=b"));
        text("brackets", QStringLiteral("[Config]"));
        text("backslashes", QStringLiteral("C:\\new\\x41\\"));
        text("lines and tabs", QStringLiteral("a\nb\r\nc\td"));
        text("an at sign first", QStringLiteral("@Variant(x)"));
        text("two at signs first", QStringLiteral("@@home"));
        text("non-ASCII", QStringLiteral("/home/Jürgen/核/\u20ac"));
        text("non-ASCII before a hexadecimal digit", QStringLiteral("üabc1"));
        text("outside the basic plane", QStringLiteral("\U0001F600!"));
        text("placeholders", QStringLiteral("%1 %20 %U20AC"));
        text("a control character", QStringLiteral("a\u0001b"));
        text("very long", QString(100000, u'x'));
        value("true", true);
        value("false", false);
        value("integer", -42);
        value("large integer", QVariant(Q_INT64_C(9007199254740993)));
        value("number", 0.1);
        value("list", QStringList{QStringLiteral("a"), QStringLiteral("b, c"), QString()});
        value("list of one", QStringList{QStringLiteral("a")});
        value("bytes", QByteArray("a\0\xff\"", 4));
        value("nested list", QVariantList{1, QStringLiteral("b"), true});
        value("map", QVariantMap{{QStringLiteral("a"), 1}});
        value("size", QSize(3, 4));
        value("point", QPoint(-1, 2));
        value("rectangle", QRect(1, 2, 3, 4));
        value("date and time", QDateTime(QDate(2020, 2, 29), QTime(1, 2, 3), Qt::UTC));
        key("key with blanks", QStringLiteral("a key"));
        key("key with an equals sign", QStringLiteral("a=b"));
        key("key with a semicolon", QStringLiteral(";a"));
        key("key with brackets", QStringLiteral("[a]"));
        key("key with quotes", QStringLiteral("\"a\""));
        key("key with a percent sign", QStringLiteral("a%20b"));
        key("key with a comma", QStringLiteral("a,b"));
        key("key non-ASCII", QStringLiteral("Größe \u20ac"));
        key("key with a newline", QStringLiteral("a\nb"));
        key("key in capitals", QStringLiteral("KEY"));
    }

    void bringsBackEveryValue()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QString error = QStringLiteral("untouched");
        QVERIFY(
            writeIniFile(path(), {{key, value}}, QStringLiteral("Config"), {{key, value}}, &error));
        QCOMPARE(error, QStringLiteral("untouched"));
        QVERIFY2(checkIniText(TestSupport::contentsOf(path()), &error), qPrintable(error));

        QSettings settings(freshCopy(), QSettings::IniFormat);
        QCOMPARE(settings.status(), QSettings::NoError);
        const QString inGroup = QString(QLatin1String("Config/") + key);
        const QStringList keys = settings.allKeys();
        QCOMPARE(QSet<QString>(keys.begin(), keys.end()), (QSet<QString>{inGroup, key}));
        for (const QString &place : {key, inGroup}) {
            QVariant read = settings.value(place);
            QVERIFY(read.canConvert(value.userType()));
            QVERIFY(read.convert(value.userType()));
            QCOMPARE(read, value);
        }

        // The same without QSettings, where the value is one text.
        if (value.type() == QVariant::StringList || value.toString().isNull() ||
            value.type() > QVariant::String)
            return;
        const QHash<QString, QString> texts = parsed(TestSupport::contentsOf(path()));
        QCOMPARE(texts.size(), 2);
        QCOMPARE(texts.value(QLatin1String("Config/") + key), value.toString());
        QCOMPARE(texts.value(QLatin1String("General/") + key), value.toString());
    }

    void bringsBackValuesThatAreNothing()
    {
        const QVariantMap values = {{QStringLiteral("invalid"), QVariant()},
                                    {QStringLiteral("list"), QStringList()}};
        QVERIFY(writeIniFile(path(), {}, QStringLiteral("Config"), values, nullptr));
        const QSettings settings(freshCopy(), QSettings::IniFormat);
        QVERIFY(settings.contains(QStringLiteral("Config/invalid")));
        QVERIFY(!settings.value(QStringLiteral("Config/invalid"), 1).isValid());
        QVERIFY(settings.contains(QStringLiteral("Config/list")));
        QVERIFY(settings.value(QStringLiteral("Config/list")).toStringList().isEmpty());
    }

    void keepsKeysThatDifferInCase()
    {
        const QVariantMap values = {{QStringLiteral("enable"), 1}, {QStringLiteral("Enable"), 2}};
        QVERIFY(writeIniFile(path(), {}, QStringLiteral("Config"), values, nullptr));
        QCOMPARE(TestSupport::contentsOf(path()), QByteArray("[Config]\nEnable=2\nenable=1\n"));
    }

    void writesTheHeaderFirst()
    {
        QVERIFY(writeIniFile(path(), {{QStringLiteral("version"), QStringLiteral("1.0 ")}},
                             QStringLiteral("Config"),
                             {{QStringLiteral("b"), true}, {QStringLiteral("a"), 32}}, nullptr));
        QCOMPARE(TestSupport::contentsOf(path()),
                 QByteArray("[General]\nversion=\"1.0 \"\n\n[Config]\na=32\nb=true\n"));
    }

    void keepsSectionsOfEveryName()
    {
        QVariantMap header = {{QStringLiteral("version"), QStringLiteral("1.0")}};
        for (const char *section : {"ABC", "Zz", "a", "zzz", "EndOfDraft", "_"})
            header.insert(QString::fromLatin1(section) + QStringLiteral("/key"),
                          QString::fromLatin1(section));
        const QString path = m_dir.filePath(QStringLiteral("sections.ini"));
        QString error;
        QVERIFY2(writeIniFile(path, header, QStringLiteral("Config"),
                              {{QStringLiteral("a"), QStringLiteral("1")}}, &error),
                 qPrintable(error));
        QSettings settings(path, QSettings::IniFormat);
        QCOMPARE(settings.allKeys().size(), header.size() + 1);
        for (auto it = header.cbegin(); it != header.cend(); ++it)
            QCOMPARE(settings.value(it.key()), it.value());
    }

    void replacesWhatStoodInTheFile()
    {
        QVERIFY(TestSupport::write(path(), "[General]\nold=1\n[Config]\nkey=0\ngone=1\n[x]\ny=z"));
        QVERIFY(writeIniFile(path(), {}, QStringLiteral("Config"), {{QStringLiteral("key"), 1}},
                             nullptr));
        QCOMPARE(TestSupport::contentsOf(path()), QByteArray("[Config]\nkey=1\n"));
        QVERIFY(writeIniFile(path(), {}, QStringLiteral("Config"), {}, nullptr));
        QCOMPARE(TestSupport::contentsOf(path()), QByteArray());
    }

    void replacesWhatQSettingsRemembers()
    {
        QSettings settings(path(QStringLiteral("known.ipc")), QSettings::IniFormat);
        settings.setValue(QStringLiteral("Config/old"), 1);
        settings.sync();
        QVERIFY(writeIniFile(settings.fileName(), {}, QStringLiteral("Config"),
                             {{QStringLiteral("new"), 2}}, nullptr));
        QCOMPARE(TestSupport::contentsOf(settings.fileName()), QByteArray("[Config]\nnew=2\n"));
        settings.sync();
        QCOMPARE(settings.allKeys(), QStringList{QStringLiteral("Config/new")});
    }

    void equalMapsGiveEqualBytes()
    {
        QStringList keys;
        for (int i = 0; i < 60; ++i)
            keys.append(QStringLiteral("key_%1").arg(i * 7919 % 60));
        QVariantMap forwards;
        QVariantMap backwards;
        for (int i = 0; i < keys.size(); ++i) {
            forwards.insert(keys.at(i), keys.at(i).size());
            backwards.insert(keys.at(keys.size() - 1 - i), keys.at(keys.size() - 1 - i).size());
        }
        const QString other = path(QStringLiteral("other.ipc"));
        QVERIFY(writeIniFile(path(), forwards, QStringLiteral("Config"), forwards, nullptr));
        QVERIFY(writeIniFile(other, backwards, QStringLiteral("Config"), backwards, nullptr));
        QVERIFY(TestSupport::contentsOf(path()).size() > 60 * 2 * 8);
        QCOMPARE(TestSupport::contentsOf(path()), TestSupport::contentsOf(other));
    }

    void leavesNothingElseBehind()
    {
        const QTemporaryDir folder;
        const QTemporaryDir temporary;
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(temporary.path()));
        const auto restore = qScopeGuard([&before] {
            if (before.isNull())
                qunsetenv("TMPDIR");
            else
                qputenv("TMPDIR", before);
        });
        QVERIFY(writeIniFile(folder.filePath(QStringLiteral("a \"%1\".ipc")), {},
                             QStringLiteral("Config"), {{QStringLiteral("a"), 1}}, nullptr));
        QCOMPARE(TestSupport::entriesOf(folder.path()),
                 QStringList{QStringLiteral("a \"%1\".ipc")});
        QVERIFY(TestSupport::entriesOf(temporary.path()).isEmpty());
    }

    void namesPathAndReasonOfAFailure()
    {
        QVERIFY(TestSupport::write(path(QStringLiteral("file %1")), "x"));
        const QString below = path(QStringLiteral("file %1/a.ipc"));
        QString error;
        QVERIFY(
            !writeIniFile(below, {}, QStringLiteral("Config"), {{QStringLiteral("a"), 1}}, &error));
        QVERIFY2(error.contains(below) && error.contains(QStringLiteral("Not a directory")),
                 qPrintable(error));
        QVERIFY(!writeIniFile(m_dir.path(), {}, QStringLiteral("Config"), {}, &error));
        QVERIFY2(error.contains(m_dir.path()) && error.contains(QStringLiteral("folder")),
                 qPrintable(error));
        QVERIFY(!writeIniFile(QString(), {}, QStringLiteral("Config"), {}, nullptr));
    }

    void needsNoTemporaryFolderForWhatOptionsHold()
    {
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(path(QStringLiteral("nowhere/below"))));
        const auto restore = qScopeGuard([&before] {
            if (before.isNull())
                qunsetenv("TMPDIR");
            else
                qputenv("TMPDIR", before);
        });
        const auto text = Utils::iniText({}, QStringLiteral("Config"),
                                         {{QStringLiteral("a"), true}, {QStringLiteral("b"), 1}});
        QVERIFY(text);
        QCOMPARE(*text, QByteArray("[Config]\na=true\nb=1\n"));
    }

    // The seed is printed when the test fails; TARVO_TEST_SEED repeats it.
    void writesWhatQSettingsWould()
    {
        bool given = false;
        quint32 seed = quint32(qEnvironmentVariableIntValue("TARVO_TEST_SEED", &given));
        if (!given)
            seed = QRandomGenerator::global()->generate() & 0x7fffffff;
        QRandomGenerator random(seed);
        const auto text = [&random](int least) {
            const QString common = QStringLiteral("aF09 _.-%;,=@\"\\\t\n\r\v\a\b\f'[]#:~\u007f");
            QString result;
            const int size = least + random.bounded(8);
            for (int i = 0; i < size; ++i) {
                const int kind = random.bounded(10);
                if (kind < 6)
                    result += common.at(random.bounded(common.size()));
                else if (kind < 8)
                    result += QChar(random.bounded(0x180));
                else
                    result += QChar(random.bounded(0x10000));
            }
            return result;
        };
        const auto value = [&]() -> QVariant {
            switch (random.bounded(8)) {
            case 0:
                return random.bounded(2) == 0;
            case 1:
                return int(random.generate());
            case 2:
                return random.generate();
            case 3:
                return qlonglong(random.generate64());
            case 4: {
                QStringList list;
                for (int i = random.bounded(4); i > 0; --i)
                    list << text(0);
                return list;
            }
            default:
                return text(0);
            }
        };
        const auto map = [&](int most) {
            QVariantMap result;
            for (int i = random.bounded(most); i > 0; --i)
                result.insert(text(1).replace(u'/', u'|'), value());
            return result;
        };
        for (int round = 0; round < 400; ++round) {
            const QVariantMap header = map(4);
            const QVariantMap values = map(12);
            const QString file = path(QStringLiteral("settings%1.ini").arg(round));
            {
                QSettings settings(file, QSettings::IniFormat);
                for (auto it = header.begin(); it != header.end(); ++it)
                    settings.setValue(it.key(), it.value());
                for (auto it = values.begin(); it != values.end(); ++it)
                    settings.setValue(QLatin1String("Config/") + it.key(), it.value());
            }
            const auto made = Utils::iniText(header, QStringLiteral("Config"), values);
            QVERIFY(made);
            const QByteArray bytes = *made;
            QVERIFY2(bytes == TestSupport::contentsOf(file),
                     QByteArray("TARVO_TEST_SEED=" + QByteArray::number(seed) + '\n' + bytes +
                                "\n instead of \n" + TestSupport::contentsOf(file))
                         .constData());
            QFile::remove(file);
        }
    }

    void saysWhenThereIsNoTemporaryFolder()
    {
        const QByteArray before = qgetenv("TMPDIR");
        QVERIFY(TestSupport::write(path(QStringLiteral("file")), "x"));
        qputenv("TMPDIR", QFile::encodeName(path(QStringLiteral("file/below"))));
        const auto restore = qScopeGuard([&before] {
            if (before.isNull())
                qunsetenv("TMPDIR");
            else
                qputenv("TMPDIR", before);
        });
        QVERIFY(TestSupport::write(path(), "[Config]\nold=1\n"));
        QString error;
        bool written = false;
        {
            // Without TMPDIR's folder Qt turns to the root folder, which root may write.
            const TestSupport::Unprivileged user;
            if (!user.holds())
                QSKIP("root cannot give up its rights here, and may write everywhere");
            written = writeIniFile(path(), {}, QStringLiteral("Config"),
                                   {{QStringLiteral("a"), QByteArray("bytes")}}, &error);
        }
        QVERIFY(!written);
        QVERIFY2(error.contains(path()) && error.contains(QStringLiteral("temporary folder")),
                 qPrintable(error));
        QCOMPARE(TestSupport::contentsOf(path()), QByteArray("[Config]\nold=1\n"));
    }

    void aFullTemporaryFolderLeavesTheOldFileWhole()
    {
        const QString disk = path(QStringLiteral("disk"));
        QVERIFY(QDir().mkdir(disk));
        const QString reason = TestSupport::mountSmallDisk(disk);
        if (!reason.isEmpty())
            QSKIP(qPrintable(reason));
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(disk));
        const auto restore = qScopeGuard([&before, &disk] {
            if (before.isNull())
                qunsetenv("TMPDIR");
            else
                qputenv("TMPDIR", before);
            TestSupport::unmount(disk);
        });
        const QByteArray old = "[Config]\nold=1\n";
        QVERIFY(TestSupport::write(path(), old));
        for (const int free : {0, 4096}) {
            QVERIFY(TestSupport::fillDisk(disk, free));
            for (const int size : {10, 6000, 30000}) {
                if (size <= free)
                    continue;
                QString error;
                QVERIFY(!writeIniFile(path(), {}, QStringLiteral("Config"),
                                      {{QStringLiteral("a"), QByteArray(size, 'x')}}, &error));
                QVERIFY2(error.contains(path()) && error.contains(disk) &&
                             error.contains(QStringLiteral("No space left on device")),
                         qPrintable(error));
                QCOMPARE(TestSupport::contentsOf(path()), old);
                QCOMPARE(TestSupport::entriesOf(disk), QStringList{QStringLiteral("filler")});
            }
        }
    }

    void acceptsIniText_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("blank lines") << QByteArray("\n  \n\t\n");
        QTest::newRow("sections and keys") << QByteArray("[General]\na=1\n\n[Config]\nb=\"x\"\n");
        QTest::newRow("no line end at the end") << QByteArray("[Config]\na=1");
        QTest::newRow("an empty value") << QByteArray("a=\n");
        QTest::newRow("Windows line ends") << QByteArray("[Config]\r\na=1\r\n");
        QTest::newRow("comments") << QByteArray("; one [ \n# two\n  ; three\n[Config]\na=1");
        QTest::newRow("a comment behind a section") << QByteArray("[Config] ; options\na=1\n");
        QTest::newRow("a continued value") << QByteArray("[Config]\na=one, \\\n  two\nb=1\n");
        QTest::newRow("a continued value with Windows line ends")
            << QByteArray("[Config]\r\na=one, \\\r\n  two\r\n");
        QTest::newRow("a backslash at the end of a value") << QByteArray("a=x\\\\\nb=1\n");
        QTest::newRow("UTF-8") << QByteArray("[Größe]\nschlüssel=核 \u20ac\n");
        QTest::newRow("a byte order mark") << QByteArray("\xef\xbb\xbf[Config]\na=1\n");
        QTest::newRow("a huge line") << QByteArray("[Config]\na=") + QByteArray(20000000, 'x');
        QTest::newRow("an equals sign in a value") << QByteArray("a==b=c\n");
        QTest::newRow("quotes with an escaped quote") << QByteArray("a=\"x \\\" y\"\nb=1\n");
        QTest::newRow("a list of quoted texts") << QByteArray("a=\"x, y\", z, \"\"\n");
        QTest::newRow("a quoted value over two lines") << QByteArray("a=\"x \\\ny\"\nb=1\n");
    }

    void acceptsIniText()
    {
        QFETCH(QByteArray, text);
        QString error = QStringLiteral("untouched");
        QVERIFY2(checkIniText(text, &error), qPrintable(error));
        QCOMPARE(error, QStringLiteral("untouched"));
        QVERIFY(checkIniText(text, nullptr));
    }

    void refusesOtherText_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        QTest::newRow("cut in a section name") << QByteArray("[General]\na=1\n\n[Conf") << 4;
        QTest::newRow("cut in a key") << QByteArray("[Config]\na=1\nitcm_si") << 3;
        QTest::newRow("cut in a quoted value") << QByteArray("[Config]\na=1\nb=\"C:/wo") << 3;
        QTest::newRow("cut in a quoted value before other lines")
            << QByteArray("[Config]\na=\"x\nb=1\nc=2\n") << 2;
        QTest::newRow("binary") << QByteArray("\x7f"
                                              "ELF\x02\x01\x01\x00\x00",
                                              9)
                                << 1;
        QTest::newRow("an image") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << 1;
        QTest::newRow("a NUL byte in a value") << QByteArray("[Config]\na=1\nb=\0\n", 17) << 3;
        QTest::newRow("NUL bytes at the end")
            << QByteArray("[Config]\na=1\n") + QByteArray(4096, '\0') << 3;
        QTest::newRow("a NUL byte in a comment") << QByteArray("; \0\na=1", 7) << 1;
        QTest::newRow("a NUL byte in a continuation") << QByteArray("a=1, \\\n \0\n", 10) << 2;
        QTest::newRow("UTF-16") << QByteArray("\xff\xfe[\0C\0]\0\n\0", 10) << 1;
        QTest::newRow("a huge line of nothing") << QByteArray(20000000, 'x') << 1;
        QTest::newRow("prose") << QByteArray("[Config]\n\nHello, world\n") << 3;
        QTest::newRow("a value without a key") << QByteArray("a=1\n=2\n") << 2;
        QTest::newRow("a value without a key behind blanks") << QByteArray("a=1\n  = 2\n") << 2;
        QTest::newRow("XML") << QByteArray("<?xml?>\n<a/>\n") << 1;
    }

    void refusesOtherText()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        QString error;
        QVERIFY(!checkIniText(text, &error));
        QVERIFY2(error.startsWith(QStringLiteral("line %1: ").arg(line)), qPrintable(error));
        QVERIFY(!checkIniText(text, nullptr));
    }
};

TARVO_TEST_MAIN(QCoreApplication, TestIniFile)
#include "tst_inifile.moc"

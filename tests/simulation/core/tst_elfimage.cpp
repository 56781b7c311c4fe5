#include "assembled.h"

using namespace CortexM1;

class TestElfImage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_good = Assembled::elf(".word 1, 2, 3\n");
        QVERIFY(m_good.size() > 100);
    }

    void readsWhatALinkerWrites()
    {
        std::vector<std::uint8_t> contents(64, 0xEE);
        QCOMPARE(read(m_good, &contents), QString());
        QCOMPARE(int(contents.at(0)), 1);
        QCOMPARE(int(contents.at(4)), 2);
        QCOMPARE(int(contents.at(11)), 0);
        QCOMPARE(int(contents.at(12)), 0xEE);
    }

    void readsTheUpperAlias()
    {
        const QByteArray upper = Assembled::elf(".word 7\n", {"-Wl,-Ttext=0x10000020"});
        std::vector<std::uint8_t> contents(64);
        QVERIFY(read(upper, &contents)
                    .contains(QStringLiteral("4 bytes for 0x10000020, which the "
                                             "instruction memory of 64 bytes")));
        QCOMPARE(read(upper, &contents, true), QString());
        QCOMPARE(int(contents.at(32)), 7);
    }

    void tellsWhereTheProgramEnds()
    {
        const QTemporaryDir folder;
        const std::string path = folder.filePath(QStringLiteral("a.elf")).toStdString();
        QFile file(QString::fromStdString(path));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(Assembled::elf(".word 1, 2\n.hword 0\n", {"-Wl,-Ttext=0x10000010"}));
        file.close();
        std::vector<std::uint8_t> contents(64);
        std::size_t end = 7;
        QVERIFY(!readElf(path, false, contents, &end).empty());
        QCOMPARE(int(end), 7);
        QCOMPARE(readElf(path, true, contents, &end), std::string());
        QCOMPARE(int(end), 26);
    }

    void refusesOtherFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("message");
        const auto changed = [this](int place, char byte) {
            QByteArray bytes = m_good;
            bytes[place] = byte;
            return bytes;
        };
        QTest::newRow("nothing") << QByteArray() << "is no ELF file";
        QTest::newRow("a text") << QByteArray("int main();\n") << "is no ELF file";
        QTest::newRow("the beginning only") << m_good.left(30) << "is no ELF file";
        QTest::newRow("without the segments' bytes") << m_good.left(100) << "";
        QTest::newRow("for another machine") << changed(18, 62) << "is no program for ARM";
        QTest::newRow("an object") << changed(16, 1) << "is not linked";
        QTest::newRow("big-endian") << Assembled::elf(".word 1\n", {"-mbig-endian"})
                                    << "is big-endian, which is not modelled";
        QTest::newRow("too much") << Assembled::elf(".space 66, 1\n")
                                  << "has 66 bytes for 0x00000000, which the";
        QTest::newRow("data where nothing loads them")
            << Assembled::elf(".word 1\n.data\n.word 2\n", {"-Wl,-Tdata=0x20000000"})
            << "has 4 bytes for 0x20000000, which the";
        QTest::newRow("nothing to load")
            << Assembled::elf(".bss\n.space 4\n") << "has nothing to load";
    }

    void refusesOtherFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        std::vector<std::uint8_t> contents(64, 0xEE);
        const QString result = read(bytes, &contents);
        QVERIFY2(!result.isEmpty() && result.contains(message), qPrintable(result));
        QCOMPARE(contents, std::vector<std::uint8_t>(64, 0xEE));
    }

    void refusesMissingFiles()
    {
        std::vector<std::uint8_t> contents(64);
        QCOMPARE(readElf("/no/such.elf", false, contents),
                 std::string("\"/no/such.elf\" cannot be read"));
        QCOMPARE(readElf("/", false, contents), std::string("\"/\" cannot be read"));
    }

    // Any byte may be wrong: there is a message or contents, and never a crash.
    void survivesEveryWrongByte()
    {
        for (int place = 0; place < qMin(m_good.size(), 200); ++place) {
            for (const int byte : {0, 1, 0x7F, 0xFF}) {
                QByteArray bytes = m_good;
                bytes[place] = static_cast<char>(byte);
                std::vector<std::uint8_t> contents(64);
                read(bytes, &contents);
                QCOMPARE(contents.size(), std::size_t(64));
            }
        }
    }

private:
    QString read(const QByteArray &bytes, std::vector<std::uint8_t> *contents,
                 bool hasUpperAlias = false)
    {
        const QString path = m_folder.filePath(QStringLiteral("a.elf"));
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        file.close();
        return QString::fromStdString(readElf(path.toStdString(), hasUpperAlias, *contents));
    }

    QTemporaryDir m_folder;
    QByteArray m_good;
};

QTEST_APPLESS_MAIN(TestElfImage)
#include "tst_elfimage.moc"

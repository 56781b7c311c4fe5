#include <firmware/sourceplaces.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <random>

using namespace TARVOORIXM1;

namespace
{

const QByteArray source = "__attribute__((weak)) int alias(void);\n" // line 1
                          "static volatile int count;\n"
                          "__attribute__((noinline)) static int twice(int x)\n"
                          "{\n"
                          "    return x + x + count;\n" // line 5
                          "}\n"
                          "int start(void)\n"
                          "{\n"
                          "    return twice(count);\n" // line 9
                          "}\n"
                          "int alias(void) __attribute__((weak, alias(\"start\")));\n";

} // namespace

class tst_SourcePlaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesFunctionFileAndLine_data()
    {
        QTest::addColumn<QStringList>("flags");
        QTest::newRow("DWARF 5") << QStringList{QStringLiteral("-gdwarf-5")};
        QTest::newRow("DWARF 4") << QStringList{QStringLiteral("-gdwarf-4")};
        QTest::newRow("DWARF 2") << QStringList{QStringLiteral("-gdwarf-2")};
        QTest::newRow("packed") << QStringList{QStringLiteral("-g"), QStringLiteral("-gz")};
    }

    void namesFunctionFileAndLine()
    {
        QFETCH(QStringList, flags);
        const SourcePlaces places(compiled(flags));
        QCOMPARE(places.problem(), QString());
        QCOMPARE(places.functions().size(), 2);
        QStringList found;
        for (const FunctionSymbol &function : places.functions()) {
            for (quint32 at = function.address; at < function.address + function.bytes; at += 2) {
                const SourcePlace place = places.at(at);
                QCOMPARE(place.file, file());
                found.append(QStringLiteral("%1:%2").arg(place.function).arg(place.line));
            }
        }
        QVERIFY2(found.contains(QLatin1String("twice:5")), qPrintable(found.join(u' ')));
        QVERIFY2(found.contains(QLatin1String("start:9")), qPrintable(found.join(u' ')));
        const FunctionSymbol last = places.functions().last();
        QVERIFY(!places.at(last.address + last.bytes + 64).isKnown());
        QVERIFY(!places.at(0xFFFFFFFF).isKnown());
    }

    void aFileNamedFromItsFolderIsGivenInFull()
    {
        const SourcePlaces places(compiled({QStringLiteral("-g")}, QStringLiteral("./a b.c")));
        QCOMPARE(places.at(places.functions().first().address).file, file());
    }

    void withoutDebugInformationItNamesFunctionsAndSaysWhy()
    {
        const SourcePlaces places(compiled({QStringLiteral("-g0")}));
        QVERIFY2(places.problem().contains(QLatin1String("-g")), qPrintable(places.problem()));
        const FunctionSymbol function = places.functions().first();
        QCOMPARE(places.at(function.address).function, function.name);
        QCOMPARE(places.at(function.address).file, QString());
    }

    void knowsNothingOfOtherFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("another file") << QByteArray("int main(void);\n");
        QTest::newRow("the mark of an ELF file alone") << QByteArray("\x7F"
                                                                     "ELF");
    }

    void knowsNothingOfOtherFiles()
    {
        QFETCH(QByteArray, bytes);
        const SourcePlaces places(bytes);
        QVERIFY(places.functions().isEmpty());
        QVERIFY(!places.at(0).isKnown());
    }

    // What it would unpack to is told by the file itself, and is not believed.
    void doesNotUnpackWhatWouldBeHuge()
    {
        QByteArray elf = compiled({QStringLiteral("-g"), QStringLiteral("-gz")});
        // Type, size, alignment of packed sections: zlib's stream begins behind.
        int at = -1;
        int packed = 0;
        while ((at = elf.indexOf(QByteArray("\x01\0\0\0", 4), at + 1)) >= 0) {
            if (elf.mid(at + 12, 1) == "\x78") {
                elf.replace(at + 4, 4, QByteArray("\0\0\0\x70", 4));
                ++packed;
            }
        }
        QVERIFY(packed > 0);
        const SourcePlaces places(elf);
        QVERIFY2(places.problem().contains(QLatin1String("packed")), qPrintable(places.problem()));
        QVERIFY(!places.functions().isEmpty());
    }

    void survivesDamagedFiles_data()
    {
        QTest::addColumn<QString>("flag");
        QTest::newRow("DWARF 5") << QStringLiteral("-gdwarf-5");
        QTest::newRow("DWARF 3") << QStringLiteral("-gdwarf-3");
    }

    void survivesDamagedFiles()
    {
        QFETCH(QString, flag);
        const QByteArray whole = compiled({flag});
        std::mt19937 random(7);
        const auto below = [&random](int count) {
            return int(random() % unsigned(std::max(count, 1)));
        };
        int known = 0;
        for (int round = 0; round < 3000; ++round) {
            QByteArray damaged = whole;
            for (int i = below(8); i >= 0; --i)
                damaged[below(damaged.size())] = char(random());
            if (below(8) == 0)
                damaged.truncate(below(damaged.size()));
            const SourcePlaces places(damaged);
            for (quint32 at = 0x8000; at < 0x8040; at += 2)
                known += places.at(at).isKnown();
        }
        QVERIFY(known > 0);
    }

private:
    QString file() const { return m_dir.filePath(QStringLiteral("a b.c")); }

    // `name`: of the source as the compiler gets it.
    QByteArray compiled(const QStringList &flags, const QString &name = {}) const
    {
        QFile text(file());
        text.open(QIODevice::WriteOnly);
        text.write(source);
        text.close();
        QProcess compiler;
        compiler.setWorkingDirectory(m_dir.path());
        compiler.setProcessChannelMode(QProcess::MergedChannels);
        compiler.start(QStringLiteral("arm-none-eabi-gcc"),
                       QStringList{QStringLiteral("-mcpu=cortex-m1"), QStringLiteral("-mthumb"),
                                   QStringLiteral("-O1"), QStringLiteral("-nostdlib"),
                                   QStringLiteral("-Wl,-Ttext=0x8000,-estart"),
                                   QStringLiteral("-o"), QStringLiteral("a.elf"),
                                   name.isEmpty() ? file() : name} +
                           flags);
        if (!compiler.waitForFinished(-1) || compiler.exitCode() != 0) {
            QTest::qFail(compiler.readAll().constData(), __FILE__, __LINE__);
            return {};
        }
        QFile linked(m_dir.filePath(QStringLiteral("a.elf")));
        linked.open(QIODevice::ReadOnly);
        return linked.readAll();
    }

    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(tst_SourcePlaces)
#include "tst_sourceplaces.moc"

#include "testsupport.h"

#include <config/ipctext.h>
#include <config/nearest.h>

#include <QtTest>

using namespace TARVOORIXM1;

class tst_IpcText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsCommentsWhereTheyBelong_data();
    void keepsCommentsWhereTheyBelong();
    void keepsWhatNobodyKnows();
    void countsSlips_data();
    void countsSlips();
};

void tst_IpcText::keepsCommentsWhereTheyBelong_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after"); // with version=1.0 and, in the group, a=1 and c=3
    const auto row = [](const char *name, const char *before, const char *after) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after);
    };
    const char *plain = "[General]\nversion=1.0\n\n[Config]\na=1\nc=3\n";
    row("no comment", "[Config]\nc=3\na=1\n[General]\nversion=1.0\n", plain);
    row("nothing", "", plain);
    row("at the top", "; mine\n[General]\nversion=1.0\n[Config]\na=1\n",
        "; mine\n[General]\nversion=1.0\n\n[Config]\na=1\nc=3\n");
    row("above an entry", "[General]\nversion=1.0\n[Config]\n;x\n  ; y\n\nc=2\na=1\n",
        "[General]\nversion=1.0\n\n[Config]\na=1\n;x\n; y\nc=3\n");
    row("behind an entry", "[General]\nversion=1.0\n[Config]\na=1 ; one\nc=3\n",
        "[General]\nversion=1.0\n\n[Config]\n; one\na=1\nc=3\n");
    row("above a section", "[General]\nversion=1.0\n;options\n[Config] ;here\na=1\n",
        "[General]\nversion=1.0\n\n;options\n;here\n[Config]\na=1\nc=3\n");
    row("above what is gone", "[General]\nversion=1.0\n[Config]\na=1\n;b\nb=2\n;c\nc=3\n",
        "[General]\nversion=1.0\n\n[Config]\na=1\n;b\n;c\nc=3\n");
    row("behind what is gone", "[General]\nversion=1.0\n[Config]\na=1\nb=2;b\nc=3\n",
        "[General]\nversion=1.0\n\n[Config]\na=1\n;b\nc=3\n");
    row("at the end", "[General]\nversion=1.0\n[Config]\na=1\n; end\n",
        "[General]\nversion=1.0\n\n[Config]\na=1\nc=3\n; end\n");
    row("with a number sign", "# mine\n[General]\nversion=1.0\n[Config]\na=1\n",
        "# mine\n[General]\nversion=1.0\n\n[Config]\na=1\nc=3\n");
    row("a semicolon in a value", "[General]\nversion=1.0\n[Config]\na=\"1;2\"\n", plain);
    row("with letters above ASCII", "[General]\n;\xc3\xbc\nversion=1.0\n",
        "[General]\n;\xc3\xbc\nversion=1.0\n\n[Config]\na=1\nc=3\n");
}

void tst_IpcText::keepsCommentsWhereTheyBelong()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const QVariantMap frame = {{QStringLiteral("version"), QStringLiteral("1.0")}};
    const OptionMap options = {{QStringLiteral("a"), 1}, {QStringLiteral("c"), 3}};
    const auto text = editedIpcText(before, frame, options);
    QVERIFY2(text, qPrintable(text.reason()));
    QCOMPARE(*text, after);
    QCOMPARE(*editedIpcText(after, frame, options), after);
}

void tst_IpcText::keepsWhatNobodyKnows()
{
    const QVariantMap frame = {{QStringLiteral("version"), QStringLiteral("1.0")},
                               {QStringLiteral("device/id"), QStringLiteral("x")},
                               {QStringLiteral("Config/deep/er"), QStringLiteral("1")}};
    const auto text = editedIpcText(";n\n[device]\nid=x\n", frame, {{QStringLiteral("a"), 1}});
    QVERIFY2(text, qPrintable(text.reason()));
    QCOMPARE(*text, QByteArray("[General]\nversion=1.0\n\n[Config]\na=1\ndeep\\er=1\n\n"
                               ";n\n[device]\nid=x\n"));
}

void tst_IpcText::countsSlips_data()
{
    QTest::addColumn<QString>("other");
    QTest::addColumn<int>("slips");
    QTest::newRow("Enable") << QStringLiteral("enable") << 0;
    QTest::newRow("Enabel") << QStringLiteral("Enable") << 1;
    QTest::newRow("Enale") << QStringLiteral("Enable") << 1;
    QTest::newRow("Ennable") << QStringLiteral("Enable") << 1;
    QTest::newRow("Enible") << QStringLiteral("Enable") << 1;
    QTest::newRow("nEabel") << QStringLiteral("Enable") << 2;
    QTest::newRow("abc") << QString() << 3;
    QTest::newRow("abc") << QStringLiteral("cba") << 2;
}

void tst_IpcText::countsSlips()
{
    QFETCH(QString, other);
    const QString text = QString::fromLatin1(QTest::currentDataTag());
    QTEST(slips(text, other), "slips");
    QTEST(slips(other, text), "slips");
}

QTEST_GUILESS_MAIN(tst_IpcText)

#include "tst_ipctext.moc"

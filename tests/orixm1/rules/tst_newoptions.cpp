#include "testsupport.h"

#include <config/optionkeys.h>
#include <rules/newoptions.h>

#include <QtTest>

using namespace TARVOORIXM1;

class tst_NewOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosingOneMemoryGivesUpTheOther_data();
    void choosingOneMemoryGivesUpTheOther();
    void choicesStayAsTheyAre();
    void thePathOfTheProgramIsMadeAbsolute();
};

void tst_NewOptions::choosingOneMemoryGivesUpTheOther_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<bool>("value");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QVariant>("expected"); // invalid: nothing is said, since that is the default
    const auto row = [](const char *name, QLatin1String chosen, bool value, QLatin1String other,
                        const QVariant &expected) {
        QTest::newRow(name) << QString(chosen) << value << QString(other) << expected;
    };
    row("instructions outside", Key::externalInstructionMemory, true,
        Key::internalInstructionMemory, false);
    row("instructions not inside", Key::internalInstructionMemory, false,
        Key::externalInstructionMemory, true);
    row("instructions inside", Key::internalInstructionMemory, true, Key::externalInstructionMemory,
        QVariant());
    row("data outside", Key::externalDataMemory, true, Key::internalDataMemory, false);
    row("data not inside", Key::internalDataMemory, false, Key::externalDataMemory, true);
    row("data not outside", Key::externalDataMemory, false, Key::internalDataMemory, QVariant());
}

void tst_NewOptions::choosingOneMemoryGivesUpTheOther()
{
    QFETCH(QString, chosen);
    QFETCH(bool, value);
    QFETCH(QString, other);
    QFETCH(QVariant, expected);
    const OptionMap options =
        optionsForChoices({{chosen, value}}, QStringLiteral("TV2KR-18C"), QStringLiteral("/out"));
    QCOMPARE(options.value(chosen), QVariant(value));
    QCOMPARE(options.value(other), expected);
}

void tst_NewOptions::choicesStayAsTheyAre()
{
    const OptionMap both = {{Key::internalDataMemory, true}, {Key::externalDataMemory, true}};
    const OptionMap options =
        optionsForChoices(both, QStringLiteral("TV2KR-18C"), QStringLiteral("/out"));
    QVERIFY(options.value(Key::internalDataMemory).toBool());
    QVERIFY(options.value(Key::externalDataMemory).toBool());
}

void tst_NewOptions::thePathOfTheProgramIsMadeAbsolute()
{
    const auto made = [](const OptionMap &choices) {
        return optionsForChoices(choices, QStringLiteral("TV2KR-18C"), QStringLiteral("/out"))
            .value(Key::itcmInitializationAbsolutePath);
    };
    QVERIFY(!made({}).isValid());
    QCOMPARE(made({{Key::itcmInitializationPath, QStringLiteral("fw")}}),
             QVariant(QStringLiteral("/out/fw")));
    QCOMPARE(made({{Key::itcmInitializationPath, QStringLiteral("/fw")}}),
             QVariant(QStringLiteral("/fw")));
    QCOMPARE(made({{Key::itcmInitializationPath, QStringLiteral("fw")},
                   {Key::itcmInitializationAbsolutePath, QStringLiteral("/own")}}),
             QVariant(QStringLiteral("/own")));
}

QTEST_GUILESS_MAIN(tst_NewOptions)

#include "tst_newoptions.moc"

#include "arbitrary.h"
#include "testsupport.h"

#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <generate/defines.h>
#include <rules/check.h>
#include <rules/dialogdefaults.h>
#include <rules/retarget.h>

#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

DEV::DeviceArg deviceNamed(const char *name, const char *package = "")
{
    DEV::ChipFilter filter;
    filter.device = QString::fromLatin1(name);
    filter.package = QString::fromLatin1(package);
    const DEV::DeviceArg found = DEV::DeviceDb::bundled().filterDevice(filter).value(0);
    if (found.isNull())
        qFatal("there is no %s in %s", name, package);
    return found;
}

QStringList sentences(const Retargeted &moved, const DEV::DeviceArg &to)
{
    QStringList list;
    for (const Loss &loss : moved.losses)
        list.append(lossSentence(loss, moved, to));
    return list;
}

QStringList errorsOf(const OptionMap &options, const DEV::DeviceArg &device)
{
    QStringList errors;
    const QVector<Finding> findings = checkOptions(options, device, QString());
    for (const Finding &finding : findings) {
        if (finding.severity == Finding::Error)
            errors.append(finding.key + QStringLiteral(": ") + finding.message);
    }
    return errors;
}

} // namespace

class tst_Retarget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatIsLost_data();
    void tellsWhatIsLost();
    void keepsWhatTheDeviceCanHave();
    void theSameDeviceChangesNothing();
    void namesTheNewDeviceWhereItIsNamed();
    void anUnknownDeviceIsNoObstacle();
    void noErrorOfTheDeviceIsLeft();
    void everythingThatGenerationReadsOtherwiseIsTold();
};

void tst_Retarget::tellsWhatIsLost_data()
{
    QTest::addColumn<DEV::DeviceArg>("from");
    QTest::addColumn<DEV::DeviceArg>("to");
    QTest::addColumn<OptionMap>("options");
    QTest::addColumn<OptionMap>("changes"); // what differs afterwards
    QTest::addColumn<QStringList>("told");
    const auto row = [](const char *name, const DEV::DeviceArg &from, const DEV::DeviceArg &to,
                        const OptionMap &options, const OptionMap &changes,
                        std::initializer_list<const char *> told) {
        QStringList texts;
        for (const char *text : told)
            texts.append(QString::fromLatin1(text));
        QTest::newRow(name) << from << to << options << changes << texts;
    };
    const DEV::DeviceArg psram = deviceNamed("TV2KR-18C", "QFN88P");
    const DEV::DeviceArg plain = deviceNamed("TV2KR-18C", "QFN88");
    const DEV::DeviceArg large = deviceNamed("TV5KT-138B");
    row("a package without PSRAM", psram, plain, {{Key::enablePsram, true}},
        {{Key::enablePsram, false}},
        {"PSRAM is taken out: TV2KR-18C in package QFN88 cannot have it."});
    row("a device without DDR3", large, deviceNamed("TV1L-9"),
        {{Key::enableDdr3, QStringLiteral("true")},
         {Key::enableDebug, false},
         {Key::itcmSize, 0},
         {Key::dtcmSize, 0}},
        {{Key::enableDdr3, false}}, {"DDR3 is taken out: TV1L-9 cannot have it."});
    row("a device without debug", deviceNamed("TV1L-9C"), deviceNamed("TV1L-9"), {},
        {{Key::enableDebug, false}}, {"Debug is taken out: TV1L-9 cannot have it."});
    row("sizes of its own", large, deviceNamed("TV2K-18"),
        {{Key::itcmSize, QStringLiteral("9")}, {Key::dtcmSize, 2}}, {{Key::itcmSize, 6}},
        {"The ITCM shrinks from 512 KB to 64 KB: TV2K-18 has no more for it."});
    row("contents for another size", large, deviceNamed("TV2K-18"),
        {{Key::itcmSize, 7}, {Key::dtcmSize, 2}, {Key::initializeItcm, true}}, {{Key::itcmSize, 6}},
        {"The ITCM shrinks from 128 KB to 64 KB: TV2K-18 has no more for it. Its initialisation "
         "files have to be made for that size."});
    row("sizes that were left open", large, deviceNamed("TV2K-18"), {},
        {{Key::itcmSize, 6}, {Key::dtcmSize, 4}},
        {"The ITCM shrinks from 128 KB to 64 KB: TV2K-18 has no more for it.",
         "The DTCM shrinks from 128 KB to 16 KB: TV2K-18 has no more for it beside another memory "
         "of 64 KB."});
    row("left open, and the new device has more", deviceNamed("TV2K-18"), large, {},
        {{Key::itcmSize, 5}, {Key::dtcmSize, 5}}, {});
    row("a memory that is outside has no size to lose", large, deviceNamed("TV2K-18"),
        {{Key::internalInstructionMemory, false},
         {Key::externalInstructionMemory, true},
         {Key::itcmSize, 9},
         {Key::dtcmSize, 5}},
        {{Key::itcmSize, 6}}, {});
    row("instruction memory outside only", deviceNamed("TV5KT-15B"), deviceNamed("TV5KT-15A"),
        {{Key::initializeItcm, true}},
        {{Key::internalInstructionMemory, false}, {Key::externalInstructionMemory, true}},
        {"The instruction memory moves outside: TV5KT-15A cannot have it inside. The ITCM and its "
         "initialisation are lost."});
    row("a delay too long", large, deviceNamed("TV2K-55"),
        {{Key::enableEthernet, true},
         {Key::ethernetInputDelay, 200},
         {Key::itcmSize, 3},
         {Key::ethernetClockDivider, 20},
         {Key::dtcmSize, 3}},
        {{Key::ethernetInputDelay, 127}},
        {"The RGMII input delay falls from 200 to 127, the largest of TV2K-55."});
    row("a delay that counts for nothing", large, deviceNamed("TV2K-55"),
        {{Key::ethernetInputDelay, 200}, {Key::itcmSize, 3}, {Key::dtcmSize, 3}},
        {{Key::ethernetInputDelay, 127}}, {});
    // What the page of the smallest devices would take for a key that is left open is not what the
    // configuration meant.
    row("the smallest device", psram, deviceNamed("TV1KL-5A"),
        {{Key::enableCan, true},
         {Key::canBufferDepth, QStringLiteral("64")},
         {Key::itcmSize, 1},
         {Key::dtcmSize, 1}},
        {{Key::enableCan, false},
         {Key::enableDebug, false},
         {Key::numberOfInterrupts, 32},
         {Key::osExtension, true},
         {Key::smallMultiplier, false},
         {Key::internalInstructionMemory, true},
         {Key::externalInstructionMemory, false}},
        {"Debug is taken out: TV1KL-5A cannot have it.",
         "CAN is taken out: TV1KL-5A cannot have it."});
}

void tst_Retarget::tellsWhatIsLost()
{
    QFETCH(DEV::DeviceArg, from);
    QFETCH(DEV::DeviceArg, to);
    QFETCH(OptionMap, options);
    QFETCH(OptionMap, changes);
    QFETCH(QStringList, told);
    const Retargeted moved = retarget(options, from, to);
    QCOMPARE(sentences(moved, to), told);
    OptionMap expected = options;
    for (auto it = changes.cbegin(); it != changes.cend(); ++it)
        expected.insert(it.key(), it.value());
    QCOMPARE(moved.options, expected);
}

void tst_Retarget::keepsWhatTheDeviceCanHave()
{
    const OptionMap options = {{Key::enableGpio, true}, {QStringLiteral("a key of mine"), 7}};
    const DEV::DeviceArg to = deviceNamed("TV2K-18C");
    const Retargeted moved = retarget(options, deviceNamed("TV2K-18"), to);
    QCOMPARE(moved.options, options);
    QVERIFY(moved.losses.isEmpty());
}

void tst_Retarget::theSameDeviceChangesNothing()
{
    QVERIFY(rc::check("a sound configuration stays as it is", [] {
        const DEV::DeviceArg device = *Arbitrary::device();
        const OptionMap options = retarget(Arbitrary::options(), device, device).options;
        const Retargeted moved = retarget(options, device, device);
        RC_ASSERT(moved.options == options);
        RC_ASSERT(moved.losses.isEmpty());
    }));
}

void tst_Retarget::namesTheNewDeviceWhereItIsNamed()
{
    const DEV::DeviceArg to = deviceNamed("TV2K-18C");
    const Retargeted moved = retarget({{Key::ipDevice, QStringLiteral("TV2K-18")},
                                       {Key::ipDeviceId, deviceNamed("TV2K-18").id()}},
                                      deviceNamed("TV2K-18"), to);
    QCOMPARE(moved.options, (OptionMap{{Key::ipDevice, to.device()}, {Key::ipDeviceId, to.id()}}));
    QVERIFY(moved.losses.isEmpty());
}

void tst_Retarget::anUnknownDeviceIsNoObstacle()
{
    const DEV::DeviceArg to = deviceNamed("TV1L-9");
    const Retargeted moved =
        retarget({{Key::enableDdr3, true}, {Key::itcmSize, 9}, {Key::enableDebug, false}}, {}, to);
    QCOMPARE(sentences(moved, to),
             (QStringList{QStringLiteral(
                              "The ITCM shrinks from 512 KB to 32 KB: TV1L-9 has no more for it."),
                          QStringLiteral("DDR3 is taken out: TV1L-9 cannot have it.")}));
    QCOMPARE(errorsOf(moved.options, to), QStringList());
}

void tst_Retarget::noErrorOfTheDeviceIsLeft()
{
    QVERIFY(rc::check("what check finds on the new device, it finds without a device too", [] {
        const OptionMap options = Arbitrary::options();
        const DEV::DeviceArg from = *Arbitrary::device();
        const DEV::DeviceArg to = *Arbitrary::device();
        const QStringList without = errorsOf(options, {});
        const QStringList left = errorsOf(retarget(options, from, to).options, to);
        for (const QString &error : left) {
            if (!without.contains(error)) {
                const QString text =
                    from.id() + QStringLiteral(" to ") + to.id() + QStringLiteral(": ") + error;
                RC_FAIL(text.toStdString());
            }
        }
    }));
}

void tst_Retarget::everythingThatGenerationReadsOtherwiseIsTold()
{
    QVERIFY(rc::check("without a loss every option reads as before", [] {
        const OptionMap options = Arbitrary::options();
        const DEV::DeviceArg from = *Arbitrary::device();
        const DEV::DeviceArg to = *Arbitrary::device();
        const Retargeted moved = retarget(options, from, to);
        // The generated text depends on the device too: both configurations on the new one, with
        // what the old device decided written down.
        OptionMap before = options;
        for (const QLatin1String key : {Key::itcmSize, Key::dtcmSize})
            before.insert(key, generatedValue(options, key, from.device()));
        const auto lines = [&to](const OptionMap &map) {
            QStringList text;
            for (const IncludeFile &file : buildIncludeFiles(map, to))
                text += file.lines;
            return text;
        };
        if ((lines(before) == lines(moved.options)) != moved.losses.isEmpty()) {
            const QString text = from.id() + QStringLiteral(" to ") + to.id() + u'\n' +
                                 lines(before).join(u'\n') + QStringLiteral("\n\n") +
                                 lines(moved.options).join(u'\n') + u'\n' +
                                 sentences(moved, to).join(u'\n');
            RC_FAIL(text.toStdString());
        }
    }));
}

TARVO_TEST_MAIN(QCoreApplication, tst_Retarget)

#include "tst_retarget.moc"

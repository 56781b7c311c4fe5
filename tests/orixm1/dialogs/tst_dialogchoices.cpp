// What the command line writes and what the dialogs store for the same choices, on every device.

#include "expectedblocks.h"
#include "testsupport.h"

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <dialogs/cortexm1.h>
#include <generate/defines.h>
#include <rules/check.h>
#include <rules/corepage.h>
#include <rules/corepins.h>
#include <rules/devicerules.h>
#include <rules/dialogdefaults.h>
#include <rules/newoptions.h>
#include <rules/pins.h>
#include <rules/retarget.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

// A widget that stands for an option. Buttons of a group have a value each.
struct Control {
    const char *name;
    QString key;
    QVariant value; // what a checked button of a group stores; invalid for all others
};

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

// In the order in which somebody fills in the page: where a memory is decides whether it has a
// size.
const std::vector<Control> &coreControls()
{
    static const std::vector<Control> list = {
        {"radioButtonNum1", Key::numberOfInterrupts, 1},
        {"radioButtonNum8", Key::numberOfInterrupts, 8},
        {"radioButtonNum16", Key::numberOfInterrupts, 16},
        {"radioButtonNum32", Key::numberOfInterrupts, 32},
        {"checkBoxOsExtension", Key::osExtension, {}},
        {"checkBoxSmallMultiplier", Key::smallMultiplier, {}},
        {"checkBoxBigEndian", Key::bigEndian, {}},
        {"checkBoxExternalInterrupts", Key::externalInterrupts, {}},
        {"enableDebugCheckBox", Key::enableDebug, {}},
        {"radioButtonJTAG", Key::debugPortSelect, QString(Value::jtag)},
        {"radioButtonSW", Key::debugPortSelect, QString(Value::serialWire)},
        {"radioButtonJTAGSW", Key::debugPortSelect, QString(Value::jtagAndSerialWire)},
        {"checkBoxSmallDebug", Key::smallDebug, {}},
        {"internalInsBtn", Key::internalInstructionMemory, true},
        {"externalInsBtn", Key::externalInstructionMemory, true},
        {"internalDataBtn", Key::internalDataMemory, true},
        {"externalDataBtn", Key::externalDataMemory, true},
        {"comboBoxItcmSize", Key::itcmSize, {}},
        {"comboBoxDtcmSize", Key::dtcmSize, {}},
        {"checkBoxInitItcm", Key::initializeItcm, {}},
    };
    return list;
}

std::vector<Control> controlsOf(const Expected::Block &block)
{
    std::vector<Control> list;
    for (const Expected::Switch &entry : block.switches)
        list.push_back({entry.objectName, text(entry.key), {}});
    if (qstrcmp(block.dialog, "CANDlg") == 0)
        list.push_back({"bufferDepthComboBox", Key::canBufferDepth, {}});
    if (qstrcmp(block.dialog, "EthernetDlg") == 0) {
        list.push_back({"interfaceComboBox", Key::ethernetInterface, {}});
        list.push_back({"inputDelaySpinBox", Key::ethernetInputDelay, {}});
        list.push_back({"clockDividerSpinBox", Key::ethernetClockDivider, {}});
    }
    return list;
}

// What a control shows.
QVariant shown(const QWidget *widget, const Control &control)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return control.value.isValid() && button->isChecked() ? control.value
                                                              : QVariant(button->isChecked());
    if (const auto *spin = qobject_cast<const QSpinBox *>(widget))
        return spin->value();
    const auto *combo = qobject_cast<const QComboBox *>(widget);
    const bool storesIndex = control.key == Key::itcmSize || control.key == Key::dtcmSize;
    return storesIndex ? QVariant(combo->currentIndex()) : QVariant(combo->currentText());
}

// The dialogs of one IP under the hands of somebody who chooses at random.
class Session
{
public:
    Session(const DEV::DeviceArg &device, const QString &createIn, quint32 seed)
        : m_device(device)
        , m_random(seed)
        , m_createIn(createIn)
    {
        m_map = {{Key::ipDeviceId, device.id()},
                 {Key::ipDevice, device.device()},
                 {Key::createInPath, createIn}};
    }

    void chooseEverywhere()
    {
        choose([this] { return std::make_unique<CortexM1>(&m_map); }, coreControls());
        for (const Expected::Block &block : Expected::blocks()) {
            if (isOffered(block))
                choose(
                    [&] { return std::unique_ptr<Expected::Dialog>(block.make(&m_map, nullptr)); },
                    controlsOf(block));
        }
    }

    const OptionMap &stored() const { return m_map; }
    const OptionMap &choices() const { return m_choices; }

private:
    bool isOffered(const Expected::Block &block) const
    {
        for (const RestrictedBlock &restricted : restrictedBlocks()) {
            if (text(block.switches.front().key) == restricted.key)
                return restricted.isAvailable(m_device);
        }
        return true;
    }

    // A choice that does not last is no choice; then the dialog is cancelled.
    template <class Make>
    void choose(const Make &make, const std::vector<Control> &controls)
    {
        const auto dialog = make();
        OptionMap chosen;
        for (const Control &control : controls) {
            auto *widget = dialog->template findChild<QWidget *>(text(control.name));
            if (!widget)
                qFatal("there is no %s", control.name);
            if (widget->isEnabledTo(dialog.get()) && m_random.bounded(3) == 0)
                change(widget, control, chosen);
        }
        if (chosen.value(Key::initializeItcm).toBool() &&
            dialog->template findChild<QWidget *>(text("checkBoxInitItcm"))
                ->isEnabledTo(dialog.get())) {
            const bool relative = m_random.bounded(2) == 0;
            const QString folder = m_createIn + text("/init");
            dialog->template findChild<QLineEdit *>(text("lineEditItcmInitPath"))->setText(folder);
            chosen.insert(Key::itcmInitializationPath, relative ? text("init") : folder);
        }
        for (const Control &control : controls) {
            const auto *widget = dialog->template findChild<QWidget *>(text(control.name));
            const QVariant choice = chosen.value(control.key);
            const bool concerned =
                choice.isValid() && (!control.value.isValid() || control.value == choice);
            if (concerned &&
                (shown(widget, control) != choice || !widget->isEnabledTo(dialog.get()))) {
                dialog->reject();
                return;
            }
        }
        dialog->accept();
        if (dialog->result() != QDialog::Accepted)
            qFatal("the dialog refuses its own choices");
        for (auto it = chosen.cbegin(); it != chosen.cend(); ++it)
            m_choices.insert(it.key(), it.value());
    }

    void change(QWidget *widget, const Control &control, OptionMap &chosen)
    {
        if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
            button->click();
        } else if (auto *spin = qobject_cast<QSpinBox *>(widget)) {
            spin->setValue(m_random.bounded(spin->minimum(), spin->maximum() + 1));
        } else if (auto *combo = qobject_cast<QComboBox *>(widget)) {
            if (combo->count() > 0)
                combo->setCurrentIndex(m_random.bounded(combo->count()));
        }
        chosen.insert(control.key, shown(widget, control));
        // Of two buttons that stand for two keys only the last click is a choice.
        const QLatin1String pairs[][2] = {
            {Key::internalInstructionMemory, Key::externalInstructionMemory},
            {Key::internalDataMemory, Key::externalDataMemory}};
        for (const auto &pair : pairs) {
            if (control.key == pair[1])
                chosen.remove(pair[0]);
        }
    }

    const DEV::DeviceArg m_device;
    QRandomGenerator m_random;
    const QString m_createIn;
    OptionMap m_map;
    OptionMap m_choices;
};

QStringList generated(const OptionMap &options, const DEV::DeviceArg &device)
{
    QStringList lines;
    for (const IncludeFile &file : buildIncludeFiles(options, device))
        lines += file.name + u':' + file.lines.join(u'\n');
    for (const Utils::PinFigure &pin : corePins(coreSwitches(options)))
        lines += pin.name();
    for (const BlockPins &entry : peripheralPins(options, device.device())) {
        for (const Utils::PinFigure &pin : entry.pins)
            lines += pin.name();
    }
    return lines;
}

QStringList errorsOf(const OptionMap &options, const DEV::DeviceArg &device,
                     const QString &createIn)
{
    QStringList errors;
    for (const Finding &finding : checkOptions(options, device, createIn)) {
        // The files that the memory is filled from are not the dialogs' matter.
        if (finding.severity == Finding::Error &&
            finding.key != Key::itcmInitializationAbsolutePath)
            errors.append(finding.key + text(": ") + finding.message);
    }
    return errors;
}

// The first difference, in words; empty if there is none.
QString difference(const QStringList &a, const QStringList &b)
{
    for (int i = 0; i < qMax(a.size(), b.size()); ++i) {
        if (a.value(i) != b.value(i))
            return a.value(i) + text("\n-- and --\n") + b.value(i);
    }
    return {};
}

QString described(const OptionMap &options)
{
    QStringList parts;
    for (auto it = options.cbegin(); it != options.cend(); ++it)
        parts.append(it.key() + u'=' + it.value().toString());
    return parts.join(text(", "));
}

constexpr quint32 sessions = 4; // for each device name

} // namespace

class tst_DialogChoices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyDeviceHasASoundConfiguration();
    void giveWhatTheDialogsGive_data();
    void giveWhatTheDialogsGive();
    void theCorePageStoresWhatIsForeseen_data() { giveWhatTheDialogsGive_data(); }
    void theCorePageStoresWhatIsForeseen();
    void anAbsentKeyIsItsDialogsDefault_data();
    void anAbsentKeyIsItsDialogsDefault();
    void movedOnesStayUnderTheDialogs_data() { giveWhatTheDialogsGive_data(); }
    void movedOnesStayUnderTheDialogs();

private:
    // Opens the page and every dialog that the device offers, and closes them with OK.
    static OptionMap throughAllDialogs(const OptionMap &options, const DEV::DeviceArg &device,
                                       const QString &createIn);

    QTemporaryDir m_dir;
};

void tst_DialogChoices::initTestCase()
{
    QVERIFY(QDir(m_dir.path()).mkdir(text("init")));
}

void tst_DialogChoices::everyDeviceHasASoundConfiguration()
{
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices()) {
        const OptionMap options = optionsForChoices({}, device.device(), m_dir.path());
        const QVector<Finding> findings = checkOptions(options, device, m_dir.path());
        QVERIFY2(findings.isEmpty(),
                 qPrintable(device.id() + u' ' +
                            (findings.isEmpty() ? QString() : findings.first().message)));
    }
}

void tst_DialogChoices::giveWhatTheDialogsGive_data()
{
    QTest::addColumn<DEV::DeviceArg>("device");
    QStringList names;
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices()) {
        // One of each name; where the package decides, one of each.
        const QString name =
            device.device() + (isPsramAvailable(device) ? text(" with PSRAM") : QString());
        if (names.contains(name))
            continue;
        names.append(name);
        QTest::newRow(qPrintable(name)) << device;
    }
}

void tst_DialogChoices::giveWhatTheDialogsGive()
{
    QFETCH(DEV::DeviceArg, device);
    for (quint32 seed = 0; seed < sessions; ++seed) {
        Session session(device, m_dir.path(), seed);
        session.chooseEverywhere();
        const OptionMap options =
            optionsForChoices(session.choices(), device.device(), m_dir.path());
        const QString differs =
            difference(generated(session.stored(), device), generated(options, device));
        QVERIFY2(differs.isEmpty(), qPrintable(described(session.choices()) + u'\n' + differs));
        QStringList errors = errorsOf(options, device, m_dir.path());
        // The one choice that a dialog offers to a device that cannot have it.
        if (isSmallDevice(device.device()) && options.value(Key::enableDebug).toBool())
            errors = errors.mid(1);
        QVERIFY2(errors.isEmpty(),
                 qPrintable(described(session.choices()) + u'\n' + errors.join(u'\n')));
        QVERIFY(unsetKeys(options, device.device()).isEmpty());
    }
}

void tst_DialogChoices::theCorePageStoresWhatIsForeseen()
{
    QFETCH(DEV::DeviceArg, device);
    QRandomGenerator random(7);
    for (int i = 0; i < 15; ++i) {
        OptionMap options = {{Key::ipDeviceId, device.id()}, {Key::ipDevice, device.device()}};
        for (const Control &control : coreControls()) {
            if (random.bounded(2) == 0)
                continue;
            const bool isNumber = control.key == Key::itcmSize || control.key == Key::dtcmSize ||
                                  control.key == Key::numberOfInterrupts;
            options[control.key] = control.value.isValid() ? control.value
                                   : isNumber              ? QVariant(random.bounded(-2, 13))
                                                           : QVariant(random.bounded(2) == 1);
            if (control.key == Key::numberOfInterrupts && random.bounded(4) == 0)
                options[control.key] = random.bounded(40);
            if (control.value.type() == QVariant::Bool)
                options[control.key] = random.bounded(2) == 1;
        }
        options.remove(Key::initializeItcm); // needs a folder
        const OptionMap foreseen = acceptedCoreOptions(options, device.device());
        OptionMap stored = options;
        CortexM1 page(&stored);
        page.accept();
        for (auto it = foreseen.cbegin(); it != foreseen.cend(); ++it)
            QVERIFY2(stored.value(it.key()) == it.value(),
                     qPrintable(it.key() + text(" is ") + stored.value(it.key()).toString() +
                                text(", not ") + it.value().toString() + text(" after ") +
                                described(options)));
    }
}

void tst_DialogChoices::anAbsentKeyIsItsDialogsDefault_data()
{
    QTest::addColumn<DEV::DeviceArg>("device");
    const QStringList differing = {text("TV1KL-5A"), text("TV1L-9"), text("TV2KR-18C"),
                                   text("TV5KT-15A"), text("TV5KT-138B")};
    for (const QString &name : differing) {
        DEV::ChipFilter filter;
        filter.id = name;
        QTest::newRow(qPrintable(name)) << DEV::DeviceDb::bundled().filterDevice(filter).value(0);
    }
}

// On an empty map and on one where all is on: a dialog stores the same without a key and with what
// it takes for it.
void tst_DialogChoices::anAbsentKeyIsItsDialogsDefault()
{
    QFETCH(DEV::DeviceArg, device);
    QVERIFY(!device.isNull());
    for (const bool on : {false, true}) {
        const auto afterOk = [&](const auto &make, const OptionMap &options) {
            OptionMap map = options;
            map[Key::ipDeviceId] = device.id();
            map[Key::ipDevice] = device.device();
            make(map)->accept();
            return map;
        };
        const auto compare = [&](const auto &make, const std::vector<Control> &controls) {
            OptionMap base;
            for (const Control &control : controls) {
                if (on && findOption(control.key)->type == OptionType::Bool &&
                    control.key != Key::initializeItcm)
                    base.insert(control.key, true);
            }
            for (const Control &control : controls) {
                OptionMap without = base;
                without.remove(control.key);
                OptionMap with = without;
                with.insert(control.key, dialogDefault(control.key, device.device()));
                const OptionMap stored = afterOk(make, without);
                QVERIFY2(stored.contains(control.key), qPrintable(control.key));
                QVERIFY2(stored == afterOk(make, with), qPrintable(control.key));
            }
        };
        compare([](OptionMap &map) { return std::make_unique<CortexM1>(&map); }, coreControls());
        for (const Expected::Block &block : Expected::blocks())
            compare(
                [&](OptionMap &map) {
                    return std::unique_ptr<Expected::Dialog>(block.make(&map, nullptr));
                },
                controlsOf(block));
    }
}

OptionMap tst_DialogChoices::throughAllDialogs(const OptionMap &options,
                                               const DEV::DeviceArg &device,
                                               const QString &createIn)
{
    OptionMap map = options;
    map[Key::ipDeviceId] = device.id();
    map[Key::ipDevice] = device.device();
    map[Key::createInPath] = createIn;
    CortexM1 page(&map);
    page.accept();
    if (page.result() != QDialog::Accepted)
        qFatal("the page refuses a sound configuration");
    for (const Expected::Block &block : Expected::blocks()) {
        const QString key = text(block.switches.front().key);
        const auto end = restrictedBlocks().end();
        const auto restricted =
            std::find_if(restrictedBlocks().begin(), end,
                         [&key](const RestrictedBlock &row) { return key == row.key; });
        if (restricted != end && !restricted->isAvailable(device))
            continue;
        const std::unique_ptr<Expected::Dialog> dialog(block.make(&map, nullptr));
        dialog->accept();
    }
    return map;
}

void tst_DialogChoices::movedOnesStayUnderTheDialogs()
{
    QFETCH(DEV::DeviceArg, device);
    const QList<DEV::DeviceArg> all = DEV::DeviceDb::bundled().devices();
    QRandomGenerator random(11);
    for (quint32 seed = 0; seed < sessions; ++seed) {
        Session session(device, m_dir.path(), 1000 + seed);
        session.chooseEverywhere();
        const DEV::DeviceArg to = all.at(random.bounded(all.size()));
        // What a dialog wrote, or what the command line wrote.
        const OptionMap before =
            seed % 2 == 0 ? session.stored()
                          : optionsForChoices(session.choices(), device.device(), m_dir.path());
        OptionMap moved = retarget(before, device, to).options;
        const QStringList errors = errorsOf(moved, to, m_dir.path());
        QVERIFY2(errors.isEmpty(),
                 qPrintable(to.id() + u' ' + described(before) + u'\n' + errors.join(u'\n')));
        const OptionMap after = throughAllDialogs(moved, to, m_dir.path());
        // The dialog cuts a delay off that its own device would take: for every file.
        constexpr int cut = 127;
        if (moved.value(Key::ethernetInputDelay).toInt() > cut)
            moved[Key::ethernetInputDelay] = cut;
        const QString differs = difference(generated(moved, to), generated(after, to));
        QVERIFY2(differs.isEmpty(),
                 qPrintable(to.id() + u' ' + described(before) + u'\n' + differs));
    }
}

TARVO_TEST_MAIN(QApplication, tst_DialogChoices)

#include "tst_dialogchoices.moc"

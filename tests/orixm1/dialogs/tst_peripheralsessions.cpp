#include "blockhands.h"
#include "peripheralmodel.h"
#include "testsupport.h"

#include <config/optionkeys.h>

#include <QRandomGenerator>

using namespace TARVOORIXM1;

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

// Draws what happens; the same seed draws the same.
class Dice
{
public:
    explicit Dice(quint32 seed)
        : m_generator(seed)
    {
    }
    int below(int bound) { return m_generator.bounded(bound); }
    bool coin() { return below(2) == 1; }
    template <class T>
    T oneOf(const QVector<T> &list)
    {
        return list.at(below(list.size()));
    }

private:
    QRandomGenerator m_generator;
};

QVariant randomBool(Dice &dice)
{
    static const QVector<QVariant> odd = {
        text("true"), text("false"), text("0"), text("1"), text(""), text("x"), 0, 5, QVariant()};
    return dice.below(4) == 0 ? dice.oneOf(odd) : QVariant(dice.coin());
}

QVariant randomNumber(Dice &dice)
{
    static const QVector<QVariant> odd = {text("12"), text("x"), -1, 127, 128, 255, 256, 100000};
    return dice.below(3) == 0 ? dice.oneOf(odd) : QVariant(dice.below(256));
}

QVariant randomChoice(Dice &dice, const QStringList &choices)
{
    static const QVector<QVariant> odd = {text("100"), text(""), text("gmii"), 64, text("MII ")};
    return dice.below(4) == 0 ? dice.oneOf(odd) : QVariant(choices.at(dice.below(choices.size())));
}

// Each key that the dialog knows with even odds.
OptionMap randomMap(Dice &dice, const Expected::Block &expected)
{
    static const QVector<QString> devices = {
        text("TV2KR-18C"), text("TV5KT-138B"), text("TV3K-20A"), text("TV1L-9"),
        text("TV1LR-9C"),  text("tv1l-9"),     text("tv5k-25a"), QString()};
    OptionMap map = {{text("kept"), dice.below(100)}};
    if (dice.below(8) > 0)
        map.insert(Key::ipDevice, dice.oneOf(devices));
    for (const Expected::Switch &entry : expected.switches) {
        if (dice.coin())
            map.insert(text(entry.key), randomBool(dice));
    }
    if (dice.coin())
        map.insert(Key::canBufferDepth, randomChoice(dice, PeripheralModel::depths()));
    if (dice.coin())
        map.insert(Key::ethernetInterface, randomChoice(dice, PeripheralModel::interfaces()));
    if (dice.coin())
        map.insert(Key::ethernetInputDelay, randomNumber(dice));
    if (dice.coin())
        map.insert(Key::ethernetClockDivider, randomNumber(dice));
    return map;
}

// What is seen, in words, so that a difference says where it is.
QStringList seen(const Hands &hands, const Expected::Block &expected)
{
    QStringList state;
    for (const Expected::Switch &entry : expected.switches) {
        const QCheckBox *box = hands.box(entry.objectName);
        state << QStringLiteral("%1 %2 %3")
                     .arg(box->text())
                     .arg(box->isChecked())
                     .arg(box->isEnabled());
    }
    if (qstrcmp(expected.dialog, "CANDlg") == 0) {
        const QComboBox *combo = hands.combo("bufferDepthComboBox");
        state << QStringLiteral("depth %1 %2").arg(combo->currentIndex()).arg(combo->isEnabled());
    }
    if (qstrcmp(expected.dialog, "EthernetDlg") == 0) {
        const QComboBox *combo = hands.combo("interfaceComboBox");
        const QSpinBox *delay = hands.spin("inputDelaySpinBox");
        const QSpinBox *divider = hands.spin("clockDividerSpinBox");
        state
            << QStringLiteral("interface %1 %2").arg(combo->currentIndex()).arg(combo->isEnabled())
            << QStringLiteral("delay %1 %2").arg(delay->value()).arg(delay->isEnabled())
            << QStringLiteral("divider %1 %2").arg(divider->value()).arg(divider->isEnabled());
    }
    return state + hands.pins();
}

QStringList wanted(const PeripheralModel::Dialog &model, const Expected::Block &expected)
{
    QStringList state;
    for (size_t i = 0; i < expected.switches.size(); ++i)
        state << QStringLiteral("%1 %2 %3")
                     .arg(text(expected.switches[i].text))
                     .arg(model.on[i])
                     .arg(model.usable[i]);
    if (qstrcmp(expected.dialog, "CANDlg") == 0)
        state << QStringLiteral("depth %1 %2").arg(model.choice).arg(model.optionsUsable);
    if (qstrcmp(expected.dialog, "EthernetDlg") == 0)
        state << QStringLiteral("interface %1 %2").arg(model.choice).arg(model.optionsUsable)
              << QStringLiteral("delay %1 %2").arg(model.delay).arg(model.delayUsable())
              << QStringLiteral("divider %1 %2").arg(model.divider).arg(model.optionsUsable);
    return state + model.pins;
}

// One thing that happens, to the dialog and to the model alike.
void step(Dice &dice, const Hands &hands, PeripheralModel::Dialog &model,
          const Expected::Block &expected)
{
    const int i = dice.below(int(expected.switches.size()));
    QCheckBox *box = hands.box(expected.switches.at(size_t(i)).objectName);
    const bool can = qstrcmp(expected.dialog, "CANDlg") == 0;
    const bool ethernet = qstrcmp(expected.dialog, "EthernetDlg") == 0;
    switch (dice.below(can || ethernet ? 6 : 3)) {
    case 0:
        QTest::keyClick(box, Qt::Key_Space);
        model.click(i);
        break;
    case 1:
        Hands::click(box);
        model.click(i);
        break;
    case 2: {
        const bool checked = dice.coin();
        box->setChecked(checked);
        model.set(i, checked);
        break;
    }
    case 3: {
        QComboBox *combo = hands.combo(can ? "bufferDepthComboBox" : "interfaceComboBox");
        const int index = dice.below(combo->count());
        if (combo->isEnabled() && dice.coin())
            Hands::select(combo, index);
        else
            combo->setCurrentIndex(index);
        model.choose(index);
        break;
    }
    case 4:
        if (ethernet) {
            const int value = dice.below(300);
            hands.spin("inputDelaySpinBox")->setValue(value);
            model.setDelay(value);
        }
        break;
    default:
        if (ethernet) {
            QSpinBox *divider = hands.spin("clockDividerSpinBox");
            const int value = dice.below(256);
            if (divider->isEnabled() && dice.coin())
                Hands::type(divider, QString::number(value));
            else
                divider->setValue(value);
            model.setDivider(value);
        }
        break;
    }
}

} // namespace

class tst_PeripheralSessions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followTheRules_data();
    void followTheRules();
};

void tst_PeripheralSessions::followTheRules_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < Expected::blocks().size(); ++i)
        QTest::newRow(Expected::blocks().at(i).dialog) << int(i);
}

void tst_PeripheralSessions::followTheRules()
{
    QFETCH(int, index);
    const Expected::Block &expected = Expected::blocks().at(size_t(index));
#ifdef __SANITIZE_ADDRESS__
    constexpr int sessions = 12; // the sanitizers take thirty times as long
#else
    constexpr int sessions = 60;
#endif
    constexpr int steps = 30;
    for (int session = 0; session < sessions; ++session) {
        const quint32 seed = quint32(index * 1000 + session);
        Dice dice(seed);
        OptionMap map = randomMap(dice, expected);
        // A dialog is opened twice on the same map.
        for (int opening = 0; opening < 2; ++opening) {
            const OptionMap before = map;
            const Hands hands(expected.dialog, &map);
            PeripheralModel::Dialog model(expected, before);
            for (int i = 0; i <= steps; ++i) {
                const QStringList actual = seen(hands, expected);
                const QStringList rules = wanted(model, expected);
                if (actual != rules)
                    qWarning("Seed %u, step %d:", seed, i);
                QCOMPARE(actual, rules);
                QCOMPARE(map, before);
                if (i < steps)
                    step(dice, hands, model, expected);
            }
            OptionMap rules = before;
            const bool accepted = dice.coin();
            if (accepted) {
                model.store(rules);
                hands.ok();
            } else {
                hands.cancel();
            }
            QCOMPARE(hands->result(), int(accepted));
            QCOMPARE(map.keys(), rules.keys());
            for (auto it = rules.cbegin(); it != rules.cend(); ++it) {
                const QVariant actual = map.value(it.key());
                QVERIFY2(actual.type() == it.value().type() && actual == it.value(),
                         qPrintable(it.key() + QStringLiteral(", seed %1").arg(seed)));
            }
        }
    }
}

TARVO_TEST_MAIN(QApplication, tst_PeripheralSessions)
#include "tst_peripheralsessions.moc"

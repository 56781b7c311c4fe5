#pragma once

#include "expectedblocks.h"

#include <QVariantMap>

// What a block's dialog has to do, as plain variables and rules, written for the tests and sharing
// nothing with the dialogs. A method per thing that a user or a program does.
namespace PeripheralModel
{

inline QStringList depths()
{
    return QStringLiteral("16 32 64 128 256 512 1024 2048 4096 8192 16384 32768 65536").split(u' ');
}

inline QStringList interfaces()
{
    return {QStringLiteral("RGMII"), QStringLiteral("GMII"), QStringLiteral("MII"),
            QStringLiteral("GMII/MII")};
}

class Dialog
{
public:
    Dialog(const Expected::Block &expected, const QVariantMap &map)
        : m_expected(expected)
        , m_name(expected.dialog)
    {
        const QString device = map.value(QStringLiteral("ip_device")).toString();
        wide = device.startsWith(QLatin1String("TV5K")) || device.startsWith(QLatin1String("TV3K"));
        for (const Expected::Switch &entry : expected.switches) {
            on.push_back(map.value(QString::fromLatin1(entry.key), entry.byDefault).toBool());
            usable.push_back(true);
        }
        if (hasType())
            usable[1] = on[0];
        if (is("CANDlg")) {
            choice = depths().indexOf(
                map.value(QStringLiteral("CAN_BUFFER_DEPTH"), QStringLiteral("256")).toString());
            optionsUsable = on[0];
        }
        if (is("EthernetDlg")) {
            choice = interfaces().indexOf(
                map.value(QStringLiteral("ETHERNET_INTERFACE"), QStringLiteral("RGMII"))
                    .toString());
            delay = qBound(0, map.value(QStringLiteral("ETHERNET_INPUT_DELAY"), 100).toInt(), 127);
            divider =
                qBound(0, map.value(QStringLiteral("ETHERNET_CLOCK_DIVIDER"), 20).toInt(), 255);
            optionsUsable = on[0];
        }
        draw();
        static const QStringList without = {QStringLiteral("TV1L-9"), QStringLiteral("TV1L-9C"),
                                            QStringLiteral("TV1LR-9"), QStringLiteral("TV1LR-9C")};
        if (is("DDR3Dlg") && without.contains(device))
            on[0] = usable[0] = false;
    }

    void click(int i)
    {
        if (!usable[size_t(i)])
            return;
        on[size_t(i)] = !on[size_t(i)];
        if (hasType() && i == 0)
            usable[1] = on[0];
        if (is("CANDlg") || is("EthernetDlg"))
            optionsUsable = on[0];
        draw();
    }
    // By a program: no click.
    void set(int i, bool checked)
    {
        if (on[size_t(i)] == checked)
            return;
        on[size_t(i)] = checked;
        if (is("EthernetDlg"))
            optionsUsable = checked;
        if (!is("CANDlg") && !is("DDR3Dlg") && !is("AHB2ExtensionDlg"))
            draw();
    }
    void choose(int index)
    {
        choice = index;
        if (is("EthernetDlg"))
            draw();
    }
    void setDelay(int value) { delay = qBound(0, value, wide ? 255 : 127); }
    void setDivider(int value) { divider = qBound(0, value, 255); }

    bool delayUsable() const { return optionsUsable && choice == 0; }

    void store(QVariantMap &map) const
    {
        for (size_t i = 0; i < on.size(); ++i)
            map.insert(QString::fromLatin1(m_expected.switches[i].key), bool(on[i]));
        if (is("CANDlg"))
            map.insert(QStringLiteral("CAN_BUFFER_DEPTH"), depths().value(choice));
        if (is("EthernetDlg")) {
            map.insert(QStringLiteral("ETHERNET_INTERFACE"), interfaces().value(choice));
            map.insert(QStringLiteral("ETHERNET_INPUT_DELAY"), delay);
            map.insert(QStringLiteral("ETHERNET_CLOCK_DIVIDER"), divider);
        }
    }

    std::vector<bool> on;
    std::vector<bool> usable;
    bool optionsUsable = false; // CAN's depth, Ethernet's options
    int choice = -1;
    int delay = 0;
    int divider = 0;
    bool wide = false;
    QStringList pins; // as shown

private:
    bool is(const char *name) const { return m_name == name; }
    bool hasType() const { return is("GPIODlg") || is("I2CDlg"); }

    void draw()
    {
        namespace Pins = Expected::Pins;
        using Expected::pins;
        QStringList &p = this->pins;
        p.clear();
        if (is("AHB2ExtensionDlg") || is("APB2ExtensionDlg")) {
            for (size_t i = 0; i < on.size(); ++i) {
                if (on[i])
                    p += pins(is("AHB2ExtensionDlg") ? Pins::ahbPort : Pins::apbPort, int(i) + 1);
            }
            return;
        }
        if (is("UartDlg") || is("TimerDlg")) {
            if (on[0])
                p += pins(is("UartDlg") ? Pins::uart0 : Pins::timer0);
            if (on[1])
                p += pins(is("UartDlg") ? Pins::uart1 : Pins::timer1);
            return;
        }
        if (!on[0])
            return;
        if (is("GPIODlg"))
            p = pins(on[1] ? Pins::gpioInout : Pins::gpioSplit);
        else if (is("I2CDlg"))
            p = pins(on[1] ? Pins::i2cInout : Pins::i2cSplit);
        else if (*m_expected.pins)
            p = pins(m_expected.pins);
        else if (is("DDR3Dlg"))
            p = (wide ? pins(Pins::ddr3Stop) : QStringList()) + pins(Pins::ddr3);
        else if (is("EthernetDlg")) {
            p = pins(Pins::ethernet);
            if (choice == 0)
                p += pins(Pins::rgmii);
            if (choice == 1 || choice == 3)
                p += pins(Pins::gmii);
            if (choice == 2 || choice == 3)
                p += pins(Pins::mii);
        }
    }

    const Expected::Block &m_expected;
    QByteArray m_name;
};

} // namespace PeripheralModel

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantMap>

// What the core page has to do, as plain variables and rules, written for the tests and sharing
// nothing with the page. A method per thing that a user does.
namespace CoreModel
{

struct Sizes {
    int full;    // index of the last entry of the full list; -1: the list is empty
    int reduced; // and of the reduced one
    int fallback;
    int preset; // what an absent size reads as
};

inline Sizes sizesOf(const QString &device)
{
    static const QMap<QString, Sizes> table = {
        {QStringLiteral("TV1KL-5A"), {3, 4, 3, 3}},    {QStringLiteral("TV1KL-5B"), {3, 4, 3, 3}},
        {QStringLiteral("TV1L-9"), {5, 4, 4, 4}},      {QStringLiteral("TV1LR-9C"), {5, 4, 4, 4}},
        {QStringLiteral("TV2K-18"), {6, 4, 5, 5}},     {QStringLiteral("TV2KR-18C"), {6, 4, 5, 5}},
        {QStringLiteral("TV2KL-18X"), {5, 4, 4, 4}},   {QStringLiteral("TV2K-55C"), {8, 4, 6, 6}},
        {QStringLiteral("TV5KT-15A"), {6, 3, 5, 5}},   {QStringLiteral("TV5KT-15B"), {6, 3, 5, 5}},
        {QStringLiteral("TV5KT-75B"), {8, 8, 7, 7}},   {QStringLiteral("TV5KT-60B"), {7, 6, 6, 6}},
        {QStringLiteral("TV5KST-138B"), {9, 7, 7, 7}}, {QStringLiteral("TV3K-20A"), {6, 5, 5, 5}},
        {QStringLiteral("TV5KS-25A"), {6, 5, 5, 5}},   {QString(), {-1, 4, -1, 4}},
    };
    return table.value(device, table.value(QString()));
}

inline QStringList devices()
{
    return {QStringLiteral("TV1KL-5A"),    QStringLiteral("TV1KL-5B"),
            QStringLiteral("TV1L-9"),      QStringLiteral("TV1LR-9C"),
            QStringLiteral("TV2K-18"),     QStringLiteral("TV2KR-18C"),
            QStringLiteral("TV2KL-18X"),   QStringLiteral("TV2K-55C"),
            QStringLiteral("TV5KT-15A"),   QStringLiteral("TV5KT-15B"),
            QStringLiteral("TV5KT-75B"),   QStringLiteral("TV5KT-60B"),
            QStringLiteral("TV5KST-138B"), QStringLiteral("TV3K-20A"),
            QStringLiteral("TV5KS-25A"),   QString()};
}

class Page
{
public:
    QString device;
    Sizes sizes;
    bool small;

    int interrupts = 32;
    bool os = true, smallMultiplier = false, bigEndian = false;
    bool externalInterrupts = false, externalInterruptsEnabled = true;
    bool debug = true, debugEnabled = true, smallDebug = false;
    QString port = QStringLiteral("JTAG and Serial Wire");
    bool externalCode = false, internalCodeEnabled = true;
    bool externalData = false;
    bool initialise = false;
    bool codeSizeEnabled = true, dataSizeEnabled = true, initialiseEnabled = true;
    bool pathEnabled = false;
    // Lists are 0..last; selections -1 for none.
    int codeLast, dataLast, code, data;

    Page(const QString &deviceName, QVariantMap &map)
        : device(deviceName)
        , sizes(sizesOf(deviceName))
        , small(deviceName.startsWith(QLatin1String("TV1KL-5")))
    {
        codeLast = dataLast = sizes.full;
        code = data = sizes.fallback;
        open(map);
    }

    void chooseInterrupts(int count)
    {
        if (count == interrupts)
            return;
        if (interrupts >= 16 || count >= 16)
            externalInterruptsEnabled = count >= 16;
        interrupts = count;
    }

    void chooseCode(bool external)
    {
        if (external == externalCode)
            return;
        externalCode = external;
        codeSizeEnabled = initialiseEnabled = !external;
        pathEnabled = initialise && !external;
        balance();
    }

    void chooseData(bool external)
    {
        if (external == externalData)
            return;
        externalData = external;
        dataSizeEnabled = !external;
        balance();
    }

    void chooseInitialise(bool on) { initialise = pathEnabled = on; }

    void chooseCodeSize(int index) { choose(code, codeLast, index); }
    void chooseDataSize(int index) { choose(data, dataLast, index); }

    bool shownExternalInterrupts() const { return externalInterruptsEnabled && externalInterrupts; }

    // "<name> <direction>" in order.
    QStringList pins() const
    {
        QStringList list = {QStringLiteral("HCLK 0"), QStringLiteral("hwRstn 0"),
                            QStringLiteral("LOCKUP 1")};
        if (debug) {
            list << QStringLiteral("HALTED 1") << QStringLiteral("JTAG_7 2")
                 << QStringLiteral("JTAG_9 2");
            if (port.startsWith(QLatin1String("JTAG"))) {
                for (int number : {3, 4, 5, 6, 8, 10, 11, 12, 13, 14, 15, 16, 17, 18})
                    list << QStringLiteral("JTAG_%1 2").arg(number);
            }
        }
        if (shownExternalInterrupts())
            list << QStringLiteral("EXTINT[3:0] 0");
        const auto memory = [&list](const QString &prefix) {
            for (const char *name :
                 {"HRDATA[31:0] 0", "HREADYOUT 0", "HRESP[1:0] 0", "HTRANS[1:0] 1", "HBURST[2:0] 1",
                  "HPROT[3:0] 1", "HSIZE[2:0] 1", "HWRITE 1", "HREADYMUX 1", "HMASTER[3:0] 1",
                  "HMASTLOCK 1", "HADDR[31:0] 1", "HWDATA[31:0] 1", "HSEL 1", "HCLK 1", "HRESET 1"})
                list << prefix + QString::fromLatin1(name);
        };
        if (externalCode)
            memory(QStringLiteral("EXTFLASH0"));
        if (externalData)
            memory(QStringLiteral("EXTSRAM0"));
        return list;
    }

    // All but the path.
    void store(QVariantMap &map) const
    {
        const auto put = [&map](const char *key, const QVariant &value) {
            map.insert(QString::fromLatin1(key), value);
        };
        put("Number of Interrupts", interrupts);
        put("OS Extension", os);
        put("Small Multiplier", smallMultiplier);
        put("Big Endian", bigEndian);
        put("External Interrupts", shownExternalInterrupts());
        put("Enable Debug", debug);
        put("Debug Port Select", port);
        put("Small Debug", smallDebug);
        put("Internal_Instruction_Memory", !externalCode);
        put("External_Instruction_Memory", externalCode);
        put("ITCM_Size", code);
        put("Initialize ITCM", initialise);
        put("Internal_Data_Memory", !externalData);
        put("External_Data_Memory", externalData);
        put("DTCM_Size", data);
    }

private:
    void open(QVariantMap &map)
    {
        const auto on = [&map](const char *key, bool byDefault) {
            return map.value(QString::fromLatin1(key), byDefault).toBool();
        };
        const auto number = [&map](const char *key, int byDefault) {
            return map.value(QString::fromLatin1(key), byDefault).toInt();
        };
        const int count = number("Number of Interrupts", small ? 1 : 32);
        chooseInterrupts(count == 1 || count == 16 || count == 32 ? count : 8);
        os = on("OS Extension", !small);
        smallMultiplier = on("Small Multiplier", small);
        bigEndian = on("Big Endian", false);
        externalInterrupts = on("External Interrupts", false);
        if (small)
            map.insert(QStringLiteral("Enable Debug"), false);
        debug = on("Enable Debug", true);
        port = map.value(QStringLiteral("Debug Port Select"), port).toString();
        if (port != QLatin1String("Serial Wire") && port != QLatin1String("JTAG and Serial Wire"))
            port = QStringLiteral("JTAG");
        smallDebug = on("Small Debug", false);
        if (small)
            internalCodeEnabled = on("Internal_Instruction_Memory", false);
        if (on("External_Instruction_Memory", small))
            chooseCode(true);
        chooseCodeSize(number("ITCM_Size", sizes.preset));
        chooseDataSize(number("DTCM_Size", sizes.preset));
        initialise = on("Initialize ITCM", false);
        if (on("External_Data_Memory", false))
            chooseData(true);
        pathEnabled = initialise;
        if (device == QLatin1String("TV1L-9"))
            debug = debugEnabled = false;
        if (device == QLatin1String("TV5KT-15A")) {
            chooseCode(true);
            internalCodeEnabled = false;
        }
    }

    void choose(int &selection, int last, int index)
    {
        const int wanted = index >= 0 && index <= last ? index : -1;
        if (wanted == selection)
            return;
        selection = wanted;
        balance();
    }

    // Selections as numbers: the full list's last entry is the largest size, and for a device
    // without sizes -1 is both "nothing selected" and "the largest".
    void balance()
    {
        const bool both = !externalCode && !externalData;
        settle(both && code == sizes.full, data, dataLast);
        settle(both && data == sizes.full, code, codeLast);
    }

    void settle(bool limited, int &selection, int &last)
    {
        last = limited ? sizes.reduced : sizes.full;
        if (selection > last || (limited && selection < 0))
            selection = limited ? last : -1;
    }
};

} // namespace CoreModel

#pragma once

#include "../generate/reference.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

// A second, deliberately plain statement of what is found in a configuration, to compare the
// program with: the findings as "error KEY: MESSAGE" or "warning KEY: MESSAGE", in their order.
namespace CheckReference
{

using Reference::in;
using Reference::key;
using TARVOORIXM1::OptionMap;

// Folders with files of the ITCM's contents, and how many bytes each of the four gives, one a line.
using Contents = QMap<QString, int>;

struct Kind {
    QString key;
    char type; // 'b', 'i' or 's'
    QStringList choices;
    int maximum; // of an int without choices, from 0; -1: none
};

// Every key in the order in which people read a configuration.
inline QVector<Kind> kinds()
{
    QVector<Kind> all;
    const auto bools = [&all](const char *names) {
        for (const QString &name : key(names).split(u'/'))
            all.append({name, 'b', {}, -1});
    };
    const auto one = [&all](const char *name, char type, const char *choices, int maximum) {
        const QString text = key(choices);
        all.append({key(name), type, text.isEmpty() ? QStringList() : text.split(u'|'), maximum});
    };
    one("Number of Interrupts", 'i', "1|8|16|32", -1);
    bools("OS Extension/Small Multiplier/Big Endian/External Interrupts/Enable Debug");
    one("Debug Port Select", 's', "JTAG|Serial Wire|JTAG and Serial Wire", -1);
    bools("Small Debug/Internal_Instruction_Memory/External_Instruction_Memory");
    one("ITCM_Size", 'i', "", 9);
    bools("Initialize ITCM");
    one("ITCM_Initialization_Path", 's', "", -1);
    one("ITCM_Initialization_AbsolutePath", 's', "", -1);
    bools("Internal_Data_Memory/External_Data_Memory");
    one("DTCM_Size", 'i', "", 9);
    bools("Enable GPIO/Enabel GPIO IO/Enable CAN");
    one("CAN_BUFFER_DEPTH", 's', "16|32|64|128|256|512|1024|2048|4096|8192|16384|32768|65536", -1);
    bools("Enable Ethernet");
    one("ETHERNET_INTERFACE", 's', "RGMII|GMII|MII|GMII/MII", -1);
    one("ETHERNET_INPUT_DELAY", 'i', "", 255);
    one("ETHERNET_CLOCK_DIVIDER", 'i', "", 255);
    bools("Enable SPI-Flash/Enable PSRAM/Enable DDR3");
    for (int port = 1; port <= 6; ++port)
        all.append({key("Enable_AHB_Master%1").arg(port), 'b', {}, -1});
    bools("Enable UART0/Enable UART1/Enable Timer0/Enable Timer1/Enable WatchDog/Enable RTC");
    bools("Enable I2C/Enable I2C IO/Enable SPI/Enable SDCARD/Enable TRNG/Enable DUALTIMER");
    for (int port = 1; port <= 16; ++port)
        all.append({key("Enable_APB_Master%1").arg(port), 'b', {}, -1});
    one("Synthesis_tool", 's', "TarvoSynthesis|Synplify Pro", -1);
    one("LANG", 'i', "0|1", -1);
    one("ip_device_id", 's', "", -1);
    one("ip_device", 's', "", -1);
    one("Prefix", 's', "", -1);
    return all;
}

// Words that are no prefix without their underscore either: as many as these tests draw.
inline bool isReserved(const QString &word)
{
    return in(word.toLower(), "int/module/entity/logic/class/std");
}

inline bool isPrefix(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("\\A([A-Za-z][A-Za-z0-9]*(_[A-Za-z0-9]+)*_)?\\z"));
    return form.match(text).hasMatch() && text.size() <= 32 &&
           !isReserved(text.left(text.size() - 1));
}

// A path with a colon in front is absolute as well: Qt's name for what is built into a program.
inline bool isAbsolutePath(const QString &path)
{
    return path.startsWith(u'/') || path.startsWith(u':');
}

inline bool isSmall(const QString &d)
{
    return in(d, "TV1KL-5A/TV1KL-5B");
}

inline bool isOf(const QString &d, const char *family, const char *size)
{
    return d.startsWith(key(family)) && d.contains(key(size));
}

// Index of the largest size of a memory.
inline int largestSize(const QString &d)
{
    if (isSmall(d))
        return 3;
    if (in(d, "TV1L-9/TV1LR-9/TV1L-9C/TV1LR-9C/TV2KL-9X/TV1KL-9A/TV2KL-18X"))
        return 5;
    if (in(d, "TV2K-55/TV2K-55C/TV2KL-55C/TV3K-50A") || isOf(d, "TV5K", "-75"))
        return 8;
    if (isOf(d, "TV5K", "-138"))
        return 9;
    return isOf(d, "TV5K", "-60") ? 7 : 6;
}

// Index of the largest size beside a memory that has the largest.
inline int sizeBesideLargest(const QString &d)
{
    if (isOf(d, "TV5K", "-75"))
        return 8;
    if (isOf(d, "TV5K", "-138"))
        return 7;
    if (isOf(d, "TV5K", "-60"))
        return 6;
    if (isOf(d, "TV5K", "-25") || in(d, "TV3K-20A/TV3KR-20A/TV3K-10A"))
        return 5;
    return isOf(d, "TV5K", "-15") ? 3 : 4;
}

inline bool hasDebug(const QString &d)
{
    return !isSmall(d) && !in(d, "TV1L-9/TV1LR-9");
}

inline bool hasDdr3(const QString &d)
{
    return !isSmall(d) && !in(d, "TV1L-9/TV1L-9C/TV1LR-9/TV1LR-9C") && !isOf(d, "TV5K", "-15");
}

inline bool hasPsram(const DEV::DeviceArg &device)
{
    const QString package = device.package();
    return (device.device() == key("TV2KR-18C") &&
            in(package, "QFN88P/QFN88PF/eLQFP144P/eLQFP144PF")) ||
           (device.device() == key("TV2KLR-18C") && package == key("QFN88"));
}

inline bool hasExternalInstructionsOnly(const QString &d)
{
    return isOf(d, "TV5K", "-15A");
}

inline QString sizeText(int index)
{
    return QString::number(1 << index) + key(" KB");
}

// Changed, left out or added letters on the way from one text to the other.
inline int distance(const QString &a, const QString &b)
{
    QVector<QVector<int>> d(a.size() + 1, QVector<int>(b.size() + 1));
    for (int i = 0; i <= a.size(); ++i) {
        for (int j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0)
                d[i][j] = i + j;
            else
                d[i][j] = std::min({d[i - 1][j] + 1, d[i][j - 1] + 1,
                                    d[i - 1][j - 1] + (a.at(i - 1) == b.at(j - 1) ? 0 : 1)});
        }
    }
    return d[a.size()][b.size()];
}

// The first of the keys that are nearest, if no more than a third of the text differs.
inline QString nearest(const QString &text)
{
    QString best;
    int least = text.size() / 3 + 1;
    for (const Kind &kind : kinds()) {
        const int d = distance(text.toLower(), kind.key.toLower());
        if (d < least) {
            least = d;
            best = kind.key;
        }
    }
    return best;
}

inline QString shortened(const QString &text)
{
    return text.size() > 60 ? text.left(60) + QChar(0x2026) : text;
}

// What stands for the sizes of an absent key once the core page has been loaded and closed: both
// boxes follow each other at every step.
struct SizeBoxes {
    int largest, beside;
    bool instructionsInside = true, dataInside = true;
    int instructions, data;
    int instructionsLast, dataLast; // of the lists

    explicit SizeBoxes(const QString &d)
        : largest(largestSize(d))
        , beside(sizeBesideLargest(d))
        , instructions(Reference::defaultSize(d))
        , data(instructions)
        , instructionsLast(largest)
        , dataLast(largest)
    {
    }

    void settle(int &box, int &last, int other)
    {
        const bool limited = instructionsInside && dataInside && other == largest;
        last = limited ? beside : largest;
        if (box > last)
            box = -1;
        if (limited && box < 0)
            box = last;
    }
    void balance()
    {
        settle(data, dataLast, instructions);
        settle(instructions, instructionsLast, data);
    }
    void choose(int &box, int last, int index)
    {
        const int before = box;
        box = index >= 0 && index <= last ? index : -1;
        if (box != before)
            balance();
    }
    void leave(bool &inside)
    {
        inside = false;
        balance();
    }
};

inline QString unsafe(const QString &text)
{
    for (const QChar c : text) {
        const ushort u = c.unicode();
        if (u == '"')
            return key("a quotation mark (\")");
        if (u == '\\')
            return key("a backslash (\\)");
        if (u == '`')
            return key("a backtick (`)");
        if (u == '\n' || u == '\r' || u == 0x85 || u == 0x2028 || u == 0x2029)
            return key("a line end");
        if (u < 32 && u != '\t')
            return key("a control character");
    }
    return {};
}

inline QStringList findings(const OptionMap &o, const DEV::DeviceArg &device,
                            const QString &createIn, const Contents &contents)
{
    const QString d = device.device();
    const bool known = !device.isNull();
    QStringList all;
    QStringList toldKeys;
    const auto tell = [&](const char *severity, const QString &name, const QString &message) {
        all.append(key(severity) + u' ' + name + key(": ") + message);
        toldKeys.append(name);
    };
    const auto error = [&](const char *name, const QString &message) {
        tell("error", key(name), message);
    };
    const auto warning = [&](const char *name, const QString &message) {
        tell("warning", key(name), message);
    };
    const auto on = [&o](const char *name, bool byDefault = false) {
        return Reference::on(o, name, byDefault);
    };
    const auto text = [&o](const char *name) { return o.value(key(name)).toString(); };
    const auto has = [&o](const char *name) { return o.contains(key(name)); };

    // Each entry by itself.
    int unknown = 0;
    for (auto it = o.cbegin(); it != o.cend(); ++it) {
        const QVector<Kind> table = kinds();
        const auto kind = std::find_if(table.begin(), table.end(),
                                       [&it](const Kind &row) { return row.key == it.key(); });
        if (it.key() == key("createin_path")) {
            warning("createin_path", key("is ignored: the folder of the file counts"));
            continue;
        }
        if (kind == table.end()) {
            const QString near = ++unknown > 100 ? QString() : nearest(it.key());
            tell("warning", it.key(),
                 near.isEmpty() ? key("unknown key")
                                : key("unknown key; the nearest known one is \"") + near + u'"');
            continue;
        }
        const bool isList = it.value().type() == QVariant::StringList;
        const QString value =
            isList ? it.value().toStringList().join(key(", ")) : it.value().toString();
        bool isTyped = !isList;
        QString plain = value;
        int number = 0;
        if (kind->type == 'b')
            isTyped = isTyped && in(value.toLower(), "true/false/1/0");
        if (kind->type == 'i') {
            bool isNumber = false;
            number = value.toInt(&isNumber);
            plain = QString::number(number);
            isTyped = isTyped && isNumber;
        }
        const QString quoted = u'"' + shortened(value) + u'"';
        if (!isTyped) {
            tell("error", it.key(),
                 quoted + key(" is no ") +
                     key(kind->type == 'b'   ? "bool"
                         : kind->type == 'i' ? "int"
                                             : "string"));
        } else if (!kind->choices.isEmpty() && !kind->choices.contains(plain)) {
            tell("error", it.key(),
                 quoted + key(" is out of its domain: one of ") + kind->choices.join(key(", ")));
        } else if (kind->key == key("Prefix") && !isPrefix(plain)) {
            tell("error", it.key(),
                 quoted + key(" is out of its domain: empty, or letters, digits and single "
                              "underscores, the first a letter, the last an underscore, at most "
                              "32, and no reserved word"));
        } else if (kind->maximum >= 0 && (number < 0 || number > kind->maximum)) {
            tell("error", it.key(),
                 quoted + key(" is out of its domain: 0 to ") + QString::number(kind->maximum));
        }
    }

    // Where the memories are.
    const auto places = [&](const char *internal, const char *external, const char *memory) {
        if (on(internal, true) && on(external))
            warning(external,
                    key("is ignored: the internal %1 memory is chosen as well").arg(key(memory)));
        if (!on(internal, true) && !on(external))
            warning(internal,
                    key("neither internal nor external %1 memory is chosen").arg(key(memory)));
    };
    places("Internal_Instruction_Memory", "External_Instruction_Memory", "instruction");
    places("Internal_Data_Memory", "External_Data_Memory", "data");

    // What the instruction memory begins with.
    const bool instructionsInside = on("Internal_Instruction_Memory", true);
    const bool initialises = on("Initialize ITCM");
    const QString path = text("ITCM_Initialization_Path");
    const QString absolute = text("ITCM_Initialization_AbsolutePath");
    if (initialises && !instructionsInside)
        warning("Initialize ITCM", key("is ignored: the instruction memory is not internal"));
    if (initialises && instructionsInside) {
        if (path.isEmpty())
            error("ITCM_Initialization_Path",
                  key("is empty although the ITCM is to be initialised"));
        else if (!QDir(QDir(createIn).absoluteFilePath(path)).exists())
            error("ITCM_Initialization_Path",
                  key("the folder \"") + path + key("\" does not exist"));
        const char *const name = "ITCM_Initialization_AbsolutePath";
        if (absolute.isEmpty()) {
            error(name, key("is empty, so that generation has no folder to name"));
        } else if (!QDir(absolute).exists()) {
            error(name, key("the folder \"") + absolute + key("\" does not exist"));
        } else if (!isAbsolutePath(absolute)) {
            warning(name, key("is not absolute"));
        } else if (known || has("ITCM_Size")) {
            int index =
                has("ITCM_Size") ? o.value(key("ITCM_Size")).toInt() : Reference::defaultSize(d);
            if (index < 0 || index > 9)
                index = 5;
            const int size = (1 << index) * 1024 / 4;
            const int given = contents.value(absolute);
            for (int lane = 0; lane < 4; ++lane) {
                const QString place = absolute + key("/itcm") + QString::number(lane);
                if (given > size)
                    error(name, key("%1:%2: the memory has %3 bytes; this is one too many")
                                    .arg(place, QString::number(size + 1), QString::number(size)));
                if (given < size)
                    error(name, key("%1:%2: %2 of the %3 bytes of this lane are given; the others, "
                                    "the first at address @%4, would be unknown: fill up with 00")
                                    .arg(place, QString::number(given), QString::number(size),
                                         QString::number(given, 16)));
            }
        }
    }

    const int interrupts =
        has("Number of Interrupts") ? o.value(key("Number of Interrupts")).toInt() : 32;
    if (on("External Interrupts") && interrupts < 16)
        warning("External Interrupts", key("needs 16 or 32 interrupts"));

    if (on("Enable CAN") && text("CAN_BUFFER_DEPTH").isEmpty())
        error("CAN_BUFFER_DEPTH",
              key("is not set although CAN is on: the generated parameter has no value"));

    const int delay = o.value(key("ETHERNET_INPUT_DELAY")).toInt();
    const bool isWide = d.startsWith(key("TV5K")) || d.startsWith(key("TV3K"));
    if (on("Enable Ethernet") && known && !isWide && delay >= 128 && delay <= 255)
        error("ETHERNET_INPUT_DELAY", key("is more than 127, the largest delay of ") + d);

    // What the device lacks.
    const int largest = largestSize(d);
    const int beside = sizeBesideLargest(d);
    if (known) {
        const auto lacks = [&](bool isOn, bool available, const char *name, const QString &what) {
            if (isOn && !available)
                error(name, d + key(" cannot have ") + what);
        };
        lacks(on("Enable PSRAM"), hasPsram(device), "Enable PSRAM",
              key("PSRAM in package ") + device.package());
        lacks(on("Enable DDR3"), hasDdr3(d), "Enable DDR3", key("DDR3"));
        lacks(on("Enable Ethernet"), !isSmall(d), "Enable Ethernet", key("Ethernet"));
        lacks(on("Enable CAN"), !isSmall(d), "Enable CAN", key("CAN"));
        lacks(on("Enable SPI-Flash"), !isSmall(d), "Enable SPI-Flash", key("SPI-Flash"));
        lacks(on("Enable Debug", true), hasDebug(d), "Enable Debug", key("debug"));
        if (instructionsInside && hasExternalInstructionsOnly(d))
            error("Internal_Instruction_Memory",
                  key("the instruction memory of ") + d + key(" is always external"));

        const auto isOther = [&](const char *name, const QString &target) {
            if (!text(name).isEmpty() && text(name) != target)
                warning(name, key("is \"") + text(name) + key("\", but the target device is \"") +
                                  target + u'"');
        };
        isOther("ip_device_id", device.id());
        isOther("ip_device", d);

        const auto size = [&](const char *name, bool inside) {
            const int index = has(name) ? o.value(key(name)).toInt() : Reference::defaultSize(d);
            if (!inside || index < 0 || index > 9)
                return -1;
            if (index <= largest)
                return index;
            error(name, sizeText(index) + key(" is more than ") + d + key(" has: at most ") +
                            sizeText(largest));
            return -1;
        };
        const int itcm = size("ITCM_Size", instructionsInside);
        const int dtcm = size("DTCM_Size", on("Internal_Data_Memory", true));
        const bool itcmTooLarge = dtcm == largest && itcm > beside;
        const bool dtcmTooLarge = itcm == largest && dtcm > beside;
        if (itcmTooLarge && dtcmTooLarge)
            error("DTCM_Size", key("both memories have the device's largest size, %1; one may have "
                                   "%2 at most then")
                                   .arg(sizeText(largest), sizeText(beside)));
        else if (itcmTooLarge || dtcmTooLarge)
            error(itcmTooLarge ? "ITCM_Size" : "DTCM_Size",
                  key("may be %1 at most while the other memory has %2")
                      .arg(sizeText(beside), sizeText(largest)));
    }

    // What no generated line can hold.
    const auto safe = [&](const char *name, const QString &generated) {
        if (!unsafe(generated).isEmpty())
            error(name, u'"' + shortened(generated).simplified() + key("\" holds ") +
                            unsafe(generated) + key(", which a generated line cannot hold"));
    };
    if (on("Enable CAN"))
        safe("CAN_BUFFER_DEPTH", text("CAN_BUFFER_DEPTH"));
    if (initialises && instructionsInside) {
        safe("ITCM_Initialization_AbsolutePath", absolute);
        safe("ITCM_Initialization_Path",
             isAbsolutePath(path) ? path : QFileInfo(createIn + u'/' + path).absoluteFilePath());
    }

    // Absent keys that a dialog would fill in otherwise than generation reads them. Where a key or
    // the other place of the same memory is in doubt already, that is enough.
    const auto absent = [&](const char *name, const QString &generated, const QString &shown,
                            const char *partner = "") {
        if (!has(name) && generated != shown && !toldKeys.contains(key(name)) &&
            !toldKeys.contains(key(partner)))
            warning(name, key("is not set: %1 is generated, but its dialog shows %2 and stores "
                              "that with OK")
                              .arg(generated, shown));
    };
    const QString yes = key("true");
    const QString no = key("false");
    const bool small = isSmall(d);
    if (known) {
        absent("Number of Interrupts", key("32"), small ? key("1") : key("32"));
        absent("OS Extension", yes, small ? no : yes);
        absent("Small Multiplier", no, small ? yes : no);
        absent("Enable Debug", yes, hasDebug(d) ? yes : no);
        const bool storedOutside = on("External_Instruction_Memory", small);
        const bool outside = storedOutside || hasExternalInstructionsOnly(d);
        absent("Internal_Instruction_Memory", yes, outside ? no : yes,
               "External_Instruction_Memory");
        absent("External_Instruction_Memory", no, outside ? yes : no,
               "Internal_Instruction_Memory");
        SizeBoxes boxes(d);
        const auto stored = [&](const char *name) {
            return has(name) ? o.value(key(name)).toInt() : Reference::defaultSize(d);
        };
        if (storedOutside)
            boxes.leave(boxes.instructionsInside);
        boxes.choose(boxes.instructions, boxes.instructionsLast, stored("ITCM_Size"));
        boxes.choose(boxes.data, boxes.dataLast, stored("DTCM_Size"));
        if (on("External_Data_Memory"))
            boxes.leave(boxes.dataInside);
        if (boxes.instructionsInside && outside)
            boxes.leave(boxes.instructionsInside);
        const QString preset = QString::number(Reference::defaultSize(d));
        absent("ITCM_Size", preset, QString::number(boxes.instructions));
        absent("Internal_Data_Memory", yes, on("External_Data_Memory") ? no : yes,
               "External_Data_Memory");
        absent("DTCM_Size", preset, QString::number(boxes.data));
    }
    if (on("Enable GPIO"))
        absent("Enabel GPIO IO", no, yes);
    if (on("Enable Ethernet")) {
        if (!has("ETHERNET_INTERFACE") || text("ETHERNET_INTERFACE") == key("RGMII"))
            absent("ETHERNET_INPUT_DELAY", key("0"), key("100"));
        absent("ETHERNET_CLOCK_DIVIDER", key("0"), key("20"));
    }
    if (on("Enable I2C"))
        absent("Enable I2C IO", no, yes);
    return all;
}

} // namespace CheckReference

#include "datasheetpictures.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "config/optionvalue.h"
#include "names.h"
#include "registers/registerdocs.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

using Document::Picture;

constexpr int margin = 12;
constexpr Letters label{12, true, false, Ink::Text};
constexpr Letters paleLabel{12, false, false, Ink::Soft};
constexpr Letters detail{11, false, false, Ink::Soft};
constexpr Letters fixedDetail{11, false, true, Ink::Soft};
constexpr Letters fixedName{12, true, true, Ink::Text};

Picture picture(const QString &file, const QString &text, const Drawing &drawing, int width,
                int height)
{
    return {file, text, drawing.svg(width, height), width, height};
}

Ink inkOf(RegionKind kind)
{
    switch (kind) {
    case RegionKind::TightlyCoupledMemory:
        return Ink::TightMemory;
    case RegionKind::ExternalMemory:
        return Ink::ExternalMemory;
    case RegionKind::MemoryDevice:
        return Ink::MemoryDevice;
    case RegionKind::ReadWindow:
        return Ink::Window;
    case RegionKind::Registers:
        return Ink::Registers;
    case RegionKind::BlackBox:
        return Ink::BlackBox;
    case RegionKind::ExtensionPort:
        return Ink::Port;
    }
    return Ink::Nothing;
}

// The blocks on their buses.
class BlockDrawing
{
public:
    explicit BlockDrawing(const SystemMap &map)
        : m_map(map)
        , m_drawing(QStringLiteral("Block diagram"))
    {
    }

    Picture draw()
    {
        drawCore();
        const int ahbBottom = drawBus(Bus::Ahb, coreBottom + 56);
        const int apbTop = ahbBottom + 36;
        // The bridge stands last on the AHB bus.
        m_drawing.line(m_bridge, m_bridgeBottom, m_bridge, apbTop);
        m_drawing.tip(m_bridge, apbTop, m_bridge, m_bridgeBottom);
        const int bottom = drawBus(Bus::Apb, apbTop) + 28;
        drawLegend(bottom);
        return picture(fileName(m_map, "_blocks.svg"_l1),
                       QStringLiteral("Block diagram: the processor, its memories and the blocks "
                                      "on the AHB and the APB bus"),
                       m_drawing, width, bottom + 12 + margin);
    }

private:
    struct Box {
        QStringList labels;
        QStringList details;
        Ink fill = Ink::Nothing;
        bool isOn = false;
        bool isBridge = false;
    };

    static constexpr int width = 820;
    static constexpr int perRow = 8;
    static constexpr int gap = 8;
    static constexpr int barHeight = 18;
    static constexpr int drop = 18;
    static constexpr int spine = 14; // room for what joins the bars of a bus
    static constexpr int boxWidth = (width - 2 * margin - spine - (perRow - 1) * gap) / perRow;
    static constexpr int labelHeight = 15;
    static constexpr int detailHeight = 14;
    static constexpr int coreLeft = 290;
    static constexpr int coreWidth = 240;
    static constexpr int coreTop = 52;
    static constexpr int coreBottom = 124;
    static constexpr int memoryWidth = 190;
    static constexpr int memoryTop = coreTop + 8;
    static constexpr int memoryHeight = 56;

    void drawCore()
    {
        const Processor &processor = m_map.processor;
        m_drawing.box(coreLeft, coreTop, coreWidth, coreBottom - coreTop, Ink::On);
        const int middle = coreLeft + coreWidth / 2;
        m_drawing.text(middle, coreTop + 28, QStringLiteral("Cortex-M1"),
                       {15, true, false, Ink::Text}, Anchor::Middle);
        m_drawing.text(middle, coreTop + 48,
                       processor.isBigEndian ? QStringLiteral("data big-endian (BE8)")
                                             : QStringLiteral("little-endian"),
                       detail, Anchor::Middle);
        m_drawing.text(middle, coreTop + 64,
                       processor.hasOsExtension ? QStringLiteral("with OS extension")
                                                : QStringLiteral("without OS extension"),
                       detail, Anchor::Middle);
        drawInput(coreLeft + 60, inputText(processor.interruptInputs),
                  processor.interruptInputs > 0);
        drawInput(coreLeft + coreWidth - 60, debugText(), processor.hasDebug);
        drawMemory(0x00000000, QStringLiteral("instruction memory"), margin);
        drawMemory(0x20000000, QStringLiteral("data memory"), width - margin - memoryWidth);
        m_drawing.line(middle, coreBottom, middle, coreBottom + 56);
        m_drawing.tip(middle, coreBottom + 56, middle, coreBottom);
        m_drawing.tip(middle, coreBottom, middle, coreBottom + 56);
        m_drawing.text(middle + 8, coreBottom + 32, QStringLiteral("AHB-Lite"), detail);
    }

    static QString inputText(int inputs)
    {
        if (inputs < 1)
            return QStringLiteral("no IRQ");
        return inputs == 1 ? QStringLiteral("IRQ[0]")
                           : "IRQ["_l1 + QString::number(inputs - 1) + ":0]"_l1;
    }

    QString debugText() const
    {
        const Processor &processor = m_map.processor;
        if (!processor.hasDebug)
            return QStringLiteral("no debug");
        if (processor.hasJtag && processor.hasSerialWire)
            return QStringLiteral("JTAG, Serial Wire");
        return processor.hasJtag ? QStringLiteral("JTAG") : QStringLiteral("Serial Wire");
    }

    void drawInput(int x, const QString &text, bool isOn)
    {
        m_drawing.line(x, 24, x, coreTop, Ink::Line, !isOn);
        m_drawing.tip(x, coreTop, x, 24);
        m_drawing.text(x, 19, text, detail, Anchor::Middle);
    }

    // What answers at the address stands beside the core: on it, or, outside, on the bus.
    void drawMemory(quint32 address, const QString &absent, int x)
    {
        const Region *region = regionAt(m_map, address);
        const bool isMemoryHere = region && isMemory(region->kind);
        m_drawing.box(x, memoryTop, memoryWidth, memoryHeight,
                      isMemoryHere ? inkOf(region->kind) : Ink::Nothing, Ink::Line, !isMemoryHere);
        const int middle = x + memoryWidth / 2;
        if (!isMemoryHere) {
            m_drawing.text(middle, memoryTop + 32, "no "_l1 + absent, paleLabel, Anchor::Middle);
            return;
        }
        const bool isTight = region->kind == RegionKind::TightlyCoupledMemory;
        m_drawing.text(middle, memoryTop + 24, region->name, label, Anchor::Middle);
        m_drawing.text(middle, memoryTop + 42,
                       isTight ? sizeText(region->size()) : QStringLiteral("outside, on AHB"),
                       detail, Anchor::Middle);
        if (isTight) {
            const bool isLeft = x < coreLeft;
            const int from = isLeft ? x + memoryWidth : coreLeft + coreWidth;
            const int to = isLeft ? coreLeft : x;
            const int y = memoryTop + memoryHeight / 2;
            m_drawing.line(from, y, to, y);
            m_drawing.tip(from, y, to, y);
            m_drawing.tip(to, y, from, y);
        } else {
            const int top = memoryTop + memoryHeight;
            m_drawing.line(middle, top, middle, coreBottom + 56);
            m_drawing.tip(middle, top, middle, coreBottom + 56);
        }
    }

    // Each line of boxes hangs from a bar of its own; the bars are one bus. Returns the bottom.
    int drawBus(Bus bus, int top)
    {
        const QVector<Box> boxes = boxesOf(bus);
        int y = top;
        for (int first = 0; first < boxes.size(); first += perRow) {
            const int count = std::min(perRow, boxes.size() - first);
            if (first > 0) {
                // The spine joins the bars.
                m_drawing.box(margin, top + barHeight, 6, y - top - barHeight, Ink::Bus, Ink::Bus);
            }
            m_drawing.box(margin, y, width - 2 * margin, barHeight, Ink::Bus, Ink::Bus);
            m_drawing.text(margin + 10, y + 13,
                           bus == Bus::Ahb ? QStringLiteral("AHB bus") : QStringLiteral("APB bus"),
                           {11, true, false, Ink::Page});
            int height = 0;
            for (int i = first; i < first + count; ++i)
                height = std::max(height, labelHeight * boxes.at(i).labels.size() +
                                              detailHeight * boxes.at(i).details.size() + 16);
            const int boxTop = y + barHeight + drop;
            for (int i = 0; i < count; ++i)
                drawBox(boxes.at(first + i), margin + spine + i * (boxWidth + gap), boxTop, height);
            y = boxTop + height + 14;
        }
        return y - 14;
    }

    void drawBox(const Box &box, int x, int y, int height)
    {
        const int middle = x + boxWidth / 2;
        m_drawing.line(middle, y - drop, middle, y, Ink::Line, !box.isOn);
        m_drawing.box(x, y, boxWidth, height, box.fill, Ink::Line, !box.isOn);
        int base = y + 18;
        for (const QString &line : box.labels) {
            m_drawing.text(middle, base, line, box.isOn ? label : paleLabel, Anchor::Middle);
            base += labelHeight;
        }
        for (const QString &line : box.details) {
            m_drawing.text(middle, base, line, line.startsWith("0x"_l1) ? fixedDetail : detail,
                           Anchor::Middle);
            base += detailHeight;
        }
        if (box.isBridge) {
            m_bridge = middle;
            m_bridgeBottom = y + height;
        }
    }

    QVector<Box> boxesOf(Bus bus) const
    {
        QVector<Box> boxes;
        for (const Block &block : blocks()) {
            for (int i = 0; block.bus == bus && i < int(std::size(block.boxes)); ++i) {
                if (block.boxes[i].label.size() > 0)
                    boxes.append(boxOf(block, i));
            }
        }
        if (bus == Bus::Ahb) {
            Box bridge;
            bridge.labels = wrapped(QStringLiteral("AHB to APB"), label, boxWidth - 8);
            bridge.details = QStringList{QStringLiteral("bridge")};
            bridge.fill = Ink::On;
            bridge.isOn = true;
            bridge.isBridge = true;
            boxes.append(bridge);
        }
        // What is there with the bus has no switch of its own.
        for (const Region &region : m_map.regions) {
            if (bus != Bus::Apb || region.option != anyApbPeripheral)
                continue;
            Box box;
            box.labels = wrapped(region.name, label, boxWidth - 8);
            box.details = QStringList{hexAddress(region.base)};
            box.fill = inkOf(region.kind);
            box.isOn = true;
            boxes.append(box);
        }
        return boxes;
    }

    Box boxOf(const Block &block, int index) const
    {
        Box box;
        box.labels = wrapped(block.boxes[index].label, label, boxWidth - 8);
        QVector<int> ports;
        const Region *region = nullptr;
        for (int i = 0; i < block.switches.size(); ++i) {
            const SwitchRow &entry = block.switches[i];
            if ((!block.hasPorts() && i != index) || !isOn(m_map.options, entry.key()))
                continue;
            box.isOn = true;
            ports.append(entry.port);
            if (!region)
                region = regionOf(entry.key());
        }
        if (region)
            box.fill = inkOf(region->kind);
        if (!box.isOn)
            box.details = QStringList{QStringLiteral("off")};
        else if (block.hasPorts())
            box.details = wrapped("on: "_l1 + rangesText(ports), detail, boxWidth - 8);
        else if (region)
            box.details = QStringList{hexAddress(region->base)};
        if (region && isBlackBox(*region))
            box.details.append(QStringLiteral("black box"));
        return box;
    }

    bool isBlackBox(const Region &region) const
    {
        return region.kind == RegionKind::BlackBox ||
               std::any_of(
                   m_map.blackBoxes.begin(), m_map.blackBoxes.end(),
                   [&region](const BlackBox &entry) { return entry.region == region.name; });
    }

    // The registers of the option, or else whatever it switches on.
    const Region *regionOf(const QString &option) const
    {
        const Region *found = nullptr;
        for (const Region &region : m_map.regions) {
            if (region.option == option && (!found || region.kind == RegionKind::Registers))
                found = &region;
        }
        return found;
    }

    void drawLegend(int y)
    {
        m_drawing.box(margin, y, 24, 12, Ink::On);
        m_drawing.text(margin + 32, y + 10, QStringLiteral("in this configuration"), detail);
        m_drawing.box(margin + 220, y, 24, 12, Ink::Nothing, Ink::Line, true);
        m_drawing.text(margin + 252, y + 10, QStringLiteral("not in this configuration"), detail);
    }

    const SystemMap &m_map;
    Drawing m_drawing;
    int m_bridge = 0; // its middle
    int m_bridgeBottom = 0;
};

// How many lines a column of a picture has before a second one begins, so that it fits a page.
constexpr int longestColumn = 30;

// Of an ARMv6-M processor.
constexpr int mostInputs = 32;

// The height of each of the columns in lines.
int columnHeight(int lines)
{
    return lines > longestColumn ? (lines + 1) / 2 : lines;
}

} // namespace

QString shortKindName(RegionKind kind)
{
    switch (kind) {
    case RegionKind::TightlyCoupledMemory:
        return QStringLiteral("TCM");
    case RegionKind::ExternalMemory:
        return QStringLiteral("memory port");
    case RegionKind::MemoryDevice:
        return QStringLiteral("memory device");
    case RegionKind::ReadWindow:
        return QStringLiteral("read window");
    case RegionKind::Registers:
        return QStringLiteral("registers");
    case RegionKind::BlackBox:
        return QStringLiteral("black box");
    case RegionKind::ExtensionPort:
        return QStringLiteral("extension port");
    }
    return {};
}

QString sizeText(quint64 bytes)
{
    struct Unit {
        int bits;
        QLatin1String name;
    };
    constexpr Unit units[] = {{30, " GB"_l1}, {20, " MB"_l1}, {10, " KB"_l1}};
    for (const Unit &unit : units) {
        const quint64 size = quint64(1) << unit.bits;
        if (bytes >= size && bytes % size == 0)
            return QString::number(bytes >> unit.bits) + unit.name;
    }
    return QString::number(bytes) + " bytes"_l1;
}

QString rangesText(const QVector<int> &numbers)
{
    QStringList texts;
    for (int i = 0; i < numbers.size();) {
        int last = i;
        while (last + 1 < numbers.size() && numbers.at(last + 1) == numbers.at(last) + 1)
            ++last;
        QString text = QString::number(numbers.at(i));
        if (last > i)
            text += u'-' + QString::number(numbers.at(last));
        texts.append(text);
        i = last + 1;
    }
    return texts.join(", "_l1);
}

Picture blockPicture(const SystemMap &map)
{
    return BlockDrawing(map).draw();
}

PlacedPicture memoryPicture(const SystemMap &map, const PictureStyle &style)
{
    struct Line {
        quint32 base;
        quint64 size;
        QString name; // empty: nothing answers
        QString kind;
        Ink ink;
        bool isRegion = false;
    };
    QVector<Line> lines;
    for (const Region &region : map.regions)
        lines.append({region.base, region.size(), region.name, shortKindName(region.kind),
                      inkOf(region.kind), true});
    lines.append({ownRegistersBase, quint64(ownRegistersLast) - ownRegistersBase + 1,
                  QStringLiteral("Cortex-M1"), QStringLiteral("its own"), Ink::On});
    std::sort(lines.begin(), lines.end(),
              [](const Line &one, const Line &other) { return one.base < other.base; });
    quint64 next = 0;
    const auto addGap = [&](int index, quint64 end) {
        if (end > next)
            lines.insert(index, {quint32(next), end - next, {}, {}, Ink::Nothing});
        return end > next;
    };
    for (int i = 0; i < lines.size(); ++i) {
        if (addGap(i, lines.at(i).base))
            ++i;
        next = lines.at(i).base + lines.at(i).size;
    }
    addGap(lines.size(), quint64(1) << 32);

    int nameWidth = textWidth(QStringLiteral("error response"), detail);
    int kindWidth = 0;
    int sizeWidth = 0;
    for (const Line &line : qAsConst(lines)) {
        sizeWidth = std::max(sizeWidth, textWidth(sizeText(line.size), detail));
        nameWidth = std::max(nameWidth, textWidth(line.name, fixedName));
        kindWidth = std::max(kindWidth, textWidth(line.kind, detail));
    }
    constexpr int lineHeight = 26;
    constexpr int inset = 8;
    const int addressWidth = textWidth(hexAddress(0), fixedDetail);
    const int boxWidth = nameWidth + kindWidth + 3 * inset;
    const int columnWidth = addressWidth + inset + boxWidth + inset + sizeWidth;
    const int rows = style.isOneColumn ? lines.size() : columnHeight(lines.size());
    const int columns = lines.size() > rows ? 2 : 1;
    QVector<Place> places;
    Drawing drawing(QStringLiteral("Memory map"), style.paper);
    for (int i = 0; i < lines.size(); ++i) {
        const Line &line = lines.at(i);
        const int x = margin + (i / rows) * (columnWidth + 24);
        const int y = margin + (i % rows) * lineHeight;
        const int boxLeft = x + addressWidth + inset;
        drawing.text(x, y + 17, hexAddress(line.base), fixedDetail);
        if (!line.name.isEmpty()) {
            const QRect box(boxLeft, y + 1, boxWidth, lineHeight - 2);
            drawing.box(box.x(), box.y(), box.width(), box.height(), line.ink);
            if (line.isRegion)
                places.append({line.name, box});
            drawing.text(boxLeft + inset, y + 17, line.name, fixedName);
            drawing.text(boxLeft + boxWidth - inset, y + 17, line.kind,
                         {11, false, false, Ink::Text}, Anchor::End);
        } else {
            drawing.box(boxLeft, y + 1, boxWidth, lineHeight - 2, Ink::Nothing, Ink::Line, true);
            drawing.text(boxLeft + inset, y + 17, QStringLiteral("error response"), detail);
        }
        drawing.text(boxLeft + boxWidth + inset, y + 17, sizeText(line.size), detail);
    }
    const int lastX = margin + (columns - 1) * (columnWidth + 24);
    const int lastY = margin + (lines.size() - (columns - 1) * rows) * lineHeight;
    drawing.text(lastX, lastY + 17, hexAddress(0xFFFFFFFF), fixedDetail);
    drawing.text(lastX + addressWidth + 2 * inset, lastY + 17, QStringLiteral("the last address"),
                 detail);
    return {picture(fileName(map, "_memory.svg"_l1),
                    QStringLiteral("Memory map: what answers at each address, in order; sizes are "
                                   "not to scale"),
                    drawing, 2 * margin + columns * columnWidth + (columns - 1) * 24,
                    margin + (rows + 1) * lineHeight + margin),
            places};
}

PlacedPicture interruptPicture(const SystemMap &map, const PictureStyle &style)
{
    // A number that no processor has would be a picture that nobody can look at.
    const int inputs = std::min(map.processor.interruptInputs, mostInputs);
    QVector<int> numbers{InterruptLine::nonMaskable};
    for (int i = 0; i < inputs; ++i)
        numbers.append(i);
    QString longest = QStringLiteral("not connected");
    int nameWidth = textWidth(longest, detail);
    for (const InterruptLine &line : map.interrupts) {
        nameWidth = std::max(nameWidth, textWidth(line.name, fixedName));
        if (!numbers.contains(line.number))
            numbers.append(line.number);
    }
    std::sort(numbers.begin(), numbers.end());
    constexpr int lineHeight = 26;
    constexpr int arrow = 74;
    constexpr int input = 46;
    const int boxWidth = nameWidth + 16;
    const int columnWidth = boxWidth + arrow + input;
    const int total = numbers.size();
    const int rows = total > 18 && !style.isOneColumn ? (total + 1) / 2 : total;
    const int columns = total > rows ? 2 : 1;
    constexpr int top = margin + 22;
    QVector<Place> places;
    Drawing drawing(QStringLiteral("Interrupts"), style.paper);
    for (int column = 0; column < columns; ++column) {
        const int x = margin + column * (columnWidth + 36);
        drawing.text(x, margin + 10, QStringLiteral("requested by"), detail);
        drawing.text(x + columnWidth, margin + 10, QStringLiteral("Cortex-M1"), label, Anchor::End);
    }
    for (int i = 0; i < total; ++i) {
        const int number = numbers.at(i);
        const int x = margin + (i / rows) * (columnWidth + 36);
        const int y = top + (i % rows) * lineHeight;
        const int middle = y + lineHeight / 2;
        const int inputLeft = x + boxWidth + arrow;
        const auto line =
            std::find_if(map.interrupts.begin(), map.interrupts.end(),
                         [number](const InterruptLine &entry) { return entry.number == number; });
        const bool isUsed = line != map.interrupts.end();
        const bool isLost = isUsed && !line->lost.isEmpty();
        const bool exists = number < inputs;
        if (exists)
            drawing.box(inputLeft, y, input, lineHeight, isUsed ? Ink::On : Ink::Nothing);
        else
            drawing.box(inputLeft, y, input, lineHeight, Ink::Nothing, Ink::Line, true);
        drawing.text(inputLeft + input / 2, y + 17,
                     number == InterruptLine::nonMaskable ? QStringLiteral("NMI")
                                                          : QString::number(number),
                     isUsed && exists ? fixedName : fixedDetail, Anchor::Middle);
        if (!isUsed) {
            drawing.text(x + 8, y + 17, QStringLiteral("not connected"), detail);
            continue;
        }
        const QRect box(x, y + 2, boxWidth, lineHeight - 4);
        drawing.box(box.x(), box.y(), box.width(), box.height(), Ink::Registers,
                    isLost ? Ink::Lost : Ink::Line);
        places.append({line->name, box});
        drawing.text(x + 8, y + 17, line->name, fixedName);
        const int boxRight = x + boxWidth;
        if (isLost) {
            const int cross = boxRight + 24;
            drawing.line(boxRight, middle, cross, middle, Ink::Lost);
            drawing.line(cross - 5, middle - 5, cross + 5, middle + 5, Ink::Lost);
            drawing.line(cross - 5, middle + 5, cross + 5, middle - 5, Ink::Lost);
            drawing.text(cross + 12, y + 17, QStringLiteral("lost"), {11, true, false, Ink::Lost});
        } else {
            drawing.line(boxRight, middle, inputLeft - 8, middle);
            drawing.tip(inputLeft, middle, boxRight, middle);
        }
    }
    return {picture(fileName(map, "_interrupts.svg"_l1),
                    QStringLiteral("Interrupt map: what requests at each input of the processor, "
                                   "and what is lost"),
                    drawing, 2 * margin + columns * columnWidth + (columns - 1) * 36,
                    top + rows * lineHeight + margin),
            places};
}

} // namespace TARVOORIXM1

// The pictures whose places lead into the datasheet.

#include "handedon.h"

#include <drawnoptions.h>

#include <export/datasheet.h>
#include <export/datasheetpictures.h>
#include <export/maps.h>
#include <registers/registerdocs.h>
#include <system/facts.h>

#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

using namespace TARVOORIXM1;

namespace
{

constexpr int draws = 100;

struct Headline {
    int level;
    QString text;
};

QVector<Headline> headlinesOf(const QByteArray &html)
{
    QVector<Headline> headlines;
    QXmlStreamReader xml(html);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString tag = xml.name().toString();
        if (tag.size() == 2 && tag.at(0) == u'h' && tag.at(1).isDigit())
            headlines.append({tag.at(1).digitValue(), xml.readElementText()});
    }
    return headlines;
}

// Whether each heading stands below the one before.
bool leads(const QVector<Headline> &headlines, const QStringList &headings)
{
    int found = 0;
    int level = 0; // of the last one found
    for (const Headline &headline : headlines) {
        if (found > 0 && headline.level <= level)
            return false;
        if (headline.text != headings.value(found))
            continue;
        level = headline.level;
        if (++found == headings.size())
            return true;
    }
    return false;
}

// The texts of a drawing with the points that they begin or end at.
QVector<QPair<QPoint, QString>> textsOf(const QByteArray &svg)
{
    QVector<QPair<QPoint, QString>> texts;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("text"))
            continue;
        const QPoint place(xml.attributes().value(QLatin1String("x")).toInt(),
                           xml.attributes().value(QLatin1String("y")).toInt());
        texts.append({place, xml.readElementText()});
    }
    return texts;
}

qreal contrast(const QString &one, const QString &other)
{
    const auto luminance = [](const QString &colour) {
        qreal result = 0.05;
        const qreal weights[] = {0.2126, 0.7152, 0.0722};
        for (int i = 0; i < 3; ++i) {
            const qreal value = colour.midRef(1 + 2 * i, 2).toInt(nullptr, 16) / 255.0;
            result += weights[i] *
                      (value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4));
        }
        return result;
    };
    const qreal a = luminance(one);
    const qreal b = luminance(other);
    return std::max(a, b) / std::min(a, b);
}

// The first text of a drawing that cannot be read on the box below it, or edge that is not seen on
// the page; empty if there is none. Counts what it has judged.
QString unseenIn(const QByteArray &svg, int *texts, int *edges)
{
    struct Box {
        QRect place;
        QString fill;
    };
    QVector<Box> boxes;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes all = xml.attributes();
        const auto number = [&all](const char *name) {
            return all.value(QLatin1String(name)).toInt();
        };
        const QString fill = all.value(QLatin1String("fill")).toString();
        const QString stroke = all.value(QLatin1String("stroke")).toString();
        if (xml.name() == QLatin1String("rect")) {
            if (stroke.startsWith(u'#')) {
                ++*edges;
                if (contrast(stroke, boxes.constFirst().fill) < 3)
                    return stroke;
            }
            if (fill.startsWith(u'#'))
                boxes.append({{number("x"), number("y"), number("width"), number("height")}, fill});
        } else if (xml.name() == QLatin1String("text")) {
            ++*texts;
            const QPoint place(number("x"), number("y") - 3);
            const auto below =
                std::find_if(boxes.crbegin(), boxes.crend(),
                             [&place](const Box &box) { return box.place.contains(place); });
            const QString text = xml.readElementText();
            if (below == boxes.crend() || contrast(fill, below->fill) < 4.5)
                return text + u' ' + fill;
        }
    }
    return {};
}

} // namespace

class tst_Maps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void hasADoorForEachRegionAndEachInterrupt();
    void doorsSayWhatTheConfigurationIsShownAs();
    void doorsLeadToHeadingsOfTheDatasheet();
    void doorsStandOnTheirNamesAndNotOnEachOther();
    void namesWhereADoorLeads_data();
    void namesWhereADoorLeads();
    void isTheDatasheetsPictureWhereThatHasOneColumn();
    void isTheSameInLightAndDarkButForColours();
    void everyTextCanBeReadOnItsBox();

private:
    // Calls `judge` for many configurations of any kind; false once it is.
    bool forMany(const std::function<bool(const SystemMap &)> &judge) const
    {
        const QVector<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices().toVector();
        TestSupport::Random random(20260);
        for (int i = 0; i < draws; ++i) {
            const DEV::DeviceArg device = devices.at(TestSupport::below(devices.size(), random));
            const SystemMap map =
                systemMap(TestSupport::drawnOptions(device, random), device, m_description);
            if (!judge(map))
                return false;
        }
        for (const auto &[phrase, options] : HandedOn::configurations()) {
            if (!judge(systemMap(options, HandedOn::device(), m_description))) {
                qWarning("%s", qPrintable(phrase));
                return false;
            }
        }
        return true;
    }
    static DoorPicture memory(const SystemMap &map) { return doorPictures(map).at(0); }
    static DoorPicture interrupts(const SystemMap &map) { return doorPictures(map).at(1); }

    SystemDescription m_description;
};

void tst_Maps::initTestCase()
{
    const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(description, qPrintable(description.reason()));
    m_description = *description;
}

void tst_Maps::hasADoorForEachRegionAndEachInterrupt()
{
    int regions = 0;
    int lines = 0;
    QVERIFY(forMany([&](const SystemMap &map) {
        QStringList expected;
        for (const Region &region : map.regions)
            expected.append(region.name);
        QStringList found;
        for (const Door &door : memory(map).doors)
            found.append(door.text.section(QLatin1String(", "), 0, 0));
        if (found != expected)
            return false;
        regions += found.size();
        expected.clear();
        for (const InterruptLine &line : map.interrupts)
            expected.append(line.name);
        found.clear();
        for (const Door &door : interrupts(map).doors)
            found.append(door.text.section(QLatin1String(", "), 0, 0));
        lines += found.size();
        return found == expected;
    }));
    QVERIFY(regions > draws && lines > draws);
}

// The addresses and numbers are those that the facts of the configuration tell.
void tst_Maps::doorsSayWhatTheConfigurationIsShownAs()
{
    QVERIFY(forMany([&](const SystemMap &map) {
        const auto detail = [](const Fact &fact, const char *name) {
            for (const auto &[key, value] : fact.details) {
                if (key == QLatin1String(name))
                    return value;
            }
            return QString();
        };
        int told = 0;
        const QVector<FactGroup> groups = factsOf(map);
        const DoorPicture addresses = memory(map);
        const DoorPicture inputs = interrupts(map);
        for (const FactGroup &group : groups) {
            for (int i = 0; i < group.facts.size(); ++i) {
                const Fact &fact = group.facts.at(i);
                if (group.id == QLatin1String("regions")) {
                    ++told;
                    if (!addresses.doors.at(i).text.startsWith(
                            fact.name + QLatin1String(", ") + detail(fact, "base") +
                            QLatin1String(" to ") + detail(fact, "last") + u','))
                        return false;
                } else if (group.id == QLatin1String("interrupts")) {
                    ++told;
                    const QString number = detail(fact, "number");
                    if (!inputs.doors.at(i).text.startsWith(
                            fact.name + QLatin1String(", ") +
                            (number == QLatin1String("NMI")
                                 ? number
                                 : QLatin1String("interrupt ") + number) +
                            u','))
                        return false;
                }
            }
        }
        return told == addresses.doors.size() + inputs.doors.size();
    }));
}

void tst_Maps::doorsLeadToHeadingsOfTheDatasheet()
{
    QVERIFY(forMany([&](const SystemMap &map) {
        const QVector<Headline> headlines = headlinesOf(datasheetHtml(map, DatasheetStyle::Screen));
        for (const DoorPicture &picture : doorPictures(map)) {
            for (const Door &door : picture.doors) {
                if (door.headings.isEmpty() || !leads(headlines, door.headings)) {
                    qWarning("%s: %s", qPrintable(door.text), qPrintable(door.headings.join(u'/')));
                    return false;
                }
            }
        }
        return true;
    }));
    // The page is one of those that are handed on.
    bool isThere = false;
    const SystemMap map = systemMap({}, {}, m_description);
    for (const ExportedFile &file : datasheetFiles(map))
        isThere = isThere || file.path == datasheetPage(map);
    QVERIFY(isThere);
}

void tst_Maps::doorsStandOnTheirNamesAndNotOnEachOther()
{
    QVERIFY(forMany([&](const SystemMap &map) {
        for (const DoorPicture &picture : doorPictures(map)) {
            const QRect whole(0, 0, picture.picture.width, picture.picture.height);
            const auto texts = textsOf(picture.picture.svg);
            for (int i = 0; i < picture.doors.size(); ++i) {
                const Door &door = picture.doors.at(i);
                if (door.box.isEmpty() || !whole.contains(door.box))
                    return false;
                for (int k = 0; k < i; ++k) {
                    if (door.box.intersects(picture.doors.at(k).box))
                        return false;
                }
                const QString name = door.text.section(QLatin1String(", "), 0, 0);
                if (std::none_of(texts.begin(), texts.end(), [&](const auto &text) {
                        return text.second == name && door.box.contains(text.first);
                    }))
                    return false;
            }
        }
        return true;
    }));
}

void tst_Maps::namesWhereADoorLeads_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("headings");
    const auto row = [](const char *phrase, const char *name, const char *text,
                        const QStringList &headings) {
        QTest::newRow(phrase) << QString::fromLatin1(name) << QString::fromLatin1(text) << headings;
    };
    const QString registers = QStringLiteral("Registers");
    row("a block with registers", "UART1", "UART1, 0x50005000 to 0x50005FFF, opens its registers",
        {registers, QStringLiteral("UART")});
    row("the window beside a block", "SPIFLASH_WINDOW",
        "SPIFLASH_WINDOW, 0x68000000 to 0x68FFFFFF, opens its registers",
        {registers, QStringLiteral("SPIFLASH")});
    row("a black box", "CAN", "CAN, 0x41000000 to 0x41FFFFFF, opens the black boxes",
        {QStringLiteral("Black boxes")});
    row("a memory inside", "DTCM", "DTCM, 0x20000000 to 0x20007FFF, opens the memory map",
        {QStringLiteral("Memory map")});
    row("an extension port", "APB3", "APB3, 0x60200000 to 0x602FFFFF, opens its ports",
        {QStringLiteral("Ports"), QStringLiteral("APB Master [1-16], bus APB3")});
    row("an interrupt of a port", "EXTINT2", "EXTINT2, interrupt 14, opens its ports",
        {QStringLiteral("Ports"), QStringLiteral("Cortex-M1")});
}

void tst_Maps::namesWhereADoorLeads()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QStringList, headings);
    const OptionMap everything = HandedOn::configurations().at(1).second;
    const SystemMap map = systemMap(everything, HandedOn::device(), m_description);
    for (const DoorPicture &picture : doorPictures(map)) {
        for (const Door &door : picture.doors) {
            if (door.text.section(QLatin1String(", "), 0, 0) != name)
                continue;
            QCOMPARE(door.text, text);
            QCOMPARE(door.headings, headings);
            return;
        }
    }
    QFAIL("There is no such door.");
}

void tst_Maps::isTheDatasheetsPictureWhereThatHasOneColumn()
{
    const SystemMap map = systemMap({}, HandedOn::device(), m_description);
    const QVector<ExportedFile> files = datasheetFiles(map);
    for (const ExportedFile &file : files) {
        if (file.path.endsWith(QLatin1String("_memory.svg")))
            QCOMPARE(memory(map).picture.svg, file.bytes);
    }
    QVERIFY(memory(map).picture.svg.size() > 1000);
}

void tst_Maps::isTheSameInLightAndDarkButForColours()
{
    QVERIFY(forMany([&](const SystemMap &map) {
        for (const DoorPicture &picture : doorPictures(map)) {
            if (textsOf(picture.picture.svg) != textsOf(picture.dark) ||
                picture.dark.contains("fill=\"#ffffff\"") || picture.dark.contains("<style"))
                return false;
        }
        return true;
    }));
}

// In light and dark: texts differ enough from the box that they stand on, boxes' edges from the
// page (contrasts of WCAG 2).
void tst_Maps::everyTextCanBeReadOnItsBox()
{
    int texts = 0;
    int edges = 0;
    QVERIFY(forMany([&](const SystemMap &map) {
        for (const DoorPicture &picture : doorPictures(map)) {
            for (const QByteArray &svg : {picture.picture.svg, picture.dark}) {
                const QString unseen = unseenIn(svg, &texts, &edges);
                if (!unseen.isEmpty()) {
                    qWarning("%s", qPrintable(unseen));
                    return false;
                }
            }
        }
        return true;
    }));
    QVERIFY(texts > 1000 && edges > 1000);
}

TARVO_TEST_MAIN(QCoreApplication, tst_Maps)
#include "tst_maps.moc"

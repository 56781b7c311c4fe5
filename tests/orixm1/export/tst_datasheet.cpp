// The datasheet, as readers of Markdown, HTML and SVG find it.

#include "handedon.h"

#include <export/datasheet.h>
#include <export/drawing.h>
#include <registers/registerdocs.h>

#include <QXmlStreamReader>

using namespace TARVOORIXM1;

namespace
{

// Tables as rows of cells, the head first, by the chapter in which they stand.
struct Table {
    QString chapter; // the last heading of level 2
    QVector<QStringList> rows;
};

QString mistakeOf(const QXmlStreamReader &xml)
{
    return xml.hasError()
               ? QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString())
               : QString();
}

// Of a page, or of a part of one, that is well-formed.
QVector<Table> tablesIn(const QByteArray &html, QString *mistake)
{
    QVector<Table> tables;
    QString chapter;
    QXmlStreamReader xml(html);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto element = xml.name();
        const auto text = [&xml] {
            return xml.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
        };
        if (element == QLatin1String("h2"))
            chapter = text();
        else if (element == QLatin1String("table"))
            tables.append({chapter, {}});
        else if (element == QLatin1String("tr"))
            tables.last().rows.append(QStringList());
        else if (element == QLatin1String("td") || element == QLatin1String("th"))
            tables.last().rows.last().append(text());
    }
    *mistake = mistakeOf(xml);
    return tables;
}

// All rows of a chapter's tables without their heads.
QVector<QStringList> rowsOf(const QVector<Table> &tables, const char *chapter)
{
    QVector<QStringList> rows;
    for (const Table &table : tables) {
        if (table.chapter == QLatin1String(chapter))
            rows += table.rows.mid(1);
    }
    return rows;
}

QStringList column(const QVector<QStringList> &rows, int index)
{
    QStringList cells;
    for (const QStringList &row : rows)
        cells.append(row.value(index));
    return cells;
}

QByteArray fileOf(const QVector<ExportedFile> &files, const char *path)
{
    for (const ExportedFile &file : files) {
        if (file.path == QLatin1String(path))
            return file.bytes;
    }
    return {};
}

QVector<ExportedFile> datasheetOf(const SystemMap &map)
{
    return findFormat(QStringLiteral("datasheet"))->files(map);
}

} // namespace

class tst_Datasheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isAcceptedWithoutAWord_data() { HandedOn::addConfigurations(); }
    void isAcceptedWithoutAWord();
    void saysTheSameInBothForms_data() { HandedOn::addConfigurations(); }
    void saysTheSameInBothForms();
    void holdsEverythingOfTheMap_data() { HandedOn::addConfigurations(); }
    void holdsEverythingOfTheMap();
    void picturesHoldEverythingOfTheMap_data() { HandedOn::addConfigurations(); }
    void picturesHoldEverythingOfTheMap();
    void textsOfPicturesFit_data() { HandedOn::addConfigurations(); }
    void textsOfPicturesFit();
    void tellsPortsClocksAndBlackBoxes();
    void tellsWhatReadingAndWritingDo();
    void tellsResourcesOfARun();
    void tellsTheCapacityWithoutARun();
    void showsAnyTextAsItIs_data();
    void showsAnyTextAsItIs();
    void showsTextsOfADataFolderAsTheyAre();
    void pageNeedsNoOtherFile();
    void printedPageNamesThePictures();
    void breaksLongTextsIntoLines();
    void takesNumbersThatNoProcessorHas();

private:
    SystemMap map(const OptionMap &options) const
    {
        return systemMap(options, HandedOn::device(), m_description);
    }
    // The tables of the Markdown file, as its reader makes them.
    QVector<Table> tablesOfMarkdown(const SystemMap &map) const
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("sheet.md"));
        TestSupport::write(path, fileOf(datasheetOf(map), "datasheet/tarvo_orix_m1.md"));
        const QString html =
            HandedOn::said(QStringLiteral("cmark-gfm"),
                           {QStringLiteral("--extension"), QStringLiteral("table"), path});
        QString mistake;
        const QVector<Table> tables = tablesIn("<page>" + html.toUtf8() + "</page>", &mistake);
        if (!mistake.isEmpty())
            qWarning("%s", qPrintable(mistake));
        return mistake.isEmpty() ? tables : QVector<Table>();
    }

    SystemDescription m_description;
};

void tst_Datasheet::initTestCase()
{
    const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(description, qPrintable(description.reason()));
    m_description = *description;
}

void tst_Datasheet::isAcceptedWithoutAWord()
{
    QFETCH(OptionMap, options);
    const SystemMap made = map(options);
    const QTemporaryDir folder;
    QVector<ExportedFile> files = datasheetOf(made);
    files.append(
        {QStringLiteral("datasheet/printed.html"), datasheetHtml(made, DatasheetStyle::Printed)});
    QCOMPARE(files.size(), 6);
    QVERIFY(HandedOn::writeFiles(files, folder.path()));
    for (const ExportedFile &file : qAsConst(files)) {
        const QString path = folder.filePath(file.path);
        QStringList xml{QStringLiteral("--nonet"), QStringLiteral("--noout"), path};
        if (!path.endsWith(QLatin1String(".md")))
            QCOMPARE(HandedOn::said(QStringLiteral("xmllint"), xml), QString());
        xml.prepend(QStringLiteral("--html"));
        if (path.endsWith(QLatin1String(".html")))
            QCOMPARE(HandedOn::said(QStringLiteral("xmllint"), xml), QString());
        QVERIFY(!file.bytes.contains('\r') && file.bytes.endsWith('\n'));
    }
}

void tst_Datasheet::saysTheSameInBothForms()
{
    QFETCH(OptionMap, options);
    const SystemMap made = map(options);
    const QVector<Table> markdown = tablesOfMarkdown(made);
    for (const DatasheetStyle style : {DatasheetStyle::Screen, DatasheetStyle::Printed}) {
        QString mistake;
        const QVector<Table> html = tablesIn(datasheetHtml(made, style), &mistake);
        QCOMPARE(mistake, QString());
        QVERIFY(html.size() >= 3);
        QCOMPARE(markdown.size(), html.size());
        for (int i = 0; i < html.size(); ++i) {
            QCOMPARE(markdown.at(i).chapter, html.at(i).chapter);
            QCOMPARE(markdown.at(i).rows, html.at(i).rows);
        }
    }
    QCOMPARE(fileOf(datasheetOf(made), "datasheet/tarvo_orix_m1.html"),
             datasheetHtml(made, DatasheetStyle::Screen));
}

void tst_Datasheet::holdsEverythingOfTheMap()
{
    QFETCH(OptionMap, options);
    const SystemMap made = map(options);
    const QVector<Table> tables = tablesOfMarkdown(made);

    QStringList found;
    for (const QStringList &row : rowsOf(tables, "Memory map"))
        found.append(row.value(0) + u' ' + row.value(1) + u' ' + row.value(3) + u' ' +
                     row.value(4));
    QStringList expected;
    for (const Region &region : made.regions)
        expected.append(hexAddress(region.base) + u' ' + hexAddress(region.last) + u' ' +
                        region.name + u' ' + regionKindName(region.kind));
    QCOMPARE(found, expected);

    found.clear();
    for (const QStringList &row : rowsOf(tables, "Interrupts"))
        found.append(row.value(0) + u' ' + row.value(1) + u' ' + row.value(3));
    expected.clear();
    for (const InterruptLine &line : made.interrupts)
        expected.append(
            (line.number < 0 ? QStringLiteral("NMI") : QString::number(line.number)) + u' ' +
            line.name + u' ' +
            (line.lost.isEmpty() ? QStringLiteral("yes") : QLatin1String("no: ") + line.lost));
    QCOMPARE(found, expected);

    found = column(rowsOf(tables, "Ports"), 0);
    expected.clear();
    for (const Port &port : made.ports)
        expected.append(
            port.isVector()
                ? QStringLiteral("%1[%2:%3]").arg(port.name).arg(port.left).arg(port.right)
                : port.name);
    // By blocks here, in the module's order there.
    std::sort(found.begin(), found.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(found, expected);

    expected.clear();
    for (const auto &sources : {made.clocks, made.resets}) {
        for (const ExternalSource &source : sources)
            expected.append(source.port);
    }
    QCOMPARE(column(rowsOf(tables, "Clocks and resets"), 0), expected);

    expected.clear();
    for (const BlackBox &box : made.blackBoxes)
        expected.append(box.module);
    QCOMPARE(column(rowsOf(tables, "Black boxes"), 0), expected);

    found.clear();
    for (const QStringList &row : rowsOf(tables, "Registers"))
        found.append(row.mid(0, 4).join(u' ').simplified());
    expected.clear();
    for (const Peripheral &peripheral : made.peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances)
            expected.append(
                instance.name + u' ' + hexAddress(instance.base) + u' ' + peripheral.bus + u' ' +
                (instance.maskedInterrupt.isEmpty()
                     ? instance.interrupt.isEmpty() ? QStringLiteral("none") : instance.interrupt
                     : QLatin1String("none: ") + instance.maskedInterrupt));
        QStringList values;
        for (const Register &entry : peripheral.registers) {
            expected.append(QStringLiteral("0x%1 ")
                                .arg(entry.offset, 2, 16, QLatin1Char('0'))
                                .toUpper()
                                .replace(u'X', u'x') +
                            entry.name);
            for (const RegisterField &field : entry.fields) {
                expected.append((field.high == field.low
                                     ? QString::number(field.low)
                                     : QStringLiteral("%1:%2").arg(field.high).arg(field.low)) +
                                u' ' + field.name);
            }
        }
        const auto addValues = [&values](const QString &place, const QVector<FieldValue> &named) {
            for (const FieldValue &value : named) {
                const QString number =
                    value.value < 10
                        ? QString::number(value.value)
                        : QLatin1String("0x") + QString::number(value.value, 16).toUpper();
                const QStringList row{place, number, value.name, value.text};
                values.append(row.join(u' ').simplified());
            }
        };
        for (const Register &entry : peripheral.registers) {
            addValues(entry.name, entry.words);
            for (const RegisterField &field : entry.fields)
                addValues(entry.name + u'.' + field.name, field.values);
        }
        expected += values;
    }
    QCOMPARE(found, expected);
}

void tst_Datasheet::picturesHoldEverythingOfTheMap()
{
    QFETCH(OptionMap, options);
    const SystemMap made = map(options);
    const QVector<ExportedFile> files = datasheetOf(made);
    const auto texts = [&files](const char *path) {
        QStringList found;
        QXmlStreamReader xml(fileOf(files, path));
        while (!xml.atEnd()) {
            if (xml.readNext() == QXmlStreamReader::StartElement &&
                xml.name() == QLatin1String("text"))
                found.append(xml.readElementText());
        }
        return found;
    };

    QStringList memory = texts("datasheet/tarvo_orix_m1_memory.svg");
    QStringList expected;
    // Whether reading gives an error response changes where a region begins or ends.
    QMap<quint32, QString> begins{{0, QStringLiteral("error response")},
                                  {0xE0000000, QStringLiteral("Cortex-M1")}};
    for (const Region &region : made.regions)
        begins.insert(region.base, region.name);
    for (const Region &region : made.regions) {
        if (!regionAt(made, region.last + 1))
            begins.insert(region.last + 1, QStringLiteral("error response"));
    }
    begins.insert(0xE0100000, QStringLiteral("error response"));
    for (auto it = begins.begin(); it != begins.end(); ++it) {
        QCOMPARE(it.value() == QLatin1String("error response"),
                 isRefused(made, it.key(), BusAccess::Read));
        expected << hexAddress(it.key()) << it.value();
    }
    expected << hexAddress(0xFFFFFFFF);
    // Kinds and sizes stand between them.
    int at = 0;
    for (const QString &text : qAsConst(memory)) {
        if (at < expected.size() && text == expected.at(at))
            ++at;
    }
    QVERIFY2(at == expected.size(), qPrintable(expected.value(at)));
    QCOMPARE(memory.count(QStringLiteral("error response")),
             expected.count(QStringLiteral("error response")));

    const QStringList interrupts = texts("datasheet/tarvo_orix_m1_interrupts.svg");
    int lost = 0;
    for (const InterruptLine &line : made.interrupts) {
        QCOMPARE(interrupts.count(line.name), 1);
        lost += !line.lost.isEmpty();
    }
    QCOMPARE(interrupts.count(QStringLiteral("lost")), lost);
    QCOMPARE(interrupts.count(QStringLiteral("NMI")), 1);
    for (int i = 0; i < made.processor.interruptInputs; ++i)
        QCOMPARE(interrupts.count(QString::number(i)), 1);

    const QStringList blocks = texts("datasheet/tarvo_orix_m1_blocks.svg");
    for (const Region &region : made.regions) {
        if (region.kind == RegionKind::Registers || region.kind == RegionKind::BlackBox)
            QVERIFY2(blocks.contains(hexAddress(region.base)), qPrintable(region.name));
        if (region.base == 0 || region.base == 0x20000000)
            QVERIFY2(blocks.contains(region.name), qPrintable(region.name));
    }
    QVERIFY(blocks.contains(QStringLiteral("GPIO")) && blocks.contains(QStringLiteral("SD-Card")));
    for (const bool bigEndian : {false, true})
        QCOMPARE(blocks.contains(bigEndian ? QStringLiteral("data big-endian (BE8)")
                                           : QStringLiteral("little-endian")),
                 made.processor.isBigEndian == bigEndian);
}

// No text leaves its picture, and none overlaps another.
void tst_Datasheet::textsOfPicturesFit()
{
    QFETCH(OptionMap, options);
    SystemMap made = map(options);
    Region region;
    region.name = QStringLiteral("A_REGION_WITH_A_NAME_THAT_IS_MUCH_LONGER_THAN_ANY_OTHER");
    region.base = 0xF0000000;
    region.last = 0xFFFFFFFF;
    region.kind = RegionKind::ExternalMemory;
    made.regions.append(region);
    made.interrupts.append({region.name, 40, region.name, QStringLiteral("no input")});
    const QVector<ExportedFile> files = datasheetOf(made);
    for (const ExportedFile &file : files) {
        if (!file.path.endsWith(QLatin1String(".svg")))
            continue;
        QVector<QRect> places;
        QRect page;
        QXmlStreamReader xml(file.bytes);
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            const QXmlStreamAttributes attributes = xml.attributes();
            const auto value = [&attributes](const char *name) {
                return attributes.value(QLatin1String(name)).toString();
            };
            if (xml.name() == QLatin1String("svg"))
                page = QRect(0, 0, value("width").toInt(), value("height").toInt());
            if (xml.name() != QLatin1String("text"))
                continue;
            Letters letters;
            letters.size = value("font-size").toInt();
            letters.isBold = !value("font-weight").isEmpty();
            letters.isFixed = !value("font-family").isEmpty();
            const int x = value("x").toInt();
            const int y = value("y").toInt();
            const QString anchor = value("text-anchor");
            const QString text = xml.readElementText();
            const int width = textWidth(text, letters);
            const int left = anchor == QLatin1String("end")      ? x - width
                             : anchor == QLatin1String("middle") ? x - width / 2
                                                                 : x;
            const QRect place(left, y - letters.size * 3 / 4, width, letters.size);
            QVERIFY2(page.contains(place), qPrintable(file.path + u' ' + text));
            for (const QRect &other : qAsConst(places))
                QVERIFY2(!place.intersects(other), qPrintable(file.path + u' ' + text));
            places.append(place);
        }
        QVERIFY(!places.isEmpty());
    }
}

void tst_Datasheet::tellsPortsClocksAndBlackBoxes()
{
    SystemMap made = map({});
    Port address;
    address.name = QStringLiteral("AHB1HADDR");
    address.left = 31;
    address.right = 0;
    address.direction = PortDirection::Output;
    address.role = PortRole::BusSignal;
    address.block = QStringLiteral("AHB Master [1-6]");
    address.bus = QStringLiteral("AHB1");
    address.signal = QStringLiteral("HADDR");
    address.clock = QStringLiteral("HCLK");
    Port card;
    card.name = QStringLiteral("CARD_N");
    card.role = PortRole::Peripheral;
    card.direction = PortDirection::Inout;
    card.block = QStringLiteral("SD-Card");
    card.isActiveLow = true;
    card.needsPullUp = true;
    card.text = QStringLiteral("a card is there");
    made.ports = {address, card};
    made.clocks = {{QStringLiteral("HCLK"), false, QStringLiteral("everything")}};
    made.resets = {{QStringLiteral("hwRstn"), true, QStringLiteral("asynchronous")}};
    made.blackBoxes = {{QStringLiteral("CortexM1Core"), QString(), QStringLiteral("the processor")},
                       {QStringLiteral("Memory"), QStringLiteral("ITCM"), QStringLiteral("a box")}};
    const QVector<Table> tables = tablesOfMarkdown(made);
    const auto row = [](const char *text) { return QString::fromLatin1(text).split(u'|'); };
    QCOMPARE(rowsOf(tables, "Ports"),
             QVector<QStringList>({row("AHB1HADDR[31:0]|output|32|||HCLK|bus|HADDR|"),
                                   row("CARD_N|inout|1|active low|needed||peripheral|a card is "
                                       "there")}));
    QCOMPARE(rowsOf(tables, "Clocks and resets"),
             QVector<QStringList>(
                 {row("HCLK|clock||everything"), row("hwRstn|reset|active low|asynchronous")}));
    QCOMPARE(rowsOf(tables, "Black boxes"),
             QVector<QStringList>(
                 {row("CortexM1Core||the processor"), row("Memory|ITCM 0x00000000|a box")}));
}

void tst_Datasheet::tellsWhatReadingAndWritingDo()
{
    SystemMap made = map({});
    RegisterField field;
    field.name = QStringLiteral("F");
    field.high = 7;
    field.reset = 0x2A;
    field.text = QStringLiteral("text");
    Register entry;
    entry.name = QStringLiteral("R");
    entry.offset = 0xAC;
    entry.changes = QStringList{QStringLiteral("S"), QStringLiteral("T")};
    const auto add = [&](ReadEffect read, WriteEffect write, RegisterAccess access) {
        field.readEffect = read;
        field.writeEffect = write;
        field.access = access;
        entry.fields.append(field);
    };
    add(ReadEffect::None, WriteEffect::Store, RegisterAccess::ReadWrite);
    add(ReadEffect::Clear, WriteEffect::Store, RegisterAccess::Read);
    add(ReadEffect::Set, WriteEffect::OneToSet, RegisterAccess::Separate);
    add(ReadEffect::Modify, WriteEffect::OneToClear, RegisterAccess::Write);
    add(ReadEffect::External, WriteEffect::OneToClear, RegisterAccess::WriteOneToClear);
    field.minimum = 4;
    field.hasReset = false;
    add(ReadEffect::None, WriteEffect::Store, RegisterAccess::ReadWrite);
    Peripheral peripheral;
    peripheral.name = QStringLiteral("P");
    peripheral.registers = {entry};
    made.peripherals = {peripheral};
    const QVector<QStringList> rows = rowsOf(tablesOfMarkdown(made), "Registers");
    QStringList found;
    for (const QStringList &row : rows)
        found.append(row.mid(4, 3).join(u'|'));
    QCOMPARE(found,
             QStringList({QStringLiteral("|0x0000002A|writing changes S, T"),
                          QStringLiteral("R/W|0x2A|"), QStringLiteral("R|0x2A|reading clears"),
                          QStringLiteral("R, W|0x2A|reading sets; ones set or start"),
                          QStringLiteral("W|0x2A|reading changes it; ones clear"),
                          QStringLiteral("R/W1C|0x2A|reading acts elsewhere"),
                          QStringLiteral("R/W|varies|at least 4")}));
}

void tst_Datasheet::tellsResourcesOfARun()
{
    SystemMap made = map({});
    made.resources = ResourceFigures{
        {{QStringLiteral("LUT4"), 1501, 3000}, {QStringLiteral("Tri-state drivers"), 7, -1}},
        QStringLiteral("Not counted: 1 CortexM1Core.")};
    QCOMPARE(rowsOf(tablesOfMarkdown(made), "Resources"),
             QVector<QStringList>({{QStringLiteral("LUT4"), QStringLiteral("1501"),
                                    QStringLiteral("3000"), QStringLiteral("51 %")},
                                   {QStringLiteral("Tri-state drivers"), QStringLiteral("7"),
                                    QStringLiteral("not known"), QStringLiteral("not known")}}));
    const QByteArray page = datasheetHtml(made, DatasheetStyle::Screen);
    QVERIFY(page.contains("<p>Not counted: 1 CortexM1Core.</p>"));
    QVERIFY(!page.contains("a run of synthesis tells"));
}

void tst_Datasheet::tellsTheCapacityWithoutARun()
{
    SystemMap made = map({});
    const DEV::DeviceResources total = made.device.resources();
    QVERIFY(total.lut4 > 0 && total.blockRam > 0);
    const QVector<QStringList> rows = rowsOf(tablesOfMarkdown(made), "Resources");
    QCOMPARE(column(rows, 1),
             QStringList(QVector<QString>(4, QStringLiteral("not known")).toList()));
    QCOMPARE(column(rows, 2),
             QStringList({QString::number(total.lut4), QString::number(total.flipFlops),
                          QString::number(total.carry), QString::number(total.blockRam)}));
    QVERIFY(datasheetHtml(made, DatasheetStyle::Screen).contains("a run of synthesis tells"));
}

void tst_Datasheet::showsAnyTextAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a script") << "<script>alert(1)</script>";
    QTest::newRow("columns") << "a | b || c \\| d \\\\| e |";
    QTest::newRow("emphasis") << "*a* _b_ **c** __d__ ~~e~~ x_y_z";
    QTest::newRow("code") << "`a` ``b ` c`` \\`";
    QTest::newRow("links") << "[a](b) ![c](d) <http://e.f> www.g.h https://i.j [k]: l";
    QTest::newRow("entities") << "&amp; &lt; & &copy; &#65;";
    QTest::newRow("a list") << "- a";
    QTest::newRow("another list") << "12. a";
    QTest::newRow("a heading") << "# a #";
    QTest::newRow("a line") << "---";
    QTest::newRow("a table's rule") << "|---|";
    QTest::newRow("a quotation") << "> \"a\" 'b'";
    QTest::newRow("backslashes") << "a\\b \\n C:\\dir\\";
    QTest::newRow("other languages") << QString::fromUtf8("µ – 漢字 😀 ñ");
    QTest::newRow("the end of a style") << "</style></td></tr></table>]]>-->";
}

void tst_Datasheet::showsAnyTextAsItIs()
{
    QFETCH(QString, text);
    SystemMap made = map({{Key::enableUart0, true}});
    Register &entry = made.peripherals[0].registers[0];
    entry.text = text;
    entry.fields[0].text = text;
    made.peripherals[0].text = text;
    made.peripherals[0].instances[0].text = text;
    made.regions[0].text = text;
    made.regions[0].name = text;
    made.interrupts[0].lost = text;
    made.interrupts[0].source = text;
    made.ports.append({text,
                       -1,
                       -1,
                       PortDirection::Input,
                       PortRole::Clock,
                       text,
                       text,
                       text,
                       false,
                       false,
                       false,
                       text,
                       text,
                       {}});
    made.clocks.append({text, false, text});
    made.blackBoxes.append({text, QString(), text});
    made.resources = ResourceFigures{{{text, 1, 2}}, text};
    made.device = DEV::DeviceArg(text, text, text, text, text, text);

    const QVector<Table> markdown = tablesOfMarkdown(made);
    QString mistake;
    const QByteArray page = datasheetHtml(made, DatasheetStyle::Screen);
    const QVector<Table> html = tablesIn(page, &mistake);
    QCOMPARE(mistake, QString());
    QCOMPARE(markdown.size(), html.size());
    for (int i = 0; i < html.size(); ++i)
        QCOMPARE(markdown.at(i).rows, html.at(i).rows);
    QVERIFY(!page.contains("<script"));

    const QString shown = text.simplified();
    QCOMPARE(rowsOf(html, "Memory map").value(0).last(), shown);
    QCOMPARE(rowsOf(html, "Memory map").value(0).value(3), shown);
    QCOMPARE(rowsOf(html, "Registers").value(0).last(), shown);
    QCOMPARE(rowsOf(html, "Registers").value(1).last(), shown);
    QCOMPARE(rowsOf(html, "Interrupts").value(0).value(2), shown);
    QCOMPARE(rowsOf(html, "Ports").last().value(0), shown);
    QCOMPARE(rowsOf(html, "Resources").value(0).value(0), shown);

    // Paragraphs: in Markdown the text begins a line.
    const QTemporaryDir folder;
    QVERIFY(HandedOn::writeFiles(datasheetOf(made), folder.path()));
    const QString rendered =
        HandedOn::said(QStringLiteral("cmark-gfm"),
                       {QStringLiteral("--extension"), QStringLiteral("table"),
                        folder.filePath(QStringLiteral("datasheet/tarvo_orix_m1.md"))});
    QString escaped = shown.toHtmlEscaped();
    QVERIFY2(rendered.contains(QLatin1String("<p>") + escaped + QLatin1String("</p>")),
             qPrintable(rendered.right(400)));
    QVERIFY(page.contains((QLatin1String("<p>") + escaped + QLatin1String("</p>")).toUtf8()));
    for (const char *name : {"blocks", "memory", "interrupts"})
        QCOMPARE(HandedOn::said(QStringLiteral("xmllint"),
                                {QStringLiteral("--noout"),
                                 folder.filePath(QStringLiteral("datasheet/tarvo_orix_m1_%1.svg")
                                                     .arg(QLatin1String(name)))}),
                 QString());
}

void tst_Datasheet::showsTextsOfADataFolderAsTheyAre()
{
    const QTemporaryDir folder;
    QByteArray file = TestSupport::contentsOf(QStringLiteral(TARVO_IP_DATA_DIR) +
                                              QStringLiteral("/registers/rtc.json"));
    const int at = file.indexOf("\"text\": \"") + 9;
    QVERIFY(at > 9);
    file.insert(at, "<script>1</script> a|b & _c_ ");
    QVERIFY(TestSupport::write(folder.filePath(QStringLiteral("registers/rtc.json")), file));
    const auto description = readSystemDescription(folder.path());
    QVERIFY2(description, qPrintable(description.reason()));
    const SystemMap made = systemMap({{Key::enableRtc, true}}, HandedOn::device(), *description);
    const QByteArray page = datasheetHtml(made, DatasheetStyle::Screen);
    QVERIFY(page.contains("&lt;script&gt;1&lt;/script&gt; a|b &amp; _c_ "));
    QVERIFY(!page.contains("<script"));
    QVERIFY(fileOf(datasheetOf(made), "datasheet/tarvo_orix_m1.md")
                .contains("\\<script\\>1\\</script\\> a\\|b \\& \\_c\\_ "));
}

void tst_Datasheet::pageNeedsNoOtherFile()
{
    const SystemMap made = map({{Key::enableGpio, true}});
    const QVector<ExportedFile> files = datasheetOf(made);
    QXmlStreamReader xml(fileOf(files, "datasheet/tarvo_orix_m1.html"));
    QVector<QByteArray> pictures;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        QVERIFY(xml.name() != QLatin1String("script") && xml.name() != QLatin1String("link"));
        if (xml.name() != QLatin1String("img"))
            continue;
        QByteArray source = xml.attributes().value(QLatin1String("src")).toLatin1();
        const QByteArray begin = "data:image/svg+xml;base64,";
        QVERIFY(source.startsWith(begin));
        pictures.append(QByteArray::fromBase64(source.mid(begin.size())));
        QVERIFY(!xml.attributes().value(QLatin1String("alt")).isEmpty());
    }
    QCOMPARE(mistakeOf(xml), QString());
    QCOMPARE(pictures,
             QVector<QByteArray>({fileOf(files, "datasheet/tarvo_orix_m1_blocks.svg"),
                                  fileOf(files, "datasheet/tarvo_orix_m1_memory.svg"),
                                  fileOf(files, "datasheet/tarvo_orix_m1_interrupts.svg")}));
    QVERIFY(!fileOf(files, "datasheet/tarvo_orix_m1.html").contains("url("));
}

void tst_Datasheet::printedPageNamesThePictures()
{
    SystemMap made = map({{Key::enableGpio, true}});
    // Wider than a page.
    made.regions.last().name = QString(90, u'A');
    const QVector<ExportedFile> files = datasheetOf(made);
    QXmlStreamReader xml(datasheetHtml(made, DatasheetStyle::Printed));
    QStringList names;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        QVERIFY(xml.name() != QLatin1String("style") && xml.name() != QLatin1String("svg"));
        if (xml.name() != QLatin1String("img"))
            continue;
        const int width = xml.attributes().value(QLatin1String("width")).toInt();
        QVERIFY(width > 0 && width <= 640);
        names.append(xml.attributes().value(QLatin1String("src")).toString());
    }
    QCOMPARE(mistakeOf(xml), QString());
    QCOMPARE(names.size(), 3);
    for (const QString &name : qAsConst(names))
        QVERIFY2(!fileOf(files, qPrintable(QLatin1String("datasheet/") + name)).isEmpty(),
                 qPrintable(name));
    // The Markdown file refers to the same ones.
    const QByteArray markdown = fileOf(files, "datasheet/tarvo_orix_m1.md");
    for (const QString &name : qAsConst(names))
        QVERIFY(markdown.contains("](" + name.toUtf8() + ")"));
}

void tst_Datasheet::breaksLongTextsIntoLines()
{
    const Letters letters;
    const int width = textWidth(QStringLiteral("one two"), letters);
    QCOMPARE(wrapped(QStringLiteral("one two three"), letters, width),
             QStringList({QStringLiteral("one two"), QStringLiteral("three")}));
    QCOMPARE(wrapped(QString(), letters, width), QStringList());
    const QStringList lines = wrapped(QString(40, u'm'), letters, width);
    QCOMPARE(lines.join(QString()), QString(40, u'm'));
    for (const QString &line : lines)
        QVERIFY(textWidth(line, letters) <= width);
}

void tst_Datasheet::takesNumbersThatNoProcessorHas()
{
    for (const int inputs : {-2147483647 - 1, -1, 0, 33, 2147483647}) {
        const SystemMap made =
            map({{Key::numberOfInterrupts, inputs}, {Key::externalInterrupts, true}});
        const QByteArray picture =
            fileOf(datasheetOf(made), "datasheet/tarvo_orix_m1_interrupts.svg");
        QXmlStreamReader xml(picture);
        while (!xml.atEnd())
            xml.readNext();
        QCOMPARE(mistakeOf(xml), QString());
        QVERIFY(picture.contains(">EXTINT3</text>"));
        QVERIFY(picture.size() < 40000);
    }
}

TARVO_TEST_MAIN(QCoreApplication, tst_Datasheet)
#include "tst_datasheet.moc"

// The component in IP-XACT, its bus definitions and the catalogue, in both editions: what a reader
// of such files looks up is there, and it says what the map says.

#include "handedon.h"
#include "xmltree.h"

#include <drawnoptions.h>

#include <export/ipxact.h>

#include <QDir>

using namespace TARVOORIXM1;

namespace
{

struct EditionRow {
    const char *name;
    const char *format;
    const char *folder;
    QVector<ExportedFile> (*files)(const SystemMap &map);
    const char *mirrored;
    const char *onTarget;
};

const EditionRow editions[] = {
    {"1685-2014", "ipxact", "ipxact/", ipxact2014Files, "mirroredSlave", "onSlave"},
    {"1685-2022", "ipxact-2022", "ipxact-2022/", ipxact2022Files, "mirroredTarget", "onTarget"},
};

QString vlnvOf(const XmlNode &node)
{
    const QStringList keys = {QStringLiteral("vendor"), QStringLiteral("library"),
                              QStringLiteral("name"), QStringLiteral("version")};
    QStringList parts;
    for (const QString &key : keys)
        parts.append(node.attributes.contains(key) ? node.attributes.value(key)
                                                   : node.textOf(key.toLatin1().constData()));
    return parts.join(u':');
}

quint64 numberOf(const QString &text)
{
    bool ok = false;
    const quint64 number = text.startsWith(QLatin1String("'h")) ? text.mid(2).toULongLong(&ok, 16)
                                                                : text.toULongLong(&ok);
    return ok ? number : ~quint64(0);
}

QStringList namesOf(const QVector<XmlNode> &nodes)
{
    QStringList names;
    for (const XmlNode &node : nodes)
        names.append(node.textOf("name"));
    return names;
}

bool areUnique(QStringList names)
{
    return names.removeDuplicates() == 0 && !names.contains(QString());
}

// The elements of this name right below.
QVector<XmlNode> below(const XmlNode &parent, const char *name)
{
    QVector<XmlNode> found;
    for (const XmlNode &node : parent.children) {
        if (node.name == QLatin1String(name))
            found.append(node);
    }
    return found;
}

QString rangeText(const XmlNode &node)
{
    return node.isNull() ? QString() : node.textOf("left") + u':' + node.textOf("right");
}

} // namespace

class tst_Ipxact : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
        QVERIFY2(description, qPrintable(description.reason()));
        m_description = *description;
    }
    void everyReferenceResolves_data() { addRows(); }
    void everyReferenceResolves();
    void everyPortIsThere_data() { addRows(); }
    void everyPortIsThere();
    void blocksAreTheRegionsOfTheMap_data() { addRows(); }
    void blocksAreTheRegionsOfTheMap();
    void everyRegisterIsThereWithItsFields_data() { addRows(); }
    void everyRegisterIsThereWithItsFields();
    void everyLineOfABusIsInItsInterface_data() { addRows(); }
    void everyLineOfABusIsInItsInterface();
    void everyInterruptThatArrivesIsTold_data() { addRows(); }
    void everyInterruptThatArrivesIsTold();
    void everyClockAndResetHasAnInterface_data() { addRows(); }
    void everyClockAndResetHasAnInterface();
    void editionsSayTheSame();
    void busDefinitionsAreTheSameForEveryConfiguration();
    void schemasTakeEachDocument_data() { addRows(); }
    void schemasTakeEachDocument();
    void schemasRefuseMistakes();

private:
    static void addRows()
    {
        QTest::addColumn<int>("edition");
        QTest::addColumn<OptionMap>("options");
        for (int i = 0; i < int(std::size(editions)); ++i) {
            for (const auto &[phrase, options] : HandedOn::configurations())
                QTest::addRow("%s, %s", editions[i].name, qPrintable(phrase)) << i << options;
            // By hand many: TARVO_DRAWS is their number.
            bool isNumber = false;
            const int given = qEnvironmentVariableIntValue("TARVO_DRAWS", &isNumber);
            for (int draw = 0; draw < (isNumber ? given : 2); ++draw) {
                TestSupport::Random random(1000003u + unsigned(draw));
                QTest::addRow("%s, random configuration %d", editions[i].name, draw)
                    << i << TestSupport::drawnOptions(HandedOn::device(), random);
            }
        }
    }
    SystemMap mapOf(const OptionMap &options) const
    {
        return systemMap(options, HandedOn::device(), m_description);
    }
    static XmlNode treeOf(const QVector<ExportedFile> &files, const QString &path)
    {
        for (const ExportedFile &file : files) {
            if (file.path == path)
                return xmlTree(file.bytes);
        }
        return {};
    }
    static XmlNode componentOf(const EditionRow &edition, const SystemMap &map)
    {
        return treeOf(edition.files(map),
                      QLatin1String(edition.folder) + QLatin1String("tarvo_orix_m1.xml"));
    }
    // Empty: not at hand.
    static QString schemaFolder(const EditionRow &edition)
    {
        const QString folder =
            qEnvironmentVariable("TARVO_SCHEMAS_DIR", QStringLiteral(TARVO_SCHEMAS_DIR));
        const QString own = folder + QLatin1String("/ieee-") + QLatin1String(edition.name);
        return !folder.isEmpty() && QDir(own).exists() ? own : QString();
    }

    SystemDescription m_description;
    QSet<QByteArray> m_taken; // by a schema
};

void tst_Ipxact::everyReferenceResolves()
{
    QFETCH(int, edition);
    QFETCH(OptionMap, options);
    const EditionRow &row = editions[edition];
    const SystemMap map = mapOf(options);
    const QVector<ExportedFile> files = row.files(map);
    QMap<QString, QString> fileOfVlnv; // of all documents
    QMap<QString, XmlNode> documents;
    for (const ExportedFile &file : files) {
        QVERIFY2(file.path.startsWith(QLatin1String(row.folder)), qPrintable(file.path));
        const XmlNode root = xmlTree(file.bytes);
        QVERIFY2(!root.isNull(), qPrintable(file.path));
        const QString vlnv = vlnvOf(root);
        QVERIFY2(!fileOfVlnv.contains(vlnv), qPrintable(vlnv));
        fileOfVlnv.insert(vlnv, file.path);
        documents.insert(vlnv, root);
    }

    // the catalogue: each of the other documents once, where it is
    const XmlNode catalog =
        treeOf(files, QLatin1String(row.folder) + QLatin1String("tarvo_orix_m1_catalog.xml"));
    QStringList listed;
    for (const XmlNode &entry : catalog.all("ipxactFile")) {
        const QString vlnv = vlnvOf(entry.child("vlnv"));
        listed.append(vlnv);
        QCOMPARE(QLatin1String(row.folder) + entry.textOf("name"), fileOfVlnv.value(vlnv));
    }
    listed.append(vlnvOf(catalog));
    listed.sort();
    QCOMPARE(listed, fileOfVlnv.keys());

    // names within the component
    const XmlNode component = componentOf(row, map);
    const QStringList ports = namesOf(component.child("model").child("ports").children);
    const QVector<XmlNode> interfaces = component.child("busInterfaces").children;
    const QStringList sets = namesOf(component.child("fileSets").children);
    const QStringList instantiations =
        namesOf(component.child("model").child("instantiations").children);
    const QStringList blocks =
        namesOf(component.named("memoryMap", "processor").all("addressBlock"));
    for (const QStringList &names :
         {ports, namesOf(interfaces), sets, instantiations, blocks,
          namesOf(component.child("model").child("views").children),
          namesOf(component.all("segment")), namesOf(component.all("region"))})
        QVERIFY2(areUnique(names), qPrintable(names.join(u' ')));
    for (const XmlNode &block : component.all("addressBlock"))
        QVERIFY(areUnique(namesOf(below(block, "register"))));
    for (const XmlNode &entry : component.all("register"))
        QVERIFY(areUnique(namesOf(below(entry, "field"))));
    for (const XmlNode &list : component.all("enumeratedValues"))
        QVERIFY(areUnique(namesOf(list.children)) && !list.children.isEmpty());

    // references to them
    for (const XmlNode &view : component.all("view"))
        QVERIFY(instantiations.contains(view.textOf("componentInstantiationRef")));
    for (const XmlNode &reference : component.all("fileSetRef"))
        QVERIFY(sets.contains(reference.textOf("localName")));
    const XmlNode processor = component.child("cpus").children.value(0);
    if (edition == 0) {
        const QString space =
            processor.child("addressSpaceRef").attributes.value(QStringLiteral("addressSpaceRef"));
        QVERIFY(!component.named("addressSpace", space).isNull());
    } else {
        QVERIFY(!component.named("memoryMap", processor.textOf("memoryMapRef")).isNull());
    }
    for (const XmlNode &interface : interfaces) {
        const XmlNode type = interface.child("abstractionTypes").children.value(0);
        const QString abstraction = vlnvOf(type.child("abstractionRef"));
        QVERIFY2(documents.contains(abstraction), qPrintable(abstraction));
        QCOMPARE(vlnvOf(documents.value(abstraction).child("busType")),
                 vlnvOf(interface.child("busType")));
        QVERIFY(documents.contains(vlnvOf(interface.child("busType"))));
        QStringList logical;
        for (const XmlNode &port : documents.value(abstraction).child("ports").children)
            logical.append(port.textOf("logicalName"));
        for (const XmlNode &entry : interface.all("portMap")) {
            QVERIFY(ports.contains(entry.child("physicalPort").textOf("name")));
            QVERIFY(logical.contains(entry.child("logicalPort").textOf("name")));
        }
    }

    // files of the sets, among what all formats give
    QStringList exported;
    for (const Format &format : formats()) {
        for (const ExportedFile &file : format.files(map))
            exported.append(file.path);
    }
    for (const XmlNode &file : component.all("file")) {
        const QString path = QDir::cleanPath(QLatin1String(row.folder) + file.textOf("name"));
        QVERIFY2(exported.contains(path), qPrintable(path));
    }
    QVERIFY(sets.contains(QStringLiteral("rtl")) && sets.contains(QStringLiteral("software")));
}

void tst_Ipxact::everyPortIsThere()
{
    QFETCH(int, edition);
    QFETCH(OptionMap, options);
    const SystemMap map = mapOf(options);
    QStringList expected;
    for (const Port &port : map.ports) {
        const char *direction = port.direction == PortDirection::Input    ? "in"
                                : port.direction == PortDirection::Output ? "out"
                                                                          : "inout";
        expected.append(QStringLiteral("%1 %2 %3")
                            .arg(port.name, QLatin1String(direction),
                                 port.isVector()
                                     ? QStringLiteral("%1:%2").arg(port.left).arg(port.right)
                                     : QString()));
    }
    QStringList found;
    const XmlNode component = componentOf(editions[edition], map);
    for (const XmlNode &port : component.child("model").child("ports").children) {
        const XmlNode wire = port.child("wire");
        found.append(QStringLiteral("%1 %2 %3")
                         .arg(port.textOf("name"), wire.textOf("direction"),
                              rangeText(wire.child("vectors").child("vector"))));
    }
    QCOMPARE(found, expected);
    for (const XmlNode &one : component.all("componentInstantiation"))
        QCOMPARE(one.textOf("moduleName"), QStringLiteral("Tarvo_ORIX_M1_Top"));
}

void tst_Ipxact::blocksAreTheRegionsOfTheMap()
{
    QFETCH(int, edition);
    QFETCH(OptionMap, options);
    const SystemMap map = mapOf(options);
    QStringList expected;
    for (const Region &region : map.regions)
        expected.append(
            QStringLiteral("%1 %2 %3").arg(region.name).arg(region.base).arg(region.size()));
    const XmlNode component = componentOf(editions[edition], map);
    const auto listed = [](const QVector<XmlNode> &nodes, const char *base) {
        QStringList list;
        for (const XmlNode &node : nodes)
            list.append(QStringLiteral("%1 %2 %3")
                            .arg(node.textOf("name"))
                            .arg(numberOf(node.textOf(base)))
                            .arg(numberOf(node.textOf("range"))));
        return list;
    };
    QCOMPARE(listed(component.all("addressBlock"), "baseAddress"), expected);
    QCOMPARE(listed(component.all(edition == 0 ? "segment" : "region"), "addressOffset"), expected);
    for (const XmlNode &space : component.all(edition == 0 ? "addressSpace" : "cpu"))
        QCOMPARE(numberOf(space.textOf("range")), quint64(1) << 32);
}

void tst_Ipxact::everyRegisterIsThereWithItsFields()
{
    QFETCH(int, edition);
    QFETCH(OptionMap, options);
    const SystemMap map = mapOf(options);
    const XmlNode component = componentOf(editions[edition], map);
    int registers = 0;
    for (const Peripheral &peripheral : map.peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            const XmlNode block = component.named("addressBlock", instance.name);
            const QVector<XmlNode> found = below(block, "register");
            QCOMPARE(found.size(), peripheral.registers.size());
            for (int i = 0; i < found.size(); ++i) {
                const Register &entry = peripheral.registers.at(i);
                QCOMPARE(found.at(i).textOf("name"), entry.name);
                QCOMPARE(numberOf(found.at(i).textOf("addressOffset")), quint64(entry.offset));
                const QVector<XmlNode> fields = below(found.at(i), "field");
                QCOMPARE(fields.size(), entry.fields.size());
                for (int k = 0; k < fields.size(); ++k) {
                    const RegisterField &field = entry.fields.at(k);
                    const XmlNode &node = fields.at(k);
                    QCOMPARE(node.textOf("name"), field.name);
                    QCOMPARE(numberOf(node.textOf("bitOffset")), quint64(field.low));
                    QCOMPARE(numberOf(node.textOf("bitWidth")), quint64(field.width()));
                    QCOMPARE(node.child("resets").isNull(), !field.hasReset);
                    if (field.hasReset)
                        QCOMPARE(numberOf(node.child("resets").child("reset").textOf("value")),
                                 quint64(field.reset));
                    QCOMPARE(node.all("enumeratedValue").size(), field.values.size());
                    const XmlNode policy =
                        edition == 0 ? node
                                     : node.child("fieldAccessPolicies").child("fieldAccessPolicy");
                    const QString access = policy.textOf("access");
                    switch (field.access) {
                    case RegisterAccess::Read:
                        QCOMPARE(access, QStringLiteral("read-only"));
                        break;
                    case RegisterAccess::Write:
                        QCOMPARE(access, QStringLiteral("write-only"));
                        break;
                    case RegisterAccess::WriteOneToClear:
                        QCOMPARE(policy.textOf("modifiedWriteValue"), QStringLiteral("oneToClear"));
                        Q_FALLTHROUGH();
                    case RegisterAccess::ReadWrite:
                        QCOMPARE(access, QStringLiteral("read-write"));
                        break;
                    case RegisterAccess::Separate:
                        QCOMPARE(access, entry.words.isEmpty() ? QStringLiteral("read-write")
                                                               : QStringLiteral("read-only"));
                        break;
                    }
                    QCOMPARE(policy.child("readAction").isNull(),
                             field.readEffect == ReadEffect::None);
                }
                ++registers;
            }
        }
    }
    QCOMPARE(component.all("register").size(), registers);
}

void tst_Ipxact::everyLineOfABusIsInItsInterface()
{
    QFETCH(int, edition);
    QFETCH(OptionMap, options);
    const EditionRow &row = editions[edition];
    const SystemMap map = mapOf(options);
    const QVector<ExportedFile> files = row.files(map);
    const XmlNode component = componentOf(row, map);
    QStringList mapped;
    for (const Region &region : map.regions) {
        QStringList expected;
        for (const Port &port : map.ports) {
            if (port.bus == region.name)
                expected.append(port.name);
        }
        if (expected.isEmpty())
            continue;
        const XmlNode interface = component.named("busInterface", region.name);
        QVERIFY2(!interface.isNull(), qPrintable(region.name));
        QCOMPARE(interface.child("busType").attributes.value(QStringLiteral("name")),
                 region.bus == QLatin1String("APB") ? QStringLiteral("apb")
                                                    : QStringLiteral("ahb_lite"));
        const XmlNode addresses = interface.child(row.mirrored).child("baseAddresses");
        QCOMPARE(numberOf(addresses.all("remapAddress").value(0).text), quint64(region.base));
        QCOMPARE(numberOf(addresses.textOf("range")), region.size());
        const XmlNode bus =
            treeOf(files, QLatin1String(row.folder) + QLatin1String("bus/") +
                              interface.child("busType").attributes.value(QStringLiteral("name")) +
                              QLatin1String("_rtl.xml"));
        QStringList logical;
        for (const XmlNode &entry : interface.all("portMap")) {
            const QString name = entry.child("physicalPort").textOf("name");
            mapped.append(name);
            QVERIFY2(expected.removeOne(name), qPrintable(name));
            logical.append(entry.child("logicalPort").textOf("name"));
            // The other way round than at the slave.
            XmlNode side;
            for (const XmlNode &port : bus.child("ports").children) {
                if (port.textOf("logicalName") == logical.last())
                    side = port.child("wire").child(row.onTarget);
            }
            const auto port = std::find_if(map.ports.begin(), map.ports.end(),
                                           [&name](const Port &p) { return p.name == name; });
            QCOMPARE(side.textOf("direction"), port->direction == PortDirection::Output
                                                   ? QStringLiteral("in")
                                                   : QStringLiteral("out"));
            if (!side.child("width").isNull())
                QCOMPARE(side.textOf("width").toInt(), port->width());
        }
        QCOMPARE(expected, QStringList());
        QVERIFY(areUnique(logical));
        // What a slave has to have is connected.
        for (const XmlNode &port : bus.child("ports").children) {
            if (port.child("wire").child(row.onTarget).textOf("presence") ==
                QLatin1String("required"))
                QVERIFY2(logical.contains(port.textOf("logicalName")),
                         qPrintable(port.textOf("logicalName")));
        }
    }
    for (const Port &port : map.ports)
        QCOMPARE(mapped.contains(port.name), !port.bus.isEmpty());
}

void tst_Ipxact::everyInterruptThatArrivesIsTold()
{
    QFETCH(int, edition);
    QFETCH(OptionMap, options);
    const SystemMap map = mapOf(options);
    const XmlNode component = componentOf(editions[edition], map);
    QStringList expected;
    for (const InterruptLine &line : map.interrupts) {
        if (!line.lost.isEmpty())
            continue;
        const bool isNmi = line.number == InterruptLine::nonMaskable;
        expected.append((isNmi ? QLatin1String("NMI_") : QLatin1String("IRQ_")) + line.name + u' ' +
                        QString::number(isNmi ? 1 : line.number));
    }
    QStringList found;
    for (const XmlNode &parameter : component.all("parameter"))
        found.append(parameter.textOf("name") + u' ' + parameter.textOf("value"));
    expected.sort();
    found.sort();
    QCOMPARE(found, expected);
}

void tst_Ipxact::everyClockAndResetHasAnInterface()
{
    QFETCH(int, edition);
    QFETCH(OptionMap, options);
    const SystemMap map = mapOf(options);
    const XmlNode component = componentOf(editions[edition], map);
    const auto ported = [&component](const char *bus) {
        QStringList ports;
        for (const XmlNode &interface : component.all("busInterface")) {
            if (interface.child("busType").attributes.value(QStringLiteral("name")) ==
                QLatin1String(bus))
                ports.append(interface.all("physicalPort").value(0).textOf("name"));
        }
        return ports;
    };
    QStringList clocks;
    for (const ExternalSource &source : map.clocks)
        clocks.append(source.port);
    QStringList resets;
    for (const ExternalSource &source : map.resets)
        resets.append(source.port);
    QCOMPARE(ported("clock"), clocks);
    QCOMPARE(ported("reset"), resets);
    int lines = 0;
    for (const Port &port : map.ports)
        lines += port.role == PortRole::Interrupt ? port.width() : 0;
    QCOMPARE(ported("interrupt").size(), lines);
}

void tst_Ipxact::editionsSayTheSame()
{
    for (const auto &[phrase, options] : HandedOn::configurations()) {
        const SystemMap map = mapOf(options);
        const XmlNode one = componentOf(editions[0], map);
        const XmlNode other = componentOf(editions[1], map);
        for (const char *element : {"busInterface", "port", "addressBlock", "register", "field",
                                    "enumeratedValue", "fileSet", "file", "view"}) {
            const auto texts = [element](const XmlNode &root) {
                QStringList list;
                for (const XmlNode &node : root.all(element))
                    list.append(node.textOf("name") + u' ' + node.textOf("description"));
                return list;
            };
            QCOMPARE(texts(other), texts(one));
        }
        for (const char *element : {"modifiedWriteValue", "readAction", "minimum", "maximum"})
            QCOMPARE(other.all(element).size(), one.all(element).size());
    }
}

void tst_Ipxact::busDefinitionsAreTheSameForEveryConfiguration()
{
    const auto buses = [](const QVector<ExportedFile> &files) {
        QMap<QString, QByteArray> found;
        for (const ExportedFile &file : files) {
            if (file.path.contains(QLatin1String("/bus/")))
                found.insert(file.path, file.bytes);
        }
        return found;
    };
    for (const EditionRow &row : editions) {
        const auto first = buses(row.files(mapOf({})));
        QCOMPARE(first.size(), 10);
        for (const auto &[phrase, options] : HandedOn::configurations())
            QVERIFY2(buses(row.files(mapOf(options))) == first, qPrintable(phrase));
    }
}

void tst_Ipxact::schemasTakeEachDocument()
{
    QFETCH(int, edition);
    QFETCH(OptionMap, options);
    const QString schemas = schemaFolder(editions[edition]);
    if (schemas.isEmpty())
        QSKIP("TARVO_SCHEMAS_DIR names no folder with the schemas of this edition");
    const QTemporaryDir dir;
    const QVector<ExportedFile> files = editions[edition].files(mapOf(options));
    QCOMPARE(files.size(), 12);
    QVERIFY(HandedOn::writeFiles(files, dir.path()));
    for (const ExportedFile &file : files) {
        if (m_taken.contains(file.bytes))
            continue;
        m_taken.insert(file.bytes);
        const QString path = dir.filePath(file.path);
        const QString kind = xmlTree(file.bytes).name;
        const QString said = HandedOn::said(QStringLiteral("xmllint"),
                                            {QStringLiteral("--nonet"), QStringLiteral("--noout"),
                                             QStringLiteral("--schema"),
                                             schemas + u'/' + kind + QLatin1String(".xsd"), path});
        QCOMPARE(said, QString(path + QLatin1String(" validates\n")));
    }
}

void tst_Ipxact::schemasRefuseMistakes()
{
    for (const EditionRow &row : editions) {
        const QString schemas = schemaFolder(row);
        if (schemas.isEmpty())
            QSKIP("TARVO_SCHEMAS_DIR names no folder with the schemas of this edition");
        const QTemporaryDir dir;
        const QByteArray good =
            row.files(mapOf({{QStringLiteral("Enable UART0"), true}})).first().bytes;
        QByteArray bad = good;
        bad.replace("<ipxact:localName>rtl<", "<ipxact:localName>rt<");
        QVERIFY(bad != good);
        const QString path = dir.filePath(QStringLiteral("bad.xml"));
        QVERIFY(TestSupport::write(path, bad));
        QVERIFY(HandedOn::said(QStringLiteral("xmllint"),
                               {QStringLiteral("--nonet"), QStringLiteral("--noout"),
                                QStringLiteral("--schema"),
                                schemas + QLatin1String("/component.xsd"), path})
                    .contains(QLatin1String("exit ")));
    }
}

TARVO_TEST_MAIN(QCoreApplication, tst_Ipxact)
#include "tst_ipxact.moc"

// The register description in CMSIS-SVD: its structure, as svd.rng states it, and what it says.

#include "softwareview.h"
#include "xmltree.h"

#include <export/format.h>
#include <export/svd.h>

using namespace TARVOORIXM1;

class tst_Svd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void hasTheStructure_data() { SoftwareView::addCases(); }
    void hasTheStructure();
    void structureRefusesMistakes_data();
    void structureRefusesMistakes();
    void namesDifferInMoreThanCase_data() { SoftwareView::addCases(); }
    void namesDifferInMoreThanCase();
    void everyInterruptThatArrivesHasAHome_data() { SoftwareView::addCases(); }
    void everyInterruptThatArrivesHasAHome();
    void derivingBringsNoInterruptAlong();
    void secondOfTwoEqualOnesIsDerived();
    void groupIsNamedOnlyWhereItDiffers();
    void saysWhatReadingAndWritingDo();
    void tellsWhatHasNoRegisters();
    void tellsOfTheNonMaskableInterrupt();
    void followsTheProcessor();
    void textsAreLinesThatAnyReaderTakes();
    void isARowOfTheFormats();

private:
    QByteArray svdOf(const SoftwareView::Case &one, SystemMap *map = nullptr)
    {
        QString error;
        const SystemMap made =
            SoftwareView::mapOf(one, one.hasOwnData ? m_ownData : m_data, &error);
        if (!error.isEmpty())
            QTest::qFail(qPrintable(error), __FILE__, __LINE__);
        if (map)
            *map = made;
        return svdFiles(made).value(0).bytes;
    }
    QByteArray svdOf(const OptionMap &options) { return svdOf({"", options}); }
    QString complaint(const QByteArray &svd) const
    {
        QString error;
        const QByteArray said = SoftwareView::outputOf(
            {QStringLiteral("xmllint"), QStringLiteral("--nonet"), QStringLiteral("--noout"),
             QStringLiteral("--relaxng"), QStringLiteral(SVD_GRAMMAR), QStringLiteral("-")},
            svd, &error);
        error.remove(QStringLiteral("- validates\n"));
        return QString::fromUtf8(said) + error;
    }

    const QString m_data = QStringLiteral(TARVO_IP_DATA_DIR);
    QTemporaryDir m_folder;
    QString m_ownData;
};

void tst_Svd::initTestCase()
{
    QString error;
    m_ownData = SoftwareView::ownDataFolder(m_folder, &error);
    QVERIFY2(error.isEmpty() && !m_ownData.isEmpty(), qPrintable(error));
}

void tst_Svd::hasTheStructure()
{
    QFETCH(int, index);
    const QByteArray svd = svdOf(SoftwareView::cases().at(index));
    QVERIFY(!svd.isEmpty());
    QCOMPARE(complaint(svd), QString());
}

void tst_Svd::structureRefusesMistakes_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    const auto row = [](const char *name, const char *from, const char *to) {
        QTest::newRow(name) << QString::fromLatin1(from) << QString::fromLatin1(to);
    };
    row("two shapes of a field", "<bitRange>[0:0]</bitRange>",
        "<bitRange>[0:0]</bitRange><bitOffset>0</bitOffset><bitWidth>1</bitWidth>");
    row("no configuration of the system timer", "<vendorSystickConfig>false</vendorSystickConfig>",
        "");
    row("values in front of the access", "<access>read-only</access>",
        "<enumeratedValues><enumeratedValue><name>A</name><value>0</value></enumeratedValue>"
        "</enumeratedValues><access>read-only</access>");
    row("no values in a list of them", "</access>", "</access><enumeratedValues/>");
    row("no peripheral", "<peripherals>", "<peripherals/><peripherals>");
    row("an address in another form", "0x50004000", "50004000h");
    row("a name with a blank", "<name>UART0</name>", "<name>UART 0</name>");
    row("an empty description", "<description>second serial line</description>",
        "<description></description>");
}

void tst_Svd::structureRefusesMistakes()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QString svd = QString::fromUtf8(svdOf(SoftwareView::everything()));
    QVERIFY(svd.contains(from));
    QVERIFY(!complaint(svd.replace(svd.lastIndexOf(from), from.size(), to).toUtf8()).isEmpty());
}

void tst_Svd::namesDifferInMoreThanCase()
{
    QFETCH(int, index);
    const XmlNode root = xmlTree(svdOf(SoftwareView::cases().at(index)));
    const auto check = [](const XmlNode &parent, const char *children) {
        QStringList names;
        for (const XmlNode &e : parent.children) {
            if (e.name == QLatin1String(children))
                names.append(e.textOf("name").toLower());
        }
        const int before = names.size();
        return names.removeDuplicates() == 0 && before > 0;
    };
    QVERIFY(check(root.child("peripherals"), "peripheral"));
    for (const XmlNode &e : root.all("registers"))
        QVERIFY(check(e, "register"));
    for (const XmlNode &e : root.all("fields"))
        QVERIFY(check(e, "field"));
    for (const XmlNode &e : root.all("enumeratedValues"))
        QVERIFY(check(e, "enumeratedValue"));
    QStringList interrupts;
    for (const XmlNode &e : root.all("interrupt"))
        interrupts.append(e.textOf("name").toLower());
    QCOMPARE(interrupts.removeDuplicates(), 0);
}

void tst_Svd::everyInterruptThatArrivesHasAHome()
{
    QFETCH(int, index);
    SystemMap map;
    const XmlNode root = xmlTree(svdOf(SoftwareView::cases().at(index), &map));
    QStringList expected;
    QStringList lost;
    for (const InterruptLine &line : qAsConst(map.interrupts)) {
        if (line.number < 0)
            continue;
        (line.lost.isEmpty() ? expected : lost)
            .append(QString::number(line.number) + u' ' + line.name);
    }
    QStringList found;
    for (const XmlNode &e : root.all("interrupt")) {
        // A name that was changed stands in front of the description.
        QString name = e.textOf("name");
        const QString text = e.textOf("description");
        if (!expected.contains(QString(e.textOf("value") + u' ' + name)) ||
            found.contains(QString(e.textOf("value") + u' ' + name)))
            name = text.left(text.indexOf(u':'));
        found.append(e.textOf("value") + u' ' + name);
        QVERIFY(!text.isEmpty());
    }
    expected.sort();
    found.sort();
    if (!SoftwareView::cases().at(index).hasOwnData)
        QCOMPARE(found, expected);
    QCOMPARE(found.size(), expected.size());
    for (const QString &line : qAsConst(lost))
        QVERIFY(!found.contains(line));
}

void tst_Svd::derivingBringsNoInterruptAlong()
{
    // UART1's interrupt is lost, UART0's is not.
    const XmlNode root = xmlTree(svdOf(SoftwareView::everythingBut(Key::numberOfInterrupts, 1)));
    const XmlNode uart = root.named("peripheral", "UART1");
    QVERIFY(!uart.isNull());
    QVERIFY(!uart.attributes.contains(QStringLiteral("derivedFrom")));
    QVERIFY(uart.child("interrupt").isNull());
    QVERIFY(!uart.child("registers").isNull());
}

void tst_Svd::secondOfTwoEqualOnesIsDerived()
{
    const XmlNode root = xmlTree(svdOf(SoftwareView::everything()));
    const XmlNode first = root.named("peripheral", "UART0");
    const XmlNode second = root.named("peripheral", "UART1");
    QVERIFY(!first.attributes.contains(QStringLiteral("derivedFrom")));
    QCOMPARE(second.attributes.value(QStringLiteral("derivedFrom")), QStringLiteral("UART0"));
    QCOMPARE(second.textOf("baseAddress"), QStringLiteral("0x50005000"));
    QCOMPARE(second.named("interrupt", "UART1").textOf("value"), QStringLiteral("1"));
    QVERIFY(second.child("registers").isNull());
}

void tst_Svd::groupIsNamedOnlyWhereItDiffers()
{
    const XmlNode root = xmlTree(svdOf(SoftwareView::everything()));
    QCOMPARE(root.named("peripheral", "UART0").textOf("groupName"), QStringLiteral("UART"));
    for (const XmlNode &e : root.all("peripheral"))
        QVERIFY(e.textOf("groupName").compare(e.textOf("name"), Qt::CaseInsensitive) != 0);
}

void tst_Svd::saysWhatReadingAndWritingDo()
{
    const XmlNode root = xmlTree(svdOf(SoftwareView::everything()));
    const auto field = [&root](const char *peripheral, const char *entry, const char *name) {
        return root.named("peripheral", peripheral).named("register", entry).named("field", name);
    };
    QCOMPARE(field("UART0", "DATA", "BYTE").textOf("readAction"), QStringLiteral("modifyExternal"));
    QCOMPARE(field("SCS", "SYST_CSR", "COUNTFLAG").textOf("readAction"), QStringLiteral("clear"));
    QCOMPARE(field("UART0", "STATUS", "RXOVER").textOf("modifiedWriteValues"),
             QStringLiteral("oneToClear"));
    QCOMPARE(field("GPIO", "OUTSET", "SET").textOf("modifiedWriteValues"),
             QStringLiteral("oneToSet"));
    QCOMPARE(field("GPIO", "OUTCLR", "CLEAR").textOf("modifiedWriteValues"),
             QStringLiteral("oneToClear"));
    QCOMPARE(field("GPIO", "OUTSET", "SET").textOf("access"), QStringLiteral("write-only"));
    // A value below the minimum cannot be stored.
    const XmlNode range = field("UART0", "BAUDDIV", "CYCLES").child("writeConstraint");
    QCOMPARE(range.child("range").textOf("minimum"), QStringLiteral("16"));
    QCOMPARE(range.child("range").textOf("maximum"), QStringLiteral("1048575"));
    const XmlNode key = field("WDOG", "KICK", "KEY").child("writeConstraint");
    QCOMPARE(key.textOf("useEnumeratedValues"), QStringLiteral("true"));
    // Pins decide over the low half.
    const XmlNode data = root.named("peripheral", "GPIO").named("register", "DATA");
    QCOMPARE(data.textOf("resetMask"), QStringLiteral("0xFFFF0000"));
    // What is read and what is written are two things, each with its own values.
    QStringList usages;
    for (const XmlNode &e : field("UART0", "STATUS", "RXOVER").all("enumeratedValues"))
        usages.append(e.textOf("usage"));
    QCOMPARE(usages, (QStringList{QStringLiteral("read"), QStringLiteral("write")}));
    // Words are no values of the bit that is read.
    QCOMPARE(field("WDOG", "LOCK", "LOCKED").textOf("access"), QStringLiteral("read-only"));
    const XmlNode lock = root.named("peripheral", "WDOG").named("register", "LOCK");
    QCOMPARE(lock.textOf("access"), QStringLiteral("read-write"));
    QVERIFY(lock.textOf("description").contains(QLatin1String("0x554E4C4B (UNLOCK)")));
}

void tst_Svd::tellsWhatHasNoRegisters()
{
    SystemMap map;
    const QString text =
        xmlTree(svdOf({"", SoftwareView::everything()}, &map)).textOf("description");
    int others = 0;
    for (const Region &region : qAsConst(map.regions)) {
        const QString place = region.name + QLatin1String(" at 0x") +
                              QString::number(region.base, 16).toUpper().rightJustified(8, u'0');
        QCOMPARE(text.contains(place), region.kind != RegionKind::Registers);
        others += region.kind != RegionKind::Registers;
    }
    QVERIFY(others > 25);
}

void tst_Svd::tellsOfTheNonMaskableInterrupt()
{
    const XmlNode root = xmlTree(svdOf(SoftwareView::everything()));
    for (const XmlNode &e : root.all("peripheral"))
        QCOMPARE(e.textOf("description").contains(QLatin1String("non-maskable")),
                 e.textOf("name") == QLatin1String("WDOG"));
    QVERIFY(root.named("peripheral", "WDOG").child("interrupt").isNull());
}

void tst_Svd::followsTheProcessor()
{
    const auto registersOf = [this](const OptionMap &options) {
        QStringList names;
        for (const XmlNode &e : xmlTree(svdOf(options)).named("peripheral", "SCS").all("register"))
            names.append(e.textOf("name"));
        return names;
    };
    const QStringList with = registersOf({});
    QVERIFY(with.contains(QStringLiteral("SYST_CSR")) && with.contains(QStringLiteral("SHPR3")));
    QVERIFY(with.contains(QStringLiteral("NVIC_IPR7")));
    const QStringList without = registersOf({{Key::osExtension, false}});
    QVERIFY(!without.contains(QStringLiteral("SYST_CSR")));
    QVERIFY(!without.contains(QStringLiteral("SHPR2")));
    QVERIFY(without.contains(QStringLiteral("CPUID")));
    const QStringList few = registersOf({{Key::numberOfInterrupts, 8}});
    QVERIFY(few.contains(QStringLiteral("NVIC_IPR1")) &&
            !few.contains(QStringLiteral("NVIC_IPR2")));
    // Where the memory stands decides over a register's value after reset.
    const auto aliases = [this](const OptionMap &options) {
        return xmlTree(svdOf(options)).named("register", "ACTLR").textOf("resetValue");
    };
    QCOMPARE(aliases({}), QStringLiteral("0x00000008"));
    QCOMPARE(aliases({{Key::internalInstructionMemory, false}}), QStringLiteral("0x00000000"));
    const auto cpu = [this](const OptionMap &options, const char *name) {
        return xmlTree(svdOf(options)).child("cpu").textOf(name);
    };
    QCOMPARE(cpu({}, "endian"), QStringLiteral("little"));
    QCOMPARE(cpu({{Key::bigEndian, true}}, "endian"), QStringLiteral("big"));
    QCOMPARE(cpu({{Key::numberOfInterrupts, 8}}, "deviceNumInterrupts"), QStringLiteral("8"));
}

void tst_Svd::textsAreLinesThatAnyReaderTakes()
{
    const QByteArray svd = svdOf(SoftwareView::cases().last());
    const QString text = QString::fromUtf8(svd);
    QVERIFY(text.contains(QLatin1String("&lt;d&gt; &amp; ")));
    for (const QChar c : text) {
        QVERIFY(c == u'\n' || c.isPrint());
        QVERIFY(c.unicode() != 0x2028);
    }
}

void tst_Svd::isARowOfTheFormats()
{
    const Format *format = findFormat(QStringLiteral("svd"));
    QVERIFY(format);
    QString error;
    const SystemMap map = SoftwareView::mapOf({"", {}}, m_data, &error);
    QCOMPARE(error, QString());
    const QVector<ExportedFile> files = format->files(map);
    QCOMPARE(files.size(), 1);
    QCOMPARE(files.first().path, QString(format->file));
}

QTEST_GUILESS_MAIN(tst_Svd)
#include "tst_svd.moc"

// The drivers as text: what compilers say of them, which of them a configuration gets, and that the
// guide to them names what they offer.

#include "driverfiles.h"

#include <config/blocks.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

// The public functions of a driver's header, in its order.
QStringList functionsOf(const QString &header)
{
    static const QRegularExpression declaration(
        QStringLiteral("^[a-z][A-Za-z0-9_ ]*[ ]\\*?([a-z0-9]+_[a-z0-9_]+)\\("),
        QRegularExpression::MultilineOption);
    QStringList names;
    auto found = declaration.globalMatch(header);
    while (found.hasNext())
        names << found.next().captured(1);
    return names;
}

// The texts in C of a document, in its order.
QStringList programTextsOf(const QString &document)
{
    static const QRegularExpression fence(QStringLiteral("^```c\\n(.*?)^```$"),
                                          QRegularExpression::MultilineOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    QStringList texts;
    auto found = fence.globalMatch(
        QString::fromUtf8(TestSupport::contentsOf(QStringLiteral(DOCS_DIR "/") + document)));
    while (found.hasNext())
        texts << found.next().captured(1);
    return texts;
}

// What the guide has its lines stand behind: the first text with all the drivers.
QString beginningOfPrograms()
{
    return programTextsOf(QStringLiteral("user-guide.md"))
        .filter(QStringLiteral("#include \"wdog.h\""))
        .value(0);
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QStringList pathsOf(const SystemMap &map)
{
    QStringList paths;
    for (const ExportedFile &file : findFormat(QStringLiteral("drivers"))->files(map))
        paths << file.path;
    return paths;
}

} // namespace

class tst_Drivers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPeripheralHasADriver();
    void onlyThoseOfTheBlocksThatAreOn();
    void filesAreThoseOfTheDataFolder();
    void everyCompilerTakesThemSilently_data();
    void everyCompilerTakesThemSilently();
    void needNothingOfALibrary_data();
    void needNothingOfALibrary();
    void twoUnitsMayIncludeAllOfThem();
    void theGuideNamesEveryFunction();
    void allUseTheSameWords();
    void everyProgramTextOfTheGuidesCompiles_data();
    void everyProgramTextOfTheGuidesCompiles();
    void theGuideShowsEveryBlock();

private:
    QString compiled(const QString &command) const;
    SystemDescription m_description;
    SystemMap m_map;
    QTemporaryDir m_folder;
    QStringList m_names; // of the drivers: "uart"
};

void tst_Drivers::initTestCase()
{
    const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(description, qPrintable(description.reason()));
    m_description = *description;
    m_map = DriverFiles::systemMap(DriverFiles::options(true), m_description);
    QVERIFY(m_folder.isValid());
    QVERIFY(DriverFiles::write(m_map, m_folder.path()));
    for (const QString &path : pathsOf(m_map)) {
        if (path.endsWith(QStringLiteral(".c")))
            m_names << QFileInfo(path).completeBaseName();
    }
    QVERIFY(!m_names.isEmpty());
}

// Compiles all drivers to NAME.o; what the compiler says.
QString tst_Drivers::compiled(const QString &command) const
{
    QStringList line = command.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    line << QStringLiteral("-I.") << QStringLiteral("-c");
    for (const QString &name : m_names)
        line << QStringLiteral("drivers/") + name + QStringLiteral(".c");
    return DriverFiles::complaints(m_folder.path(), line);
}

void tst_Drivers::everyPeripheralHasADriver()
{
    QStringList expected;
    for (const Peripheral &peripheral : qAsConst(m_description.peripherals)) {
        const QString base = QStringLiteral("drivers/") + peripheral.name.toLower();
        expected << base + QStringLiteral(".c") << base + QStringLiteral(".h");
    }
    expected.sort();
    QCOMPARE(pathsOf(m_map), expected);
}

void tst_Drivers::onlyThoseOfTheBlocksThatAreOn()
{
    OptionMap options = DriverFiles::options(false);
    QCOMPARE(pathsOf(DriverFiles::systemMap(options, m_description)), QStringList());
    for (const Peripheral &peripheral : qAsConst(m_description.peripherals)) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            if (instance.option == anyApbPeripheral)
                continue;
            OptionMap one = options;
            one.insert(instance.option, true);
            const QString base = QStringLiteral("drivers/") + peripheral.name.toLower();
            QStringList expected{base + QStringLiteral(".c"), base + QStringLiteral(".h")};
            // What comes with any of them.
            if (isSwitchedOn(one, anyApbPeripheral))
                expected << QStringLiteral("drivers/sys.c") << QStringLiteral("drivers/sys.h");
            expected.sort();
            QCOMPARE(pathsOf(DriverFiles::systemMap(one, m_description)), expected);
        }
    }
}

void tst_Drivers::filesAreThoseOfTheDataFolder()
{
    int files = 0;
    for (const ExportedFile &file : findFormat(QStringLiteral("drivers"))->files(m_map)) {
        const QByteArray source = TestSupport::contentsOf(QStringLiteral(FIRMWARE_DIR "/") +
                                                          QFileInfo(file.path).fileName());
        QVERIFY(!source.isEmpty());
        QVERIFY2(file.bytes == source, qPrintable(file.path));
        ++files;
    }
    QCOMPARE(files, TestSupport::entriesOf(QStringLiteral(FIRMWARE_DIR)).size());
}

void tst_Drivers::everyCompilerTakesThemSilently_data()
{
    QTest::addColumn<QString>("command");
    const char *const rows[][2] = {
        {"gcc as C99", "gcc -std=c99 -O2"},
        {"gcc for the processor", "arm-none-eabi-gcc -mcpu=cortex-m1 -mthumb -std=c99 -Os"},
        {"gcc for the processor, big-endian",
         "arm-none-eabi-gcc -mcpu=cortex-m1 -mthumb -mbig-endian -std=c99 -O2"},
        {"clang as C99", "clang -std=c99 -O1"},
        {"clang for the processor", "clang --target=armv6m-none-eabi -ffreestanding -std=c99"},
        {"gcc as C++11", "g++ -x c++ -std=c++11 -O2"},
        {"clang as C++11", "clang++ -x c++ -std=c++11"},
    };
    for (const auto &row : rows)
        QTest::newRow(row[0]) << QString::fromLatin1(row[1]);
}

void tst_Drivers::everyCompilerTakesThemSilently()
{
    QFETCH(QString, command);
    QCOMPARE(compiled(command +
                      QStringLiteral(" -Wall -Wextra -pedantic -Wconversion -Wshadow -Werror")),
             QString());
}

void tst_Drivers::needNothingOfALibrary_data()
{
    QTest::addColumn<QString>("optimisation");
    for (const char *level : {"-O0", "-Os", "-O3"})
        QTest::newRow(level) << QString::fromLatin1(level);
}

// Only what a compiler brings along itself, since the processor does not divide; and nothing in
// memory that can be written.
void tst_Drivers::needNothingOfALibrary()
{
    QFETCH(QString, optimisation);
    static const QRegularExpression wanted(
        QStringLiteral("^ +U (?!__aeabi_u?idiv(mod)?$|__gnu_thumb1_case_)"));
    static const QRegularExpression writable(QStringLiteral("^[0-9a-f]+ [bBdDC] "));
    QCOMPARE(compiled(QStringLiteral("arm-none-eabi-gcc -mcpu=cortex-m1 -mthumb -std=c99 ") +
                      optimisation),
             QString());
    for (const QString &name : qAsConst(m_names)) {
        const QStringList symbols =
            DriverFiles::complaints(
                m_folder.path(), {QStringLiteral("arm-none-eabi-nm"), name + QStringLiteral(".o")})
                .split(QLatin1Char('\n'));
        // A function of another driver is no library's, but is not there either.
        QVERIFY(!symbols.filter(QStringLiteral(" T ") + name + u'_').isEmpty());
        QCOMPARE(symbols.filter(wanted), QStringList());
        QCOMPARE(symbols.filter(writable), QStringList());
    }
}

// One in C and one in C++, linked with all drivers.
void tst_Drivers::twoUnitsMayIncludeAllOfThem()
{
    QByteArray includes;
    for (const QString &name : qAsConst(m_names)) {
        includes += "#include \"drivers/" + name.toLatin1() + ".h\"\n";
        includes += "#include \"drivers/" + name.toLatin1() + ".h\"\n";
    }
    QVERIFY(TestSupport::write(m_folder.filePath(QStringLiteral("first.cpp")),
                               includes + "void second();\nint main()\n{\n    wdog_kick(WDOG);\n"
                                          "    gpio_set(GPIO, 1u);\n    return 0;\n}\n"));
    QVERIFY(TestSupport::write(m_folder.filePath(QStringLiteral("second.c")),
                               includes + "void second(void);\nvoid second(void)\n{\n"
                                          "    uart_stop(UART1);\n}\n"));
    QCOMPARE(compiled(QStringLiteral("gcc -std=c99 -Wall -Werror second.c")), QString());
    QStringList objects{QStringLiteral("second.o")};
    for (const QString &name : qAsConst(m_names))
        objects << name + QStringLiteral(".o");
    QCOMPARE(DriverFiles::complaints(
                 m_folder.path(),
                 words("g++ -std=c++11 -Wall -Werror -I. -o program first.cpp") + objects),
             QString());
}

// Each in the table of its driver, and none that is not there.
void tst_Drivers::theGuideNamesEveryFunction()
{
    const QString guide =
        QString::fromUtf8(TestSupport::contentsOf(QStringLiteral(DOCS_DIR "/drivers.md")));
    static const QRegularExpression heading(QStringLiteral("^## ([a-z0-9]+)$(.*?)(?=^## |\\z)"),
                                            QRegularExpression::MultilineOption |
                                                QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression row(QStringLiteral("^\\| `([a-z0-9_]+)` \\|"),
                                        QRegularExpression::MultilineOption);
    QStringList sections;
    auto section = heading.globalMatch(guide);
    while (section.hasNext()) {
        const auto match = section.next();
        const QString name = match.captured(1);
        sections << name;
        QStringList listed;
        auto rows = row.globalMatch(match.captured(2));
        while (rows.hasNext())
            listed << rows.next().captured(1);
        const QStringList functions = functionsOf(QString::fromUtf8(TestSupport::contentsOf(
            m_folder.filePath(QStringLiteral("drivers/") + name + QStringLiteral(".h")))));
        QVERIFY2(functions.size() >= 5, qPrintable(name));
        QCOMPARE(listed, functions);
    }
    sections.sort();
    QCOMPARE(sections, m_names);
}

// What a program learns of one driver holds for the others.
void tst_Drivers::allUseTheSameWords()
{
    static const QRegularExpression results(
        QStringLiteral("typedef enum \\{([^}]*)\\} ([a-z0-9]+)_result;"));
    static const QRegularExpression type(QStringLiteral("^(?:typedef .*|\\}) (\\w+);"),
                                         QRegularExpression::MultilineOption);
    static const QRegularExpression entry(QStringLiteral("^ {4}([A-Z0-9_]+)"),
                                          QRegularExpression::MultilineOption);
    static const QRegularExpression enables(
        QStringLiteral("^void (\\w+)_enable_interrupts(\\([^)]*\\));"),
        QRegularExpression::MultilineOption);
    // A rate without its unit, and a switch by another name.
    static const QRegularExpression unlike(QStringLiteral(
        "uint32_t (clock|rate|frequency|baudrate|hz)\\b|bool (enable|enabled|active)\\b"));
    int enabling = 0;
    int failing = 0;
    for (const QString &name : qAsConst(m_names)) {
        const QString header = QString::fromUtf8(TestSupport::contentsOf(
            m_folder.filePath(QStringLiteral("drivers/") + name + QStringLiteral(".h"))));
        const QString prefix = name + u'_';
        for (auto it = type.globalMatch(header); it.hasNext();) {
            const QString named = it.next().captured(1);
            QVERIFY2(named.startsWith(prefix) && !named.endsWith(QLatin1String("_t")),
                     qPrintable(named));
        }
        const auto result = results.match(header);
        if (result.hasMatch()) {
            ++failing;
            QCOMPARE(result.captured(2), name);
            QStringList entries;
            for (auto it = entry.globalMatch(result.captured(1)); it.hasNext();)
                entries << it.next().captured(1);
            QCOMPARE(entries.takeFirst(), QString(prefix.toUpper() + QLatin1String("OK")));
            QCOMPARE(entries.value(0), QString(prefix.toUpper() + QLatin1String("ERROR_RANGE")));
            for (const QString &error : qAsConst(entries))
                QVERIFY2(error.startsWith(prefix.toUpper() + QLatin1String("ERROR_")),
                         qPrintable(error));
        }
        for (auto it = enables.globalMatch(header); it.hasNext();) {
            const auto match = it.next();
            if (name == QLatin1String("gpio")) // takes a condition as well
                continue;
            ++enabling;
            const QString other = QStringLiteral("\nvoid ") + match.captured(1) +
                                  QStringLiteral("_disable_interrupts") + match.captured(2);
            QVERIFY2(header.contains(other), qPrintable(other));
        }
        const auto other = unlike.match(header);
        QVERIFY2(!other.hasMatch(), qPrintable(name + QLatin1String(": ") + other.captured()));
    }
    QCOMPARE(failing, 5);
    QVERIFY(enabling >= 4);
}

void tst_Drivers::everyProgramTextOfTheGuidesCompiles_data()
{
    QTest::addColumn<QString>("text");
    for (const char *document : {"user-guide.md", "drivers.md"}) {
        int n = 0;
        for (const QString &text : programTextsOf(QString::fromLatin1(document)))
            QTest::addRow("%s, %d", document, ++n) << text;
    }
}

// As it stands, or behind what the guide says that programs begin with; lines that are no
// functions stand in one.
void tst_Drivers::everyProgramTextOfTheGuidesCompiles()
{
    QFETCH(QString, text);
    static const QRegularExpression function(QStringLiteral("^\\w[^;\\n]*\\)\\n\\{"),
                                             QRegularExpression::MultilineOption);
    const QString beginning = beginningOfPrograms();
    QVERIFY(!beginning.isEmpty());
    QString program = text;
    if (!text.contains(QLatin1String("#include"))) {
        if (!function.match(text).hasMatch())
            program = QStringLiteral("void lines(void);\nvoid lines(void)\n{\n") + text +
                      QStringLiteral("}\n");
        program.prepend(beginning);
    }
    QVERIFY(TestSupport::write(m_folder.filePath(QStringLiteral("guide.c")), program.toUtf8()));
    for (const char *compiler : {"arm-none-eabi-gcc -mcpu=cortex-m1 -mthumb",
                                 "clang --target=armv6m-none-eabi -ffreestanding"})
        QCOMPARE(DriverFiles::complaints(
                     m_folder.path(),
                     words(compiler) + words("-std=c99 -Os -Wall -Wextra -pedantic -Werror "
                                             "-Wno-unused-function -I. -Idrivers -c guide.c")),
                 QString());
}

// Each driver is there at the beginning, and its functions are called.
void tst_Drivers::theGuideShowsEveryBlock()
{
    const QString beginning = beginningOfPrograms();
    const QString texts = programTextsOf(QStringLiteral("user-guide.md")).join(u'\n');
    for (const QString &name : qAsConst(m_names)) {
        QVERIFY2(beginning.contains(QStringLiteral("#include \"%1.h\"").arg(name)),
                 qPrintable(name));
        QVERIFY2(texts.contains(QRegularExpression(QStringLiteral("\\b%1_\\w+\\(").arg(name))),
                 qPrintable(name));
    }
}

TARVO_TEST_MAIN(QCoreApplication, tst_Drivers)
#include "tst_drivers.moc"

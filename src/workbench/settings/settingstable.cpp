#include "settingstable.h"

#include "language/languages.h"
#include "tr.h"

#include <QSettings>

#include <algorithm>

namespace Workbench::Settings
{

namespace
{

bool isNumber(const QVariant &value, int *number)
{
    bool isOne = false;
    *number = value.toString().toInt(&isOne);
    return isOne;
}

} // namespace

const QVector<Row> &rows()
{
    static const QVector<Row> table{
        {editorFont, Page::Editor, Kind::Font, QT_TRANSLATE_NOOP("Workbench", "&Font:")},
        {editorFontSize, Page::Editor, Kind::Number, QT_TRANSLATE_NOOP("Workbench", "Font si&ze:"),
         0, 0, 72},
        {editorTabWidth, Page::Editor, Kind::Number, QT_TRANSLATE_NOOP("Workbench", "&Tab width:"),
         8, 1, 16},
        {editorLineNumbers, Page::Editor, Kind::Toggle,
         QT_TRANSLATE_NOOP("Workbench", "Show line &numbers"), 1},
        {editorWrap, Page::Editor, Kind::Toggle, QT_TRANSLATE_NOOP("Workbench", "&Wrap long lines"),
         0},
        {editorExternal, Page::Editor, Kind::Command,
         QT_TRANSLATE_NOOP("Workbench", "E&xternal editor:")},
        {"tools/yosys", Page::Tools, Kind::Tool, QT_TRANSLATE_NOOP("Workbench", "&Yosys:"), 0, 0, 0,
         "yosys"},
        {"tools/synplifyPro", Page::Tools, Kind::Tool,
         QT_TRANSLATE_NOOP("Workbench", "&Synplify Pro:"), 0, 0, 0, "synplify_pro"},
        {"tools/iverilog", Page::Tools, Kind::Tool,
         QT_TRANSLATE_NOOP("Workbench", "&Icarus Verilog, compiler:"), 0, 0, 0, "iverilog"},
        {"tools/vvp", Page::Tools, Kind::Tool,
         QT_TRANSLATE_NOOP("Workbench", "Icarus Verilog, &run time:"), 0, 0, 0, "vvp"},
        {"tools/verilator", Page::Tools, Kind::Tool, QT_TRANSLATE_NOOP("Workbench", "&Verilator:"),
         0, 0, 0, "verilator"},
        {"tools/armGcc", Page::Tools, Kind::Tool,
         QT_TRANSLATE_NOOP("Workbench", "C co&mpiler for Arm:"), 0, 0, 0, "arm-none-eabi-gcc"},
        {"tools/gtkwave", Page::Tools, Kind::Tool,
         QT_TRANSLATE_NOOP("Workbench", "Viewer of &waves:"), 0, 0, 0, "gtkwave"},
        {restoreSession, Page::Program, Kind::Toggle,
         QT_TRANSLATE_NOOP("Workbench", "&Open at the start what was open at the end"), 1},
        {"companion/measure", Page::Program, Kind::Toggle,
         QT_TRANSLATE_NOOP("Workbench", "Run the &synthesis in the background beside the dialog of "
                                        "an IP"),
         1},
        {"companion/measurePause", Page::Program, Kind::Number,
         QT_TRANSLATE_NOOP("Workbench", "Seconds &without a change before it:"), 5, 1, 600},
        {language, Page::Program, Kind::Choice,
         QT_TRANSLATE_NOOP("Workbench", "Lan&guage, from the next start on:")},
    };
    return table;
}

const Row &row(const char *key)
{
    const auto found = std::find_if(rows().begin(), rows().end(), [key](const Row &candidate) {
        return qstrcmp(candidate.key, key) == 0;
    });
    Q_ASSERT(found != rows().end());
    return *found;
}

QString labelOf(const Row &row)
{
    return Tr::tr(row.label);
}

QString titleOf(Page page)
{
    switch (page) {
    case Page::Editor:
        return Tr::tr("&Editor");
    case Page::Tools:
        return Tr::tr("Too&ls");
    case Page::Program:
        return Tr::tr("&Program");
    }
    return {};
}

Choices choicesOf(const Row &row)
{
    if (row.kind != Kind::Choice)
        return {};
    Choices choices = {{QString(), Tr::tr("That of the system")}};
    const QVector<Languages::Choice> languages = Languages::available();
    for (const Languages::Choice &one : languages)
        choices.append({one.code, one.name});
    return choices;
}

QVariant standardOf(const Row &row)
{
    switch (row.kind) {
    case Kind::Toggle:
        return row.standard != 0;
    case Kind::Number:
        return row.standard;
    case Kind::Font:
    case Kind::Choice:
    case Kind::Command:
    case Kind::Tool:
        break;
    }
    return QString();
}

QVariant valueOf(const QSettings &settings, const Row &row)
{
    const QVariant value = settings.value(QLatin1String(row.key));
    const QString text = value.toString();
    int number = 0;
    switch (row.kind) {
    case Kind::Toggle:
        if (text == QLatin1String("true") || text == QLatin1String("false"))
            return text == QLatin1String("true");
        break;
    case Kind::Number:
        if (isNumber(value, &number) && number >= row.least && number <= row.most)
            return number;
        break;
    case Kind::Choice: {
        const Choices choices = choicesOf(row);
        if (std::any_of(choices.begin(), choices.end(),
                        [&text](const auto &choice) { return choice.first == text; }))
            return text;
        break;
    }
    case Kind::Font:
    case Kind::Command:
    case Kind::Tool:
        if (value.type() == QVariant::String)
            return text;
        break;
    }
    return standardOf(row);
}

bool isOn(const QSettings &settings, const char *key)
{
    return valueOf(settings, row(key)).toBool();
}

int numberOf(const QSettings &settings, const char *key)
{
    return valueOf(settings, row(key)).toInt();
}

QString textOf(const QSettings &settings, const char *key)
{
    return valueOf(settings, row(key)).toString();
}

} // namespace Workbench::Settings

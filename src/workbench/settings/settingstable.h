#pragma once

#include <QPair>
#include <QString>
#include <QVariant>
#include <QVector>

QT_FORWARD_DECLARE_CLASS(QSettings)

// What people choose in the dialog of settings, one row each, and how it is read. A value of the
// settings file that is none of its domain counts as the default.
namespace Workbench::Settings
{

enum class Page { Editor, Tools, Program };
enum class Kind {
    Toggle,  // bool
    Number,  // int, `least` to `most`
    Font,    // the name of a family; empty: the desktop's fixed font
    Choice,  // a text of choicesOf()
    Command, // a command line; "%f" and "%l" are file and line
    Tool     // the path of the program that takes the place of `tool` on PATH; empty: that one
};

struct Row {
    const char *key;
    Page page;
    Kind kind;
    const char *label; // of the context "Workbench", with "&"
    int standard = 0;  // of a toggle or number
    int least = 0;
    int most = 1;
    const char *tool = nullptr;
};

const QVector<Row> &rows();
// There must be one.
const Row &row(const char *key);
QString labelOf(const Row &row);
QString titleOf(Page page);

// Values and names of a choice, the default first.
using Choices = QVector<QPair<QString, QString>>;
Choices choicesOf(const Row &row);

QVariant standardOf(const Row &row);
QVariant valueOf(const QSettings &settings, const Row &row);
bool isOn(const QSettings &settings, const char *key);
int numberOf(const QSettings &settings, const char *key);
QString textOf(const QSettings &settings, const char *key);

constexpr char editorFont[] = "editor/font";
constexpr char editorFontSize[] = "editor/fontSize"; // points; 0: the desktop's
constexpr char editorTabWidth[] = "editor/tabWidth"; // characters
constexpr char editorLineNumbers[] = "editor/lineNumbers";
constexpr char editorWrap[] = "editor/wrap";
constexpr char editorExternal[] = "editor/external";
constexpr char restoreSession[] = "session/restore";
constexpr char language[] = "language"; // empty: the system's

} // namespace Workbench::Settings

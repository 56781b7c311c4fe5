#include "highlighting.h"

#include "highlighter/module.h"

#include <core/editormanager.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>

#include <dlfcn.h>

namespace Workbench
{

namespace
{

struct Language {
    const char *suffixes; // separated and ended by blanks
    const char *definition;
};

// Endings that the definitions do not know, or know as something else.
constexpr Language languages[] = {
    {"v vo vg vm vh vlt ", "Verilog"}, {"sv svh ", "SystemVerilog"},
    {"vhd vhdl vho vhg vhm ", "VHDL"}, {"ipc ini ", "INI Files"},
    {"json ipspec tvproj ", "JSON"},   {"log ", "Log File (simplified)"},
    {"tcl prj sdc ", "Tcl/Tk"},
};

// The library stands where the host libraries do, in the build tree and in an installation. Null,
// and a warning, if it cannot be loaded: texts stay without colours then.
const HighlighterModule *module()
{
    static const HighlighterModule *const loaded = []() -> const HighlighterModule * {
        Dl_info host;
        if (::dladdr(reinterpret_cast<void *>(&Core::EditorManager::setHandler), &host) == 0)
            return nullptr;
        const QFileInfo hostLibrary(QFile::decodeName(host.dli_fname));
        QLibrary library(QFileInfo(hostLibrary.canonicalFilePath())
                             .dir()
                             .filePath(QLatin1String(highlighterLibrary)));
        const auto entry = reinterpret_cast<HighlighterEntry>(library.resolve(highlighterEntry));
        if (!entry)
            qWarning("%s", qPrintable(library.errorString()));
        return entry ? entry() : nullptr;
    }();
    return loaded;
}

} // namespace

QString Highlighting::languageOf(const QString &path)
{
    const QByteArray suffix = QFileInfo(path).suffix().toLower().toLatin1() + ' ';
    for (const Language &language : languages) {
        const QByteArray suffixes = QByteArray(" ") + language.suffixes;
        if (suffix.size() > 1 && suffixes.contains(' ' + suffix))
            return QString::fromLatin1(language.definition);
    }
    return {};
}

QSyntaxHighlighter *Highlighting::attach(QTextDocument *document, const QString &path,
                                         const QPalette &palette)
{
    return module()
               ? module()->attach(document, languageOf(path), QFileInfo(path).fileName(), palette)
               : nullptr;
}

void Highlighting::setPalette(QSyntaxHighlighter *highlighter, const QPalette &palette)
{
    if (module())
        module()->setPalette(highlighter, palette);
}

} // namespace Workbench

#pragma once

#include "ipcore_global.h"

#include <dev/devicearg.h>

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QWidget)

// What an IP configurator asks of the environment. Functions that say "reports" show a modal
// message box whose parent is the given widget, or Core::ViewManager::dialogParent() where there is
// none.
namespace IPCore
{

// Reads an IP descriptor (.ipspec, JSON): see Utils::readDescriptor. A relative "ipcore.doc.help"
// starts from the descriptor's folder. A file that cannot be used gives an empty map and a sentence
// in `*error` (may be null).
TARVO_IPCORE_EXPORT QVariantMap processIPInfoSpec(const QString &path, QString *error = nullptr);

// Whether a descriptor holds what every IP needs: "ipcore.id", "ipcore.name", "ipcore.version",
// "ipcore.category" and "ipcore.target", none of them empty.
TARVO_IPCORE_EXPORT bool checkCommonInfo(const QVariantMap &ipInfo);

// Whether an IP supports a device: not if an entry of `unsupported` names it; else if `supported`
// is empty or an entry names it. An entry is a device name, a device name without its version, a
// series, or one of these with "*" at its end (a prefix). A null device is not supported.
TARVO_IPCORE_EXPORT bool isSupported(const DEV::DeviceArg &device, const QStringList &unsupported,
                                     const QStringList &supported);

// Replaces an IP configuration file: `header` at the top level, `options` in the group "Config".
// The comments of the file that it replaces stay (Utils::rewriteIniFile()). The keeper, if there is
// one, is called before. Reports a failure.
TARVO_IPCORE_EXPORT void writeIPConfig(const QString &path, const QVariantMap &header,
                                       const QVariantMap &options);

// Told of a configuration file that stands at the path and is about to be replaced.
using ConfigKeeper = std::function<void(const QString &path)>;
// For the running application. An empty function takes it back.
TARVO_IPCORE_EXPORT void setConfigKeeper(const ConfigKeeper &keeper);

// Makes a folder with all missing parents for the IP named `ipName`, which is about to write into
// it, and has a run for it alone: until the SynthesisHelper whose output folder it is has ended and
// its results are collected, or, where none is started, until the event loop is reached again.
// Reports a failure, also a folder that another run has, and returns false then.
TARVO_IPCORE_EXPORT bool makeDirs(const QString &path, const QString &ipName);

// Writes `lines` as a text file (UTF-8, line feeds) with the text `header` before them, which ends
// with a line feed if it is not empty. Reports a failure and returns false then; the folder is free
// for others again.
TARVO_IPCORE_EXPORT bool generateFile(const QString &path, const QStringList &lines,
                                      QWidget *parent, const QString &header);

// Makes a functional simulation model at `destination` from a Verilog netlist of the run whose
// outputs go to the folder `outDir`. Returns 0 on success, otherwise another number and the reason
// in `message`.
TARVO_IPCORE_EXPORT int decode(const QString &outDir, const QString &netlist,
                               const QString &destination, QString &message);

// Shows `title` and the details in a modal window and returns when it is closed. Details that name
// files of the user's come before those about the files beside a descriptor that was read; empty
// ones and those that repeat the title or each other are left out. Shows nothing if `title` is what
// a run that was cancelled just now ended with: whoever cancels knows.
TARVO_IPCORE_EXPORT void showErrorMsgs(const QString &title, const QStringList &details);

// Adds files to the open project; does nothing without one.
TARVO_IPCORE_EXPORT void addFilesToProject(const QStringList &paths);

// Whether `path` lies strictly inside the folder `dir`, at any depth; both may be relative to the
// current folder. Only the texts count: nothing needs to exist and links are not followed. An empty
// path is inside nothing.
TARVO_IPCORE_EXPORT bool isSubDirFile(const QString &dir, const QString &path);

} // namespace IPCore

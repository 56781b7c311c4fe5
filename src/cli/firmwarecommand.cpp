#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "ipcdocument.h"
#include "output.h"

#include <config/optionkeys.h>
#include <config/optionvalue.h>
#include <firmware/itcmfiles.h>
#include <reading/limits.h>
#include <reading/plainfile.h>
#include <utils/fileplacement.h>

#include <QDir>
#include <QFileInfo>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

struct FirmwareArguments {
    QString image;
    QString file;
    QString outDir;   // empty: see the command's help
    QString form;     // "elf", "hex", "bin"; empty: found from the image
    quint32 base = 0; // address of the first byte of a binary image
    bool initialise = false;
    bool json = false;
};

QString quoted(const QString &path)
{
    return u'"' + path + u'"';
}

// Where the files go: where the user says, else where the configuration has them.
QString folderFor(const IpcDocument &document, const QString &outDir)
{
    return outDir.isEmpty() ? itcmFolder(document.options, document.folder())
                            : QDir::cleanPath(QFileInfo(outDir).absoluteFilePath());
}

Utils::Result<FirmwareImage> imageFrom(const FirmwareArguments &arguments)
{
    const QString path = QFileInfo(arguments.image).absoluteFilePath();
    QByteArray bytes;
    QString reason;
    if (!Reading::readPlainFile(path, Reading::Limits::firmwareImage, &bytes, &reason))
        return Utils::Failure{quoted(path) + QLatin1String(" cannot be read: ") + reason + u'.'};
    std::optional<ImageForm> form;
    if (!arguments.form.isEmpty())
        form = imageFormNamed(arguments.form);
    Utils::Result<FirmwareImage> image = readImage(bytes, form, arguments.base);
    if (!image)
        return Utils::Failure{quoted(path) + QLatin1String(" cannot be used: ") + image.reason() +
                              u'.'};
    return image;
}

Utils::Result<bool> initialise(const IpcDocument &document, const QString &folder)
{
    const OptionMap options = withItcmFiles(document.options, folder, document.folder());
    if (options == document.options)
        return false;
    const Utils::Result<void> written =
        writeEdited(document, document.path, document.movedHeader(document.deviceText), options);
    if (!written)
        return Utils::Failure{written.reason()};
    return true;
}

int runFirmware(Environment &environment, const FirmwareArguments &arguments)
{
    const auto refuse = [](const QString &reason, int status) {
        printProblem({reason});
        return status;
    };
    if (!arguments.form.isEmpty() && !imageFormNamed(arguments.form))
        return refuse(quoted(arguments.form) +
                          QLatin1String(" is no form of an image; there are ") +
                          imageFormNames().join(QLatin1String(", ")) + u'.',
                      WrongUsage);
    if (environment.ipInfo().isEmpty())
        return BadInput;
    IpcDocument document;
    if (!openForDevice(environment, arguments.file, &document))
        return BadInput;
    const auto description = readSystemDescription(environment.dataFolder());
    if (!description)
        return refuse(description.reason(), BadInput);
    const Utils::Result<FirmwareImage> image = imageFrom(arguments);
    if (!image)
        return refuse(image.reason(), BadInput);
    const Utils::Result<ItcmFiles> files =
        itcmFiles(*image, systemMap(document.options, document.device, *description));
    if (!files)
        return refuse(quoted(QFileInfo(arguments.image).absoluteFilePath()) +
                          QLatin1String(" does not fit: ") + files.reason() + u'.',
                      BadInput);

    const QString folder = folderFor(document, arguments.outDir);
    QVector<Utils::PlacedFile> contents;
    for (int lane = 0; lane < ItcmFiles::count; ++lane)
        contents.append({ItcmFiles::fileName(lane), files->texts[size_t(lane)]});
    Utils::FilePlacement placement;
    if (const Utils::Result<void> placed = placement.place(folder, contents); !placed)
        return refuse(placed.reason(), Failed);
    bool changed = false;
    if (arguments.initialise) {
        const Utils::Result<bool> written = initialise(document, folder);
        if (!written) {
            placement.revert();
            return refuse(written.reason(), Failed);
        }
        changed = *written;
    }

    for (const QString &warning : files->warnings)
        printError(QLatin1String("warning: ") + warning);
    if (arguments.json) {
        printJson({{QStringLiteral("image"), QFileInfo(arguments.image).absoluteFilePath()},
                   {QStringLiteral("form"), imageFormName(image->form)},
                   {QStringLiteral("files"), QJsonArray::fromStringList(placement.paths())},
                   {QStringLiteral("size"), files->size},
                   {QStringLiteral("used"), files->used},
                   {QStringLiteral("free"), files->free()},
                   {QStringLiteral("warnings"), QJsonArray::fromStringList(files->warnings)},
                   {QStringLiteral("configurationChanged"), changed}});
        return Done;
    }
    for (const QString &path : placement.paths())
        printLine(path);
    printError(QStringLiteral("Instruction memory: %1 of %2 bytes used, %3 free.")
                   .arg(files->used)
                   .arg(files->size)
                   .arg(files->free()));
    if (changed)
        printLine(document.path);
    else if (!arguments.initialise && !isOn(document.options, Key::initializeItcm))
        printError(QStringLiteral("The configuration does not start the memory from them yet; "
                                  "--initialize sets the options for it."));
    return Done;
}

} // namespace

void declareFirmware(CommandLine &line)
{
    auto arguments = std::make_shared<FirmwareArguments>();
    CLI::App *command = line.command(
        "firmware", "Turn a program into the files that initialise the instruction memory",
        "orixm1 firmware app.elf tarvo_orix_m1.ipc --initialize",
        [arguments](Environment &environment) { return runFirmware(environment, *arguments); });
    CommandLine::require(
        line.path(command, "IMAGE", arguments->image, "Program: ELF, Intel HEX or binary", ""));
    line.file(command, arguments->file);
    line.path(command, "--out", arguments->outDir,
              "Folder of itcm0 to itcm3 (default: the one that FILE initialises the memory "
              "from, else \"itcm\" beside FILE)",
              "DIR");
    line.offer(CommandLine::text(command, "--format", arguments->form,
                                 "elf, hex or bin (default: found out)", "FORMAT"),
               imageFormNames);
    CommandLine::number(command, "--base", arguments->base,
                        "Address of the first byte of a binary image (default: 0)", "ADDRESS");
    CommandLine::flag(command, "--initialize", arguments->initialise,
                      "Set the \"Initialize ITCM\" options of FILE to these files");
    CommandLine::json(command, arguments->json);
}

} // namespace Cli

#include "tarvoorixm1dlg.h"

#include "ui_microsysipgendlg.h"

#include "config/descriptor.h"
#include "config/ipcfile.h"
#include "config/latin1literal.h"
#include "config/nameprefix.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "diagram/findline.h"
#include "diagram/ipview.h"
#include "dialogs/messagebox.h"
#include "export/prefixednetlist.h"
#include "generate/plan.h"
#include "generate/record.h"
#include "rules/devicerules.h"
#include "rules/generationfolder.h"
#include "rules/itcmcontents.h"
#include "rules/itcmpath.h"

#include <core/editormanager.h>
#include <ipcore/ipcore.h>
#include <ipcore/synthesishelper.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QSettings>

namespace TARVOORIXM1
{

namespace
{

using IPCore::SynthesisHelper;

SynthesisHelper::SynthesizeTool toolOfHost(Tool tool)
{
    switch (tool) {
    case Tool::TarvoSynthesis:
        return SynthesisHelper::TarvoSynthesis;
    case Tool::SynplifyPro:
        break;
    }
    return SynthesisHelper::SynplifyPro;
}

// What the window's fields decide, and no step brings back.
constexpr QLatin1String fieldKeys[] = {Key::createInPath, Key::synthesisTool, Key::lang};

} // namespace

TarvoOrixM1Dlg::TarvoOrixM1Dlg(const OptionMap &info, QWidget *parent)
    : MicroSysIPGenDlg(parent)
    , ipInfo(info)
{
    setWindowTitle(QStringLiteral("Tarvo ORIX M1"));
    helpFile = ipInfo.value(InfoKey::help).toString();
    UpdateCreatinPath();
    connect(ui->editCreateIn, SIGNAL(textChanged(QString)), this, SLOT(UpdateCreatinPath()));

    view = new IPView(&options, this);
    view->setFitted(true);
    setContentWidget(view);
    buildActions();
    history.restart(steppedOptions());
    lastTold = configuration();
    view->setFindIndex([this] { return findIndex(); });
    connect(view, SIGNAL(pointedAt(QString)), this, SIGNAL(pointedAt(QString)));
    connect(view, SIGNAL(optionsChanged()), this, SLOT(onOptionsChanged()));
    connect(ui->editCreateIn, SIGNAL(textChanged(QString)), this, SLOT(onFieldChanged()));
    connect(ui->comboBoxLanguage, SIGNAL(currentIndexChanged(int)), this, SLOT(onFieldChanged()));
    connect(ui->synToolComboBox, SIGNAL(currentIndexChanged(int)), this, SLOT(onFieldChanged()));
}

TarvoOrixM1Dlg::~TarvoOrixM1Dlg() = default;

QString TarvoOrixM1Dlg::targetName() const
{
    return ipInfo.value(InfoKey::target).toString();
}

QString TarvoOrixM1Dlg::tempDir() const
{
    return generationFolder(createInPath());
}

void TarvoOrixM1Dlg::UpdateCreatinPath()
{
    options[Key::createInPath] = createInText();
}

void TarvoOrixM1Dlg::accept()
{
    const QStringList errors = createInErrors();
    if (!errors.isEmpty()) {
        showErrors(errors);
        return;
    }
    if (!confirmOutputFolder() || !checkItcmInitPath())
        return;
    if (!IPCore::makeDirs(tempDir(), ipInfo.value(InfoKey::name).toString()))
        return;
    saveIPConfig();
    generateCore();
}

bool TarvoOrixM1Dlg::checkItcmInitPath()
{
    if (!isOn(options, Key::initializeItcm) || !isOn(options, Key::internalInstructionMemory))
        return true;
    const QString error =
        itcmPathError(textOf(options, Key::itcmInitializationPath), createInPath());
    if (error.isEmpty())
        return true;
    showErrorBox(this, error);
    return false;
}

void TarvoOrixM1Dlg::updateDeviceDependentState()
{
    const DEV::DeviceArg target = currentDevice();
    options[Key::ipDeviceId] = target.id();
    options[Key::ipDevice] = target.device();
    view->setPsramAvailable(isPsramAvailable(target));
    view->setDdr3Available(isDdr3Available(target.device()));
    const bool small = isSmallDevice(target.device());
    view->setEthernetAvailable(!small);
    view->setCanAvailable(!small);
    view->setSpiFlashAvailable(!small);
    view->updateView();
    history.restart(steppedOptions());
    tellChange();
}

// Steps

void TarvoOrixM1Dlg::buildActions()
{
    const auto make = [this](const char *slot, const QList<QKeySequence> &keys) {
        auto *action = new QAction(view);
        action->setShortcuts(keys);
        connect(action, SIGNAL(triggered()), this, slot);
        view->addAction(action);
        return action;
    };
    undoAction = make(SLOT(undo()), {QKeySequence(Qt::CTRL + Qt::Key_Z)});
    redoAction = make(SLOT(redo()), {QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Z),
                                     QKeySequence(Qt::CTRL + Qt::Key_Y)});
    updateActions();
}

void TarvoOrixM1Dlg::updateActions()
{
    const int step = currentStep();
    const bool canUndo = step > 0;
    const bool canRedo = step < history.stepCount();
    undoAction->setEnabled(canUndo);
    redoAction->setEnabled(canRedo);
    undoAction->setText(canUndo ? tr("Undo: %1").arg(history.name(step - 1)) : tr("Undo"));
    redoAction->setText(canRedo ? tr("Redo: %1").arg(history.name(step)) : tr("Redo"));
}

OptionMap TarvoOrixM1Dlg::steppedOptions() const
{
    OptionMap stepped = options;
    for (const QLatin1String key : fieldKeys)
        stepped.remove(key);
    return stepped;
}

void TarvoOrixM1Dlg::onOptionsChanged()
{
    if (history.accept(steppedOptions()))
        tellChange();
}

void TarvoOrixM1Dlg::onFieldChanged()
{
    if (configuration() != lastTold)
        tellChange();
}

void TarvoOrixM1Dlg::tellChange()
{
    updateActions();
    lastTold = configuration();
    Q_EMIT configurationChanged();
}

QVariantList TarvoOrixM1Dlg::steps() const
{
    QVariantList list;
    for (int i = 0; i < history.stepCount(); ++i)
        list.append(QVariantMap{{"name"_l1, history.name(i)}});
    return list;
}

int TarvoOrixM1Dlg::currentStep() const
{
    return history.currentStep();
}

bool TarvoOrixM1Dlg::goToStep(int count)
{
    for (const QWidget *modal = QApplication::activeModalWidget(); modal && modal != this;
         modal = modal->parentWidget()) {
        if (modal->parentWidget() == this)
            return false;
    }
    if (count == currentStep())
        return true;
    if (!history.goTo(count))
        return false;
    OptionMap restored = history.current();
    for (const QLatin1String key : fieldKeys) {
        if (options.contains(key))
            restored.insert(key, valueOf(options, key));
    }
    options = restored;
    view->updateView();
    tellChange();
    return true;
}

void TarvoOrixM1Dlg::undo()
{
    goToStep(currentStep() - 1);
}

void TarvoOrixM1Dlg::redo()
{
    goToStep(currentStep() + 1);
}

// Find and point

FindIndex TarvoOrixM1Dlg::findIndex()
{
    if (!description) {
        description = std::make_unique<SystemDescription>();
        const QString folder = dataFolder(ipInfo);
        if (auto peripherals = readRegisterMap(folder))
            description->peripherals = *peripherals;
        else
            descriptionError = peripherals.reason();
        if (auto interrupts = readOtherInterrupts(folder))
            description->otherInterrupts = *interrupts;
        else
            descriptionError = interrupts.reason();
    }
    return {findables(options, currentDevice(), *description), descriptionError};
}

void TarvoOrixM1Dlg::pointAt(const QString &block)
{
    view->pointAt(block);
}

// Saving and generation

bool TarvoOrixM1Dlg::saveIPConfig()
{
    options.remove(Key::createInPath);
    options[Key::synthesisTool] = synthesisTool();
    options[Key::lang] = languageIndex();
    IPCore::writeIPConfig(IpcFile::path(createInPath(), ipInfo),
                          IpcFile::header(currentDevice().id(), ipInfo), options);
    return true;
}

QVariantMap TarvoOrixM1Dlg::configuration() const
{
    OptionMap stored = options;
    stored.remove(Key::createInPath);
    stored[Key::synthesisTool] = synthesisTool();
    stored[Key::lang] = languageIndex();
    return {{"file"_l1, IpcFile::path(createInPath(), ipInfo)},
            {"header"_l1, IpcFile::header(currentDevice().id(), ipInfo)},
            {"options"_l1, stored}};
}

bool TarvoOrixM1Dlg::loadIPConfig(const QString &ipcFile)
{
    QSettings settings(ipcFile, QSettings::IniFormat);
    if (!IpcFile::isVersionAccepted(settings)) {
        showErrorBox(this,
                     QStringLiteral("This version of specified IP Config file is incompatible with "
                                    "current IP Core Generator."));
        return false;
    }
    IpcFile::readOptions(settings, options);
    selectSynthesisTool(textOf(options, Key::synthesisTool));
    setLanguageIndex(numberOf(options, Key::lang));
    return true;
}

QStringList TarvoOrixM1Dlg::inputMistakes() const
{
    QStringList texts;
    const QVector<ItcmMistake> mistakes =
        itcmMistakes(options, currentDevice().device(), tempDir());
    for (const ItcmMistake &mistake : mistakes)
        texts.append(mistake.text());
    return texts;
}

GenerationInput TarvoOrixM1Dlg::generationInput() const
{
    return {options,
            ipInfo,
            currentDevice(),
            toolNamed(synthesisTool()),
            languageAt(languageIndex()),
            createInPath()};
}

void TarvoOrixM1Dlg::generateCore()
{
    const GenerationInput input = generationInput();
    const GenerationPlan plan = generationPlan(input);
    prefixNotices.clear();
    // A host tells by itself why a file could not be written.
    record = std::make_unique<GenerationRecord>(
        input, plan, sha256, [this](const QString &path, const QStringList &lines, QString *) {
            return IPCore::generateFile(path, lines, this, QString());
        });
    QString error;
    if (!record->begin(&error)) {
        UpdateCreatinPath();
        tellNotices();
        if (!error.isEmpty())
            showErrorBox(this, error);
        return;
    }
    for (const IncludeFile &file : plan.includeFiles) {
        if (!IPCore::generateFile(plan.pathOf(file), file.lines, this, QString())) {
            // Saving took the output folder out of the map; the blocks' dialogs need it for as long
            // as this one stays open.
            UpdateCreatinPath();
            tellNotices();
            return;
        }
    }

    makeSynthesis();
    if (input.tool)
        synthesis->setSynthesizeTool(toolOfHost(*input.tool));

    const SynthesisRequest &request = plan.request;
    IPCore::SynthesizeArgs args;
    args.outputDir = request.outputDir;
    args.ipName = request.ipName;
    args.targetName = request.targetName;
    args.device = request.device;
    args.options = request.options;

    synthesis->setProgressDlgWindowTitle(ipInfo.value(InfoKey::label).toString());
    synthesis->showProgressDlg();
    synthesis->setArgs(args);
    synthesis->start();
}

void TarvoOrixM1Dlg::makeSynthesis()
{
    if (synthesis)
        return;
    synthesis = new SynthesisHelper(this);
    connect(synthesis, SIGNAL(finished(int)), this, SLOT(onGenerationFinished(int)));
}

void TarvoOrixM1Dlg::placePrefixed()
{
    if (const QString refused = refusedPrefix(options); !refused.isEmpty())
        prefixNotices.append(refused);
    const QString prefix = prefixOf(options);
    if (prefix.isEmpty())
        return;
    const GenerationInput input = generationInput();
    const auto set = prefixedSet(input, generationPlan(input), prefix);
    QString error = set.reason();
    if (set) {
        QVariantList files;
        for (const Utils::BundleFile &file : set->files)
            files.append(QVariantMap{
                {"path"_l1, file.path}, {"group"_l1, file.group}, {"bytes"_l1, file.bytes}});
        QVariantMap placed{{"error"_l1, tr("this application has no means to place them.")}};
        if (synthesis->metaObject()->indexOfMethod("placeFiles(QString,QString,QVariantList)") >= 0)
            QMetaObject::invokeMethod(synthesis, "placeFiles", Qt::DirectConnection,
                                      Q_RETURN_ARG(QVariantMap, placed),
                                      Q_ARG(QString, set->folder), Q_ARG(QString, set->manifest),
                                      Q_ARG(QVariantList, files));
        error = placed["error"_l1].toString();
        prefixNotices += placed["notices"_l1].toStringList();
    }
    if (!error.isEmpty())
        prefixNotices.append(
            tr("The files with the prefix \"%1\" were not written: %2").arg(prefix, error));
}

void TarvoOrixM1Dlg::tellNotices()
{
    const QStringList notices = (record ? record->messages() : QStringList()) + prefixNotices;
    if (notices.isEmpty())
        return;
    makeSynthesis();
    if (synthesis->metaObject()->indexOfMethod("tellNotices(QStringList)") >= 0)
        QMetaObject::invokeMethod(synthesis, "tellNotices", Qt::DirectConnection,
                                  Q_ARG(QStringList, notices));
}

void TarvoOrixM1Dlg::finishRecord(int exitCode, int status)
{
    // Results that are there in part only are those of a run that has not finished.
    if (!record || (exitCode == 0 && status != 0))
        return;
    QString error;
    if (exitCode != 0) {
        record->finish(nullptr, &error);
        return;
    }
    // Of a host that cannot tell, the tool stays unknown.
    QVariantMap told;
    if (synthesis->metaObject()->indexOfMethod("runRecord()") >= 0)
        QMetaObject::invokeMethod(synthesis, "runRecord", Qt::DirectConnection,
                                  Q_RETURN_ARG(QVariantMap, told));
    const GenerationRecord::Run run{told["tool"_l1].toString(), told["version"_l1].toString(),
                                    QJsonObject::fromVariantMap(told["report"_l1].toMap())};
    record->finish(&run, &error);
}

void TarvoOrixM1Dlg::onGenerationFinished(int exitCode)
{
    const Outputs outputs = plannedOutputs(generationInput());
    Collection result;
    QString error;
    if (exitCode == 0 && record && !record->keepEditedOutputs(&error)) {
        result.status = -1;
        result.errors.append(error);
    } else {
        result = collectOutputs(exitCode, synthesis->detailErrorMsgs(), outputs, createInPath(),
                                IPCore::decode);
    }
    finishRecord(exitCode, result.status);
    if (result.status == 0)
        placePrefixed();
    tellNotices();
    synthesis->hideProgressDlg();
    if (result.status != 0) {
        UpdateCreatinPath();
        const QString summary = synthesis->errorMsg();
        IPCore::showErrorMsgs(summary.isEmpty() ? QStringLiteral("Core generation occur errors.")
                                                : summary,
                              result.errors);
        return;
    }
    Core::EditorManager::openEditor(outputs.netlist, false);
    Core::EditorManager::openEditor(outputs.instantiationTemplate, false);
    IPCore::addFilesToProject({outputs.netlist});
    QDialog::accept();
}

} // namespace TARVOORIXM1

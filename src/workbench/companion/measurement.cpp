#include "measurement.h"

#include <synthesis/toolrun.h>
#include <utils/fileutils.h>

#include <QDir>
#include <QFileInfo>

namespace Workbench
{

Measurement::Measurement(const MeasureCommand &command, QObject *parent)
    : QObject(parent)
    , m_command(command)
    , m_folder(QDir::tempPath() + QStringLiteral("/tarvo-workbench-measure-XXXXXX"))
    , m_result(QVector<MeasuredUse>())
{
}

Measurement::~Measurement() = default;

void Measurement::start()
{
    QString error;
    if (!m_folder.isValid()) {
        fail(tr("A folder for it cannot be made: %1").arg(m_folder.errorString()));
        return;
    }
    if (!Utils::FileUtils::makePath(m_folder.filePath(QStringLiteral("tmp")), &error) ||
        !Utils::FileUtils::writeFile(m_folder.filePath(m_command.file), m_command.configuration,
                                     &error)) {
        fail(error);
        return;
    }
    Synthesis::ToolRun::Call call;
    call.name = QFileInfo(m_command.program).fileName();
    call.program = m_command.program;
    call.arguments = m_command.arguments;
    call.folder = m_folder.path();
    call.usersHome = true; // results of earlier runs are in the user's cache
    call.isIdle = m_isIdle;
    call.hasErrors = false;
    m_run = std::make_unique<Synthesis::ToolRun>(call);
    connect(m_run.get(), &Synthesis::ToolRun::lineReceived, this, [this](const QString &line) {
        if (m_output.size() <= EstimateAnswer::outputLimit)
            m_output += line.toUtf8() + '\n';
    });
    connect(m_run.get(), &Synthesis::ToolRun::ended, this, &Measurement::onEnded);
    m_run->start();
}

void Measurement::fail(const QString &reason)
{
    m_result = Utils::Failure{reason};
    QMetaObject::invokeMethod(this, &Measurement::finished, Qt::QueuedConnection);
}

void Measurement::onEnded()
{
    if (const QString failure = m_run->failure(); !failure.isEmpty()) {
        const QString told = EstimateAnswer::firstErrorOf(m_output);
        m_result = Utils::Failure{told.isEmpty() ? failure : told};
    } else {
        m_result = EstimateAnswer::measuredUseOf(m_output);
        if (!m_result)
            m_result = Utils::Failure{
                tr("The answer of \"%1\" cannot be used: %2.")
                    .arg(QDir::toNativeSeparators(m_command.program), m_result.reason())};
    }
    m_folder.remove();
    Q_EMIT finished();
}

} // namespace Workbench

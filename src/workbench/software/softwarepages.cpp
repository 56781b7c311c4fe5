#include "softwarepages.h"

#include "catalogue/ipcatalogue.h"
#include "catalogue/ipsession.h"
#include "editor/editortabs.h"
#include "kept/keptconfigurations.h"
#include "softwarepage.h"
#include "tr.h"
#include "widgets/symbolicon.h"

#include <QDir>
#include <QFileInfo>

namespace Workbench
{

namespace
{

// The plug-in of a configuration, which may name another IP the next time that it is asked.
SoftwarePage::Source sourceOf(const IpCatalogue &catalogue, KeptConfigurations &kept,
                              const QString &ipcFile)
{
    const auto indexOf = [&catalogue, ipcFile](QString *error) {
        const QString type = IpSession::typeOf(ipcFile, error);
        const int ip = catalogue.indexOf(type);
        if (ip < 0 && error->isEmpty())
            *error = Tr::tr("No plug-in offers the IP of \"%1\".")
                         .arg(QDir::toNativeSeparators(ipcFile));
        return ip;
    };
    const auto unusable = [&catalogue](int ip, const QString &reason) {
        return Utils::Failure{Tr::tr("What the plug-in of %1 answers cannot be used: %2.")
                                  .arg(catalogue.entries().at(ip).name, reason)};
    };
    SoftwarePage::Source source;
    source.formats = [&catalogue, indexOf, unusable]() -> Utils::Result<QVector<SoftwareFormat>> {
        QString error;
        QVariantList answer;
        const int ip = indexOf(&error);
        if (ip < 0 || !catalogue.softwareFormats(ip, &answer, &error))
            return Utils::Failure{error};
        Utils::Result<QVector<SoftwareFormat>> formats = SoftwareSet::formatsOf(answer);
        if (!formats)
            return unusable(ip, formats.reason());
        return formats;
    };
    source.files =
        [&catalogue, ipcFile, indexOf,
         unusable](const QVector<SoftwareFormat> &formats) -> Utils::Result<SoftwareSet::Answer> {
        QString error;
        QVariantMap answer;
        const int ip = indexOf(&error);
        QStringList names;
        for (const SoftwareFormat &format : formats)
            names.append(format.name);
        if (ip < 0 || !catalogue.exportSoftware(ip, ipcFile, names, &answer, &error))
            return Utils::Failure{error};
        Utils::Result<SoftwareSet::Answer> files = SoftwareSet::filesOf(answer, formats);
        if (!files)
            return unusable(ip, files.reason());
        return files;
    };
    source.program.isOffered = [&catalogue, indexOf] {
        QString error;
        const int ip = indexOf(&error);
        return ip >= 0 && catalogue.canTakePrograms(ip);
    };
    source.program.files = [&catalogue, ipcFile, indexOf, unusable](
                               const QByteArray &image) -> Utils::Result<SoftwareSet::Program> {
        QString error;
        QVariantMap answer;
        const int ip = indexOf(&error);
        if (ip < 0 || !catalogue.firmwareFiles(ip, ipcFile, image, &answer, &error))
            return Utils::Failure{error};
        Utils::Result<SoftwareSet::Program> program = SoftwareSet::programOf(answer);
        if (!program)
            return unusable(ip, program.reason());
        return program;
    };
    source.program.start = [&catalogue, ipcFile, indexOf,
                            unusable](const QString &folder,
                                      bool write) -> Utils::Result<SoftwareSet::Start> {
        QString error;
        QVariantMap answer;
        const int ip = indexOf(&error);
        if (ip < 0 || !catalogue.startFromFirmware(ip, ipcFile, folder, write, &answer, &error))
            return Utils::Failure{error};
        Utils::Result<SoftwareSet::Start> start = SoftwareSet::startOf(answer);
        if (!start)
            return unusable(ip, start.reason());
        return start;
    };
    source.program.keep = [&kept, ipcFile](QString *error) {
        return kept.keepFile(ipcFile, error);
    };
    return source;
}

} // namespace

SoftwarePages::SoftwarePages(const IpCatalogue &catalogue, KeptConfigurations &kept,
                             EditorTabs &tabs, QWidget *window)
    : QObject(window)
    , m_catalogue(catalogue)
    , m_kept(kept)
    , m_tabs(tabs)
    , m_window(window)
{
}

SoftwarePage *SoftwarePages::show(const QString &ipcFile)
{
    const QString path = QFileInfo(ipcFile).absoluteFilePath();
    SoftwarePage *&page = m_pages[path];
    if (!page) {
        page = new SoftwarePage(sourceOf(m_catalogue, m_kept, path), path, m_window);
        page->hide();
    }
    m_tabs.showPage(page, symbolIcon(QStringLiteral("ip-file")),
                    tr("Hand-off of %1")
                        .arg(QFileInfo(path).completeBaseName())
                        .replace(u'&', QLatin1String("&&")),
                    path);
    m_tabs.setTabToolTip(m_tabs.indexOf(page), QDir::toNativeSeparators(path));
    page->setFocus();
    return page;
}

SoftwarePage *SoftwarePages::pageOf(const QString &ipcFile) const
{
    return m_pages.value(QFileInfo(ipcFile).absoluteFilePath());
}

void SoftwarePages::clear()
{
    for (SoftwarePage *page : qAsConst(m_pages))
        page->deleteLater(); // a button of one may be what closes the project
    m_pages.clear();
}

} // namespace Workbench

#include "panels.h"

#include "meterpanel.h"
#include "previewpanel.h"
#include "stepspanel.h"
#include "tr.h"

namespace Workbench
{

namespace
{

template <typename Panel>
QWidget *make(QDialog *ipDialog, QObject *pluginRoot, QWidget *parent)
{
    return new Panel(ipDialog, pluginRoot, parent);
}

} // namespace

QVector<CompanionPanel> companionPanels(QSettings &settings)
{
    const auto makeMeter = [&settings](QDialog *ipDialog, QObject *pluginRoot, QWidget *parent) {
        auto *meter = new MeterPanel(ipDialog, pluginRoot, parent);
        meter->setSettings(&settings);
        return meter;
    };
    return {{Tr::tr("Me&ter"), &MeterPanel::isOffered, makeMeter},
            {Tr::tr("&Steps"), &StepsPanel::isOffered, &make<StepsPanel>},
            {Tr::tr("&Preview"), &PreviewPanel::isOffered, &make<PreviewPanel>}};
}

} // namespace Workbench

#include "ipview.h"

#include "config/optionkeys.h"

namespace TARVOORIXM1
{

IPView::IPView(OptionMap *options, QWidget *parent)
    : QGraphicsView(parent)
    , m_options(options)
{
}

void IPView::setCanAvailable(bool available)
{
    setAvailable(Key::enableCan, available);
}

void IPView::setDdr3Available(bool available)
{
    setAvailable(Key::enableDdr3, available);
}

void IPView::setEthernetAvailable(bool available)
{
    setAvailable(Key::enableEthernet, available);
}

void IPView::setPsramAvailable(bool available)
{
    setAvailable(Key::enablePsram, available);
}

void IPView::setSpiFlashAvailable(bool available)
{
    setAvailable(Key::enableSpi, available);
}

void IPView::setAvailable(const QString &key, bool available)
{
    if (available)
        m_available.insert(key);
    else
        m_available.remove(key);
    updateView();
}

void IPView::updateView()
{
    viewport()->update();
}

} // namespace TARVOORIXM1

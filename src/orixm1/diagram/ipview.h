#pragma once

#include "config/optionmap.h"

#include <QGraphicsView>
#include <QSet>

namespace TARVOORIXM1
{

// The picture of the subsystem. Works on the caller's option map, which must outlive it.
class IPView : public QGraphicsView
{
    Q_OBJECT

public:
    IPView(OptionMap *options, QWidget *parent = nullptr);

    void setCanAvailable(bool available);
    void setDdr3Available(bool available);
    void setEthernetAvailable(bool available);
    void setPsramAvailable(bool available);
    void setSpiFlashAvailable(bool available);

    // Whether the block registered under this option key is offered.
    bool isBlockAvailable(const QString &key) const { return m_available.contains(key); }

public Q_SLOTS:
    // Shows the state of the option map.
    void updateView();

private:
    void setAvailable(const QString &key, bool available);

    OptionMap *m_options;
    QSet<QString> m_available;
};

} // namespace TARVOORIXM1

#pragma once

#include "config/optionmap.h"
#include "rules/corepins.h"

#include <ipcore/microsyschildipgendlg.h>

#include <memory>

namespace TARVOORIXM1
{

namespace Ui
{
class Common;
class Debug;
class Memory;
} // namespace Ui

// The options of the processor. Reads the caller's option map, which must outlive it, and writes it
// on OK; opening it on one of the smallest devices writes at once that they have no debug.
class CortexM1 : public IPCore::MicroSysChildIPGenDlg
{
    Q_OBJECT

public:
    CortexM1(OptionMap *options, QWidget *parent = nullptr);
    ~CortexM1() override;

public Q_SLOTS:
    void accept() override;

private Q_SLOTS:
    void refreshFigure();
    void onItcmInitialize(bool on);
    void onPathBtn();
    void onEnableDebug();
    void updateTcmSizeItem();
    void onInternalInsBtnChanged(bool on);
    void onInternalDataBtnChanged(bool on);
    void onExtBtn();

private:
    void connectWidgets();
    void loadOptions();
    void storeOptions();
    bool checkItcmInitPath();
    QString createInFolder() const;
    void initTcmSizeItems();

    void applyDeviceRules();
    // Balancing runs whenever one of the two sizes changes, except while it runs itself.
    void connectSizes(bool connected);
    QString targetDevice() const;
    CoreSwitches shownSwitches() const;

    std::unique_ptr<Ui::Common> common;
    std::unique_ptr<Ui::Debug> debug;
    std::unique_ptr<Ui::Memory> memory;
    OptionMap *m_options;
};

} // namespace TARVOORIXM1

#pragma once

#include "peripheraldlg.h"

namespace TARVOORIXM1
{

// A block with a second switch: whether its ports are bidirectional or split into inputs, outputs
// and output enables. The user can change it while the block is on.
class InterfaceTypeDlg : public PeripheralDlg
{
    Q_OBJECT

protected:
    using PeripheralDlg::PeripheralDlg;

    void connectOptions() override;
    void loadOptions() override;
};

} // namespace TARVOORIXM1

#pragma once

namespace DEV
{

// How much of each a die has; -1 where the database does not say.
struct DeviceResources {
    int lut4 = -1;      // tables of four inputs
    int flipFlops = -1; // also latches
    int carry = -1;     // bits of carry chains
    int blockRam = -1;  // blocks of 16384 bits
};

} // namespace DEV

#include "lint.h"

#include "config/latin1literal.h"
#include "names.h"
#include "rtl.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

struct Waiver {
    QLatin1String rule;
    QLatin1String reason;
    QLatin1String files; // with a blank between them
};

constexpr Waiver waivers[] = {
    {"DECLFILENAME"_l1,
     "the file is named after the block, and its module as the block's supplier names it"_l1,
     "cortex_m1_core.v ddr3_controller.v psram_interface.v tarvo_orix_m1_top.v triple_speed_mac.v "
     "dtcm_3k.v dtcm_5k.v itcm_3k.v itcm_5k.v itcmdbg_2kc.v"_l1},
    {"PINCONNECTEMPTY"_l1, "outputs of a block that this configuration leads nowhere"_l1,
     "tarvo_orix_m1_top.v"_l1},
    {"UNDRIVEN"_l1, "a declaration: the licensed processor drives them"_l1, "cortex_m1_core.v"_l1},
    {"UNUSEDPARAM"_l1, "a declaration or a stand-in: the licensed block takes them"_l1,
     "can_core.v cortex_m1_core.v ddr3_controller.v psram_interface.v triple_speed_mac.v"_l1},
    {"UNUSEDSIGNAL"_l1, "a declaration or a stand-in: the licensed block reads them"_l1,
     "can_core.v cortex_m1_core.v ddr3_controller.v psram_interface.v triple_speed_mac.v "
     "trng_core.v"_l1},
    {"UNUSEDSIGNAL"_l1, "a slave has the whole bus at its port and reads what it needs of it"_l1,
     "ahb_can.v ahb_ddr3.v ahb_default_slave.v ahb_ethernet.v ahb_gpio.v ahb_psram.v "
     "ahb_spi_flash.v ahb_to_apb.v apb_dual_timer.v apb_i2c.v apb_mux.v apb_rtc.v apb_sdcard.v "
     "apb_spi.v apb_system.v apb_timer.v apb_uart.v apb_watchdog.v"_l1},
    {"UNUSEDSIGNAL"_l1, "address lines of the largest memory, of which this one needs fewer"_l1,
     "dtcm.v dtcm_3k.v dtcm_5k.v dtcmdbg.v itcm.v itcm_3k.v itcm_5k.v itcmdbg.v itcmdbg_2kc.v"_l1},
    {"UNUSEDPARAM"_l1, "the table of extension ports in a configuration that has none"_l1,
     "tarvo_orix_m1_top.v"_l1},
    {"UNUSEDSIGNAL"_l1, "lines of blocks and ports that this configuration does not have"_l1,
     "ahb_decoder.v ahb_interconnect.v tarvo_orix_m1_top.v"_l1},
};

} // namespace

QVector<ExportedFile> lintFiles(const SystemMap &map)
{
    const QStringList sources = RtlPath::compiled(map);
    if (sources.isEmpty())
        return {};
    const QString name = fileName(map, ".vlt"_l1);
    QString text = "// Waivers for Verilator, each with its reason; the sources are not changed "
                   "for it. In this folder:\n"
                   "//   $ verilator --lint-only -Wall --top-module "_l1 +
                   topModuleName(map) + u' ' + name + " -f "_l1 + fileName(map, "_synthesis.f"_l1) +
                   "\n`verilator_config\n"_l1;
    for (const Waiver &waiver : waivers) {
        QString lines;
        const QStringList files = QString(waiver.files).split(u' ');
        for (const QString &file : files) {
            const QString path = RtlPath::includeFolder() + u'/' + ownName(map, file);
            if (sources.contains(path))
                lines += "lint_off -rule "_l1 + waiver.rule + " -file \"*"_l1 + path + "\"\n"_l1;
        }
        if (!lines.isEmpty())
            text += "\n// "_l1 + waiver.reason + u'\n' + lines;
    }
    return {{name, text.toUtf8()}};
}

} // namespace TARVOORIXM1

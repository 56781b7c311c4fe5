"""A first cocotb test of Tarvo_ORIX_M1_Top: clock, reset, and the first accesses of sim/tarvo_orix_m1_tb.play.

Run it in the folder of the export with a Makefile of yours:
    SIM = icarus
    TOPLEVEL = tarvo_orix_m1_tb
    MODULE = test_tarvo_orix_m1
    COMPILE_ARGS = -g2005-sv -c tarvo_orix_m1_simulation.f
    PLUSARGS = +script=sim/tarvo_orix_m1_tb.play
and with PYTHONPATH=sim; include cocotb's Makefile.sim behind these lines.
"""
import cocotb
from cocotb.clock import Clock
from cocotb.triggers import ClockCycles, RisingEdge

RESET_CYCLES = 10
MOST_CYCLES = 100000


@cocotb.test()
async def first_accesses(dut):
    """The processor's model plays the script, and every access gives what it is to give."""
    dut.hwRstn.value = 0
    cocotb.start_soon(Clock(dut.HCLK, 20, "ns").start())
    await ClockCycles(dut.HCLK, RESET_CYCLES)
    dut.hwRstn.value = 1
    core = dut.u_dut.u_core
    for _ in range(MOST_CYCLES):
        await RisingEdge(dut.HCLK)
        if str(dut.done.value) == "1":
            break
    else:
        raise AssertionError(f"no end of the script after {MOST_CYCLES} cycles")
    assert int(core.checks.value) > 0, "the script checks nothing"
    assert int(core.failures.value) == 0, "accesses failed, the simulator's output says which"
    assert int(dut.LOCKUP.value) == 0, "the processor is locked up"

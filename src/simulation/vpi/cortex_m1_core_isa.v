// The processor core for simulation, with its program: the ports and parameters of CortexM1Core, and behind them a model of its
// instructions: the VPI module "cortexm1core", or under Verilator the library "cortexm1core.so". The file of the program (ELF) is
// named with +firmware=FILE, or by the environment variable CORTEXM1_FIRMWARE.
//
// Instruction and data memory are within the model; every other data access is a transfer on AHB-Lite. An instruction takes a clock
// cycle, or as many as its transfers take: that is no count of the real core's cycles. What the model does not have ends the
// program with a message.
//
// With +tcm=rtl (+tcm=model is the default) the memories are those behind the pins: every fetch, vector, load, store and stacked word
// is an access on the ITCM or DTCM interface, one a clock cycle. The program is what the instruction memory holds from the start
// ("Initialize ITCM"), or FILE, which is then written over the interface before the first instruction. A read of bits that are
// neither 0 nor 1 ends the program and tells the address (Verilator has no such bits). It is slower, and takes more clock cycles.
//
// With +script=FILE the core plays a script of transfers instead of a program, as the bus-functional model does; with +tcm=model
// its accesses to the memories stay within the model and take as many clock cycles as they take over the interfaces.
//
// What the program says by semihosting is printed. When it ends, a line says "PASS" or "FAIL: " and the reason; done is 1 then and
// passed tells which, and with +finish the simulation ends. With +gdb=PORT the program waits for a debugger at 127.0.0.1;
// that needs +tcm=model.
//
// Files behind this one without a time scale of their own get this one, unless TARVO_NO_TIMESCALE is defined.
`ifndef TARVO_NO_TIMESCALE
`timescale 1ns / 1ps
`endif

`ifdef VERILATOR
import "DPI-C" function int cortexm1_open(input string firmware, input int interrupts, os, be8, lower, upper, itcm_size, dtcm_size,
                                          input string memories);
import "DPI-C" function void cortexm1_clock(input int handle, input bit [67:0] pins, output bit [76:0] next);
import "DPI-C" function void cortexm1_clock_memories(input int handle, input bit [67:0] pins, output bit [76:0] next,
                                                     input bit [63:0] data, output bit [55:0] tcm);
`define CORTEXM1_OPEN(firmware, memories) \
    handle = cortexm1_open(string'(firmware), NUM_IRQ, OS, BE8, ITCM_LA_EN, ITCM_UA_EN, {28'd0, ITCMSIZE}, {28'd0, DTCMSIZE}, \
                           string'(memories))
import "DPI-C" function void cortexm1_names(input int handle, output bit [31:0] pc, output bit [319:0] function_name,
                                            output bit [319:0] register_name);
`define CORTEXM1_NAMES cortexm1_names
`define CORTEXM1_CLOCK cortexm1_clock
`define CORTEXM1_CLOCK_MEMORIES cortexm1_clock_memories
`else
`define CORTEXM1_OPEN(firmware, memories) \
    $cortexm1_open(handle, firmware, NUM_IRQ, OS, BE8, ITCM_LA_EN, ITCM_UA_EN, ITCMSIZE, DTCMSIZE, memories)
`define CORTEXM1_NAMES $cortexm1_names
`define CORTEXM1_CLOCK $cortexm1_clock
`define CORTEXM1_CLOCK_MEMORIES $cortexm1_clock
`endif

module CortexM1Core #(
    parameter       NUM_IRQ     = 32,
    parameter       OS          = 1,
    parameter       SMALL_MUL   = 0,
    parameter       BE8         = 0,
    parameter       DEBUG       = 0,
    parameter       JTAG        = 0,
    parameter       SW          = 0,
    parameter       SMALL_DEBUG = 0,
    parameter       ITCM_LA_EN  = 1,
    parameter       ITCM_UA_EN  = 0,
    parameter [3:0] ITCMSIZE    = 4'b0110,
    parameter [3:0] DTCMSIZE    = 4'b0110
) (
    input  wire        HCLK,
    input  wire        PORRESETn,
    input  wire        SYSRESETn,
    output wire        SYSRESETREQ,
    output wire        LOCKUP,
    output wire        HALTED,
    input  wire        NMI,
    input  wire [31:0] IRQ,

    output wire [31:0] HADDR,
    output wire [1:0]  HTRANS,
    output wire [2:0]  HBURST,
    output wire [3:0]  HPROT,
    output wire [2:0]  HSIZE,
    output wire        HWRITE,
    output wire        HMASTLOCK,
    output wire [31:0] HWDATA,
    input  wire [31:0] HRDATA,
    input  wire        HREADY,
    input  wire        HRESP,

    output wire        ITCMEN,
    output wire [3:0]  ITCMWE,
    output wire [17:0] ITCMADDR,
    output wire [31:0] ITCMWDATA,
    input  wire [31:0] ITCMRDATA,
    output wire        DTCMEN,
    output wire [3:0]  DTCMWE,
    output wire [17:0] DTCMADDR,
    output wire [31:0] DTCMWDATA,
    input  wire [31:0] DTCMRDATA,

    output wire        DBGITCMEN,
    output wire [3:0]  DBGITCMWE,
    output wire [17:0] DBGITCMADDR,
    output wire [31:0] DBGITCMWDATA,
    input  wire        DBGITCMREADY,
    output wire        DBGDTCMEN,
    output wire [3:0]  DBGDTCMWE,
    output wire [17:0] DBGDTCMADDR,
    output wire [31:0] DBGDTCMWDATA,
    input  wire        DBGDTCMREADY,

    input  wire        nTRST,
    input  wire        SWCLKTCK,
    input  wire        SWDITMS,
    output wire        SWDO,
    output wire        SWDOEN,
    input  wire        TDI,
    output wire        TDO,
    output wire        TDOEN
);
    assign HALTED = 1'b0;
    assign HPROT = 4'b0011;      // data, privileged
    assign HMASTLOCK = 1'b0;
    assign {DBGITCMEN, DBGITCMWE, DBGITCMADDR, DBGITCMWDATA} = 55'd0;
    assign {DBGDTCMEN, DBGDTCMWE, DBGDTCMADDR, DBGDTCMWDATA} = 55'd0;
    assign {SWDO, SWDOEN, TDO, TDOEN} = 4'd0;

    reg done = 1'b0;
    reg passed = 1'b0;
    integer handle = 0;
    reg [8*1024-1:0] firmware;
    reg [8*32-1:0] memories;
    reg outer_memories = 1'b0;
    initial begin
        if (!$value$plusargs("tcm=%s", memories))
            memories = "model";
        outer_memories = memories == "rtl";
        if (!$value$plusargs("firmware=%s", firmware))
            firmware = "";
        `CORTEXM1_OPEN(firmware, memories);
    end

    // For people who look at waves, with +names=FILE: the instruction, the function that it is in, and the register that a transfer
    // accesses.
    reg [31:0] pc = 32'd0;
    reg [8*40-1:0] function_name = 320'd0;
    reg [8*40-1:0] register_name = 320'd0;
    reg has_names = 1'b0;
    initial
        has_names = $test$plusargs("names=") != 0;

    // The model looks at falling edges, where inputs have settled, and says what the outputs show from the next rising edge
    // on. An X is no reset.
    reg  [76:0] next = 77'd0;
    reg  [76:0] shown = 77'd0;
    reg  [55:0] tcm = 56'd0;
    wire        in_reset = (PORRESETn === 1'b0) | (SYSRESETn === 1'b0);
    always @(negedge HCLK) begin
        if (!done) begin
            if (outer_memories)
                `CORTEXM1_CLOCK_MEMORIES(handle, {in_reset, NMI, HREADY, HRESP, IRQ, HRDATA}, next, {DTCMRDATA, ITCMRDATA}, tcm);
            else
                `CORTEXM1_CLOCK(handle, {in_reset, NMI, HREADY, HRESP, IRQ, HRDATA}, next);
            if (has_names)
                `CORTEXM1_NAMES(handle, pc, function_name, register_name);
            if (next[73]) begin
                done = 1'b1;
                passed = next[72];
                if ($test$plusargs("finish"))
                    $finish;
            end
        end
    end
    always @(posedge HCLK)
        shown <= next;
    assign HBURST = shown[76:74];
    assign {SYSRESETREQ, LOCKUP, HTRANS, HSIZE, HWRITE, HADDR, HWDATA} = shown[71:0];

    // The memories' pins change with the falling edge, so that an access takes one cycle. Both have the same address and data.
    assign {ITCMEN, DTCMEN} = tcm[55:54];
    assign ITCMWE = {4{tcm[55]}} & tcm[53:50];
    assign DTCMWE = {4{tcm[54]}} & tcm[53:50];
    assign {ITCMADDR, ITCMWDATA} = tcm[49:0];
    assign {DTCMADDR, DTCMWDATA} = tcm[49:0];
endmodule
`ifndef HAVE_CortexM1Core
`define HAVE_CortexM1Core // for models behind this file
`endif

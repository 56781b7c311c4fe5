// Resets of the subsystem: asserted asynchronously, released on HCLK after two clean edges.
//   por_n  power-on reset: the hardware pin only; resets the debug logic
//   sys_n  system reset: the hardware pin, the debug connector, the processor's request, the watchdog, a lock-up
//   cause  requests of a system reset that are there now: 0 watchdog, 1 processor, 2 lock-up, 3 debug connector
// A request is latched for four clock cycles, so that a source that is itself cleared by sys_n makes a full reset pulse.
module reset_controller (
    input  wire       HCLK,
    input  wire       hwRstn,
    input  wire       srst_n,         // system reset from the debug connector, asynchronous
    input  wire       sysreset_req,   // synchronous to HCLK
    input  wire       wdog_req,       // synchronous to HCLK
    input  wire       lockup_req,     // synchronous to HCLK
    output wire       por_n,
    output wire       sys_n,
    output wire [3:0] cause
);
    reg [1:0] por_sync;
    always @(posedge HCLK or negedge hwRstn)
        if (!hwRstn)
            por_sync <= 2'b00;
        else
            por_sync <= {por_sync[0], 1'b1};
    assign por_n = por_sync[1];

    // Requests live in the power-on domain: the reset that they cause does not clear them.
    wire srst_clean_n;
    cdc_synchronizer #(.RESET(1'b1)) u_sync_srst (
        .clk(HCLK),
        .rstn(por_n),
        .d(srst_n),
        .q(srst_clean_n)
    );
    assign cause = {~srst_clean_n, lockup_req, sysreset_req, wdog_req};

    reg [2:0] hold;
    wire request = |cause;
    always @(posedge HCLK or negedge por_n)
        if (!por_n)
            hold <= 3'd4;
        else if (request)
            hold <= 3'd4;
        else if (hold != 3'd0)
            hold <= hold - 3'd1;

    reg sys;
    always @(posedge HCLK or negedge por_n)
        if (!por_n)
            sys <= 1'b0;
        else
            sys <= (hold == 3'd0) & ~request;
    assign sys_n = sys;
endmodule

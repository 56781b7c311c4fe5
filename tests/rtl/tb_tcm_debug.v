// Tightly coupled memories with debug: both ports, and who comes first.
// Of a netlist only the default size is there, without a program.
`ifdef GATES
`undef TCM_HAS_PROGRAM
`endif
module tb;
`include "bench.vh"
    reg         core_en = 1'b0, dbg_en = 1'b0;
    reg  [3:0]  core_we = 4'd0, dbg_we = 4'd0;
    reg  [17:0] core_addr = 18'd0, dbg_addr = 18'd0;
    reg  [31:0] core_wdata = 32'd0, dbg_wdata = 32'd0;
    wire [31:0] rdata, empty_rdata, biggest_rdata;
    wire        dbg_ready, empty_ready, biggest_ready;

`define COMMON_PORTS .HCLK(clk), .core_en(core_en), .core_we(core_we), .core_addr(core_addr), .core_wdata(core_wdata), .dbg_en(dbg_en), .dbg_we(dbg_we), .dbg_addr(dbg_addr), .dbg_wdata(dbg_wdata)
`ifdef GATES
    `TCM_MODULE dut (`COMMON_PORTS, .dbg_ready(dbg_ready), .rdata(rdata));
    assign empty_rdata = 32'd0;
    assign biggest_rdata = rdata;
`else
    `TCM_MODULE #(.SIZE(4'd3)) dut (`COMMON_PORTS, .dbg_ready(dbg_ready), .rdata(rdata));
    `TCM_MODULE #(.SIZE(4'd0)) empty (`COMMON_PORTS, .dbg_ready(empty_ready), .rdata(empty_rdata));
    `TCM_MODULE #(.SIZE(4'd10)) biggest (`COMMON_PORTS, .dbg_ready(biggest_ready), .rdata(biggest_rdata));
`endif
`ifdef TCM_HAS_PROGRAM
    wire        program_ready;
    wire [31:0] program_rdata;
    `TCM_MODULE #(.SIZE(4'd1), .INIT_EN(1), .INIT_PATH(`PROGRAM_DIR)) loaded (`COMMON_PORTS, .dbg_ready(program_ready), .rdata(program_rdata));
`endif

    task core(input [17:0] a, input [3:0] lanes, input [31:0] d);
        begin
            core_en = 1'b1; core_we = lanes; core_addr = a; core_wdata = d;
            cycles(1);
            core_en = 1'b0; core_we = 4'd0;
        end
    endtask
    task debugger(input [17:0] a, input [3:0] lanes, input [31:0] d);
        begin
            dbg_en = 1'b1; dbg_we = lanes; dbg_addr = a; dbg_wdata = d;
            #1;
            while (!dbg_ready) cycles(1);
            cycles(1);
            dbg_en = 1'b0; dbg_we = 4'd0;
        end
    endtask

    integer n;
    initial begin
        cycles(2);
`ifdef TCM_HAS_PROGRAM
        for (n = 0; n < 4; n = n + 1) begin
            debugger(n, 4'd0, 32'd0);
            check32(program_rdata, {8'h30 + n[7:0], 8'h20 + n[7:0], 8'h10 + n[7:0], 8'h00 + n[7:0]}, "program word");
        end
`endif
        #1 check(dbg_ready === 1'b0, "nothing to be ready for");
        debugger(18'd100, 4'hF, 32'h11223344);
        core(18'd100, 4'd0, 32'd0);
        check32(rdata, 32'h11223344, "the processor reads what the debugger wrote");
        core(18'd100, 4'b0101, 32'hAABBCCDD);
        debugger(18'd100, 4'd0, 32'd0);
        check32(rdata, 32'h11BB33DD, "the debugger reads what the processor wrote");
        debugger(18'd1023, 4'b1010, 32'h55667788);
        debugger(18'd1023, 4'b0101, 32'h00990099);
        core(18'd1023, 4'd0, 32'd0);
        check32(rdata, 32'h55997799, "byte enables of the debugger");
        core(18'h3FFFF, 4'hF, 32'hCAFE0001);
        core(18'd0, 4'hF, 32'hCAFE0002);
        debugger(18'h3FFFF, 4'd0, 32'd0);
        check32(biggest_rdata, 32'hCAFE0001, "highest word of 512 KB");
        check32(rdata, 32'hCAFE0001, "a smaller one repeats: highest word");
        check32(empty_rdata, 32'd0, "size 0 reads as zero");
        // Both at once: the processor first, the debugger in the first free cycle.
        debugger(18'd5, 4'hF, 32'h00000005);
        debugger(18'd6, 4'hF, 32'h00000006);
        dbg_en = 1'b1; dbg_we = 4'hF; dbg_addr = 18'd5; dbg_wdata = 32'h0000DEB0;
        core_en = 1'b1; core_we = 4'd0;
        for (n = 0; n < 5; n = n + 1) begin
            core_addr = (n % 2) ? 18'd5 : 18'd6;
            #1 check(dbg_ready === 1'b0, "the debugger waits");
            cycles(1);
            check32(rdata, (n % 2) ? 32'd5 : 32'd6, "the processor is served");
        end
        core_en = 1'b0;
        #1 check(dbg_ready === 1'b1, "a free cycle");
        cycles(1);
        dbg_en = 1'b0; dbg_we = 4'd0;
        core(18'd5, 4'd0, 32'd0);
        check32(rdata, 32'h0000DEB0, "the debugger has written");
        finish;
    end
endmodule

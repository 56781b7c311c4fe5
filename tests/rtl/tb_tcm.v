// Tightly coupled memories without debug: every variant, every size code, byte enables, program files.
// Of a netlist only the default size is there, without a program.
`ifdef GATES
`undef TCM_HAS_PROGRAM
`endif
module tb;
`include "bench.vh"
    reg         en = 1'b0;
    reg  [3:0]  we = 4'd0;
    reg  [17:0] addr = 18'd0;
    reg  [31:0] wdata = 32'd0;

    // One instance per size code, and the instruction memory once more with a program.
    wire [31:0] rdata [0:10];
    wire [31:0] program_rdata;
`ifdef GATES
    localparam SMALLEST = 6, LARGEST = 6;
    `TCM_MODULE dut (.HCLK(clk), .en(en), .we(we), .addr(addr), .wdata(wdata), .rdata(rdata[6]));
    assign rdata[0] = 32'd0;
`else
    localparam SMALLEST = 1, LARGEST = 10;
    genvar g;
    generate
        for (g = 0; g <= 10; g = g + 1) begin : sizes
            `TCM_MODULE #(.SIZE(g)) dut (.HCLK(clk), .en(en), .we(we), .addr(addr), .wdata(wdata), .rdata(rdata[g]));
        end
    endgenerate
`endif
`ifdef TCM_HAS_PROGRAM
    `TCM_MODULE #(.SIZE(4'd1), .INIT_EN(1), .INIT_PATH(`PROGRAM_DIR)) loaded (
        .HCLK(clk), .en(en), .we(we), .addr(addr), .wdata(wdata), .rdata(program_rdata)
    );
    // A size from which on each lane is a memory of its own; the program fills its start.
    wire [31:0] large_rdata;
    `TCM_MODULE #(.SIZE(4'd4), .INIT_EN(1), .INIT_PATH(`PROGRAM_DIR)) loaded_large (
        .HCLK(clk), .en(en), .we(we), .addr(addr), .wdata(wdata), .rdata(large_rdata)
    );
`endif

    task write(input [17:0] a, input [3:0] lanes, input [31:0] d);
        begin
            en = 1'b1; we = lanes; addr = a; wdata = d;
            cycles(1);
            en = 1'b0; we = 4'd0;
        end
    endtask
    task read(input [17:0] a);
        begin
            en = 1'b1; we = 4'd0; addr = a;
            cycles(1);
            en = 1'b0;
        end
    endtask

    integer n, top;
    initial begin
        cycles(2);
`ifdef TCM_HAS_PROGRAM
        for (n = 0; n < 4; n = n + 1) begin
            read(n);
            check32(program_rdata, {8'h30 + n[7:0], 8'h20 + n[7:0], 8'h10 + n[7:0], 8'h00 + n[7:0]}, "program word");
            check32(large_rdata, program_rdata, "the same in a larger memory");
        end
        write(18'd1, 4'b0100, 32'h00EE0000);
        read(18'd1);
        check32(program_rdata, 32'h31EE1101, "a program can be overwritten");
        check32(large_rdata, 32'h31EE1101, "in a larger memory too");
        write(18'd255, 4'hF, 32'hC3D2E1F0);
        read(18'd1);
        check32(program_rdata, 32'h31EE1101, "the ends of the lanes do not touch");
`endif
        check32(rdata[0], 32'd0, "size 0 reads as zero");
        // Address bits beyond the size must not matter, all others must: write the highest word of each size last.
        for (n = LARGEST; n >= SMALLEST; n = n - 1) begin
            top = (1 << (n + 7)) - 1;
            write(18'd0, 4'hF, 32'h5A000000 + n);
            write(top, 4'hF, 32'hA5000000 + n);
            read(18'd0);
            check32(rdata[n], 32'h5A000000 + n, "lowest word");
            read(top);
            check32(rdata[n], 32'hA5000000 + n, "highest word");
            if (n < 10) begin
                read(18'd1 << (n + 7));
                check32(rdata[n], 32'h5A000000 + n, "the memory ends there");
                if (n < LARGEST) check(rdata[n + 1] !== 32'h5A000000 + n, "the next size goes on");
            end
        end
        check32(rdata[0], 32'd0, "size 0 still reads as zero");
        // Byte enables, for every combination.
        for (n = 0; n < 16; n = n + 1) begin
            write(18'd7, 4'hF, 32'h44332211);
            write(18'd7, n[3:0], 32'hDDCCBBAA);
            read(18'd7);
            check32(rdata[6], {n[3] ? 8'hDD : 8'h44, n[2] ? 8'hCC : 8'h33, n[1] ? 8'hBB : 8'h22, n[0] ? 8'hAA : 8'h11},
                    "byte enables");
`ifdef TCM_HAS_PROGRAM
            check32(program_rdata, rdata[6], "byte enables of a memory with a program");
            check32(large_rdata, rdata[6], "byte enables of a larger memory with a program");
`endif
        end
        // Without enable nothing is read or written, and a write leaves the read data alone.
        write(18'd8, 4'hF, 32'h12345678);
        read(18'd8);
        addr = 18'd7; we = 4'hF; wdata = 32'd0; en = 1'b0;
        cycles(2);
        we = 4'd0;
        check32(rdata[6], 32'h12345678, "disabled: data stays");
        read(18'd7);
        check32(rdata[6], 32'hDDCCBBAA, "disabled: nothing written");
        write(18'd9, 4'hF, 32'h0BADF00D);
        check32(rdata[6], 32'hDDCCBBAA, "a write does not read");
        finish;
    end
endmodule

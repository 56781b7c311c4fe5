// SPI-Flash: window reads against a flash model that works on the pins alone, registers, errors, pipelining.
module tb;
`include "bench.vh"
`include "ahb_master.vh"
    wire fclk, csn, mosi, wpn, holdn;
    reg  miso = 1'bz;
    wire hsel = haddr[31:25] == 7'b0110100;
    ahb_spi_flash dut (.HCLK(clk), .HRESETn(rstn), .HSEL(hsel), .HADDR(haddr[24:0]), .HTRANS(htrans),
                       .HWRITE(hwrite), .HWDATA(hwdata), .HREADY(hready), .HRDATA(hrdata), .HREADYOUT(hready),
                       .HRESP(hresp), .flash_clk(fclk), .flash_csn(csn), .flash_mosi(mosi), .flash_miso(miso),
                       .flash_wpn(wpn), .flash_holdn(holdn));

    // Flash: the byte at address a is a[7:0] ^ a[15:8] ^ a[23:16] ^ 0x5C; command 0x9F answers 0xD1, 0xD2, 0xD3.
    function [7:0] content(input [23:0] a);
        content = a[7:0] ^ a[15:8] ^ a[23:16] ^ 8'h5C;
    endfunction
    integer    nbits = 0, reads = 0, others = 0;
    reg [7:0]  cmd = 8'd0, out = 8'd0;
    reg [23:0] at = 24'd0;
    always @(negedge csn) begin nbits = 0; cmd = 8'd0; end
    always @(posedge csn) miso = 1'bz;
    always @(posedge fclk) if (!csn) begin
        if (nbits < 8) cmd = {cmd[6:0], mosi};
        else if (nbits < 32) at = {at[22:0], mosi};
        nbits = nbits + 1;
        if (nbits == 8) begin if (cmd == 8'h03) reads = reads + 1; else others = others + 1; end
    end
    always @(negedge fclk) if (!csn) begin
        if (cmd == 8'h03 && nbits >= 32) begin
            if (nbits % 8 == 0) begin out = content(at); at = at + 24'd1; end
            miso = #2 out[7 - nbits % 8];
        end else if (cmd == 8'h9F && nbits >= 8) begin
            out = 8'hD0 + nbits / 8;
            miso = #2 out[7 - nbits % 8];
        end
    end
    function [31:0] word(input [23:0] a);
        word = {content(a + 24'd3), content(a + 24'd2), content(a + 24'd1), content(a)};
    endfunction

    localparam [31:0] BASE = 32'h68000000, DATA = 32'h69000000, SELECT = DATA + 4, DIV = DATA + 8, PROTECT = DATA + 12;
    integer n;
    reg [23:0] a;
    initial begin
        reset;
        check(csn === 1'b1 && fclk === 1'b0 && wpn === 1'b0 && holdn === 1'b1, "idle pins");
        ahb_expect(SELECT, 0, "reset SELECT");
        ahb_expect(DIV, 1, "reset DIV");
        ahb_expect(PROTECT, 1, "reset PROTECT");
        ahb_expect(DATA, 0, "reset DATA");
        for (n = 0; n < 12; n = n + 1) begin
            a = (24'h13579C * n) & 24'hFFFFFC;
            if (n == 11) a = 24'hFFFFFC;
            if (n == 4) ahb_write(DIV, 0);
            if (n == 8) ahb_write(DIV, 3);
            ahb_expect(BASE + a, word(a), "word of the window");
            check(csn === 1'b1, "deselected after a read");
            check(nbits == 64, "command, address and four bytes");
        end
        check(reads == 12 && others == 0, "one read command per word");
        ahb_transfer(BASE + 32'h102, 1'b0, 3'd0, 32'd0);
        check32(rd, word(24'h100), "a byte access reads its word");
        // Errors.
        ahb_write(BASE, 32'd0);
        check(failed, "the window cannot be written");
        check(reads == 13 && csn === 1'b1, "and nothing is sent");
        // Bytes by hand.
        ahb_write(SELECT, 1);
        check(csn === 1'b0, "selected by hand");
        ahb_transfer(BASE, 1'b0, 3'd2, 32'd0);
        check(failed, "no window while selected");
        ahb_write(DATA, 8'h9F);
        check(waits > 8, "waits for the byte");
        for (n = 1; n <= 3; n = n + 1) begin
            ahb_write(DATA, 8'h00);
            ahb_expect(DATA, 8'hD0 + n, "byte of the identification");
        end
        check(others == 1, "one other command");
        ahb_write(SELECT, 0);
        check(csn === 1'b1, "deselected");
        ahb_write(PROTECT, 0);
        check(wpn === 1'b1, "write protection off");
        // A window read right behind a SELECT write must already be refused, and work right behind the release.
        haddr = SELECT; htrans = 2'b10; hwrite = 1'b1;
        cycles(1);
        haddr = BASE; hwrite = 1'b0; hwdata = 32'd1;
        cycles(1);
        htrans = 2'b00;
        #1 check(hready === 1'b0 && hresp === 1'b1, "refused, first cycle");
        cycles(1);
        check(hready === 1'b1 && hresp === 1'b1, "refused, second cycle");
        haddr = SELECT; htrans = 2'b10; hwrite = 1'b1;
        cycles(1);
        haddr = BASE + 32'h40; hwrite = 1'b0; hwdata = 32'd0;
        cycles(1);
        htrans = 2'b00;
        #1;
        while (!hready) cycles(1);
        check(hresp === 1'b0, "accepted");
        check32(hrdata, word(24'h40), "word right behind the release");
        cycles(1);
        ahb_expect(BASE + 32'h44, word(24'h44), "and the next one");
        // Parts: the lowest byte is the register.
        ahb_write(SELECT, 1);
        ahb_transfer(DATA + 1, 1'b1, 3'd0, 32'h9F9F9F9F);
        check(waits == 0, "nothing is sent by another byte");
        ahb_transfer(DATA + 2, 1'b1, 3'd1, 32'h9F9F9F9F);
        check(waits == 0, "nor by the other halfword");
        ahb_transfer(DATA, 1'b1, 3'd0, 32'h9F9F9F9F);
        check(waits > 8 && others == 2, "a byte written as a byte");
        ahb_transfer(SELECT + 3, 1'b1, 3'd0, 32'd0);
        check(csn === 1'b0, "still selected");
        ahb_transfer(SELECT, 1'b1, 3'd1, 32'd0);
        check(csn === 1'b1, "deselected by a halfword");
        // What looks like a register further up is none.
        ahb_write(SELECT + 16, 1);
        ahb_write(SELECT + 32'h800000, 1);
        check(csn === 1'b1, "registers do not repeat");
        ahb_write(DATA + 32'h1000, 8'h9F);
        check(waits == 0 && others == 2, "nothing is sent there");
        ahb_expect(DIV + 16, 0, "reads as 0");
        finish;
    end
endmodule

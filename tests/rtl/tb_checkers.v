// The checkers themselves: each rule is broken in turn, and by nothing else. A line "break: NAME" says what comes next; the checker
// has to answer with that name (check-checkers.sh compares). What is within the rules brings no line.
module tb;
    reg clk = 1'b0, rstn = 1'b0;
    always #5 clk = ~clk;
    task cycle; begin @(posedge clk); #1; end endtask

    // ---- AHB-Lite
    reg  [31:0] haddr = 0, hwdata = 0, hrdata = 0;
    reg  [1:0]  htrans = 0;
    reg  [2:0]  hburst = 0, hsize = 2;
    reg  [3:0]  hprot = 3;
    reg         hwrite = 0, hsel = 1, hready_other = 1, hresp_other = 0, readyout = 1, respout = 0, owns = 0, foreign = 0;
    wire        hready = owns && !foreign ? readyout : hready_other;
    wire        hresp  = owns && !foreign ? respout : hresp_other;
    always @(posedge clk or negedge rstn) if (!rstn) owns <= 1'b0; else if (hready) owns <= hsel & htrans[1];
    ahb_lite_checker #(.MOST_WAITS(2)) ahb (
        .HCLK(clk), .HRESETn(rstn), .HADDR(haddr), .HTRANS(htrans), .HBURST(hburst), .HSIZE(hsize), .HPROT(hprot),
        .HWRITE(hwrite), .HWDATA(hwdata), .HSEL(hsel), .HREADY(hready), .HRESP(hresp), .HRDATA(hrdata),
        .HREADYOUT(readyout), .HRESPOUT(respout)
    );

    // ---- APB
    reg  [1:0]  psel = 0;
    reg         penable = 0, pwrite = 0, pready = 1, pslverr = 0, late = 0;
    reg  [31:0] paddr = 0, pwdata = 0, prdata = 0;
    reg  [3:0]  pstrb = 0;
    apb_checker #(.SLOTS(2), .MOST_WAITS(2)) apb (
        .PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr), .PWDATA(pwdata),
        .PSTRB(pstrb), .PPROT(3'd0), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .LATE(late)
    );

    task rest; // everything idle, out of a new reset
        begin
            {haddr, hwdata, hrdata, htrans, hburst, hwrite, hresp_other, respout, foreign} = 0;
            hsize = 2; hprot = 3; hsel = 1; hready_other = 1; readyout = 1;
            {psel, penable, pwrite, pslverr, late, paddr, pwdata, prdata, pstrb} = 0;
            pready = 1;
            rstn = 0; cycle; rstn = 1; cycle;
        end
    endtask
    task breaks(input [8*80-1:0] rule); begin rest; $display("break: %0s", rule); end endtask
    task address(input [1:0] trans, input [31:0] at, input write);
        begin htrans = trans; haddr = at; hwrite = write; cycle; end
    endtask
    task idle; begin htrans = 0; cycle; end endtask
    task setup(input [1:0] select, input [31:0] at, input write, input [3:0] strobes);
        begin psel = select; paddr = at; pwrite = write; pstrb = strobes; penable = 0; cycle; penable = 1; end
    endtask
    task done; begin psel = 0; penable = 0; pstrb = 0; pwrite = 0; end endtask

    integer n;
    initial begin
        rest;
        // Within the rules: back to back, bursts of each kind, waits, errors, a cancelled transfer, another slave's waits.
        address(2, 32'h3FC, 0); address(2, 32'h400, 1); hwdata = 5; address(2, 32'h404, 0); idle; idle;
        for (n = 1; n < 8; n = n + 1) begin
            hburst = n; address(2, 32'h38, 0);
            repeat (n[2:1] == 0 ? 4 : n[2:1] == 1 ? 3 : n[2:1] == 2 ? 7 : 15) begin
                htrans = 1; haddr = n[0] ? haddr + 4 : (haddr & ~(n == 2 ? 15 : n == 4 ? 31 : 63)) | ((haddr + 4) & (n == 2 ? 15 : n == 4 ? 31 : 63));
                cycle;
                htrans = 3; cycle;
            end
            idle;
        end
        hburst = 0;
        address(2, 32'h10, 1); hwdata = 7; readyout = 0; htrans = 2; haddr = 32'h14; cycle; cycle; readyout = 1; cycle; idle;
        hburst = 3; address(2, 32'h10, 0); htrans = 3; haddr = 32'h14; respout = 1; readyout = 0; cycle; htrans = 0; readyout = 1; cycle;
        respout = 0; hburst = 0; idle;
        hsel = 0; address(2, 32'h20, 1); hready_other = 0; hwdata = 32'hx; htrans = 2; haddr = 32'h30; cycle; hready_other = 1; hwdata = 0; cycle;
        hsel = 1; idle; idle;
        pwdata = 32'hxxxx1234; setup(1, 4, 1, 4'b0011); cycle; done; cycle;
        setup(2, 8, 0, 0); pready = 0; prdata = 32'hx; cycle; cycle; pready = 1; prdata = 1; cycle; setup(1, 4, 0, 0); pslverr = 1; prdata = 32'hx; cycle;
        pslverr = 0; done; cycle;
        prdata = 0; setup(2, 8, 0, 0); pready = 0; late = 1; cycle; done; late = 0; cycle; pready = 1; setup(1, 4, 1, 0); late = 1; cycle; setup(2, 8, 0, 0); late = 0; cycle;
        done; cycle;

        breaks("HTRANS is known"); htrans = 2'b0x; cycle;
        breaks("HADDR, HBURST, HSIZE, HPROT and HWRITE are known"); hprot = 4'bxxxx; address(2, 0, 0); hprot = 3; idle;
        breaks("HSIZE is at most that of the bus"); hsize = 3; address(2, 8, 0); hsize = 2; idle;
        breaks("HADDR is aligned to HSIZE"); address(2, 2, 0); idle;
        breaks("HADDR is aligned to HSIZE"); hsize = 1; address(2, 1, 0); idle;
        breaks("a transfer stays while the bus waits");
        address(2, 0, 0); readyout = 0; htrans = 2; haddr = 4; cycle; haddr = 8; cycle; readyout = 1; cycle; idle;
        breaks("a transfer stays while the bus waits");
        address(2, 0, 0); readyout = 0; htrans = 2; haddr = 4; cycle; htrans = 0; cycle; readyout = 1; cycle; idle;
        breaks("a transfer stays while the bus waits");
        address(2, 0, 0); readyout = 0; htrans = 2; haddr = 4; cycle; hwrite = 1; cycle; readyout = 1; cycle; idle;
        breaks("HWDATA stays while the bus waits"); address(2, 0, 1); htrans = 0; readyout = 0; cycle; hwdata = 1; cycle; readyout = 1; cycle;
        breaks("HWDATA is known where it is written"); hsize = 0; address(2, 1, 1); hwdata = 32'h0000x000; idle;
        breaks("SEQ and BUSY are within a burst"); address(3, 0, 0); idle;
        breaks("SEQ and BUSY are within a burst"); hburst = 2; address(2, 0, 0); repeat (3) address(3, haddr + 4, 0); address(3, 0, 0); hburst = 0; idle;
        breaks("a burst goes on at the next address, as it began"); hburst = 1; address(2, 0, 0); address(3, 8, 0); idle;
        breaks("a burst goes on at the next address, as it began"); hburst = 2; address(2, 8, 0); address(3, 12, 0); address(3, 16, 0); haddr = 20; address(3, 20, 0); idle;
        breaks("a burst goes on at the next address, as it began"); hburst = 1; address(2, 0, 0); address(3, 4, 1); idle;
        breaks("a burst stays within 1 KB"); hburst = 1; address(2, 32'h3FC, 0); address(3, 32'h400, 0); idle;
        breaks("a burst of fixed length is not cut short"); hburst = 3; address(2, 0, 0); address(3, 4, 0); hburst = 0; idle; idle;
        breaks("a burst of fixed length is not cut short"); hburst = 3; address(2, 0, 0); address(3, 4, 0); hburst = 0; address(2, 0, 0); idle;
        breaks("HREADY and HSEL are known"); htrans = 2; hsel = 1'bx; cycle;
        breaks("the bus has the answer of the slave that is asked"); foreign = 1; address(2, 0, 0); htrans = 0; readyout = 0; cycle; readyout = 1; cycle;
        breaks("the bus has the answer of the slave that is asked"); foreign = 1; address(2, 0, 0); htrans = 0; hresp_other = 1; cycle; hresp_other = 0; cycle;
        breaks("HREADYOUT and HRESP are known"); address(2, 0, 1); htrans = 0; respout = 1'bx; cycle; respout = 0; cycle;
        breaks("a slave that is not asked says ready and OKAY"); hsel = 0; readyout = 0; cycle; readyout = 1; cycle;
        breaks("a slave that is not asked says ready and OKAY"); readyout = 0; respout = 1; cycle; readyout = 1; respout = 0; cycle;
        breaks("an error response has a second cycle"); address(2, 0, 0); htrans = 0; readyout = 0; respout = 1; cycle; readyout = 1; respout = 0; cycle;
        breaks("an error response has a first cycle"); address(2, 0, 0); htrans = 0; respout = 1; cycle; respout = 0; cycle;
        breaks("HRDATA is known where it is read"); hsize = 1; address(2, 2, 0); htrans = 0; hrdata = 32'h0x000000; cycle; hrdata = 0; cycle;
        breaks("a slave waits no longer than it may"); address(2, 0, 0); htrans = 0; readyout = 0; repeat (3) cycle; readyout = 1; cycle;

        breaks("PSEL is known"); psel = 2'bx0; cycle; done; cycle;
        breaks("one PSEL at most"); setup(3, 0, 0, 0); cycle; done; cycle;
        breaks("PENABLE, PWRITE, PADDR, PSTRB and PPROT are known"); setup(1, 32'hx, 0, 0); cycle; done; cycle;
        breaks("PENABLE is low while nothing is selected"); penable = 1; cycle; done; cycle;
        breaks("a transfer begins with a setup cycle"); psel = 1; penable = 1; cycle; done; cycle;
        breaks("a transfer begins with a setup cycle"); setup(1, 0, 0, 0); cycle; cycle; done; cycle;
        breaks("nothing is selected after an access that is given up"); setup(1, 0, 0, 0); pready = 0; late = 1; cycle; late = 0; pready = 1; penable = 0; cycle; penable = 1; cycle; done; cycle;
        breaks("PENABLE follows the setup cycle until PREADY"); psel = 1; cycle; cycle; penable = 1; cycle; done; cycle;
        breaks("PENABLE follows the setup cycle until PREADY"); setup(1, 0, 0, 0); pready = 0; cycle; penable = 0; cycle; pready = 1; penable = 1; cycle; done; cycle;
        breaks("PSEL, PWRITE, PADDR, PSTRB and PPROT stay until PREADY"); setup(1, 0, 0, 0); paddr = 4; cycle; done; cycle;
        breaks("PSEL, PWRITE, PADDR, PSTRB and PPROT stay until PREADY"); setup(1, 0, 0, 0); pready = 0; cycle; psel = 2; cycle; pready = 1; cycle; done; cycle;
        breaks("PWDATA stays until PREADY"); setup(1, 0, 1, 4'b1000); pwdata = 32'hFF000000; cycle; done; cycle;
        breaks("PWDATA is known where PSTRB is set"); pwdata = 32'hxx000000; psel = 1; pwrite = 1; pstrb = 4'b1000; cycle; rest;
        breaks("PSTRB is 0 in reads"); setup(1, 0, 0, 1); cycle; done; cycle;
        breaks("PREADY is known in an access"); setup(1, 0, 0, 0); pready = 1'bx; cycle; rest;
        breaks("PSLVERR is known with PREADY"); setup(1, 0, 1, 0); pslverr = 1'bx; cycle; done; pslverr = 0; cycle;
        breaks("PRDATA is known with PREADY"); setup(1, 0, 0, 0); prdata = 32'hx; cycle; done; prdata = 0; cycle;
        breaks("a slave waits no longer than it may"); setup(1, 0, 0, 0); pready = 0; repeat (3) cycle; pready = 1; cycle; done; cycle;
        $finish;
    end
endmodule

// The whole subsystem with everything on, around a model of the processor: address of every block, wiring of pins,
// interrupts, memories, extension ports, bus errors, resets and debug connector.
`include "core_model.v"

module tb;
`include "bench.vh"
`include "ahb_master.vh"
    reg         hwRstn = 1'b0;
    reg  [3:0]  extint = 4'd0;
    reg         jtag3 = 1'b1, jtag5 = 1'b0, jtag7 = 1'bz, jtag9 = 1'b0, jtag15 = 1'b1;
    wire        lockup, halted, j3, j5, j7, j9, j13, j15, j17;
    wire [8:0]  jground;
    assign j3 = jtag3;
    assign j5 = jtag5;
    assign j7 = jtag7;
    assign j9 = jtag9;
    assign j15 = jtag15;
    wire [15:0] gpio;
    reg  [15:0] gpio_drive = 16'hzzzz;
    assign gpio = gpio_drive;
    wire        uart0, uart1, mosi, sclk, nss;
    wire        sd_clk, sd_cs, sd_out, sd_init, sd_check;
    reg         slow = 1'b0, tick0 = 1'b0, tick1 = 1'b0;
    always #40 slow = ~slow;
    tri1        scl, sda;
    wire        f_clk, f_csn, f_mosi, f_wpn, f_hold;

    // Extension ports: each slave answers with its own number.
    wire [31:0]  a_haddr [1:6];
    wire [31:0]  a_hwdata [1:6];
    wire [6:1]   a_hsel, a_hwrite, a_hready, a_hclk, a_hreset;
    wire [1:0]   a_htrans [1:6];
    wire [31:0]  p_paddr [1:16];
    wire [31:0]  p_pwdata [1:16];
    wire [16:1]  p_psel, p_penable, p_pwrite, p_preset;
    wire [3:0]   p_pstrb [1:16];
    reg          a_refuse = 1'b0;
    reg  [6:1]   a_first = 6'd0, a_second = 6'd0;   // cycles of the answer RETRY
    wire [6:1]   a_error = a_first | a_second;
    reg          p_slverr = 1'b0;
    reg          a_ready = 1'b1, p_ready = 1'b1;   // of AHB extension port 6 and APB extension port 16

    Tarvo_ORIX_M1_Top dut (
        .HCLK(clk), .hwRstn(hwRstn), .LOCKUP(lockup), .HALTED(halted), .EXTINT(extint),
        .JTAG_3(j3), .JTAG_5(j5), .JTAG_7(j7), .JTAG_9(j9), .JTAG_13(j13), .JTAG_15(j15), .JTAG_17(j17),
        .JTAG_4(jground[0]), .JTAG_6(jground[1]), .JTAG_8(jground[2]), .JTAG_10(jground[3]), .JTAG_11(jground[4]),
        .JTAG_12(jground[5]), .JTAG_14(jground[6]), .JTAG_16(jground[7]), .JTAG_18(jground[8]),
        .GPIO(gpio), .UART0RXD(uart1), .UART0TXD(uart0), .UART1RXD(uart0), .UART1TXD(uart1),
        .TIMER0EXTIN(tick0), .TIMER1EXTIN(tick1), .RTCSRCCLK(slow), .SCL(scl), .SDA(sda),
        .MOSI(mosi), .MISO(mosi), .SCLK(sclk), .NSS(nss),
        .SD_CLK(sd_clk), .SD_SPICLK(slow), .SD_CS(sd_cs), .SD_DATAIN(sd_out), .SD_DATAOUT(sd_out),
        .SD_CARD_INIT(sd_init), .SD_CHECKIN(1'b0), .SD_CHECKOUT(sd_check),
        .FLASH_SPI_CLK(f_clk), .FLASH_SPI_CSN(f_csn), .FLASH_SPI_MOSI(f_mosi), .FLASH_SPI_MISO(f_mosi),
        .FLASH_SPI_WPN(f_wpn), .FLASH_SPI_HOLDN(f_hold),
        .AHB1HRDATA(32'hA0000001), .AHB1HREADYOUT(!a_first[1]), .AHB1HRESP({a_error[1], 1'b0}), .AHB1HADDR(a_haddr[1]), .AHB1HWDATA(a_hwdata[1]),
        .AHB1HSEL(a_hsel[1]), .AHB1HTRANS(a_htrans[1]), .AHB1HWRITE(a_hwrite[1]), .AHB1HREADYMUX(a_hready[1]),
        .AHB1HCLK(a_hclk[1]), .AHB1HRESET(a_hreset[1]),
        .AHB2HRDATA(32'hA0000002), .AHB2HREADYOUT(!a_first[2]), .AHB2HRESP({a_error[2], 1'b0}), .AHB2HADDR(a_haddr[2]), .AHB2HWDATA(a_hwdata[2]),
        .AHB2HSEL(a_hsel[2]), .AHB2HTRANS(a_htrans[2]), .AHB2HWRITE(a_hwrite[2]), .AHB2HREADYMUX(a_hready[2]),
        .AHB2HCLK(a_hclk[2]), .AHB2HRESET(a_hreset[2]),
        .AHB3HRDATA(32'hA0000003), .AHB3HREADYOUT(!a_first[3]), .AHB3HRESP({a_error[3], 1'b0}), .AHB3HADDR(a_haddr[3]), .AHB3HWDATA(a_hwdata[3]),
        .AHB3HSEL(a_hsel[3]), .AHB3HTRANS(a_htrans[3]), .AHB3HWRITE(a_hwrite[3]), .AHB3HREADYMUX(a_hready[3]),
        .AHB3HCLK(a_hclk[3]), .AHB3HRESET(a_hreset[3]),
        .AHB4HRDATA(32'hA0000004), .AHB4HREADYOUT(!a_first[4]), .AHB4HRESP({a_error[4], 1'b0}), .AHB4HADDR(a_haddr[4]), .AHB4HWDATA(a_hwdata[4]),
        .AHB4HSEL(a_hsel[4]), .AHB4HTRANS(a_htrans[4]), .AHB4HWRITE(a_hwrite[4]), .AHB4HREADYMUX(a_hready[4]),
        .AHB4HCLK(a_hclk[4]), .AHB4HRESET(a_hreset[4]),
        .AHB5HRDATA(32'hA0000005), .AHB5HREADYOUT(!a_first[5]), .AHB5HRESP({a_error[5], 1'b0}), .AHB5HADDR(a_haddr[5]), .AHB5HWDATA(a_hwdata[5]),
        .AHB5HSEL(a_hsel[5]), .AHB5HTRANS(a_htrans[5]), .AHB5HWRITE(a_hwrite[5]), .AHB5HREADYMUX(a_hready[5]),
        .AHB5HCLK(a_hclk[5]), .AHB5HRESET(a_hreset[5]),
        .AHB6HRDATA(32'hA0000006), .AHB6HREADYOUT(a_first[6] ? 1'b0 : a_ready), .AHB6HRESP({a_error[6], 1'b0}), .AHB6HADDR(a_haddr[6]), .AHB6HWDATA(a_hwdata[6]),
        .AHB6HSEL(a_hsel[6]), .AHB6HTRANS(a_htrans[6]), .AHB6HWRITE(a_hwrite[6]), .AHB6HREADYMUX(a_hready[6]),
        .AHB6HCLK(a_hclk[6]), .AHB6HRESET(a_hreset[6]),
        .APB1PRDATA(32'hB0000001), .APB1PREDADY(1'b1), .APB1PSLVERR(p_slverr), .APB1PADDR(p_paddr[1]), .APB1PWDATA(p_pwdata[1]),
        .APB1PSEL(p_psel[1]), .APB1PENABLE(p_penable[1]), .APB1PWRITE(p_pwrite[1]), .APB1PSTRB(p_pstrb[1]), .APB1PRESET(p_preset[1]),
        .APB2PRDATA(32'hB0000002), .APB2PREDADY(1'b1), .APB2PSLVERR(p_slverr), .APB2PADDR(p_paddr[2]), .APB2PWDATA(p_pwdata[2]),
        .APB2PSEL(p_psel[2]), .APB2PENABLE(p_penable[2]), .APB2PWRITE(p_pwrite[2]), .APB2PSTRB(p_pstrb[2]), .APB2PRESET(p_preset[2]),
        .APB3PRDATA(32'hB0000003), .APB3PREDADY(1'b1), .APB3PSLVERR(p_slverr), .APB3PADDR(p_paddr[3]), .APB3PWDATA(p_pwdata[3]),
        .APB3PSEL(p_psel[3]), .APB3PENABLE(p_penable[3]), .APB3PWRITE(p_pwrite[3]), .APB3PSTRB(p_pstrb[3]), .APB3PRESET(p_preset[3]),
        .APB4PRDATA(32'hB0000004), .APB4PREDADY(1'b1), .APB4PSLVERR(p_slverr), .APB4PADDR(p_paddr[4]), .APB4PWDATA(p_pwdata[4]),
        .APB4PSEL(p_psel[4]), .APB4PENABLE(p_penable[4]), .APB4PWRITE(p_pwrite[4]), .APB4PSTRB(p_pstrb[4]), .APB4PRESET(p_preset[4]),
        .APB5PRDATA(32'hB0000005), .APB5PREDADY(1'b1), .APB5PSLVERR(p_slverr), .APB5PADDR(p_paddr[5]), .APB5PWDATA(p_pwdata[5]),
        .APB5PSEL(p_psel[5]), .APB5PENABLE(p_penable[5]), .APB5PWRITE(p_pwrite[5]), .APB5PSTRB(p_pstrb[5]), .APB5PRESET(p_preset[5]),
        .APB6PRDATA(32'hB0000006), .APB6PREDADY(1'b1), .APB6PSLVERR(p_slverr), .APB6PADDR(p_paddr[6]), .APB6PWDATA(p_pwdata[6]),
        .APB6PSEL(p_psel[6]), .APB6PENABLE(p_penable[6]), .APB6PWRITE(p_pwrite[6]), .APB6PSTRB(p_pstrb[6]), .APB6PRESET(p_preset[6]),
        .APB7PRDATA(32'hB0000007), .APB7PREDADY(1'b1), .APB7PSLVERR(p_slverr), .APB7PADDR(p_paddr[7]), .APB7PWDATA(p_pwdata[7]),
        .APB7PSEL(p_psel[7]), .APB7PENABLE(p_penable[7]), .APB7PWRITE(p_pwrite[7]), .APB7PSTRB(p_pstrb[7]), .APB7PRESET(p_preset[7]),
        .APB8PRDATA(32'hB0000008), .APB8PREDADY(1'b1), .APB8PSLVERR(p_slverr), .APB8PADDR(p_paddr[8]), .APB8PWDATA(p_pwdata[8]),
        .APB8PSEL(p_psel[8]), .APB8PENABLE(p_penable[8]), .APB8PWRITE(p_pwrite[8]), .APB8PSTRB(p_pstrb[8]), .APB8PRESET(p_preset[8]),
        .APB9PRDATA(32'hB0000009), .APB9PREDADY(1'b1), .APB9PSLVERR(p_slverr), .APB9PADDR(p_paddr[9]), .APB9PWDATA(p_pwdata[9]),
        .APB9PSEL(p_psel[9]), .APB9PENABLE(p_penable[9]), .APB9PWRITE(p_pwrite[9]), .APB9PSTRB(p_pstrb[9]), .APB9PRESET(p_preset[9]),
        .APB10PRDATA(32'hB000000A), .APB10PREDADY(1'b1), .APB10PSLVERR(p_slverr), .APB10PADDR(p_paddr[10]), .APB10PWDATA(p_pwdata[10]),
        .APB10PSEL(p_psel[10]), .APB10PENABLE(p_penable[10]), .APB10PWRITE(p_pwrite[10]), .APB10PSTRB(p_pstrb[10]), .APB10PRESET(p_preset[10]),
        .APB11PRDATA(32'hB000000B), .APB11PREDADY(1'b1), .APB11PSLVERR(p_slverr), .APB11PADDR(p_paddr[11]), .APB11PWDATA(p_pwdata[11]),
        .APB11PSEL(p_psel[11]), .APB11PENABLE(p_penable[11]), .APB11PWRITE(p_pwrite[11]), .APB11PSTRB(p_pstrb[11]), .APB11PRESET(p_preset[11]),
        .APB12PRDATA(32'hB000000C), .APB12PREDADY(1'b1), .APB12PSLVERR(p_slverr), .APB12PADDR(p_paddr[12]), .APB12PWDATA(p_pwdata[12]),
        .APB12PSEL(p_psel[12]), .APB12PENABLE(p_penable[12]), .APB12PWRITE(p_pwrite[12]), .APB12PSTRB(p_pstrb[12]), .APB12PRESET(p_preset[12]),
        .APB13PRDATA(32'hB000000D), .APB13PREDADY(1'b1), .APB13PSLVERR(p_slverr), .APB13PADDR(p_paddr[13]), .APB13PWDATA(p_pwdata[13]),
        .APB13PSEL(p_psel[13]), .APB13PENABLE(p_penable[13]), .APB13PWRITE(p_pwrite[13]), .APB13PSTRB(p_pstrb[13]), .APB13PRESET(p_preset[13]),
        .APB14PRDATA(32'hB000000E), .APB14PREDADY(1'b1), .APB14PSLVERR(p_slverr), .APB14PADDR(p_paddr[14]), .APB14PWDATA(p_pwdata[14]),
        .APB14PSEL(p_psel[14]), .APB14PENABLE(p_penable[14]), .APB14PWRITE(p_pwrite[14]), .APB14PSTRB(p_pstrb[14]), .APB14PRESET(p_preset[14]),
        .APB15PRDATA(32'hB000000F), .APB15PREDADY(1'b1), .APB15PSLVERR(p_slverr), .APB15PADDR(p_paddr[15]), .APB15PWDATA(p_pwdata[15]),
        .APB15PSEL(p_psel[15]), .APB15PENABLE(p_penable[15]), .APB15PWRITE(p_pwrite[15]), .APB15PSTRB(p_pstrb[15]), .APB15PRESET(p_preset[15]),
        .APB16PRDATA(32'hB0000010), .APB16PREDADY(p_ready), .APB16PSLVERR(p_slverr), .APB16PADDR(p_paddr[16]), .APB16PWDATA(p_pwdata[16]),
        .APB16PSEL(p_psel[16]), .APB16PENABLE(p_penable[16]), .APB16PWRITE(p_pwrite[16]), .APB16PSTRB(p_pstrb[16]), .APB16PRESET(p_preset[16]),
        .CAN_RX(1'b1), .GTX_CLK(1'b0), .RGMII_RXC(1'b0), .RGMII_RX_CTL(1'b0), .RGMII_RXD(4'd0),
        .psram_ref_clk(1'b0), .psram_memory_clk(1'b0),
        .DDR_CLK_I(1'b0), .DDR_MEM_CLK_I(1'b0), .DDR_LOCK_I(1'b1), .DDR_RSTN_I(1'b1)
    );

    // The bus tasks work on the pins of the processor model.
    assign hready = dut.u_core.HREADY;
    assign hresp  = dut.u_core.HRESP;
    assign hrdata = dut.u_core.HRDATA;
    always @* begin
        dut.u_core.HADDR = haddr;
        dut.u_core.HTRANS = htrans;
        dut.u_core.HSIZE = hsize;
        dut.u_core.HWRITE = hwrite;
        dut.u_core.HWDATA = hwdata;
    end

    localparam [31:0] GPIO = 32'h40000000, TIMER0 = 32'h50000000, TIMER1 = 32'h50001000, DTIMER = 32'h50002000,
                      UART0 = 32'h50004000, UART1 = 32'h50005000, RTC = 32'h50006000, WDOG = 32'h50008000,
                      I2C = 32'h5000C000, SPI = 32'h5000D000, SD = 32'h5000E000, SYS = 32'h5000F000, FLASH = 32'h68000000;

    // Waits for an interrupt, checks that no other is there, and removes its cause.
    task interrupt(input integer line, input [31:0] address, input [31:0] value, input [8*48-1:0] what);
        integer limit;
        begin
            limit = 0;
            while (dut.u_core.IRQ[line] !== 1'b1 && limit < 5000) begin cycles(1); limit = limit + 1; end
            check32(dut.u_core.IRQ, 32'd1 << line, what);
            ahb_write(address, value);
            check32(dut.u_core.IRQ, 32'd0, "interrupt removed");
        end
    endtask

    function [31:0] ahb_base(input integer n);
        case (n)
            1: ahb_base = 32'h80000000;
            2: ahb_base = 32'h81000000;
            3: ahb_base = 32'h86000000;
            4: ahb_base = 32'h89000000;
            5: ahb_base = 32'h8A000000;
            default: ahb_base = 32'h8B000000;
        endcase
    endfunction

    // The last error, which is cleared, and nothing behind it.
    task expect_error(input [31:0] address, input [31:0] info, input [8*48-1:0] what);
        begin
            ahb_expect(SYS + 12, address, what);
            ahb_expect(SYS + 16, info, what);
            ahb_write(SYS + 16, 32'd3);
        end
    endtask

    // Behind a reset of the system.
    task time_goes_on(input [8*48-1:0] what);
        begin
            cycles(40);
            ahb_transfer(RTC, 1'b0, 3'd2, 32'd0);
            check(rd > before && rd < before + 20, what);
            before = rd;
            ahb_expect(RTC + 40, 32'd1, "the time was set");
            ahb_expect(RTC + 8, 32'd1, "the clock runs");
        end
    endtask

    function [31:0] stand_in(input integer n);
        case (n)
            0: stand_in = 32'h41000000;
            1: stand_in = 32'h42000000;
            2: stand_in = 32'h5000A000;
            3: stand_in = 32'h70000000;
            default: stand_in = 32'hA0000000;
        endcase
    endfunction

    integer n, before;
    reg [31:0] seen_addr, seen_data;
    reg [16:1] seen_psel;
    reg [6:1]  seen_hsel;
    reg [3:0]  seen_strb;
    integer    k;
    always @(posedge clk) begin
        a_first <= {6{a_refuse & htrans[1]}} & a_hsel & a_hready;
        a_second <= a_first;
        if (htrans[1] && hready) begin seen_hsel <= a_hsel; for (k = 1; k <= 6; k = k + 1) if (a_hsel[k]) seen_addr <= a_haddr[k]; end
        if (|(p_psel & p_penable)) begin
            seen_psel <= p_psel;
            for (k = 1; k <= 16; k = k + 1) if (p_psel[k]) begin seen_addr <= p_paddr[k]; seen_data <= p_pwdata[k]; seen_strb <= p_pstrb[k]; end
        end
    end

    initial begin
        cycles(3);
        check(a_hreset === 6'd0 && p_preset === 16'd0, "reset of the extension ports is active low");
        check({f_clk, f_csn, f_mosi, f_wpn, f_hold} === 5'bzzzzz, "pins of the flash are released");
        hwRstn = 1'b1;
        cycles(20);
        check({f_clk, f_csn, f_hold} === 3'b011, "and driven after the reset");
        check(a_hreset === 6'h3F && p_preset === 16'hFFFF, "reset released");
        check(dut.u_core.SYSRESETn === 1'b1 && dut.u_core.PORRESETn === 1'b1, "processor out of reset");
        // Configuration of the processor.
        check32(dut.u_core.NUM_IRQ, 32, "NUM_IRQ");
        check(dut.u_core.OS == 1 && dut.u_core.SMALL_MUL == 0 && dut.u_core.BE8 == 0, "options");
        check(dut.u_core.DEBUG == 1 && dut.u_core.JTAG == 1 && dut.u_core.SW == 1 && dut.u_core.SMALL_DEBUG == 0, "debug");
        check(dut.u_core.ITCM_LA_EN == 1 && dut.u_core.ITCM_UA_EN == 0, "alias");
        check(dut.u_core.ITCMSIZE == 6 && dut.u_core.DTCMSIZE == 6, "memory sizes");
        // Status pins and debug connector.
        check(jground === 9'd0 && j17 === 1'bz && j13 === 1'bz && j7 === 1'bz, "debug connector at rest");
        dut.u_core.LOCKUP = 1'b1; dut.u_core.HALTED = 1'b0; #1;
        check(lockup === 1'b1 && halted === 1'b0, "LOCKUP");
        dut.u_core.LOCKUP = 1'b0; dut.u_core.HALTED = 1'b1; #1;
        check(lockup === 1'b0 && halted === 1'b1, "HALTED");
        ahb_write(WDOG, 20); ahb_write(WDOG + 8, 1);
        cycles(50);
        check(dut.u_core.NMI === 1'b0, "the watchdog stands while halted");
        ahb_write(WDOG + 8, 0);
        dut.u_core.HALTED = 1'b0;
        dut.u_core.TDO = 1'b1; dut.u_core.TDOEN = 1'b1; dut.u_core.SWDO = 1'b0; dut.u_core.SWDOEN = 1'b1; #1;
        check(j13 === 1'b1 && j7 === 1'b0, "TDO and SWDIO are driven");
        dut.u_core.TDOEN = 1'b0; dut.u_core.SWDOEN = 1'b0;
        for (n = 0; n < 16; n = n + 1) begin
            {jtag3, jtag5, jtag7, jtag9} = n[3:0]; #1;
            check({dut.u_core.nTRST, dut.u_core.TDI, dut.u_core.SWDITMS, dut.u_core.SWCLKTCK} === n[3:0], "nTRST TDI TMS TCK");
        end
        // Memories.
        dut.u_core.ITCMEN = 1'b1; dut.u_core.ITCMWE = 4'hF; dut.u_core.ITCMADDR = 18'd77; dut.u_core.ITCMWDATA = 32'h17C31234;
        dut.u_core.DTCMEN = 1'b1; dut.u_core.DTCMWE = 4'hF; dut.u_core.DTCMADDR = 18'd77; dut.u_core.DTCMWDATA = 32'hD7C35678;
        cycles(1);
        dut.u_core.ITCMWE = 4'h0; dut.u_core.DTCMWE = 4'h0;
        cycles(1);
        check32(dut.u_core.ITCMRDATA, 32'h17C31234, "instruction memory");
        check32(dut.u_core.DTCMRDATA, 32'hD7C35678, "data memory");
        dut.u_core.ITCMEN = 1'b0; dut.u_core.DTCMEN = 1'b0;
        dut.u_core.DBGITCMEN = 1'b1; dut.u_core.DBGITCMWE = 4'hF; dut.u_core.DBGITCMADDR = 18'd78; dut.u_core.DBGITCMWDATA = 32'h00000111;
        dut.u_core.DBGDTCMEN = 1'b1; dut.u_core.DBGDTCMWE = 4'hF; dut.u_core.DBGDTCMADDR = 18'd78; dut.u_core.DBGDTCMWDATA = 32'h00000DDD;
        #1 check(dut.u_core.DBGITCMREADY === 1'b1 && dut.u_core.DBGDTCMREADY === 1'b1, "debugger is served");
        cycles(1);
        dut.u_core.DBGITCMWE = 4'h0; dut.u_core.DBGDTCMWE = 4'h0;
        cycles(1);
        check(dut.u_core.ITCMRDATA === 32'h111 && dut.u_core.DTCMRDATA === 32'hDDD, "memories through the debugger");
        dut.u_core.DBGITCMEN = 1'b0; dut.u_core.DBGDTCMEN = 1'b0;
        // AHB extension ports.
        for (n = 1; n <= 6; n = n + 1) begin
            ahb_transfer(ahb_base(n) + 32'hABC0, 1'b0, 3'd2, 32'd0);
            check32(rd, 32'hA0000000 + n, "AHB extension port answers");
            check32(seen_hsel, 1 << (n - 1), "HSEL of the port");
            check32(seen_addr, ahb_base(n) + 32'hABC0, "whole address");
            check(!failed && waits == 0, "no error");
            a_refuse = 1'b1;
            ahb_transfer(ahb_base(n), 1'b0, 3'd2, 32'd0);
            check(failed && waits == 1, "RETRY is an error too");
            a_refuse = 1'b0;
        end
        // APB extension ports.
        for (n = 1; n <= 16; n = n + 1) begin
            ahb_transfer(32'h60000000 + ((n - 1) << 20) + 32'h54320, 1'b0, 3'd2, 32'd0);
            check32(rd, 32'hB0000000 + n, "APB extension port answers");
            check32(seen_psel, 1 << (n - 1), "PSEL of the port");
            check32(seen_addr, 32'h60000000 + ((n - 1) << 20) + 32'h54320, "whole address");
            ahb_transfer(32'h60000002 + ((n - 1) << 20), 1'b1, 3'd1, 32'h55AA0000);
            check(seen_data === 32'h55AA0000 && seen_strb === 4'hC && !failed, "half-word to an APB extension port");
        end
        p_slverr = 1'b1;
        ahb_write(32'h60F00000, 32'd0);
        check(failed, "PSLVERR of an extension port");
        p_slverr = 1'b0;
        // Nothing there.
        ahb_transfer(32'h00000000, 1'b0, 3'd2, 32'd0);
        check(failed, "no external memory");
        ahb_transfer(32'h82000000, 1'b0, 3'd2, 32'd0);
        check(failed, "gap between the extension ports");
        ahb_transfer(32'h50003000, 1'b0, 3'd2, 32'd0);
        check(failed, "free slot of the APB");
        ahb_transfer(32'h50010000, 1'b0, 3'd2, 32'd0);
        check(failed, "beyond the APB peripherals");
        // System control: what there is, and what failed.
        ahb_expect(SYS + 32'hFFC, 32'h0000020B, "ID of SYS");
        ahb_expect(SYS + 24, 32'hF5773FFF, "blocks of the configuration");
        ahb_expect(SYS + 28, 32'h00060620, "memories and interrupts of it");
        ahb_expect(SYS + 32, 32'h0000FFFF, "APB extension ports of it");
        ahb_expect(SYS, 32'h00000001, "power-on is the cause of the reset");
        expect_error(32'h50010000, 32'h00000103, "beyond the APB peripherals: unmapped");
        ahb_transfer(32'h50003004, 1'b1, 3'd0, 32'd0);
        expect_error(32'h50003004, 32'h00000041, "free slot of the APB: unmapped");
        ahb_transfer(32'hF0000002, 1'b0, 3'd1, 32'd0);
        expect_error(32'hF0000002, 32'h00000081, "no slave: unmapped");
        p_slverr = 1'b1;
        ahb_write(32'h60500010, 32'd0);
        p_slverr = 1'b0;
        ahb_write(SYS + 4, 32'd2);
        check32(dut.u_core.IRQ, 32'h00020000, "interrupt of SYS");
        expect_error(32'h60500010, 32'h00000151, "error of an extension port");
        check32(dut.u_core.IRQ, 32'd0, "interrupt removed");
        ahb_write(SYS + 4, 32'd0);
        // Slaves that do not answer in time: nothing, unknown values, no connection.  Gates make everything unknown of an
        // unknown value.
        ahb_write(SYS + 8, 32'd50);
`ifndef GATES
        bus_watch.misbehaving = 1'b1;
`endif
        for (n = 0; n < 4; n = n + 1) begin
            p_ready = (n == 0) ? 1'b0 : (n == 1) ? 1'bx : 1'bz;
`ifdef GATES
            p_ready = 1'b0;
`endif
            a_ready = p_ready;
            ahb_transfer(32'h60F00000, n[0], 3'd2, 32'd0);
            check(failed && waits == 51, "APB extension port does not answer");
            expect_error(32'h60F00000, n[0] ? 32'h161 : 32'h121, "time-out of an APB port");
            ahb_transfer(32'h60E00000, 1'b0, 3'd2, 32'd0);
            check(!failed && rd == 32'hB000000F, "its neighbour does");
            ahb_transfer(32'h8B000004, n[0], 3'd2, 32'd0);
            check(failed && waits == 51, "AHB extension port does not answer");
            expect_error(32'h8B000004, n[0] ? 32'h161 : 32'h121, "time-out of an AHB port");
            ahb_transfer(32'h8B000008, 1'b0, 3'd2, 32'd0);
            check(failed && waits == 1, "and is abandoned");
            expect_error(32'h8B000008, 32'h131, "access to an abandoned port");
            ahb_transfer(32'h8A000000, 1'b0, 3'd2, 32'd0);
            check(!failed && rd == 32'hA0000005, "its neighbour is not");
            p_ready = 1'b1; a_ready = 1'b1;
            cycles(1);
            ahb_expect(32'h60F00000, 32'hB0000010, "APB port answers again");
            ahb_expect(32'h8B000000, 32'hA0000006, "AHB port answers again");
        end
`ifndef GATES
        cycles(2);
        bus_watch.misbehaving = 1'b0;
`endif
        // The shortest limit leaves SYS within reach.
        ahb_write(SYS + 8, 32'd1);
        ahb_expect(SYS + 8, 32'd1, "SYS needs no wait states");
        ahb_write(SYS + 8, 32'hFFFF);
        // Stand-ins of licensed blocks say that they are none, and fail everywhere else.
        for (n = 0; n < 5; n = n + 1) begin
            ahb_expect(stand_in(n), 32'h4E4F4E45, "first word of a stand-in");
            ahb_transfer(stand_in(n), 1'b1, 3'd2, 32'd0);
            check(failed, "a write to a stand-in");
            expect_error(stand_in(n), 32'h151, "error of a stand-in");
            ahb_transfer(stand_in(n) + 4, 1'b0, 3'd2, 32'd0);
            check(failed, "another word of a stand-in");
            expect_error(stand_in(n) + 4, 32'h111, "error of a stand-in");
        end
        // Bytes and halfwords reach the blocks, on both buses.
        ahb_parts(GPIO + 4, 32'h0000FFFF, 0);
        ahb_parts(TIMER0 + 8, 32'h00FFFFFF, 0);
        ahb_parts(SD + 24, 32'hFFFFFFFF, 0);
        ahb_write(TIMER0 + 8, 0);
        // GPIO.
        ahb_write(GPIO + 8, 32'h00FF);
        ahb_write(GPIO + 4, 32'h5AA5);
        gpio_drive = 16'h3Czz;
        cycles(4);
        check(gpio === 16'h3CA5, "GPIO pins");
        ahb_expect(GPIO, 32'h3CA5, "GPIO data");
        check32(dut.u_core.IRQ, 0, "no interrupt so far");
        ahb_write(GPIO + 28, 32'h8000);
        ahb_write(GPIO + 20, 32'h8000);
        gpio_drive[15] = 1'b1;
        interrupt(4, GPIO + 20, 0, "interrupt of GPIO");
        // Timers.
        ahb_write(TIMER0 + 4, 5); ahb_write(TIMER0, 3);
        interrupt(2, TIMER0, 0, "interrupt of TIMER0");
        ahb_write(TIMER1 + 4, 5); ahb_write(TIMER1, 3);
        interrupt(3, TIMER1, 0, "interrupt of TIMER1");
        ahb_write(DTIMER + 36, 5); ahb_write(DTIMER + 32, 3);
        interrupt(5, DTIMER + 32, 0, "interrupt of DTIMER");
        ahb_write(TIMER0 + 12, 1); ahb_write(TIMER0 + 4, 100); ahb_write(TIMER0, 9);
        ahb_write(TIMER1 + 12, 1); ahb_write(TIMER1 + 4, 100); ahb_write(TIMER1, 9);
        tick0 = 1'b1; cycles(5);
        ahb_expect(TIMER0 + 4, 99, "external input of TIMER0");
        ahb_expect(TIMER1 + 4, 100, "not of TIMER1");
        tick1 = 1'b1; cycles(5);
        ahb_expect(TIMER1 + 4, 99, "external input of TIMER1");
        // UART0 and UART1 are connected to each other.
        ahb_write(UART0 + 8, 3); ahb_write(UART1 + 8, 11);
        ahb_write(UART0, 8'h3E);
        interrupt(1, UART1 + 8, 3, "interrupt of UART1");
        ahb_expect(UART1, 8'h3E, "byte from UART0 to UART1");
        ahb_write(UART0 + 8, 11);
        ahb_write(UART1, 8'hC1);
        interrupt(0, UART0 + 8, 3, "interrupt of UART0");
        ahb_expect(UART0, 8'hC1, "byte from UART1 to UART0");
        // RTC.
        ahb_write(RTC + 16, 3); ahb_write(RTC + 8, 5);
        interrupt(7, RTC + 8, 0, "interrupt of RTC");
        ahb_expect(RTC, 1, "one second");
        // SPI, data looped back.
        ahb_write(SPI + 16, 1);
        check(nss === 1'b0, "NSS");
        ahb_write(SPI + 8, 8); ahb_write(SPI, 8'h96);
        interrupt(8, SPI + 4, 2, "interrupt of SPI");
        ahb_expect(SPI, 8'h96, "byte looped through SPI");
        // SD card, data looped back.
        ahb_write(SD + 8, 7);
        check(sd_cs === 1'b0 && sd_init === 1'b1, "SD_CS and SD_CARD_INIT");
        ahb_write(SD, 8'h69);
        interrupt(11, SD + 4, 2, "interrupt of SD");
        ahb_expect(SD, 8'h69, "byte looped through SD");
        cycles(1100);
        check(sd_check === 1'b1, "card detected");
        // I2C: nobody answers, the lines are really driven.
        ahb_write(I2C, 1); ahb_write(I2C + 4, 3); ahb_write(I2C + 8, 8'h00); ahb_write(I2C + 16, 3);
        @(negedge sda) check(scl === 1'b1, "start on the pins");
        @(negedge scl) check(sda === 1'b0, "clock on the pins");
        interrupt(6, I2C + 20, 8, "interrupt of I2C");
        ahb_expect(I2C + 20, 6, "no acknowledge");
        // SPI-Flash, data looped back.
        ahb_write(FLASH + 32'h1000004, 1);
        check(f_csn === 1'b0 && f_hold === 1'b1 && f_wpn === 1'b0, "pins of the flash");
        ahb_write(FLASH + 32'h1000000, 8'hD2);
        ahb_expect(FLASH + 32'h1000000, 8'hD2, "byte looped through the flash pins");
        // External interrupts.
        for (n = 0; n < 4; n = n + 1) begin
            extint = 4'd1 << n;
            cycles(3);
            check32(dut.u_core.IRQ, 32'h1000 << n, "external interrupt");
        end
        extint = 4'd0;
        cycles(3);
        // Watchdog: interrupt, then a reset that clears the peripherals but not the power-on domain.
        ahb_write(RTC + 8, 1);
        ahb_write(RTC, 5000);
        ahb_transfer(RTC, 1'b0, 3'd2, 32'd0); before = rd;
        check(before >= 5000 && before < 5010, "time set");
        ahb_write(WDOG, 50); ahb_write(WDOG + 8, 3);
        cycles(70);
        check(dut.u_core.NMI === 1'b1 && dut.u_core.SYSRESETn === 1'b1, "watchdog interrupt");
        @(negedge dut.u_core.SYSRESETn);
        check(dut.u_core.PORRESETn === 1'b1, "only the system is reset");
        @(posedge dut.u_core.SYSRESETn);
        cycles(2);
        check(dut.u_core.NMI === 1'b0, "watchdog is off again");
        ahb_expect(SYS, 32'h00000005, "the watchdog is a cause of a reset");
        ahb_write(SYS, 32'h0000003F);
        ahb_write(SYS + 20, 32'h600DCAFE);
        ahb_expect(GPIO + 8, 0, "GPIO was reset");
        time_goes_on("the time has gone on");
        check(gpio[7:0] === 8'hzz, "and its pins are released");
        ahb_write(GPIO + 8, 1);
        dut.u_core.SYSRESETREQ = 1'b1; cycles(1); dut.u_core.SYSRESETREQ = 1'b0;
        cycles(12);
        ahb_expect(GPIO + 8, 0, "reset on request of the processor");
        ahb_expect(SYS, 32'h00000008, "the software is the cause");
        time_goes_on("the time goes on when software resets");
        ahb_write(SYS, 32'h0000003F);
        dut.u_core.LOCKUP = 1'b1; cycles(20);
        check(dut.u_core.SYSRESETn === 1'b1, "a lock-up is let be");
        dut.u_core.LOCKUP = 1'b0;
        ahb_write(SYS + 4, 32'd1);
        dut.u_core.LOCKUP = 1'b1;
        @(negedge dut.u_core.SYSRESETn) dut.u_core.LOCKUP = 1'b0;
        cycles(12);
        ahb_expect(SYS, 32'h00000010, "or it is the cause of a reset");
        time_goes_on("the time goes on when a lock-up resets");
        ahb_expect(SYS + 4, 32'd0, "which switches that off again");
        ahb_write(SYS, 32'h0000003F);
        ahb_write(GPIO + 8, 1);
        jtag15 = 1'b0; cycles(4); jtag15 = 1'b1;
        cycles(12);
        ahb_expect(GPIO + 8, 0, "reset from the debug connector");
        ahb_expect(SYS, 32'h00000020, "the connector is the cause");
        time_goes_on("the time goes on when the connector resets");
        ahb_expect(SYS + 20, 32'h600DCAFE, "SCRATCH has lived through all of them");
        hwRstn = 1'b0; cycles(3); hwRstn = 1'b1;
        cycles(20);
        ahb_expect(SYS, 32'h00000002, "the pin is the cause");
        ahb_expect(SYS + 20, 32'd0, "SCRATCH is clear");
        ahb_expect(RTC, 32'd0, "and the time");
        ahb_expect(RTC + 40, 32'd0, "which is not set");
        finish;
    end
endmodule

// An SD card in SPI mode on the controller, with faults.
`define PAUSE 24   // a byte takes about seventy
module tb;
`include "bench.vh"
`include "apb_bus.vh"
    reg  src = 1'b0, stopped = 1'b0, checkin = 1'b1;
    wire sd_clk, cs, dataout, card_init, checkout, irq;
    always #21 if (!stopped) src = ~src;
`include "card.vh"
    apb_sdcard dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                    .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                    .sd_spiclk(src), .sd_clk(sd_clk), .sd_cs(cs), .sd_datain(datain), .sd_dataout(dataout),
                    .sd_card_init(card_init), .sd_checkin(checkin), .sd_checkout(checkout), .irq(irq));
    time    rise = 0;
    integer period = 0, slowest = 0;
    always @(posedge sd_clk) begin
        period = $time - rise;
        if (idle && nbit != 0 && (slowest == 0 || period < slowest)) slowest = period;   // while the card is initialised
        rise = $time;
    end

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: kind = value;
            1: begin checkin = ~value[0]; wakeups = 0; block_length = 1024; cycles(1100); end
            2: begin
                {no_token, stays_busy, never_ready, bad_token, bad_crc, bad_echo, mute} = value[6:0];
                if (!stays_busy && busy > 10) busy = 10;
            end
            3: verdict = value[7:0];
            4: stopped = value[0];
            5: busy = value;
            6: fault_at = value;
            7: r1_errors = value[7:0];
            8: begin period = 0; slowest = 0; end
        endcase
    endtask
    task far_read(input [31:0] index);
        case (index)
            0: rd = crc_errors;
            1: rd = where;
            2: rd = commands;
            3: rd = {29'd0, irq, card_init, cs};
            4: rd = block_length;
            5: rd = crc_checked;
            6: rd = page;
            7: rd = last_command;
            8: rd = stops;
            9: rd = period;
            10: rd = slowest;
            default: rd = memory[index - 32'd4096];   // from 4096
        endcase
    endtask
`include "serve.vh"
endmodule

// An SD card in SPI mode with eight blocks, whose addresses repeat: version 1 or 2, addressed by byte or by block, and with
// faults.
`define PAUSE 16   // a byte takes about seventy
module tb;
`include "bench.vh"
`include "apb_bus.vh"
    reg  src = 1'b0, stopped = 1'b0, checkin = 1'b1;
    wire sd_clk, cs, dataout, card_init, checkout, irq;
    always #21 if (!stopped) src = ~src;
    reg  datain = 1'b1;
    apb_sdcard dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                    .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                    .sd_spiclk(src), .sd_clk(sd_clk), .sd_cs(cs), .sd_datain(datain), .sd_dataout(dataout),
                    .sd_card_init(card_init), .sd_checkin(checkin), .sd_checkout(checkout), .irq(irq));

    localparam V1 = 2, BY_BYTE = 1;
    integer    kind = 0;                 // 0: version 2 by block, 1: version 2 by byte, 2: version 1
    reg        mute = 1'b0, bad_echo = 1'b0, bad_crc = 1'b0, bad_token = 1'b0, never_ready = 1'b0, stays_busy = 1'b0;
    reg [7:0]  verdict = 8'hE5;          // on a block that is written
    integer    needed = 3;               // ACMD41 until the card is ready
    integer    wakeups = 0;              // clock periods without select before CMD0
    integer    crc_errors = 0, commands = 0, block_length = 1024, busy = 0, left = 0, n, b;
    reg        idle = 1'b0, ready = 1'b0, app = 1'b0, crc_checked = 1'b0, writing = 1'b0;
    reg [31:0] argument = 32'd0, where = 32'd0;
    reg [47:0] frame = 48'd0;
    integer    nframe = 0;
    reg [7:0]  memory [0:4095];
    reg [7:0]  queue [0:1023];           // bytes to the host
    integer    head = 0, tail = 0;
    reg [15:0] crc = 16'd0;
    reg [6:0]  crc7 = 7'd0;
    reg [7:0]  in = 8'd0, out = 8'hFF;
    integer    nbit = 0, nwritten = 0;
    initial for (n = 0; n < 4096; n = n + 1) memory[n] = n[7:0] ^ {4'd0, n[11:8]};

    task push(input [7:0] value);
        begin queue[tail] = value; tail = tail + 1; end
    endtask
    task crc16(input [7:0] value);
        for (b = 7; b >= 0; b = b - 1)
            crc = {crc[14:0], 1'b0} ^ ((crc[15] ^ value[b]) ? 16'h1021 : 16'h0000);
    endtask
    wire [7:0] r1 = {7'd0, idle};
    // The block that an argument names; bit 12: none.
    reg [31:0] block;
    task find_block;
        begin
            where = argument;
            block = kind == 0 ? argument : argument / block_length;
            block = block % 8;
        end
    endtask

    task execute;
        begin
            commands = commands + 1;
            argument = frame[39:8];
            crc7 = 7'd0;
            for (n = 47; n >= 8; n = n - 1)
                crc7 = {crc7[5:0], 1'b0} ^ ((crc7[6] ^ frame[n]) ? 7'h09 : 7'h00);
            if (crc7 != frame[7:1] || !frame[0]) crc_errors = crc_errors + 1;
            push(8'hFF);                         // a card takes a byte at least
            if (!mute) case (frame[45:40])
                0: if (wakeups >= 74) begin idle = 1'b1; ready = 1'b0; needed = 3; push(8'h01); end
                8: if (kind == V1) push(8'h05);
                   else begin
                       push(r1); push(8'h00); push(8'h00); push({4'd0, argument[11:8]});
                       push(bad_echo ? ~argument[7:0] : argument[7:0]);
                   end
                16: begin block_length = argument; push(r1); end
                17: begin
                    find_block;
                    push(r1);
                    for (n = 0; n < 3; n = n + 1) push(8'hFF);
                    if (bad_token) push(8'h08);
                    else begin
                        push(8'hFE);
                        crc = 16'd0;
                        for (n = 0; n < 512; n = n + 1) begin
                            push(memory[block * 512 + n]);
                            crc16(memory[block * 512 + n]);
                        end
                        push(crc[15:8]);
                        push(bad_crc ? ~crc[7:0] : crc[7:0]);
                    end
                end
                24: begin find_block; push(r1); writing = 1'b1; nwritten = -1; end
                41: if (!app) push(8'h04 | r1);
                    else begin
                        if (needed > 0) needed = needed - 1;
                        if (!never_ready && needed == 0 && (kind != 0 || argument[30])) idle = 1'b0;
                        push(r1);
                    end
                55: push(r1);
                58: begin push(r1); push(kind == 0 ? 8'hC0 : 8'h80); push(8'hFF); push(8'h80); push(8'h00); end
                59: begin crc_checked = argument[0]; push(r1); end
                default: push(8'h04 | r1);
            endcase
            app = frame[45:40] == 55;
        end
    endtask

    task complete;
        begin
            if (tail != head) begin                    // the host listens
                out = queue[head];
                head = head + 1;
                if (head == tail) begin head = 0; tail = 0; end
            end else if (busy != 0) begin
                out = 8'h00;
                if (!stays_busy) busy = busy - 1;
            end else if (writing) begin
                out = 8'hFF;
                if (nwritten < 0) begin
                    if (in == 8'hFE) begin nwritten = 0; crc = 16'd0; end
                end else begin
                    if (nwritten < 512) queue[nwritten] = in;
                    crc16(in);                         // over the CRC too: 0 if it is right
                    nwritten = nwritten + 1;
                    if (nwritten == 514) begin
                        writing = 1'b0;
                        if (crc != 16'd0) crc_errors = crc_errors + 1;
                        out = crc_checked && crc != 16'd0 ? 8'hEB : verdict;
                        if (out[4:0] == 5'h05)
                            for (n = 0; n < 512; n = n + 1) memory[block * 512 + n] = queue[n];
                        busy = 4;
                    end
                end
            end else begin
                out = 8'hFF;
                if (nframe > 0 || in[7:6] == 2'b01) begin
                    frame = {frame[39:0], in};
                    nframe = nframe + 1;
                    if (nframe == 6) begin nframe = 0; execute; end
                end
            end
        end
    endtask
    always @(negedge cs) begin nbit = 0; nframe = 0; out = busy != 0 ? 8'h00 : 8'hFF; datain = out[7]; end
    always @(posedge cs) if (rstn) begin head = 0; tail = 0; writing = 1'b0; datain = 1'b1; end
    always @(posedge sd_clk) begin
        if (cs) wakeups = wakeups + 1;
        else begin
            in = {in[6:0], dataout};
            nbit = nbit + 1;
            if (nbit == 8) begin nbit = 0; complete; end
        end
    end
    always @(negedge sd_clk) if (!cs) #2 datain = out[7 - nbit];

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: kind = value;
            1: begin checkin = ~value[0]; wakeups = 0; block_length = 1024; cycles(1100); end
            2: {stays_busy, never_ready, bad_token, bad_crc, bad_echo, mute} = value[5:0];
            3: verdict = value[7:0];
            4: stopped = value[0];
            5: busy = value;
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
            default: rd = memory[index - 32'd4096];   // from 4096
        endcase
    endtask
`include "serve.vh"
endmodule

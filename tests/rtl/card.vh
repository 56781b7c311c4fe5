// An SD card in SPI mode with eight blocks, whose addresses repeat, included inside a module behind bench.vh: version 1 or 2,
// addressed by byte or by block, and with faults.  The module has sd_clk, cs and dataout; the card drives datain.
    localparam V1 = 2, BY_BYTE = 1;
    integer    kind = 0;                 // 0: version 2 by block, 1: version 2 by byte, 2: version 1
    // Faults.  Those of blocks are of the block with the number fault_at of a transfer.
    reg        mute = 1'b0, bad_echo = 1'b0, bad_crc = 1'b0, bad_token = 1'b0, never_ready = 1'b0, stays_busy = 1'b0;
    reg        no_token = 1'b0, mute_to_blocks = 1'b0, deaf_to_blocks = 1'b0;
    reg [7:0]  r1_errors = 8'h00;
    reg [7:0]  verdict = 8'hE5;          // on a block that is written
    reg [7:0]  error_token = 8'h08;
    integer    fault_at = 0;
    integer    latency = 1;              // bytes before a response
    integer    pause = 3;                // bytes before a block
    integer    busy_bytes = 4;
    integer    output_delay = 2;         // from the falling edge of sd_clk
    reg        datain = 1'b1;
    integer    needed = 3;               // ACMD41 until the card is ready
    integer    wakeups = 0;              // clock periods without select before CMD0
    integer    crc_errors = 0, commands = 0, block_length = 1024, busy = 0, stops = 0, transferred = 0;
    integer    card_n, card_b;
    reg        idle = 1'b0, app = 1'b0, crc_checked = 1'b0, writing = 1'b0, reading = 1'b0, several = 1'b0;
    reg [31:0] argument = 32'd0, where = 32'd0, block = 32'd0;
    reg [5:0]  last_command = 6'd0;
    reg [47:0] frame = 48'd0;
    integer    nframe = 0;
    reg [7:0]  memory [0:4095];
    reg [7:0]  queue [0:2047];           // bytes to the host
    reg [7:0]  taken_in [0:1023];
    integer    head = 0, tail = 0;
    reg [15:0] crc = 16'd0;
    reg [6:0]  crc7 = 7'd0;
    reg [7:0]  in = 8'd0, out = 8'hFF;
    integer    nbit = 0, nwritten = 0;
    initial for (card_n = 0; card_n < 4096; card_n = card_n + 1) memory[card_n] = card_n[7:0] ^ {4'd0, card_n[11:8]};
`define CARD_R1 ({7'd0, idle} | r1_errors)

    task push(input [7:0] value);
        begin queue[tail] = value; tail = tail + 1; end
    endtask
    task push_idle(input integer count);
        for (card_b = 0; card_b < count; card_b = card_b + 1) push(8'hFF);
    endtask
    task crc16(input [7:0] value);
        for (card_b = 7; card_b >= 0; card_b = card_b - 1)
            crc = {crc[14:0], 1'b0} ^ ((crc[15] ^ value[card_b]) ? 16'h1021 : 16'h0000);
    endtask
    // Blocks that are no blocks of memory count from 1 up.
    task push_block(input integer bytes, input from_memory);
        begin
            push_idle(pause);
            if (no_token && transferred == fault_at) push_idle(1000);
            else if (bad_token && transferred == fault_at) push(error_token);
            else begin
                push(8'hFE);
                crc = 16'd0;
                for (card_n = 0; card_n < bytes; card_n = card_n + 1) begin
                    push(from_memory ? memory[block * 512 + card_n] : card_n + 1);
                    crc16(from_memory ? memory[block * 512 + card_n] : card_n + 1);
                end
                push(crc[15:8]);
                push((bad_crc && transferred == fault_at) ? ~crc[7:0] : crc[7:0]);
            end
            transferred = transferred + 1;
            block = (block + 1) % 8;
        end
    endtask

    task execute;
        begin
            commands = commands + 1;
            last_command = frame[45:40];
            argument = frame[39:8];
            crc7 = 7'd0;
            for (card_n = 47; card_n >= 8; card_n = card_n - 1)
                crc7 = {crc7[5:0], 1'b0} ^ ((crc7[6] ^ frame[card_n]) ? 7'h09 : 7'h00);
            if (crc7 != frame[7:1] || !frame[0]) crc_errors = crc_errors + 1;
            head = 0; tail = 0;
            if (last_command == 12) push(8'h3E);         // looks like a response and is none
            push_idle(latency);
            reading = 1'b0;
            if (last_command == 17 || last_command == 18 || last_command == 24 || last_command == 25) begin
                where = argument;
                block = kind == 0 ? argument : argument / block_length;
                block = block % 8;
                transferred = 0;
                several = last_command[0] == (last_command == 25);
                if (last_command == 17 || last_command == 24) several = 1'b0;
            end
            if (!mute && !(mute_to_blocks && last_command >= 17 && last_command <= 25)) case (last_command)
                0: if (wakeups >= 74) begin idle = 1'b1; needed = 3; crc_checked = 1'b0; push(8'h01); end
                6: begin push(`CARD_R1); push_block(64, 1'b0); end
                8: if (kind == V1) push(8'h05);
                   else begin
                       push(`CARD_R1); push(8'h00); push(8'h00); push({4'd0, argument[11:8]});
                       push(bad_echo ? ~argument[7:0] : argument[7:0]);
                   end
                9, 10: begin push(`CARD_R1); push_block(16, 1'b0); end
                12: begin push(`CARD_R1); several = 1'b0; stops = stops + 1; busy = busy_bytes; end
                13: begin push(`CARD_R1); push(8'h5A); end
                16: begin block_length = argument; push(`CARD_R1); end
                17: begin push(`CARD_R1); if (r1_errors == 8'h00) push_block(512, 1'b1); end
                18: begin push(`CARD_R1); reading = r1_errors == 8'h00; end
                24, 25: begin push(`CARD_R1); writing = r1_errors == 8'h00; nwritten = -1; end
                38: begin push(`CARD_R1); busy = busy_bytes; end
                41: if (!app) push(8'h04 | `CARD_R1);
                    else begin
                        if (needed > 0) needed = needed - 1;
                        if (!never_ready && needed == 0 && (kind != 0 || argument[30])) idle = 1'b0;
                        push(`CARD_R1);
                    end
                51: begin push(`CARD_R1); push_block(8, 1'b0); end
                55: push(`CARD_R1);
                58: begin push(`CARD_R1); push(kind == 0 ? 8'hC0 : 8'h80); push(8'hFF); push(8'h80); push(8'h00); end
                59: begin crc_checked = argument[0]; push(`CARD_R1); end
                default: push(8'h04 | `CARD_R1);
            endcase
            app = last_command == 55;
        end
    endtask
    // A byte of a block that is written, behind its token.
    task keep;
        begin
            if (nwritten < 512) taken_in[nwritten] = in;
            crc16(in);                                   // over the CRC too: 0 if it is right
            nwritten = nwritten + 1;
            if (nwritten == 514) begin
                if (crc != 16'd0) crc_errors = crc_errors + 1;
                out = crc_checked && crc != 16'd0 ? 8'hEB : transferred == fault_at ? verdict : 8'hE5;
                if (deaf_to_blocks) out = 8'hFF;
                if (out[4:0] == 5'h05)
                    for (card_n = 0; card_n < 512; card_n = card_n + 1) memory[block * 512 + card_n] = taken_in[card_n];
                transferred = transferred + 1;
                block = (block + 1) % 8;
                writing = several;
                nwritten = -1;
                busy = busy_bytes;
            end
        end
    endtask
    task complete;
        begin
            out = 8'hFF;
            if (nwritten < 0 || !writing) begin
                if (nframe > 0 || (in[7:6] == 2'b01)) begin
                    frame = {frame[39:0], in};
                    nframe = nframe + 1;
                    if (nframe == 6) begin nframe = 0; writing = 1'b0; execute; end
                end
            end
            if (tail == head && reading) begin
                head = 0; tail = 0;
                push_block(512, 1'b1);
            end
            if (tail != head) begin                      // the host listens
                out = queue[head];
                head = head + 1;
                if (head == tail) begin head = 0; tail = 0; end
            end else if (busy != 0) begin
                out = 8'h00;
                if (!stays_busy) busy = busy - 1;
            end else if (writing) begin
                if (nwritten >= 0) keep;
                else if (in == (several ? 8'hFC : 8'hFE)) begin nwritten = 0; crc = 16'd0; end
                else if (several && in == 8'hFD) begin writing = 1'b0; stops = stops + 1; busy = busy_bytes; end
            end
        end
    endtask
    always @(negedge cs) begin nbit = 0; nframe = 0; out = busy != 0 ? 8'h00 : 8'hFF; datain = out[7]; end
    always @(posedge cs) if (rstn) begin head = 0; tail = 0; writing = 1'b0; reading = 1'b0; datain = 1'b1; end
    always @(posedge sd_clk) begin
        if (cs) wakeups = wakeups + 1;
        else begin
            in = {in[6:0], dataout};
            nbit = nbit + 1;
            if (nbit == 8) begin nbit = 0; complete; end
        end
    end
    always @(negedge sd_clk) if (!cs) datain <= #output_delay out[7 - nbit];

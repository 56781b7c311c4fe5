// A device at address 0x2D with 16 registers behind a pointer, which the first written byte sets; and what can happen on
// the bus beside it.
module tb;
`include "bench.vh"
`include "apb_bus.vh"
    reg  spikes = 1'b0, spike = 1'b0;   // that only the block sees, on both lines
    always begin wait (spikes); #367 spike = 1'b1; #27 spike = 1'b0; end
    wire scl_out, scl_outen, sda_out, sda_outen, irq;
    tri1 scl, sda;
    reg  slave_sda = 1'b1, slave_scl = 1'b1, other_sda = 1'b1, other_scl = 1'b1;
    assign scl = scl_outen ? scl_out : 1'bz;
    assign sda = sda_outen ? sda_out : 1'bz;
    assign scl = (slave_scl & other_scl) ? 1'bz : 1'b0;
    assign sda = (slave_sda & other_sda) ? 1'bz : 1'b0;
    apb_i2c dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                 .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                 .scl_in(scl ^ spike), .scl_out(scl_out), .scl_outen(scl_outen),
                 .sda_in(sda ^ spike), .sda_out(sda_out), .sda_outen(sda_outen), .irq(irq));

    integer   starts = 0, stops = 0, nbit = 0, nbyte = 0, stretch = 0, refuse = 99, n;
    reg       running = 1'b0, mine = 1'b0, reading = 1'b0, master_ack = 1'b0, ack;
    reg [7:0] shift, reply;
    reg [3:0] pointer = 4'd0;
    reg [7:0] memory [0:15];
    initial for (n = 0; n < 16; n = n + 1) memory[n] = 8'hA0 + n;
    always @(negedge sda) if (rstn && scl === 1'b1) begin
        starts = starts + 1; running = 1'b1; nbyte = 0; nbit = 0; mine = 1'b0; slave_sda = 1'b1;
    end
    always @(posedge sda) if (rstn && scl === 1'b1) begin
        stops = stops + 1; running = 1'b0; mine = 1'b0; slave_sda = 1'b1;
    end
    always @(posedge scl) if (running) begin
        if (nbit < 8) shift = {shift[6:0], sda};
        else master_ack = ~sda;
        nbit = nbit + 1;
    end
    always @(negedge scl) if (running) begin
        if (nbit == 8) begin
            ack = 1'b0;
            if (nbyte == 0) begin
                mine = shift[7:1] == 7'h2D;
                reading = shift[0];
                ack = mine;
            end else if (mine && !reading) begin
                ack = nbyte <= refuse;
                if (ack) begin
                    if (nbyte == 1) pointer = shift[3:0];
                    else begin memory[pointer] = shift; pointer = pointer + 4'd1; end
                end
            end
            slave_sda = #12 ~ack;
            if (stretch > 0) begin slave_scl = 1'b0; #(stretch) slave_scl = 1'b1; end
        end else if (nbit == 9) begin
            nbit = 0;
            if (reading && nbyte > 0 && !master_ack) mine = 1'b0;
            nbyte = nbyte + 1;
            if (mine && reading) begin reply = memory[pointer]; pointer = pointer + 4'd1; end
            slave_sda = #12 (mine && reading) ? reply[7] : 1'b1;
        end else if (mine && reading && nbyte > 0)
            slave_sda = #12 reply[7 - nbit];
    end

    // Another master pulls SDA after some periods of SCL; a device that was interrupted holds it for some.
    integer attack = 0, hold = 0, clocks = 0;
    time    rise = 0, period = 0;
    always @(posedge scl) if (rstn) begin
        period = $time - rise; rise = $time;
        clocks = clocks + 1;
    end
    always @(negedge scl) if (rstn) begin
        if (attack > 0) begin attack = attack - 1; if (attack == 0) other_sda = #12 1'b0; end
        else if (hold > 0) begin hold = hold - 1; if (hold == 0) other_sda = #12 1'b1; end
    end

    // Another master, which calls an address: how many bytes were acknowledged, and what it has read.
    integer   acks = 0, later = 0, i;
    reg [7:0] called = 8'd0, byte_read;
    reg [7:0] got [0:15];
    reg       level;
    task o_bit(input value, output seen);
        begin
            other_sda = value; #100 other_scl = 1'b1; wait (scl === 1'b1);
            #100 seen = sda; #100 other_scl = 1'b0; #100;
        end
    endtask
    task o_byte(input [7:0] value, input ack);
        integer k;
        begin
            for (k = 7; k >= 0; k = k - 1) o_bit(value[k], byte_read[k]);
            o_bit(ack, level);
            if (!level && ack) acks = acks + 1;
        end
    endtask
    task o_begin;
        begin acks = 0; other_sda = 1'b0; #200 other_scl = 1'b0; #100 o_byte(called, 1'b1); end
    endtask
    task o_stop;
        begin other_sda = 1'b0; #100 other_scl = 1'b1; #300 other_sda = 1'b1; #300; end
    endtask
    task o_send(input integer count);
        begin
            o_begin;
            for (i = 0; i < count; i = i + 1) o_byte(8'h60 + i, 1'b1);
            o_stop;
        end
    endtask
    task o_get(input integer count);
        begin
            o_begin;
            for (i = 0; i < count; i = i + 1) begin o_byte(8'hFF, i == count - 1); got[i] = byte_read; end
            o_stop;
        end
    endtask
    always @(later) if (later > 0) o_get(1);

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            5: called = value;
            6: o_send(value);
            7: o_get(value);
            8: later = later + 1;               // a byte is read beside what else happens
            0: stretch = 10 * value;            // in clock cycles
            1: refuse = value;                  // data bytes that are acknowledged
            2: attack = value;
            3: begin hold = value; other_sda = value == 0; end
            4: other_scl = ~value[0];
            9: spikes = value[0];
        endcase
    endtask
    task far_read(input [31:0] index);
        case (index)
            0: rd = starts;
            1: rd = stops;
            2: rd = {30'd0, scl, sda};
            3: rd = period / 10;
            4: rd = irq;
            5: rd = clocks;
            6: rd = master_ack;
            7: rd = acks;
            default: rd = index < 32 ? memory[index[3:0]] : got[index[3:0]];   // from 16 and 32
        endcase
    endtask
`include "serve.vh"
endmodule

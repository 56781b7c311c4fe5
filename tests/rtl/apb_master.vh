// APB master of the testbenches, included inside a module after bench.vh.
    reg         psel = 1'b0, penable = 1'b0, pwrite = 1'b0;
    reg  [11:0] paddr = 12'd0;
    reg  [31:0] pwdata = 32'd0;
    reg  [3:0]  pstrb = 4'd0;
    wire [31:0] prdata;
    wire        pready, pslverr;
    reg  [31:0] rd;

    apb_checker #(.MOST_WAITS(0)) bus_rules (
        .PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR({20'd0, paddr}), .PWDATA(pwdata),
        .PSTRB(pstrb), .PPROT(3'd0), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .LATE(1'b0)
    );

    // The bytes of `data` that `lanes` names.
    task apb_write_lanes(input [11:0] address, input [31:0] data, input [3:0] lanes);
        begin
            psel = 1'b1; penable = 1'b0; pwrite = 1'b1; paddr = address; pwdata = data; pstrb = lanes;
            cycles(1);
            penable = 1'b1;
            #1;
            while (!pready) cycles(1);
            check(pslverr === 1'b0, "no error of an APB write");
            cycles(1);
            psel = 1'b0; penable = 1'b0; pwrite = 1'b0; pstrb = 4'd0;
        end
    endtask

    task apb_write(input [11:0] address, input [31:0] data);
        apb_write_lanes(address, data, 4'b1111);
    endtask

    // As the bridge does it: a byte stands in every lane, a halfword in both.
    task apb_write8(input [11:0] address, input [7:0] data);
        apb_write_lanes(address, {4{data}}, 4'b0001 << address[1:0]);
    endtask

    task apb_write16(input [11:0] address, input [15:0] data);
        apb_write_lanes(address, {2{data}}, address[1] ? 4'b1100 : 4'b0011);
    endtask

    // A read in two parts, for a register that changes by itself: what it is now, and the end of the access.
    task apb_look(input [11:0] address);
        begin
            psel = 1'b1; penable = 1'b0; pwrite = 1'b0; paddr = address;
            cycles(1);
            penable = 1'b1;
            #1;
            while (!pready) cycles(1);
            rd = prdata;
            check(pslverr === 1'b0, "no error of an APB read");
        end
    endtask
    task apb_leave;
        begin
            cycles(1);
            psel = 1'b0; penable = 1'b0;
        end
    endtask

    task apb_read(input [11:0] address);
        begin
            apb_look(address);
            apb_leave;
        end
    endtask

    task apb_expect(input [11:0] address, input [31:0] expected, input [8*48-1:0] what);
        begin
            apb_read(address);
            check32(rd, expected, what);
        end
    endtask

    // A register in which `bits` keep what is written and the others are `fixed`: random words, bytes and halfwords, each read back.
    // It keeps the last of them.
    task apb_parts(input [11:0] address, input [31:0] bits, input [31:0] fixed);
        reg [31:0] value, kept, reached;
        integer    part;
        begin
            kept = 32'd0;
            for (part = 0; part < 21; part = part + 1) begin
                value = $random;
                case (part % 7)
                    0: begin apb_write(address, value); reached = 32'hFFFFFFFF; end
                    5, 6: begin
                        value[31:16] = value[15:0];
                        apb_write16(address + 2 * (part % 7 - 5), value[15:0]);
                        reached = 32'h0000FFFF << 16 * (part % 7 - 5);
                    end
                    default: begin
                        value = {4{value[7:0]}};
                        apb_write8(address + part % 7 - 1, value[7:0]);
                        reached = 32'h000000FF << 8 * (part % 7 - 1);
                    end
                endcase
                kept = (kept & ~reached) | (value & reached);
                apb_expect(address, (kept & bits) | fixed, "a register by its parts");
            end
        end
    endtask

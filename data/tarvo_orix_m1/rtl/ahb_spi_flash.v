// SPI-Flash: a read window of 16 MB onto a serial flash, and registers for everything else.
// A read in the window sends what READ describes and waits for its word; the byte at the lowest address arrives in bits
// 7 to 0.  With prefetch the chip select stays low afterwards and the words behind go into a FIFO, until that is full or
// something else is asked for.  A write in the window, and a read while a command runs or SELECT is 1, get the error response.
// COMMAND sends everything that is no read: opcode, address, mode byte, dummy clocks and data through the same FIFO.
// Before the chip is used for the first time after a reset it is led back to its state after power-on.
// The clock idles low (mode 0).  Lanes: 0 MOSI, 1 MISO, 2 WPN, 3 HOLDN.  Registers: registers/spi_flash.json.  They begin the upper 16 MB.
//   LOG_DEPTH  words of the FIFO = 2 ** LOG_DEPTH, 1 to 4
//   COMMANDS   0: without ADDRESS, LENGTH, POLL, STATUS, COMMAND and FIFO, which then read as 0
//   FULL       sum of what is there: 1 reads but 0x03, 2 four bytes of address, 4 continuous reads and leading back, 8 prefetch; ID has ones for the rest
module ahb_spi_flash #(
    parameter LOG_DEPTH = 3,
    parameter COMMANDS  = 1, FULL = 15
) (
    input  wire        HCLK,
    input  wire        HRESETn,
    input  wire        HSEL,
    input  wire [24:0] HADDR,
    input  wire [1:0]  HTRANS,
    input  wire [2:0]  HSIZE,
    input  wire        HWRITE,
    input  wire [31:0] HWDATA,
    input  wire        HREADY,
    output wire [31:0] HRDATA,
    output wire        HREADYOUT,
    output wire        HRESP,

    output wire        flash_clk,
    output reg         flash_csn,
    output wire [3:0]  flash_out,
    output wire [3:0]  flash_outen,
    input  wire [3:0]  flash_in
);
    localparam [2:0] IDLE   = 3'd0;
    localparam [2:0] REGS   = 3'd1;   // data phase of a register access
    localparam [2:0] BYTE   = 3'd2;   // a byte of DATA is on its way
    localparam [2:0] WINDOW = 3'd3;   // waits for a word of the flash
    localparam [2:0] READY  = 3'd4;   // last cycle of a waited data phase
    localparam [2:0] ERROR1 = 3'd5;
    localparam [2:0] ERROR2 = 3'd6;
    localparam [0:0] HAS_FORMAT = (FULL & 1) != 0, HAS_UPPER = (FULL & 2) != 0, HAS_BACK = (FULL & 4) != 0, HAS_PREFETCH = (FULL & 8) != 0;
    // What the pins do.
    localparam [3:0] REST   = 4'd0;
    localparam [3:0] OPCODE = 4'd1;
    localparam [3:0] PLACE  = 4'd2;   // bytes of the address
    localparam [3:0] MODE   = 4'd3;
    localparam [3:0] DUMMY  = 4'd4;
    localparam [3:0] DATA   = 4'd5;
    localparam [3:0] CLOSE  = 4'd6;   // until the chip select may rise
    localparam [3:0] GAP    = 4'd7;   // how long it stays high
    localparam [3:0] GAPPED = 4'd8;
    localparam [3:0] ONES   = 4'd9;   // ends continuous reads
    localparam [3:0] RESETS = 4'd10;  // the chip resets itself
    localparam [3:0] HAND   = 4'd11;  // a byte of DATA
    localparam [3:0] HANDED = 4'd12;
    localparam [0:0] HAS_FORM = HAS_FORMAT || COMMANDS != 0, HAS_FIFO = HAS_PREFETCH || COMMANDS != 0;   // reads or commands need them
    localparam [3:0] R_DATA    = 4'd0;
    localparam [3:0] R_SELECT  = 4'd1;
    localparam [3:0] R_DIV     = 4'd2;
    localparam [3:0] R_PROTECT = 4'd3;
    localparam [3:0] R_CTRL    = 4'd4;
    localparam [3:0] R_READ    = 4'd5;
    localparam [3:0] R_UPPER   = 4'd6;
    localparam [3:0] R_ADDRESS = 4'd8;
    localparam [3:0] R_LENGTH  = 4'd9;
    localparam [3:0] R_POLL    = 4'd10;
    localparam [3:0] R_STATUS  = 4'd11;
    localparam [3:0] R_COMMAND = 4'd12;
    localparam [3:0] R_FIFO    = 4'd13;
    localparam [3:0] R_RECOVER = 4'd14;

    // ---- registers
    reg        select;
    reg [7:0]  div;
    reg        protect;
    reg        prefetch, continuous, quad;
    reg [1:0]  delay;
    reg [2:0]  gap;
    reg [7:0]  patience;      // of an open read that nobody goes on with
    reg [31:0] format;        // READ
    reg [7:0]  upper;
    reg        pending;       // the chip is to be led back to its first state
    reg        with_reset;
    reg [7:0]  reset_time;

    // ---- bus
    reg [2:0]  bus;
    reg        write;
    reg [23:2] word;
    reg [3:0]  lanes;         // bytes that the access reaches
    reg        listed;        // the address is that of a register
    reg        is_id;
    reg        from_window;
    reg        tried;         // a word of the FIFO was passed over
    reg        same;          // word is head, one cycle after both
    reg        sure;          // and that is how they are
    reg [3:0]  engine;

    // ---- shifter's answers
    wire        take, busy, receiving, rx_done;
    wire [7:0]  rx;
    wire [3:0]  outen;

    // ---- command
    wire [31:0] command;
    wire [31:0] place;
    wire [8:0]  left;         // bytes still to be transferred
    reg         running;
    reg         aborting;
    wire        polling  = command[23];
    wire        outwards = command[22] & ~polling;
    wire        matched;      // the status is as waited for
    wire        begin_command;
    wire        sent_out;     // and it sends what the FIFO holds
    wire        abort;
    wire        push_by_hand, pop_by_hand;
    wire [31:0] of_commands;  // what the registers of commands read

    // ---- window
    reg         streamed;     // the FIFO holds words of the window
    reg [24:2]  head;         // address of the oldest of them, or of the next one
    reg         reading;
    reg         fetched;      // a word was asked for
    reg         continues;    // the chip takes an address without an opcode
    wire        empty, full;
    wire [31:0] oldest;
    wire [LOG_DEPTH:0] level;

    wire accept  = HSEL & HREADY & HTRANS[1];
    wire [3:0] index = word[5:2];
    wire access  = bus == REGS;
    wire writing = access & write;
    wire uses    = listed & lanes[0] & ((index == R_SELECT) | ((index == R_COMMAND) & (COMMANDS != 0)));
    wire calm    = (engine == REST) & ~continues & (HAS_FIFO ? ~streamed : 1'b1) & ~(pending & uses & ~select);
    wire store   = writing & listed & calm & ~running;
    wire early   = writing & listed & running;   // while a command runs
    wire by_hand = store & lanes[0] & (index == R_DATA);

    function [31:0] merged(input [31:0] old, input [31:0] fresh, input [3:0] reach);
        merged = {reach[3] ? fresh[31:24] : old[31:24], reach[2] ? fresh[23:16] : old[23:16],
                  reach[1] ? fresh[15:8] : old[15:8], reach[0] ? fresh[7:0] : old[7:0]};
    endfunction
    function has_four(input [13:8] over);
        has_four = (over[9:8] == 2'd2) | (over[11:10] == 2'd2) | (over[13:12] == 2'd2);
    endfunction

    // A read that cannot be: no address or no data, or four lanes that are not the controller's.
    wire unreadable = (&format[11:10]) | (&format[13:12]) | (~quad & has_four(format[13:8]));
    wire refused    = select | running | unreadable;

    wire match = streamed & same;
    wire open  = reading & ((engine == OPCODE) | (engine == PLACE) | (engine == MODE) | (engine == DUMMY) | (engine == DATA));
    wire serve = HAS_FIFO ? sure & match & ~empty & (prefetch | flash_csn) : streamed & flash_csn;
    wire skip  = HAS_FIFO ? (bus == WINDOW) & sure & streamed & ~match & ~empty & ~tried : 1'b0;
    wire miss  = HAS_FIFO ? (bus == WINDOW) & sure & ~refused & ~serve & ~skip & ~(match & (open | ~empty)) : (bus == WINDOW) & ~refused & ~streamed;
    wire start = miss & (engine == REST) & ~pending;

    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            bus         <= IDLE;
            write       <= 1'b0;
            word        <= 22'd0;
            lanes       <= 4'd0;
            listed      <= 1'b0;
            is_id       <= 1'b0;
            from_window <= 1'b0;
            tried       <= 1'b0;
            same        <= 1'b0;
            sure        <= 1'b0;
        end else begin
            same <= head == {1'b0, word};
            sure <= (bus == WINDOW) & ~skip & ~start;
            case (bus)
                BYTE:
                    if ((engine == HANDED) & ~busy & ~receiving)
                        bus <= READY;
                WINDOW: begin
                    tried <= tried | skip;
                    if (refused)
                        bus <= ERROR1;
                    else if (serve)
                        bus <= READY;
                end
                ERROR1:
                    bus <= ERROR2;
                default:   // IDLE, REGS, READY, ERROR2: the data phase may end here
                    if (by_hand)
                        bus <= BYTE;
                    else if (accept) begin
                        write       <= HWRITE;
                        word        <= HADDR[23:2];
                        lanes       <= HSIZE[1] ? 4'b1111 : HSIZE[0] ? 4'b0011 << HADDR[1:0] : 4'b0001 << HADDR[1:0];
                        listed      <= HADDR[23:6] == 18'd0;
                        is_id       <= HADDR[23:2] == 22'h0003FF;
                        from_window <= ~HADDR[24];
                        tried       <= 1'b0;
                        bus         <= HADDR[24] ? REGS : HWRITE ? ERROR1 : WINDOW;
                    end else if (HREADYOUT)
                        bus <= IDLE;
            endcase
        end

    assign HREADYOUT = (bus == IDLE) | (access & (~write | running | (calm & ~by_hand))) | (bus == READY) | (bus == ERROR2);
    assign HRESP     = (bus == ERROR1) | (bus == ERROR2);

    // ---- shifter
    reg [1:0]  place_byte;
    reg [1:0]  ask_byte;      // byte of a word that is asked for
    reg [1:0]  store_byte;    // and that arrives
    reg [31:0] assembled;
    reg        complete;      // assembled is to go into the FIFO
    reg        special;       // continuous reads are ended, and with recovering all the rest
    reg        recovering;
    reg [2:0]  step;
    reg [13:0] timer;

    wire [29:0] form     = running ? {command[31:24], command[21:0]} : {format[31:24], format[21:0]};
    wire        sends    = running & outwards;
    wire        has_op   = ~&form[9:8];
    wire        has_at   = ~&form[11:10];
    wire        has_mode = has_at & form[15];
    wire        has_data = ~&form[13:12];
    wire        has_rest = form[21:16] != 6'd0;
    wire        remains  = left != 9'd0;
    wire        room     = ~level[LOG_DEPTH] & ~&level[LOG_DEPTH-1:0];   // for this word and the one that still arrives
    wire        fits     = (ask_byte != 2'd0) | room;
    wire        more     = running ? has_data & (polling | (remains & (outwards ? ~empty : fits)))
                                   : prefetch ? fits : ~fetched;
    wire [31:0] at       = running ? place : {upper, word, 2'b00};
    wire        quiet    = engine == GAP;
    wire        stop     = HAS_FIFO ? (engine == CLOSE) & ~special : 1'b0;

    reg       valid;
    reg [7:0] tx;
    reg [1:0] over;
    reg [5:0] clocks;
    always @* begin
        valid  = 1'b0;
        tx     = 8'd0;
        over   = 2'd0;
        case (engine)
            OPCODE: begin
                valid = has_op | special;
                tx    = special ? (step[0] ? 8'h99 : 8'h66) : form[7:0];
                over  = special ? 2'd0 : form[9:8];
            end
            PLACE: begin
                valid = has_at;
                case (place_byte)
                    2'd3: tx = at[31:24];
                    2'd2: tx = at[23:16];
                    2'd1: tx = at[15:8];
                    2'd0: tx = at[7:0];
                endcase
                over  = form[11:10];
            end
            MODE: begin
                valid = HAS_FORM ? has_mode : quiet;
                tx    = form[29:22];
                over  = form[11:10];
            end
            DUMMY: begin
                valid = HAS_FORM ? has_rest : quiet;
                over  = form[13:12] & {2{has_data}};
            end
            DATA: begin
                valid = more;
                case (ask_byte)
                    2'd3: tx = HAS_FIFO ? oldest[31:24] : 8'd0;
                    2'd2: tx = HAS_FIFO ? oldest[23:16] : 8'd0;
                    2'd1: tx = HAS_FIFO ? oldest[15:8] : 8'd0;
                    2'd0: tx = HAS_FIFO ? oldest[7:0] : 8'd0;
                endcase
                over  = form[13:12];
            end
            ONES: begin
                valid = HAS_BACK ? 1'b1 : quiet;
                tx    = HAS_BACK ? 8'hFF : 8'd0;
                over  = HAS_BACK ? 2'd2 : 2'd0;
            end
            HAND: begin
                valid = 1'b1;
                tx    = HWDATA[7:0];
            end
            default:
                valid = quiet;
        endcase
        case (engine)
            DUMMY:   clocks = HAS_FORM ? form[21:16] - 6'd1 : 6'd7;
            GAP:     clocks = {3'd0, gap};
            // An address and a mode byte: of 3 and 4 bytes on four lanes, and on two.
            ONES:    clocks = HAS_BACK ? step[1] ? (step[0] ? 6'd19 : 6'd15) : (step[0] ? 6'd9 : 6'd7) : 6'd7;
            default: clocks = over[1] ? 6'd1 : over[0] ? 6'd3 : 6'd7;
        endcase
    end

    spi_flash_shifter u_shifter (
        .clk(HCLK), .rstn(HRESETn), .div(div), .delay(delay),
        .valid(valid), .take(take), .tx(tx), .lanes(over), .drives(sends | ((engine != DATA) & (engine != DUMMY))),
        .samples((engine == HAND) | ((engine == DATA) & ~sends)), .quiet(quiet), .clocks(clocks),
        .stop(stop), .rest(HAS_FORM || HAS_BACK ? engine == REST : 1'b0), .busy(busy), .receiving(receiving), .rx(rx), .rx_done(rx_done),
        .wpn(~protect), .holdn(1'b1), .sclk(flash_clk), .out(flash_out), .outen(outen), .in(flash_in)
    );

    // A flash of which a continuous read on two lanes is ended may answer from the last falling edge on.
    wire released = special & ((engine == GAP) | (engine == GAPPED) | ((engine == CLOSE) & ~busy));
    assign flash_outen = outen & ~{2'b00, {2{released}}};

    wire in_flight = busy | receiving | complete;
    wire arrives   = rx_done & (engine == DATA) & (reading | ~(outwards | polling));
    wire drop      = HAS_FIFO ? (miss | writing) & ~running : 1'b0;       // the open read is of no use any more
    wire timed     = timer[13:6] == ((engine == RESETS) ? reset_time : patience);
    wire done      = running ? (polling & has_data ? matched : ~((remains & has_data) | in_flight | (store_byte != 2'd0)))
                             : drop | (prefetch ? timed & (patience != 8'd0) & ~in_flight : fetched & ~in_flight);
    wire last_step = ~recovering | ((step == 3'd3) & ~with_reset);

    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            engine     <= REST;
            flash_csn  <= 1'b1;
            select     <= 1'b0;
            pending    <= HAS_BACK;
            running    <= 1'b0;
            aborting   <= 1'b0;
            reading    <= 1'b0;
            fetched    <= 1'b0;
            continues  <= 1'b0;
            place_byte <= 2'd0;
            ask_byte   <= 2'd0;
            special    <= 1'b0;
            recovering <= 1'b0;
            step       <= 3'd0;
            timer      <= 14'd0;
        end else begin
            timer <= (HAS_BACK || HAS_PREFETCH ? (engine == RESETS) | (open & (engine == DATA) & ~busy) : 1'b0) ? timer + 14'd1 : 14'd0;
            if (abort)
                aborting <= 1'b1;
            case (engine)
                REST: begin
                    ask_byte   <= 2'd0;
                    fetched    <= 1'b0;
                    place_byte <= {1'b1, form[14]};
                    if (running) begin
                        if (aborting) begin
                            running  <= COMMANDS != 0 ? 1'b0 : running;
                            aborting <= COMMANDS != 0 ? 1'b0 : aborting;
                        end else begin
                            flash_csn <= 1'b0;
                            engine    <= OPCODE;
                        end
                    end else if (continues & writing) begin
                        special   <= 1'b1;
                        step      <= {1'b0, format[10], format[14]};
                        flash_csn <= 1'b0;
                        engine    <= ONES;
                    end else if (pending & ~select & (miss | (writing & uses))) begin
                        special    <= 1'b1;
                        recovering <= 1'b1;
                        step       <= 3'd0;
                        flash_csn  <= 1'b0;
                        engine     <= ONES;
                    end else if (start) begin
                        reading   <= 1'b1;
                        flash_csn <= 1'b0;
                        engine    <= continues ? PLACE : OPCODE;
                    end else if (by_hand)
                        engine <= HAND;
                    else if (select & (begin_command | (store & lanes[0] & (index == R_SELECT) & ~HWDATA[0])))
                        engine <= GAP;
                end
                OPCODE:
                    if (take | ~valid)
                        engine <= special ? CLOSE : PLACE;
                PLACE:
                    if (~has_at | (take & (place_byte == 2'd0)))
                        engine <= HAS_FORM ? MODE : DATA;
                    else if (take)
                        place_byte <= place_byte - 2'd1;
                MODE:
                    if (HAS_FORM ? take | ~has_mode : 1'b0)
                        engine <= DUMMY;
                DUMMY:
                    if (HAS_FORM ? take | ~has_rest : 1'b0)
                        engine <= DATA;
                DATA: begin
                    continues <= HAS_BACK ? reading & continuous & has_mode & (format[11] ^ format[10]) : 1'b0;
                    if (take) begin
                        ask_byte <= ask_byte + 2'd1;
                        if (ask_byte == 2'd3)
                            fetched <= 1'b1;
                    end
                    if (done)
                        engine <= CLOSE;
                end
                CLOSE:
                    if (~busy) begin
                        flash_csn <= 1'b1;
                        reading   <= 1'b0;
                        running   <= COMMANDS != 0 ? 1'b0 : running;
                        aborting  <= COMMANDS != 0 ? 1'b0 : aborting;
                        engine    <= GAP;
                    end
                GAP:
                    if (take)
                        engine <= GAPPED;
                GAPPED:
                    if (~busy) begin
                        engine <= REST;
                        if (special) begin
                            step <= HAS_BACK ? step + 3'd1 : 3'd0;
                            if (last_step) begin
                                special    <= 1'b0;
                                recovering <= 1'b0;
                                continues  <= 1'b0;
                                if (recovering)
                                    pending <= 1'b0;
                            end else if (step == 3'd5)
                                engine <= RESETS;
                            else begin
                                flash_csn <= 1'b0;
                                engine    <= (step < 3'd3) ? ONES : OPCODE;
                            end
                        end
                    end
                ONES:
                    if (HAS_BACK ? take : 1'b0)
                        engine <= CLOSE;
                RESETS:
                    if (HAS_BACK ? timed : 1'b0) begin
                        special    <= 1'b0;
                        recovering <= 1'b0;
                        pending    <= 1'b0;
                        engine     <= REST;
                    end
                HAND:
                    if (take)
                        engine <= HANDED;
                default:   // HANDED
                    if (~busy & ~receiving)
                        engine <= REST;
            endcase
            if (aborting & ((engine == OPCODE) | (engine == PLACE) | (engine == MODE) | (engine == DUMMY) | (engine == DATA)))
                engine <= CLOSE;
            if (begin_command) begin
                running <= 1'b1;
                select  <= 1'b0;
                if (select)
                    flash_csn <= 1'b1;
            end
            if (store & lanes[0] & (index == R_SELECT)) begin
                select    <= HWDATA[0];
                flash_csn <= ~HWDATA[0];
            end
            if (store & lanes[0] & (index == R_RECOVER))
                pending <= HAS_BACK ? HWDATA[0] : 1'b0;
        end

    // ---- words
    wire flush = (aborting & outwards) | start | (begin_command & ~sent_out) |
                 (HAS_FIFO ? writing & ~running & streamed & (engine == REST) : 1'b0) | ((bus == READY) & from_window & ~prefetch);
    wire [31:0] reached = {{8{lanes[3]}}, {8{lanes[2]}}, {8{lanes[1]}}, {8{lanes[0]}}};
    wire        last_byte = (ask_byte == 2'd3) | (left == 9'd1);
    sync_fifo #(.WIDTH(32), .LOG_DEPTH(LOG_DEPTH)) u_fifo (
        .clk(HCLK), .rstn(HRESETn), .clear(flush),
        .push(complete | push_by_hand), .wdata(complete ? assembled : HWDATA & reached),
        .pop(skip | pop_by_hand | ((engine == DATA) & sends & take & last_byte)),
        .rdata(oldest), .empty(empty), .full(full), .level(level)
    );

    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            streamed   <= 1'b0;
            head       <= 23'd0;
            assembled  <= 32'd0;
            complete   <= 1'b0;
            store_byte <= 2'd0;
        end else begin
            if (flush)
                streamed <= start;
            if (start)
                head <= {1'b0, word};
            else if (skip)
                head <= head + 23'd1;
            complete <= HAS_FIFO ? ~stop & ((arrives & (store_byte == 2'd3)) |
                                 ((engine == DATA) & running & ~(remains | in_flight | aborting) & (store_byte != 2'd0))) : 1'b0;
            if ((engine == REST) | complete)
                store_byte <= 2'd0;
            else if (arrives)
                store_byte <= store_byte + 2'd1;
            if (arrives)
                case (store_byte)
                    2'd0: assembled        <= {HAS_FIFO ? 24'd0 : assembled[31:8], rx};
                    2'd1: assembled[15:8]  <= rx;
                    2'd2: assembled[23:16] <= rx;
                    2'd3: assembled[31:24] <= rx;
                endcase
        end

    // ---- registers of the window
    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            div        <= 8'd1;
            protect    <= 1'b1;
            prefetch   <= 1'b0;
            continuous <= 1'b0;
            quad       <= 1'b0;
            delay      <= 2'd0;
            gap        <= 3'd0;
            patience   <= 8'd0;
            format     <= 32'h00000003;
            upper      <= 8'd0;
            with_reset <= HAS_BACK;
            reset_time <= HAS_BACK ? 8'd32 : 8'd0;
        end else if (store)
            case (index)
                R_DIV:
                    if (lanes[0]) div <= HWDATA[7:0];
                R_PROTECT:
                    if (lanes[0]) protect <= HWDATA[0];
                R_CTRL: begin
                    if (lanes[0]) {delay, quad, continuous, prefetch} <= {HAS_FORMAT ? {HWDATA[5:4], HWDATA[2]} : 3'd0, HAS_FORMAT && HAS_BACK ? HWDATA[1] : 1'b0, HAS_PREFETCH ? HWDATA[0] : 1'b0};
                    if (lanes[1]) gap <= HAS_FORMAT ? HWDATA[10:8] : 3'd0;
                    if (lanes[2]) patience <= HAS_PREFETCH ? HWDATA[23:16] : 8'd0;
                end
                R_READ: format <= HAS_FORMAT ? merged(format, HWDATA, lanes) & (HAS_UPPER ? 32'hFF3FFFFF : 32'hFF3FBFFF) : {17'd0, !HAS_UPPER ? 1'b0 : lanes[1] ? HWDATA[14] : format[14], 14'd3};
                R_UPPER:
                    if (lanes[0]) upper <= HAS_UPPER ? HWDATA[7:0] : 8'd0;
                R_RECOVER: begin
                    if (lanes[0]) with_reset <= HAS_BACK ? HWDATA[1] : 1'b0;
                    if (lanes[1]) reset_time <= HAS_BACK ? HWDATA[15:8] : 8'd0;
                end
                default: ;
            endcase

    // ---- registers of commands
    generate if (COMMANDS != 0) begin : g_commands
        reg [31:0] command_q, place_q;
        reg [8:0]  left_q;
        reg [7:0]  mask, wanted;
        reg        was_refused, overflow, underflow;
        assign command = command_q;
        assign place   = place_q;
        assign left    = left_q;
        assign matched = rx_done & (((rx ^ wanted) & mask) == 8'd0);

        wire [31:0] next  = merged(command_q, HWDATA, lanes);
        wire        sets  = store & (index == R_COMMAND);
        wire        legal = quad | ~has_four(next[13:8]);
        wire        filling = (store | (early & outwards)) & (index == R_FIFO) & lanes[0];
        wire        taking  = access & ~write & listed & (index == R_FIFO) & lanes[0];
        wire        idle_fifo = ~streamed & ~sends;
        assign begin_command = sets & lanes[0] & legal;
        assign sent_out      = next[22] & ~next[23];
        assign push_by_hand  = filling & ~full;
        assign pop_by_hand   = taking & idle_fifo;
        assign abort         = early & lanes[0] & (index == R_STATUS) & HWDATA[4];

        always @(posedge HCLK or negedge HRESETn)
            if (!HRESETn) begin
                command_q   <= 32'd0;
                place_q     <= 32'd0;
                left_q      <= 9'd0;
                mask        <= 8'h01;
                wanted      <= 8'h00;
                was_refused <= 1'b0;
                overflow    <= 1'b0;
                underflow   <= 1'b0;
            end else begin
                if (sets)
                    command_q <= next;
                if (store & (index == R_ADDRESS))
                    place_q <= merged(place_q, HWDATA, lanes);
                if (store & (index == R_LENGTH)) begin
                    if (lanes[0]) left_q[7:0] <= HWDATA[7:0];
                    if (lanes[1]) left_q[8]   <= HWDATA[8];
                end else if ((engine == DATA) & running & ~polling & take)
                    left_q <= left_q - 9'd1;
                if (store & (index == R_POLL)) begin
                    if (lanes[0]) mask   <= HWDATA[7:0];
                    if (lanes[1]) wanted <= HWDATA[15:8];
                end
                if ((store | early) & (index == R_STATUS) & lanes[0]) begin
                    was_refused <= was_refused & ~HWDATA[1];
                    overflow    <= overflow & ~HWDATA[2];
                    underflow   <= underflow & ~HWDATA[3];
                end
                if ((early & (index != R_STATUS) & ~((index == R_FIFO) & outwards)) | (sets & lanes[0] & ~legal))
                    was_refused <= 1'b1;
                if (filling & full)
                    overflow <= 1'b1;
                if (taking & (empty | ~idle_fifo))
                    underflow <= 1'b1;
            end

        reg [31:0] r;
        wire [4:0] words = {{(4-LOG_DEPTH){1'b0}}, level} & {5{~streamed}};
        always @*
            case (index)
                R_ADDRESS: r = place_q;
                R_LENGTH:  r = {23'd0, left_q};
                R_POLL:    r = {16'd0, wanted, mask};
                R_FIFO:    r = oldest & {32{idle_fifo}};
                R_COMMAND: r = command_q;
                R_STATUS:  r = {19'd0, words, 2'd0, continues, 1'b0, underflow, overflow, was_refused, running};
                default:   r = 32'd0;
            endcase
        assign of_commands = r;
    end else begin : g_none
        assign command       = 32'd0;
        assign place         = 32'd0;
        assign left          = 9'd0;
        assign matched       = 1'b0;
        assign begin_command = 1'b0;
        assign sent_out      = 1'b0;
        assign push_by_hand  = 1'b0;
        assign pop_by_hand   = 1'b0;
        assign abort         = 1'b0;
        assign of_commands   = 32'd0;
    end endgenerate

    localparam [31:0] WORDS = HAS_FIFO ? LOG_DEPTH : 0;
    localparam [31:0] ID = {~HAS_PREFETCH, ~HAS_BACK, ~HAS_UPPER, ~HAS_FORMAT, 3'd0, (COMMANDS != 0), 2'd0, WORDS[5:0], 8'd2, 8'd10};
    reg [31:0] value;
    always @*
        case (index)
            R_DATA:    value = {24'd0, rx};
            R_SELECT:  value = {31'd0, select};
            R_DIV:     value = {24'd0, div};
            R_PROTECT: value = {31'd0, protect};
            R_CTRL:    value = {8'd0, patience, 5'd0, gap, 2'd0, delay, 1'b0, quad, continuous, prefetch};
            R_READ:    value = HAS_FORMAT ? format : {17'd0, format[14], 14'd0};
            R_UPPER:   value = {24'd0, upper};
            R_RECOVER: value = {16'd0, reset_time, 6'd0, with_reset, pending};
            default:   value = of_commands;
        endcase
    assign HRDATA = from_window ? (HAS_FIFO ? oldest : assembled) : listed ? value : is_id ? ID : 32'd0;
endmodule

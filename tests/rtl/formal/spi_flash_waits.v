// The SPI-Flash: how long a write of a register lets the bus wait, in any state that it finds and with any settings, against the
// formulas of the register text. (Those of a read are only measured: tb_spi_flash_waits.v.)
// What a wait still takes at most is A half periods of the serial clock and B cycles, which the state tells. In each cycle that goes by
// either B falls, or A does and B rises by less than a half period: A H + B falls. So no wait is longer than that was at its begin, which
// is compared with the formulas. The states that can be are described below, so that one step of induction proves it all.
module proof (
    input wire        clk, rstn, hsel, hwrite, hready, hresp,
    input wire [31:0] haddr, hwdata,
    input wire [1:0]  htrans,
    input wire [2:0]  hburst, hsize,
    input wire [3:0]  hprot
);
`include "environment.vh"
    wire [31:0] hrdata;
    wire        hreadyout, hrespout;
    ahb_spi_flash dut (
        .HCLK(clk), .HRESETn(rstn), .HSEL(hsel), .HADDR(haddr[24:0]), .HTRANS(htrans), .HSIZE(hsize), .HWRITE(hwrite), .HWDATA(hwdata),
        .HREADY(hready), .HRDATA(hrdata), .HREADYOUT(hreadyout), .HRESP(hrespout)
    );
    // The subject "spi-flash" has the rules of the slave.
    ahb_lite_checker #(.ASSUME_MASTER(1), .ASSUME_BUS(1), .ASSUME_SLAVE(2)) rules (
        .HCLK(clk), .HRESETn(rstn), .HADDR(haddr), .HTRANS(htrans), .HBURST(hburst), .HSIZE(hsize), .HPROT(hprot),
        .HWRITE(hwrite), .HWDATA(hwdata), .HSEL(hsel), .HREADY(hready), .HRESP(hresp),
        .HRDATA(hrdata), .HREADYOUT(hreadyout), .HRESPOUT(hrespout)
    );

    // ---- what is inside
    (* hierconn *) wire        \rules.owns ;
    (* hierconn *) wire        \dut.write , \dut.listed , \dut.uses , \dut.select , \dut.running , \dut.aborting , \dut.pending , \dut.with_reset ;
    (* hierconn *) wire        \dut.continues , \dut.continuous , \dut.streamed , \dut.reading , \dut.special , \dut.recovering , \dut.last_step ;
    (* hierconn *) wire        \dut.unreadable , \dut.complete , \dut.empty ;
    (* hierconn *) wire [1:0]  \dut.delay ;
    (* hierconn *) wire [2:0]  \dut.bus , \dut.step , \dut.gap ;
    (* hierconn *) wire [3:0]  \dut.engine , \dut.lanes , \dut.index ;
    (* hierconn *) wire [7:0]  \dut.reset_time , \dut.div ;
    (* hierconn *) wire [13:0] \dut.timer ;
    (* hierconn *) wire [31:0] \dut.format ;
    (* hierconn *) wire [23:2] \dut.word ;
    (* hierconn *) wire [24:2] \dut.head ;
    (* hierconn *) wire        \dut.u_shifter.busy , \dut.u_shifter.phase , \dut.u_shifter.rx_done , \dut.u_shifter.sampling ;
    (* hierconn *) wire [2:0]  \dut.u_shifter.late ;
    (* hierconn *) wire [5:0]  \dut.u_shifter.left ;
    (* hierconn *) wire [7:0]  \dut.u_shifter.count ;
    localparam [3:0] REST = 4'd0, OPCODE = 4'd1, DUMMY = 4'd4, DATA = 4'd5, CLOSE = 4'd6, GAP = 4'd7, GAPPED = 4'd8, ONES = 4'd9,
                     RESETS = 4'd10, HAND = 4'd11, HANDED = 4'd12;
    localparam [2:0] IDLE = 3'd0, REGS = 3'd1, BYTE = 3'd2, WINDOW = 3'd3, ERROR2 = 3'd6;
    wire [3:0]  engine  = \dut.engine ;
    wire [2:0]  bus     = \dut.bus ;
    wire [2:0]  step    = \dut.step ;
    wire [31:0] format  = \dut.format ;
    wire        special = \dut.special ;
    wire        busy    = \dut.u_shifter.busy ;
    wire [2:0]  late    = \dut.u_shifter.late ;
    wire        quiet   = late == 3'd0 && !\dut.u_shifter.rx_done ;   // nothing comes in

    // ---- the formulas
    wire [15:0] h      = {8'd0, \dut.div } + 16'd1;
    wire [9:0]  g      = {7'd0, \dut.gap } + 10'd1;
    wire [9:0]  e      = format[10] ? (format[14] ? 10'd20 : 10'd16) : (format[14] ? 10'd10 : 10'd8);
    wire [15:0] delay  = {14'd0, \dut.delay };
    wire [15:0] resets = {2'd0, \dut.reset_time , 6'd0};
    wire        waits  = bus == BYTE || (bus == REGS && !hreadyout);
    wire        ends   = (engine == DATA ? \dut.reading & \dut.continuous & format[15] : \dut.continues & ~special) & (format[11] ^ format[10]);
    wire        sends  = bus == REGS & \dut.listed & \dut.lanes [0] & \dut.index == 4'd0;
    wire        leads  = \dut.pending & \dut.uses & ~\dut.select & ~special;   // the flash back to its first state
    wire [9:0]  recovery = \dut.with_reset ? 10'd140 + 10'd12 * g : 10'd108 + 10'd8 * g;
    wire [9:0]  most_a = 10'd2 * g + 10'd1 + (ends ? 10'd2 * (e + g) : 10'd0) + (sends ? 10'd16 : 10'd0) + (leads ? recovery : 10'd0);
    wire [15:0] most_b = 16'd5 + (ends ? 16'd4 : 16'd0) + (sends ? delay + 16'd3 : 16'd0) +
                         (!leads ? 16'd0 : \dut.with_reset ? resets + 16'd22 : 16'd13);

    // ---- what the state tells
    // Until the shifter is idle.
    wire [15:0] count  = {8'd0, \dut.u_shifter.count } + 16'd1;
    wire [9:0]  unit_a = busy ? {3'd0, \dut.u_shifter.left , ~\dut.u_shifter.phase } : 10'd0;
    wire [15:0] unit_b = busy ? count : 16'd0;
    // Clocks of a step that ends continuous reads or resets the flash, and those of the steps behind it.
    wire [9:0]  clocks = step[2] ? 10'd8 : step[1] ? (step[0] ? 10'd20 : 10'd16) : step[0] ? 10'd10 : 10'd8;
    wire        again  = special & ~\dut.last_step ;
    wire [2:0]  last   = \dut.with_reset ? 3'd5 : 3'd3;
    wire [2:0]  steps  = step < last ? last - step : 3'd0;
    wire [9:0]  more   = (step == 3'd0 ? 10'd46 : step == 3'd1 ? 10'd36 : step == 3'd2 ? 10'd20 : 10'd0) +
                         (!\dut.with_reset ? 10'd0 : step < 3'd4 ? 10'd16 : step == 3'd4 ? 10'd8 : 10'd0);
    wire [9:0]  then_a = again ? 10'd2 * more + 10'd2 * g * steps : 10'd0;
    wire [15:0] then_b = again ? 16'd4 * steps + (\dut.with_reset ? resets + 16'd1 : 16'd0) : 16'd0;
    // Until the pins rest.
    reg [9:0]   rest_a;
    reg [15:0]  rest_b;
    always @* begin
        rest_a = 10'd0;
        rest_b = 16'd0;
        case (engine)
            DATA: begin
                rest_a = 10'd2 * g + 10'd1;
                rest_b = 16'd4;
            end
            CLOSE: begin
                rest_a = 10'd2 * g + (special ? unit_a + then_a : 10'd0);
                rest_b = 16'd3 + (special ? unit_b + then_b : \dut.u_shifter.phase ? unit_b : {15'd0, busy});
            end
            GAP: begin
                rest_a = 10'd2 * g + then_a;
                rest_b = 16'd2 + then_b;
            end
            GAPPED: begin
                rest_a = unit_a + then_a;
                rest_b = unit_b + 16'd1 + then_b;
            end
            OPCODE, ONES: begin
                rest_a = 10'd2 * clocks + 10'd2 * g + then_a;
                rest_b = 16'd4 + then_b;
            end
            RESETS:
                rest_b = resets + 16'd1 - {2'd0, \dut.timer };
            HAND: begin
                rest_a = 10'd16;
                rest_b = 16'd2 + delay;
            end
            HANDED: begin
                rest_a = unit_a;
                rest_b = 16'd1 + (busy ? unit_b + delay : late[0] ? delay + 16'd1 : late[1] ? delay : late[2] ? delay - 16'd1 :
                                  {15'd0, \dut.u_shifter.rx_done });
            end
        endcase
    end
    wire [9:0]  a = rest_a + (ends ? 10'd2 * (e + g) : 10'd0) + (sends ? 10'd16 : 10'd0) + (leads ? recovery : 10'd0);
    wire [15:0] b = rest_b + (ends ? 16'd5 : {15'd0, \dut.streamed }) + (sends ? delay + 16'd3 : 16'd0) +
                    (!leads ? 16'd0 : \dut.with_reset ? resets + 16'd26 : 16'd17);

    reg         waited = 1'b0;    // in the cycle before, with these
    reg         held   = 1'b0;    // or a read of the window was under way
    reg [9:0]   was_a;
    reg [15:0]  was_b, was_h;
    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            waited <= 1'b0;
            held   <= 1'b0;
            was_a  <= 10'd0;
            was_b  <= 16'd0;
            was_h  <= 16'd0;
        end else begin
            waited <= waits;
            held   <= bus == WINDOW;
            was_a  <= a;
            was_b  <= b;
            was_h  <= h;
        end

    always @*
        if (rstn) begin
            if (waits) begin
                assert (a != 10'd0 || b != 16'd0);
                if (waited)
                    assert (h == was_h && ((a == was_a && b < was_b) || (a < was_a && b < was_b + h)));
                else
                    assert ((a == most_a && b <= most_b) || (a < most_a && b <= most_b + h));
            end

            // ---- the states that can be
            assert (engine <= HANDED && bus <= ERROR2);
            assert (\rules.owns == (bus != IDLE));
            // The shifter.
            assert (!busy || \dut.u_shifter.count <= \dut.div );
            assert (!busy || !(engine == REST || engine == OPCODE || engine == GAP || engine == ONES || engine == RESETS || engine == HAND));
            assert (!busy || !\dut.u_shifter.sampling || engine == DATA || engine == HANDED || (engine == CLOSE && !special));
            assert (quiet || engine == DATA || engine == HANDED || (engine == CLOSE && !special));
            assert (!(late[0] && delay == 16'd0) && !(late[1] && delay < 16'd2) && !(late[2] && delay != 16'd3));
            assert (engine != GAPPED || (\dut.timer == 14'd0 && (!busy || \dut.u_shifter.left <= \dut.gap )));
            // A byte of DATA.
            assert ((bus == BYTE) == (engine == HAND || engine == HANDED));
            assert (bus != BYTE || (waited && !\dut.running && !\dut.continues && !\dut.streamed ));
            // The end of continuous reads, and the way back.
            assert (!special || engine == OPCODE || (engine >= CLOSE && engine <= RESETS));
            assert (!special || (!\dut.running && !\dut.reading && !\dut.select ));
            assert (!special || (bus == REGS && \dut.write && waited) || (bus == WINDOW && held && !\dut.unreadable ));
            assert (!special || \dut.recovering || (bus == REGS && \dut.continues && !step[2] && engine != RESETS && engine != OPCODE));
            assert (!\dut.recovering || (special && \dut.pending && step <= (engine == RESETS ? 3'd6 : last)));
            assert (engine != ONES || (special && step <= 3'd3));
            assert (engine != OPCODE || !special || (\dut.with_reset && (step == 3'd4 || step == 3'd5)));
            assert (engine != RESETS || (\dut.recovering && \dut.with_reset && step == 3'd6 && {2'd0, \dut.timer } <= resets));
            // Reads and commands.
            assert (!(engine >= OPCODE && engine <= CLOSE) || special || (\dut.reading ^ \dut.running ));
            assert (!\dut.reading || (!\dut.select && !\dut.pending && engine >= OPCODE && engine <= CLOSE));
            assert (!(\dut.reading && engine <= DUMMY) || (bus == WINDOW && \dut.streamed && \dut.head == {1'b0, \dut.word }));
            assert (!(\dut.reading && engine <= DUMMY) || (!\dut.unreadable && \dut.empty ));
            assert (!\dut.complete || engine == DATA || engine == CLOSE);
            assert (!\dut.continues || (\dut.continuous && format[15] && (format[11] ^ format[10])));
            assert (!(\dut.continues | \dut.streamed ) || (!\dut.pending && !\dut.running && !\dut.select ));
            assert (!\dut.select || (!\dut.running && (engine == REST || engine == HAND || engine == HANDED)));
            assert (!\dut.aborting || \dut.running );
        end
endmodule

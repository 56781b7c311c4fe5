// FIFO of one clock, first word falls through: `rdata` is the oldest word, and 0 while `empty`.
// A push while full and a pop while empty do nothing; a push and a pop in one cycle are both done, also while full.
// The words stand in distributed RAM and are not cleared by a reset.
//   WIDTH      bits of a word
//   LOG_DEPTH  words = 2 ** LOG_DEPTH; 0: one word, which stays in `rdata` when it is taken
module sync_fifo #(
    parameter WIDTH     = 8,
    parameter LOG_DEPTH = 4
) (
    input  wire                 clk,
    input  wire                 rstn,
    input  wire                 clear,    // throws all words away; has precedence over push and pop
    input  wire                 push,
    input  wire [WIDTH-1:0]     wdata,
    input  wire                 pop,
    output wire [WIDTH-1:0]     rdata,
    output wire                 empty,
    output wire                 full,
    output wire [LOG_DEPTH:0]   level);   // words inside: 0 to 2 ** LOG_DEPTH
    localparam TOP = LOG_DEPTH != 0 ? LOG_DEPTH - 1 : 0;
    (* ram_style = "distributed" *) reg [WIDTH-1:0] mem [0:(1 << LOG_DEPTH)-1];
    reg [LOG_DEPTH:0] write_at;
    reg [LOG_DEPTH:0] read_at;

    assign level = write_at - read_at;
    assign empty = write_at == read_at;
    assign full  = level[LOG_DEPTH];
    wire do_pop  = pop & ~empty;
    wire do_push = push & (~full | do_pop);

    always @(posedge clk)
        if (do_push)
            mem[LOG_DEPTH != 0 ? write_at[TOP:0] : {(TOP + 1){1'b0}}] <= wdata;
    assign rdata = mem[LOG_DEPTH != 0 ? read_at[TOP:0] : {(TOP + 1){1'b0}}] & {WIDTH{LOG_DEPTH != 0 ? ~empty : 1'b1}};

    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            write_at <= {(LOG_DEPTH + 1){1'b0}};
            read_at  <= {(LOG_DEPTH + 1){1'b0}};
        end else if (clear) begin
            write_at <= {(LOG_DEPTH + 1){1'b0}};
            read_at  <= {(LOG_DEPTH + 1){1'b0}};
        end else begin
            if (do_push)
                write_at <= write_at + 1'b1;
            if (do_pop)
                read_at <= read_at + 1'b1;
        end
endmodule

// State that only one of the two designs has stays within it, and starts at 0 where nothing else is given.
module OWN_STATE (output Q, input D);
    parameter INIT = 1'bx;
    (* init = INIT === 1'b1 *) wire q;
    \$_FF_ bit (.Q(q), .D(D));
    assign Q = q;
endmodule

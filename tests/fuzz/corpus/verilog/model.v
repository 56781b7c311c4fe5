primitive p (o, i); output o; input i; table 0 : 1; 1 : 0; endtable endprimitive
macromodule m; // c
 generate for (i = 0; i < 2; i = i + 1) begin : g x u (); end endgenerate
 always @(posedge c) if (a) begin q <= 1; end else q <= 0;
 initial $readmemh("f", mem);
 function f; input a; f = a; endfunction
endmodule

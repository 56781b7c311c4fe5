module bulb_dim;
endmodule

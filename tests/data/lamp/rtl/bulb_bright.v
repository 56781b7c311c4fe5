module bulb_bright;
endmodule

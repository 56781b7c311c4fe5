module fan;
endmodule

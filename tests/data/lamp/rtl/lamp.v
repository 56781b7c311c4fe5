module lamp;
endmodule

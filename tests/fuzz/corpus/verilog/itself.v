module a; b x(); endmodule module b; a x(); endmodule

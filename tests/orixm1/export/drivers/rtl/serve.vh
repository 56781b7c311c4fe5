// Serves a program outside of the simulation, included inside a module after its master of the bus. Each line that comes
// in is one access, "OPERATION ADDRESS DATA", both hexadecimal; reads are answered with "= DATA":
//   w, r   a register, 32 bits      W, R   the far side: far_write(index, value), far_read(index), which the module has
//   i      DATA clock cycles pass   s      nothing, but it is answered
// The module has bus_write(address, data) and bus_read(address) too; reads leave their result in rd. After each access to
// a register PAUSE cycles pass, as a program needs them.
`ifndef PAUSE
`define PAUSE 4
`endif
    reg [7:0]  operation;
    reg [31:0] place, with;
    integer    items;
    initial begin
        reset;
        items = $fscanf(32'h8000_0000, " %c %h %h", operation, place, with);
        while (items == 3) begin
            rd = 32'd0;
            case (operation)
                "w": begin bus_write(place, with); cycles(`PAUSE); end
                "r": begin bus_read(place); cycles(`PAUSE); end
                "W": far_write(place, with);
                "R": far_read(place);
                "i": cycles(with);
                "s": ;
                default: $display("failed: unknown operation");
            endcase
            if (operation == "r" || operation == "R" || operation == "s") begin
                $display("= %h", rd);
                $fflush;
            end
            items = $fscanf(32'h8000_0000, " %c %h %h", operation, place, with);
        end
        $finish;
    end

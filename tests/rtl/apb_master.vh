// APB master of the testbenches, included inside a module after bench.vh.
    reg         psel = 1'b0, penable = 1'b0, pwrite = 1'b0;
    reg  [11:0] paddr = 12'd0;
    reg  [31:0] pwdata = 32'd0;
    wire [31:0] prdata;
    wire        pready, pslverr;
    reg  [31:0] rd;

    task apb_write(input [11:0] address, input [31:0] data);
        begin
            psel = 1'b1; penable = 1'b0; pwrite = 1'b1; paddr = address; pwdata = data;
            cycles(1);
            penable = 1'b1;
            #1;
            while (!pready) cycles(1);
            check(pslverr === 1'b0, "no error of an APB write");
            cycles(1);
            psel = 1'b0; penable = 1'b0; pwrite = 1'b0;
        end
    endtask

    task apb_read(input [11:0] address);
        begin
            psel = 1'b1; penable = 1'b0; pwrite = 1'b0; paddr = address;
            cycles(1);
            penable = 1'b1;
            #1;
            while (!pready) cycles(1);
            rd = prdata;
            check(pslverr === 1'b0, "no error of an APB read");
            cycles(1);
            psel = 1'b0; penable = 1'b0;
        end
    endtask

    task apb_expect(input [11:0] address, input [31:0] expected, input [8*48-1:0] what);
        begin
            apb_read(address);
            check32(rd, expected, what);
        end
    endtask

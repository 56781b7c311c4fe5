// What the processor core does: transfers on the bus, to its memories and from the debugger, at random, as its buses
// allow. Part of the body of the core's driver; the registers named r_* are the core's outputs.
`include "define.vh"

    reg         ready = 1'b0; // HREADY before the clock edge
    reg  [31:0] next_data = 32'd0;
    integer     transfers = 0;

    function [31:0] any(input integer unused);
        any = $random(seed);
    endfunction

    // A region of the address map, now and then one that is none.
    function [7:0] region(input [31:0] choice);
        case (choice[4:0])
            0, 1: region = `ORIX_REGION_GPIO;
            2: region = `ORIX_REGION_CAN;
            3: region = `ORIX_REGION_ETH;
            4: region = {`ORIX_REGION_SPIFLASH, choice[8]};
            5: region = {`ORIX_REGION_PSRAM, choice[11:8]};
            6: region = {`ORIX_REGION_DDR3, choice[12:8]};
            7: region = `ORIX_REGION_AHB1;
            8: region = `ORIX_REGION_AHB2;
            9: region = `ORIX_REGION_AHB3;
            10: region = `ORIX_REGION_AHB4;
            11: region = `ORIX_REGION_AHB5;
            12: region = `ORIX_REGION_AHB6;
            13: region = {`ORIX_REGION_EXTFLASH, choice[12:8]};
            14: region = {`ORIX_REGION_EXTSRAM, choice[12:8]};
            15: region = choice[15:8];
            16, 17, 18, 19: region = `ORIX_REGION_APBEXT;
            default: region = `ORIX_REGION_APBINT;
        endcase
    endfunction

    // Few addresses of a memory, so that what is written is read again.
    function [17:0] word(input [31:0] choice);
        word = {choice[17] ? choice[17:16] : 2'd0, choice[18] ? 10'h3ff : 10'd0, 2'd0, choice[3:0]};
    endfunction

    function [3:0] lanes(input [31:0] choice);
        lanes = choice[4] ? 4'd0 : choice[5] ? 4'b1111 : choice[3:0];
    endfunction

    // For a while most transfers go to one block: first it is set up, then it is left to work.
    integer     left = 0, setup = 0;
    reg  [31:0] block = 32'd0;

    task choose;
        begin
            left = 64 + (any(0) & 255);
            setup = 24;
            block = any(0) & 32'h0000f000;
            block[31:24] = region(any(0));
            if (any(0) % 8 == 0) block[23:0] = any(0);
            if (block[31:24] == `ORIX_REGION_APBEXT) block[23:20] = any(0);
        end
    endtask

    function [31:0] data(input [31:0] choice);
        case (choice[2:0])
            0, 1: data = any(0);
            2: data = 32'd1 << choice[7:3];
            3: data = {choice[10:8], any(0) & 29'h0000_00ff};
            4: data = 32'hffff_ffff;
            default: data = choice[9:3];
        endcase
    endfunction

    always @(tb.sample) ready = HREADY === 1'b1;

    task act;
        begin
            if (ready) begin
                if (r_HTRANS[1]) transfers = transfers + 1;
                if (left == 0) choose;
                left = left - 1;
                if (setup > 0) setup = setup - 1;
                r_HWDATA = next_data;
                next_data = data(any(0));
                r_HTRANS = setup > 0 || any(0) % 4 == 0 ? 2'b10 : 2'b00;
                r_HWRITE = setup > 0 ? any(0) % 4 != 0 : any(0) % 8 == 0;
                r_HSIZE = any(0) % 8 == 0 ? 3'd0 : any(0) % 8 == 0 ? 3'd1 : 3'd2;
                r_HPROT = any(0);
                r_HADDR = block;
                if (any(0) % 16 == 0) r_HADDR = {region(any(0)), 24'h00ffff & any(0)};
                r_HADDR[7:0] = any(0) % 8 == 0 ? any(0) & 8'hfc : any(0) & 8'h1c;
                if (r_HSIZE == 3'd0) r_HADDR[1:0] = any(0);
                if (r_HSIZE == 3'd1) r_HADDR[1:0] = any(0) & 2;
            end
            {r_ITCMEN, r_DTCMEN, r_DBGITCMEN, r_DBGDTCMEN} = any(0);
            r_ITCMADDR = word(any(0));
            r_DTCMADDR = word(any(0));
            r_DBGITCMADDR = word(any(0));
            r_DBGDTCMADDR = word(any(0));
            r_ITCMWE = lanes(any(0));
            r_DTCMWE = lanes(any(0));
            r_DBGITCMWE = lanes(any(0));
            r_DBGDTCMWE = lanes(any(0));
            r_ITCMWDATA = any(0);
            r_DTCMWDATA = any(0);
            r_DBGITCMWDATA = any(0);
            r_DBGDTCMWDATA = any(0);
            {r_SWDO, r_SWDOEN, r_TDO, r_TDOEN} = any(0);
            r_SYSRESETREQ = any(0) % 1024 == 0;
            r_LOCKUP = any(0) % 1024 == 0;
            r_HALTED = any(0) % 64 == 0;
        end
    endtask

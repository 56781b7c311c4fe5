// What every proof has, inside its module: a reset in the first cycle, and at any time after it.
    reg begun = 1'b0;
    always @(posedge clk) begun <= 1'b1;
    always @* assume (begun || !rstn);

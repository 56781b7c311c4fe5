parameter CFIFO_DEPTH = 16;

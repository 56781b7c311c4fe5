parameter CFIFO_DEPTH = 1024;

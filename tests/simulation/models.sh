#!/usr/bin/env bash
# What a run makes, in the hands of other tools.
#   models.sh generate ORIXM1 OUT EXAMPLES CONFIGURATION   first: into the folders node and all of OUT
#   models.sh netlists|compilation|time-scales|empty-modules|vhdl SHARE OUT EXAMPLES
# SHARE is the folder of the installed data, CONFIGURATION one with every block.
set -euo pipefail
case=$1 share=$2 out=$3 examples=$4
if [[ $case == generate ]]; then
    mkdir -p "$out"
    for name in node all; do
        config=$examples/sensor-node.ipc
        [[ $name == node ]] || config=$5
        # In VHDL, since the Verilog netlist and model come along.
        sed -e '/^LANG=/d' -e "s/^\[Config\]\$/&\nLANG=1/" "$config" > "$out/$name.ipc"
        "$2" generate "$out/$name.ipc" --out "$out/$name" > "$out/$name.log" 2>&1 || { cat "$out/$name.log"; exit 1; }
        cp "$out/$name/temp/tv_orix_m1/tarvo_orix_m1.vg" "$out/$name/tarvo_orix_m1.v"
    done
    exit
fi
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"
ln -s "$out/node" "$out/all" .
fail() { echo "FAILED: $*"; exit 1; }

silent() { # COMMAND…: succeeds and says nothing
    local said
    said=$("$@" 2>&1) || fail "$*: $said"
    [[ -z $said ]] || fail "$*: $said"
}
bfm=$share/tarvo_orix_m1/simulation/cortex_m1_core_bfm.v
library=$share/primitives/primitives.v

case $case in
netlists) # with the installed library, every tool reads them
    netlist=node/tarvo_orix_m1.v
    silent iverilog -g2005 -Wall -tnull "$netlist" "$library" -s Tarvo_ORIX_M1_Top
    silent verilator --lint-only "$netlist" "$library"
    silent verilator --lint-only "$netlist" -v "$library"
    silent yosys -q -p "read_verilog -lib $library; read_verilog $netlist; hierarchy -check -top Tarvo_ORIX_M1_Top; check -assert"
    for standard in 93 08; do
        rm -rf work && mkdir work
        silent ghdl -a --std=$standard --workdir=work "${library}hd" all/tarvo_orix_m1.vhd
        said=$(ghdl -e --std=$standard --workdir=work -o work/top tarvo_orix_m1_top 2>&1) || fail "GHDL: $said"
        # Only the black boxes are missing.
        ! grep -o 'component "[^"]*" is not bound' <<< "$said" | grep -i '"tv_' || fail "GHDL: $said"
    done
    ;;
compilation) # models alone, and two in one compilation
    silent verilator --lint-only all/tarvo_orix_m1.vo
    # Both have the same top.
    for name in node all; do
        silent iverilog -g2005 -Wall -tnull $name/tarvo_orix_m1.vo
        sed 's/^module Tarvo_ORIX_M1_Top(/module second_top(/' $name/tarvo_orix_m1.vo > second-$name.vo
    done
    echo 'module both; Tarvo_ORIX_M1_Top first(); second_top second(); endmodule' > both.v
    silent iverilog -g2005 -tnull -s both node/tarvo_orix_m1.vo second-all.vo both.v
    silent iverilog -g2005 -tnull -s both second-all.vo node/tarvo_orix_m1.vo both.v
    silent verilator --lint-only -Wno-PINMISSING --top-module both node/tarvo_orix_m1.vo second-node.vo both.v
    # With the library and the real core beside them, nothing is there twice.
    silent iverilog -g2005 -tnull -s both -DHAVE_CortexM1Core node/tarvo_orix_m1.vo second-all.vo "$library" "$bfm" both.v
    # Two netlists in one design.
    sed 's/^module Tarvo_ORIX_M1_Top(/module second_top(/' all/tarvo_orix_m1.v > second.v
    silent iverilog -g2005 -tnull -s both node/tarvo_orix_m1.v second.v "$library" both.v
    ;;
time-scales) # none of the board changes what the model does, wherever the board stands
    model=node/tarvo_orix_m1.vo
    grep -q '^`timescale 1ns / 1ps$' "$model" && grep -q '^`timescale 1ns / 1ps$' "$bfm" || fail "no time scale"
    sed '/^`timescale/d' "$examples/sensor-node-tb.v" > none.v
    for scale in "1ns / 1ps" "1ps / 1ps" "1us / 1ns"; do
        { echo "\`timescale $scale"; cat none.v; } > "$(tr -d ' /' <<< "$scale").v"
    done
    play() { # FILES [DEFINE]
        # shellcheck disable=SC2086
        iverilog -g2005 -DHAVE_CortexM1Core "-D${2:-X}" -s sensor_node_tb -o sim $1
        result=$(timeout 250 vvp -n sim "+script=$examples/sensor-node-tb.play" +finish) || fail "$1: no end"
        [[ $result == PASS ]] || fail "$1: $result"
    }
    play "none.v $model $bfm"
    play "$model $bfm none.v"
    play "$bfm 1ps1ps.v $model"
    play "1us1ns.v $bfm $model"
    play "$model $bfm 1us1ns.v" TARVO_NO_TIMESCALE
    # In the order of the guide nobody complains, whether or not the board has a time scale.
    for board in none 1ns1ps; do
        said=$(iverilog -g2005 -Wall -DHAVE_CortexM1Core -s sensor_node_tb -o sim "$model" "$bfm" $board.v 2>&1)
        ! grep -v 'inherit' <<< "$said" | grep . || fail "$said"
    done
    said=$(verilator --lint-only --timing -Wno-fatal -DHAVE_CortexM1Core --top-module sensor_node_tb "$model" "$bfm" none.v 2>&1)
    ! grep TIMESCALE <<< "$said" || fail "$said"
    ;;
empty-modules) # each access to one ends, with an error and a message
    cat > tb.v << 'V'
`timescale 1ns / 1ps
module tb;
    reg clk = 1'b0, on = 1'b0;
    always #5 clk = ~clk;
    initial #100 on = 1'b1;
    tri1 srst;
    initial if ($test$plusargs("stop")) #1000 $finish;
    Tarvo_ORIX_M1_Top dut (.HCLK(clk), .hwRstn(on), .JTAG_15(srst));
endmodule
V
    printf 'error 0x%s\n' 41000000 41000004 42000010 70000000 A0000000 5000A000 > script
    echo 'read 0x40000004 0' >> script
    iverilog -g2005 -DHAVE_CortexM1Core -s tb -o sim all/tarvo_orix_m1.vo "$bfm" tb.v
    result=$(timeout 250 vvp -n sim +script=script +finish) || fail "no end: $result"
    [[ $(tail -n 1 <<< "$result") == PASS ]] || fail "$result"
    for said in "u_can: no model of can_core is there, so that an access gets an error response (address 41000004)" \
        "no model of mac is" "no model of PSRAM_Memory_Interface_Top is" "no model of DDR3_Controller_138K is" \
        "u_trng: no model of trng_core is there, so that an access gets an error response (address 000)"; do
        [[ $result == *"$said"* ]] || fail "\"$said\" is missing in: $result"
    done
    [[ $(grep -c "no model" <<< "$result") -eq 6 ]] || fail "one message for each access: $result"
    # The real module takes the place of the empty one.
    cat > can.v << 'V'
module can_core #(parameter CFIFO_DEPTH = 0) (
    input HCLK, HRESETn, HSEL, input [31:0] HADDR, input [1:0] HTRANS, input [2:0] HSIZE, HBURST, input HWRITE,
    input [31:0] HWDATA, input HREADY, output [31:0] HRDATA, output HREADYOUT, HRESP, irq, input can_rx, output can_tx);
    assign HRDATA = 32'hCA9CA900 + CFIFO_DEPTH;
    assign {HREADYOUT, HRESP, irq, can_tx} = 4'b1000;
endmodule
V
    echo 'read 0x41000000 0xCA9CA000 0xFFFFF000' > script
    iverilog -g2005 -DHAVE_CortexM1Core -DHAVE_can_core -s tb -o sim all/tarvo_orix_m1.vo can.v "$bfm" tb.v
    [[ $(timeout 250 vvp -n sim +script=script +finish) == PASS ]] || fail "the real module is not there"
    # Without a processor there is no access, and that is said.
    iverilog -g2005 -s tb -o sim all/tarvo_orix_m1.vo tb.v
    timeout 250 vvp -n sim +stop > said
    grep -q "u_core: no model of CortexM1Core is there, so that its outputs are open" said || fail "$(head said)"
    ;;
vhdl) # two models in one design, and a block that takes the place of an empty one
    cat > core.vhd << 'V'
-- Reads one word of the CAN block and says what came.
library ieee;
use ieee.std_logic_1164.all;

architecture script of CortexM1Core is
begin
    ITCMEN <= '0';
    DTCMEN <= '0';
    DBGITCMEN <= '0';
    DBGDTCMEN <= '0';
    SYSRESETREQ <= '0';
    HWRITE <= '0';
    HSIZE <= "010";
    HPROT <= "0011";
    HBURST <= "000";
    process
        variable failed : boolean := false;
    begin
        HTRANS <= "00";
        HADDR <= X"41000000";
        wait until SYSRESETn = '1';
        wait until rising_edge(HCLK);
        HTRANS <= "10";
        wait until rising_edge(HCLK) and HREADY = '1';
        HTRANS <= "00";
        for i in 1 to 100 loop
            wait until rising_edge(HCLK);
            failed := failed or HRESP = '1';
            exit when HREADY = '1';
        end loop;
        assert HREADY = '1' report "READ hangs" severity note;
        assert not failed report "READ error" severity note;
        assert failed or HRDATA /= X"CA9CA900" report "READ data" severity note;
        wait;
    end process;
end architecture;
V
    cat > can.vhd << 'V'
library ieee;
use ieee.std_logic_1164.all;

architecture mine of can_core is
begin
    HREADYOUT <= '1';
    HRESP <= '0';
    HRDATA <= X"CA9CA900";
    irq <= '0';
    can_tx <= '1';
end architecture;
V
    cat > tb.vhd << 'V'
library ieee;
use ieee.std_logic_1164.all;
library every, node;

entity tb is
end entity;

architecture bench of tb is
    component Tarvo_ORIX_M1_Top is
        port (HCLK, hwRstn : in std_logic; JTAG_15 : inout std_logic);
    end component;
    signal clk, reset : std_logic := '0';
    signal srst1, srst2 : std_logic;
begin
    process
    begin
        for i in 1 to 200 loop
            clk <= '1', '0' after 5 ns;
            wait for 10 ns;
        end loop;
        wait;
    end process;
    reset <= '1' after 95 ns;
    srst1 <= 'H';
    srst2 <= 'H';
    @INSTANCES@
end architecture;
V
    instance() { # LABEL LIBRARY TEMPLATE SIGNAL: with all inputs at rest
        sed -n '/port map/,/);/p' "$3" | sed -E \
            -e "s/=> HCLK_i/=> clk/; s/=> hwRstn_i/=> reset/; s/=> JTAG_15_io/=> $4/" \
            -e "s/=> [A-Za-z0-9_\\]+_(o|io)(,?) +--/=> open\2 --/" \
            -e "s/=> [A-Za-z0-9_\\]+_i(,?) +-- in std_logic\$/=> '0'\1/" \
            -e "s/=> [A-Za-z0-9_\\]+_i(,?) +-- in std_logic_vector.*/=> (others => '0')\1/" \
            -e "1i $1 : entity $2.Tarvo_ORIX_M1_Top"
    }
    { instance first node node/tarvo_orix_m1_tmp.vhd srst1; instance second every all/tarvo_orix_m1_tmp.vhd srst2; } > instances
    sed -i -e '/@INSTANCES@/{r instances' -e 'd}' -e '/component/,/end component/d' tb.vhd
    simulate() { # FILE…: of the library `every`, behind the model
        rm -rf work && mkdir work
        silent ghdl -a --std=08 --workdir=work --work=node node/tarvo_orix_m1.vho
        silent ghdl -a --std=08 --workdir=work --work=every all/tarvo_orix_m1.vho "$@"
        silent ghdl -a --std=08 --workdir=work -Pwork tb.vhd
        ghdl -r --std=08 --workdir=work -Pwork tb > said 2>&1 || fail "$(cat said)"
    }
    simulate core.vhd
    grep -q 'no model of can_core is there, so that an access gets an error response' said || fail "$(cat said)"
    grep -q 'READ error' said || fail "$(cat said)"
    # The first model has no processor.
    [[ $(grep -c 'no model of CortexM1Core is there, so that its outputs are open' said) -eq 1 ]] || fail "$(cat said)"
    simulate core.vhd can.vhd
    grep -q 'READ data' said || fail "$(cat said)"
    ! grep -q 'no model of can_core' said || fail "$(cat said)"
    ;;
*) fail "no case $case" ;;
esac
echo PASS

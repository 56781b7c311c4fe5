#!/usr/bin/env bash
# A project with two subsystems in version control, and what a colleague does with it: clone, change an option, see what is
# stale and what that changes, generate and export anew, simulate, commit, merge. What git is told is what the user guide says.
#   colleague.sh ORIXM1 ROOT
#   ROOT: the checkout
set -euo pipefail
orixm1=$1 root=$2
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"
fail() { echo "FAILED: $*"; exit 1; }

mkdir bin home
ln -s "$orixm1" bin/orixm1
export PATH=$tmp/bin:$PATH HOME=$tmp/home XDG_CACHE_HOME=$tmp/cache GIT_CONFIG_NOSYSTEM=1 GIT_CONFIG_GLOBAL=$tmp/home/.gitconfig
git config --global user.name Colleague
git config --global user.email colleague@example.org
git config --global init.defaultBranch main
git config --global advice.detachedHead false

# The block of the guide behind the line that begins with a name in quotes.
guide() { # NAME
    awk -v name="\`$1\`" 'index($0, name) == 1 { armed = 1 } armed && /^```/ { if (inside) exit; inside = 1; next } inside' \
        "$root/docs/user-guide.md" | grep . || fail "the guide has nothing for $1"
}
# Both outputs of a command and its status, compared with what is expected; paths of the clone are left out.
tells() { # STATUS EXPECTED COMMAND…
    local status=0 expected=$1$'\n'$2 said
    shift 2
    said=$("$@" 2>&1) || status=$?
    said=$status$'\n'${said//"$PWD/"/}
    [[ ${said%$'\n'} == "${expected%$'\n'}" ]] || fail "$* tells:
$said
instead of:
$expected"
}
says() { # TEXT COMMAND…: among other things
    local text=$1 said
    shift
    said=$("$@" 2>&1) || fail "$*: $said"
    [[ $said == *"$text"* ]] || fail "$* does not say \"$text\": $said"
}
changed() { git status --porcelain --untracked-files=all; }

a=subsystems/console/tarvo_orix_m1.ipc b=subsystems/sensor/tarvo_orix_m1.ipc
formats=(rtl filelist testbench lint sdc cmake fusesoc header)
device="target_device=TV2KR-18C-QFN88P-C8/I7
type=tarvo.tarvo_orix_m1
version=1.0

[Config]
# what this subsystem is for
Enable%20Debug=false
OS%20Extension=false
Small%20Multiplier=true"

# Somebody's project.
mkdir -p project/subsystems/{console,sensor}
cd project
git init -q
guide .gitattributes >.gitattributes
guide .gitignore >.gitignore
echo "$device" >$a
printf '%s\nNumber%%20of%%20Interrupts=8\n' "$device" >$b
for ipc in $a $b; do
    orixm1 generate $ipc >../out 2>&1 || fail "$(cat ../out)"
    orixm1 export $ipc "${formats[@]}" --out "${ipc%/*}/export" >../out 2>&1 || fail "$(cat ../out)"
done
git add .
git commit -q -m "Two subsystems"
[[ -z $(git status --porcelain --ignored | grep -v '\.log$' || true) ]] || fail "left: $(git status --porcelain --ignored)"

# A colleague has everything, whatever git does to line ends elsewhere.
cd "$tmp"
git clone -q -c core.autocrlf=true project clone
cd clone
git config diff.orixm1.textconv "orixm1 show --textconv"
for ipc in $a $b; do
    tells 0 "${ipc%/*}: fresh" orixm1 generate $ipc --check
    tells 0 "" orixm1 export $ipc --out "${ipc%/*}/export" --check
done

# One option is another.
says "Enable GPIO: false (default) -> true" orixm1 set $a "Enable GPIO=true"
grep -q "# what this subsystem is for" $a || fail "the comment is gone"
[[ $(changed) == " M $a" ]] || fail "changed: $(changed)"
temp=subsystems/console/temp/tv_orix_m1
tells 1 "subsystems/console: stale
changed: option \"Enable GPIO\": false, now true
$temp/ahb_option_defs.v: stale
$temp/tarvo_orix_m1.vg: stale
$temp/tarvo_orix_m1_tmp.v: stale
subsystems/console/tarvo_orix_m1.v: stale
subsystems/console/tarvo_orix_m1_tmp.v: stale
subsystems/console/tarvo_orix_m1.vo: stale" orixm1 generate $a --check
tells 1 "subsystems/console/export/tarvo_orix_m1.h: stale
subsystems/console/export/tarvo_orix_m1.sdc: stale
subsystems/console/export/rtl/ahb_option_defs.v: stale
subsystems/console/export/sim/tarvo_orix_m1_tb.v: stale
subsystems/console/export/sim/tarvo_orix_m1_tb.vhd: stale
subsystems/console/export/sim/tarvo_orix_m1_tb.play: stale
orixm1: --update in place of --check writes these formats anew." orixm1 export $a --out subsystems/console/export --check
tells 0 "subsystems/sensor: fresh" orixm1 generate $b --check
tells 0 "" orixm1 export $b --out subsystems/sensor/export --check

# What that changes, as git tells it and as a comparison of two versions.
said=$(git diff -- '*.ipc')
for line in "-  Enable GPIO = false (default)" "+  Enable GPIO = true" "+  GPIO: base 0x40000000" "+  GPIOIN: direction input"; do
    [[ $said == *$'\n'"$line"* ]] || fail "git diff has no line \"$line\": $said"
done
said=$(git difftool -y -x "orixm1 diff" HEAD -- '*.ipc' || true)
[[ $said == *"~ Enable GPIO: false (default) -> true"*"Address map"*"+ GPIO"* ]] || fail "git difftool: $said"

# Made anew: the one, and not the other.
for ipc in $a $b; do
    orixm1 generate $ipc >>../generated 2>&1 || fail "$(cat ../generated)"
    orixm1 export $ipc --out "${ipc%/*}/export" --update >>../exported 2>&1 || fail "$(cat ../exported)"
done
[[ $(grep -c "Everything is fresh, so nothing was done" ../generated) == 1 ]] || fail "$(cat ../generated)"
[[ $(grep -c "Everything is fresh, so nothing was written" ../exported) == 1 ]] || fail "$(cat ../exported)"
grep -q "^orixm1: 6 of .* files were written; the others were fresh.$" ../exported || fail "$(cat ../exported)"
expected=" M subsystems/console/export/orixm1-export.json
 M subsystems/console/export/rtl/ahb_option_defs.v
 M subsystems/console/export/sim/tarvo_orix_m1_tb.play
 M subsystems/console/export/sim/tarvo_orix_m1_tb.v
 M subsystems/console/export/sim/tarvo_orix_m1_tb.vhd
 M subsystems/console/export/tarvo_orix_m1.h
 M subsystems/console/export/tarvo_orix_m1.sdc
 M subsystems/console/tarvo_orix_m1.ipc
 M subsystems/console/tarvo_orix_m1.v
 M subsystems/console/tarvo_orix_m1.vo
 M subsystems/console/tarvo_orix_m1_tmp.v
 M $temp/ahb_option_defs.v
 M $temp/manifest.json
 M $temp/tarvo_orix_m1.vg
 M $temp/tarvo_orix_m1_tmp.v"
[[ $(changed) == "$expected" ]] || fail "changed: $(changed)"

# Simulated, by the command and by another flow with the list of files.
cat >../gpio.play <<'END'
write 0x40000008 0xffff
write 0x40000004 0x1234
read 0x40000004 0x1234
END
says "Passed after" orixm1 simulate $a --script ../gpio.play
(cd subsystems/console/export
    iverilog -g2005-sv -s tarvo_orix_m1_tb -o "$tmp/simulation" -c tarvo_orix_m1_simulation.f
    says PASS vvp -n "$tmp/simulation" +script=sim/tarvo_orix_m1_tb.play)
[[ $(changed) == "$expected" ]] || fail "the simulation has changed: $(changed)"

# Nothing of this clone or of this moment is in what is committed.
git commit -q -a -m "Lamps"
if git grep -q -e "$tmp" -e "$(id -un)@" HEAD; then fail "$(git grep -l "$tmp" HEAD)"; fi
cd "$tmp"
mkdir -p "another place"
git clone -q clone "another place/clone two"
cd "another place/clone two"
XDG_CACHE_HOME=$tmp/nothing orixm1 generate $a --force >"$tmp/out" 2>&1 || fail "$(cat "$tmp/out")"
rm -r subsystems/*/export/rtl
for ipc in $a $b; do
    orixm1 generate $ipc >"$tmp/out" 2>&1 || fail "$(cat "$tmp/out")"
    orixm1 export $ipc --out "${ipc%/*}/export" --update >"$tmp/out" 2>&1 || fail "$(cat "$tmp/out")"
done
[[ -z $(changed) ]] || fail "another clone gives other bytes: $(changed)"

# Two branches meet in the same subsystem. The configuration is merged, what is made of it is made anew.
git checkout -q -b other HEAD~1
orixm1 set $a "Small Multiplier=false" >/dev/null 2>&1
orixm1 generate $a --no-synth >"$tmp/out" 2>&1 || fail "$(cat "$tmp/out")"
orixm1 export $a --out subsystems/console/export --update >"$tmp/out" 2>&1 || fail "$(cat "$tmp/out")"
git commit -q -a -m "A faster multiplier"
git checkout -q main
if git merge -q other >"$tmp/out" 2>&1; then fail "nothing to decide: $(cat "$tmp/out")"; fi
[[ -z $(git ls-files -u -- '*.ipc') ]] || fail "the configuration is not merged: $(cat $a)"
eval "$(guide "git merge")"
tells 1 "subsystems/console: stale
changed: option \"Small Multiplier\": true, now false
$temp/cm1_option_defs.v: stale
$temp/tarvo_orix_m1.vg: stale
$temp/tarvo_orix_m1_tmp.v: stale
subsystems/console/tarvo_orix_m1.v: stale
subsystems/console/tarvo_orix_m1_tmp.v: stale
subsystems/console/tarvo_orix_m1.vo: stale" orixm1 generate $a --check
orixm1 generate $a --no-synth >"$tmp/out" 2>&1 || fail "$(cat "$tmp/out")"
orixm1 export $a --out subsystems/console/export --update >"$tmp/out" 2>&1 || fail "$(cat "$tmp/out")"
tells 0 "" orixm1 export $a --out subsystems/console/export --check
[[ -z $(find . -name '*.edited*') ]] || fail "taken for edits: $(find . -name '*.edited*')"
git add . && git commit -q -m "Both"
echo "PASSED"

# Sourced by the scripts beside it, which set `here`.
#   configure ORIXM1 CASE FOLDER: generates a case's configuration into a folder. It sets `rtl` (the folder of the RTL),
#   `sources` (what of it the device compiles), `generated_dir` and `generated` (what is compiled of the generated files).
configure() {
    local orixm1=$1 case_dir=$here/cases/$2 folder=$3
    [[ -d $case_dir ]] || { echo "no such case: $2"; return 1; }
    # The programs of the testbenches stand in configurations as @TESTS@/program.
    sed "s|@TESTS@|$here|" "$case_dir/config.ipc" > "$folder/config.ipc" || return 1
    "$orixm1" generate --no-synth "$folder/config.ipc" > "$folder/log" 2>&1 || { cat "$folder/log"; return 1; }
    generated_dir=$folder/temp/tv_orix_m1
    mapfile -t generated < <("$orixm1" sources "$folder/config.ipc" | grep "^$generated_dir/")
    mapfile -t sources < <("$orixm1" sources "$folder/config.ipc" | grep -v "^$generated_dir/")
    ((${#generated[@]} == 6 && ${#sources[@]} > 20)) || { echo "few sources"; return 1; }
    rtl=$(dirname "${sources[0]}")
}

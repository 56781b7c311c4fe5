#!/usr/bin/env bash
# Changes one small thing of the rules at a time and tells which change no test notices. See usage() below.
set -euo pipefail

# In braces, so that all of it is read before anything runs: it may be edited during a long run.
{
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
export LC_ALL=C

usage() {
    cat <<'USAGE'
tests/mutate.sh [OPTION …]: changes one comparison, constant, name, table row or statement at a time in a copy of the
sources, builds the tests that state the rules of its folder and runs them; says which change none of them noticed.

  --list             only list the changes
  --only PLACE       changes in this file (PATH or end of it), line (PATH:LINE) or folder; may be repeated
  --count N          a random sample of N changes
  --seed N           another sample (0)
  --jobs N           copies to work in at once (1)
  --limit N          the least time limit of a run of tests, in seconds (20)
  --folder FOLDER    work in this folder and keep it; the next run has less to build
  --root FOLDER      the checkout whose sources are changed (this one)
  --help             this text

A change that does not compile does not count; one that ends a test by its time limit is noticed. Changes that no test
can notice stand in tests/mutate/accepted.txt with the reason. The exit status is 0 if nine of ten changes or more were
noticed, 1 if fewer, 2 if the run says nothing. It takes some seconds a change.
USAGE
}

die() {
    echo "mutate.sh: $*" >&2
    exit 2
}

# The folders of src/orixm1 whose rules are changed.
folders="config rules generate dialogs"

# The folders of tests/orixm1 that state the rules of such a folder, the ones that tell soonest first.
tests_of() {
    case $1 in
    config) echo config rules generate dialogs ui diagram ;;
    rules) echo rules generate dialogs ;;
    generate) echo generate rules ;;
    dialogs) echo dialogs ui ;;
    esac
}

list_only=
places=()
count=
seed=0
jobs=1
limit=20
folder=
root=$(dirname "$here")
arguments=("$@")
number() {
    [[ $2 =~ ^[0-9]{1,9}$ ]] || die "$1 needs a number, not \"$2\""
}
while (($# > 0)); do
    case $1 in
    --list) list_only=yes ;;
    --help) usage && exit 0 ;;
    --only | --count | --seed | --jobs | --limit | --folder | --root)
        (($# > 1)) || die "$1 needs a value"
        case $1 in
        --only) places+=("$2") ;;
        --count) number "$1" "$2" && count=$2 ;;
        --seed) number "$1" "$2" && seed=$2 ;;
        --jobs) number "$1" "$2" && jobs=$((10#$2)) ;;
        --limit) number "$1" "$2" && limit=$((10#$2)) ;;
        --folder) folder=$(realpath -m -- "$2") ;;
        --root) root=$(realpath -e -- "$2") || die "there is no folder \"$2\"" ;;
        esac
        shift
        ;;
    *) die "unknown argument \"$1\"; --help tells the known ones" ;;
    esac
    shift
done
((jobs > 0)) || die "--jobs needs a number above 0"
[[ -d $root/src/orixm1 ]] || die "\"$root\" is no checkout: it has no src/orixm1"
case $folder/ in
"$root"/build/*) ;;
"$root"/*) die "--folder must lie outside of the checkout or below its build folder" ;;
esac

# ---- The list: records as in mutate/mutations.awk.

rs=$'\036'

all_mutations() {
    local name path
    for name in $folders; do
        [[ -d $root/src/orixm1/$name ]] || continue
        while IFS= read -r path; do
            awk -v path="${path#"$root"/}" -f "$here/mutate/mutations.awk" "$path"
        done < <(find "$root/src/orixm1/$name" -type f \( -name '*.cpp' -o -name '*.h' -o -name '*.ui' \) | sort)
    done
}

# Those of the chosen places.
chosen() {
    if ((${#places[@]} == 0)); then
        cat
        return
    fi
    awk -F"$rs" '
        FNR == NR {
            place[++places] = $0
            line[places] = ""
            if (match($0, /:[0-9]+$/)) {
                place[places] = substr($0, 1, RSTART - 1)
                line[places] = substr($0, RSTART + 1) + 0
            }
            sub(/\/$/, "", place[places])
            next
        }
        {
            for (i = 1; i <= places; ++i)
                if (index("/" $1 "/", "/" place[i] "/") > 0 && (line[i] == "" || (line[i] >= $2 && line[i] <= $3))) {
                    print
                    next
                }
        }' <(printf '%s\n' "${places[@]}") -
}

# A sample that depends on the texts of the changes and the seed alone: sorted by a hash of both.
sampled() {
    if [[ -z $count ]]; then
        cat
        return
    fi
    awk -F"$rs" -v seed="$seed" '
        BEGIN { for (i = 1; i < 256; ++i) code[sprintf("%c", i)] = i }
        {
            hash = 7919 * (seed + 1) % 1000003
            s = $4 $6
            for (i = 1; i <= length(s); ++i)
                hash = (hash * 263 + code[substr(s, i, 1)]) % 1000003
            printf "%d\t%d\t%s\n", (hash * 7919) % 1000003, NR, $0
        }' | sort -t$'\t' -k1,1n -k2,2n | awk -v count="$((10#$count))" 'NR <= count' | sort -t$'\t' -k2,2n | cut -f3-
}

# Leaves out what accepted.txt takes for impossible to notice; says how many that were in file $1. Of the whole list,
# names what is accepted and no longer there.
unaccepted() {
    local accepted=$root/tests/mutate/accepted.txt
    [[ -f $accepted ]] || accepted=/dev/null
    awk -F"$rs" -v told="$1" -v name="$accepted" -v whole="$((${#places[@]} == 0))" '
        FILENAME == name && name != "/dev/null" {
            if ($0 ~ /^#/)
                reason = 1
            else if ($0 ~ /^[ \t]*$/)
                reason = 0
            else if (!reason) {
                print "mutate.sh: " name ":" FNR ": no reason stands above this change" > "/dev/stderr"
                failed = 1
                exit 2
            } else
                known[$0] = FNR
            next
        }
        $6 in known { ++left; seen[$6] = 1; next }
        { print }
        END {
            if (failed)
                exit 2
            print left + 0 > told
            for (change in known)
                if (whole && !(change in seen))
                    print "mutate.sh: " name ":" known[change] ": there is no such change any more" > "/dev/stderr"
        }' "$accepted" -
}

# ---- Outside: gives the work a folder and a mark, and leaves neither files nor processes behind, whatever ends it.

marked() {
    grep -lszxF "$1" /proc/[0-9]*/environ 2>/dev/null | sed 's,[^0-9],,g' || true
}

end_marked() {
    local pid pids again
    for again in 1 2 3 4 5 6 7 8 9 10; do
        pids=$(marked "$1")
        [[ -n $pids ]] || break
        for pid in $pids; do
            kill -KILL "$pid" 2>/dev/null || true
        done
        sleep 0.05
    done
}

if [[ -z ${TARVO_MUTATE_MARK-} && -z $list_only ]]; then
    kept=$folder
    if [[ -z $folder ]]; then
        folder=$(mktemp -d "${TMPDIR:-/tmp}/tarvo-mutate.XXXXXX")
    else
        mkdir -p "$folder"
        exec 8>"$folder/lock"
        flock -n 8 || die "another run works in \"$folder\""
    fi
    mark=$folder/$$
    leave() {
        trap '' INT TERM HUP
        end_marked "TARVO_MUTATE_MARK=$mark"
        [[ -n $kept ]] || rm -rf "$folder"
    }
    trap leave EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
    trap 'exit 129' HUP
    TARVO_MUTATE_MARK=$mark TARVO_MUTATE_FOLDER=$folder "${BASH_SOURCE[0]}" ${arguments[@]+"${arguments[@]}"} 8>&- &
    status=0
    wait $! || status=$?
    exit "$status"
fi

if [[ -n $list_only ]]; then
    scratch=$(mktemp)
    trap 'rm -f "$scratch"' EXIT
    all_mutations | chosen | unaccepted "$scratch" | sampled | awk -F"$rs" '{ print $1 ":" $2 ": " $6 }'
    exit 0
fi

# ---- Inside.

folder=$TARVO_MUTATE_FOLDER
accepted_count=$folder/accepted
all_mutations | chosen | unaccepted "$accepted_count" | sampled >"$folder/mutations"
total=$(wc -l <"$folder/mutations")
((total > 0)) || die "there is no such change"
((jobs <= total)) || jobs=$total

# The sources as they are now, in $1. Files that are the same stay untouched, so that little is built.
copy_sources() {
    local path
    mkdir -p "$1"
    if [[ -f $1/CMakeLists.txt ]]; then
        (cd "$1" && find . -type f -print) | while IFS= read -r path; do
            [[ -e $root/$path ]] || rm -f "$1/$path"
        done
        (cd "$root" && find . \( -path ./build -o -path ./.git \) -prune -o -type f -print) | while IFS= read -r path; do
            cmp -s "$root/$path" "$1/$path" || { mkdir -p "$(dirname "$1/$path")" && cp "$root/$path" "$1/$path"; }
        done
    else
        tar -C "$root" --exclude=./build --exclude=./.git -cf - . | tar -C "$1" -xf -
    fi
}

# Fast to build; what reads past an end fails as it does under the sanitizers.
configure() {
    local options=() linker
    for linker in mold ld.gold; do
        command -v "$linker" >/dev/null || continue
        linker=-fuse-ld=${linker#ld.}
        options=("-DCMAKE_EXE_LINKER_FLAGS=$linker" "-DCMAKE_SHARED_LINKER_FLAGS=$linker"
            "-DCMAKE_MODULE_LINKER_FLAGS=$linker")
        break
    done
    if command -v ccache >/dev/null; then
        options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    cmake -S "$tree" -B "$build" -G Ninja --no-warn-unused-cli -DCMAKE_BUILD_TYPE=Release \
        "-DCMAKE_CXX_FLAGS_RELEASE=-O0 -DNDEBUG -w -DQT_FORCE_ASSERTS -D_GLIBCXX_ASSERTIONS" \
        -DTARVO_BENCH=OFF ${options[@]+"${options[@]}"} >"$log" 2>&1
}

# The rest works in one copy: $tree, $build, $log.
in_copy() {
    tree=$folder/$1/tree
    build=$folder/$1/build
    log=$folder/$1/log
    limits=$folder/$1/limits
    mkdir -p "$tree" "$limits"
    export CCACHE_BASEDIR=$folder/$1 CCACHE_NOHASHDIR=1
}

build_tests() {
    ninja -C "$build" -j "$threads" "tests/orixm1/$1/all" >"$log" 2>&1
}

# Runs the tests of a folder with a limit in seconds. What they start and leave in temporary files goes with them.
run_tests() {
    local status=0 own=$tree/../run
    rm -rf "$own"
    mkdir -p "$own/tmp" "$own/home"
    (
        ulimit -v 8000000 -f 2000000 -c 0
        TMPDIR=$own/tmp HOME=$own/home TARVO_MUTATE_RUN=$tree \
            timeout -k 5 "$2" ctest --test-dir "$build/tests/orixm1/$1" --no-tests=error --stop-on-failure
    ) >"$log" 2>&1 || status=$?
    end_marked "TARVO_MUTATE_RUN=$tree"
    rm -rf "$own"
    return "$status"
}

# Which of a folder's test folders there are.
stages() {
    local stage
    for stage in $(tests_of "$1"); do
        [[ ! -f $tree/tests/orixm1/$stage/CMakeLists.txt ]] || echo "$stage"
    done
}

folder_of() {
    local inside=${1#src/orixm1/}
    echo "${inside%%/*}"
}

# Without a change everything passes; how long that takes is where the time limits come from.
prepare() {
    local stage start needed
    in_copy "$1"
    copy_sources "$tree"
    configure || { cat "$log" >&2; return 1; }
    needed=$(cut -d"$rs" -f1 "$folder/mutations" | sort -u | while IFS= read -r path; do
        stages "$(folder_of "$path")"
    done | sort -u)
    for stage in $needed; do
        build_tests "$stage" || { tail -n 40 "$log" >&2; return 1; }
        start=$SECONDS
        run_tests "$stage" 1200 || { tail -n 40 "$log" >&2; return 1; }
        echo $((4 * (SECONDS - start) + limit)) >"$limits/$stage"
    done
}

# Prints what becomes of one change: noticed, unnoticed, or invalid.
verdict() {
    local stage any=
    for stage in $(stages "$1"); do
        any=yes
        if ! build_tests "$stage"; then
            echo invalid
            return
        fi
        if ! run_tests "$stage" "$(<"$limits/$stage")"; then
            echo noticed
            return
        fi
    done
    [[ -n $any ]] || echo "mutate.sh: src/orixm1/$1 has no tests" >&2
    echo unnoticed
}

# The changes of file $2 in copy $1. What the checkout becomes meanwhile does not matter.
work() {
    local path first last kind new shown result start original=$folder/$1/original
    in_copy "$1"
    while IFS="$rs" read -r path first last kind new shown; do
        start=$SECONDS
        cp "$tree/$path" "$original"
        NEW=$new awk -v first="$first" -v last="$last" '
            NR == first {
                new = ENVIRON["NEW"]
                gsub(/\037/, "\n", new)
                if (new != "")
                    print new
            }
            NR < first || NR > last' "$original" >"$tree/$path"
        result=$(verdict "$(folder_of "$path")")
        cp "$original" "$tree/$path"
        printf '%s\n' "$result$rs$(folder_of "$path")$rs$path:$first: $shown" >>"$folder/results"
        printf '%-9s %3d s  %s:%s: %s\n' "$result" $((SECONDS - start)) "$path" "$first" "$shown"
    done <"$2"
}

threads=$(nproc)
threads=$((threads > jobs ? threads / jobs : 1))
: >"$folder/results"
echo "$total changes, $(<"$accepted_count") more accepted; building the tests without a change"
for ((job = 1; job <= jobs; ++job)); do
    prepare "$job" || die "without a change the tests do not pass"
    # Neighbours together, so that little is built twice.
    awk -v job="$job" -v jobs="$jobs" -v total="$total" 'int((NR - 1) * jobs / total) == job - 1' \
        "$folder/mutations" >"$folder/$job/mutations"
done
workers=()
for ((job = 1; job <= jobs; ++job)); do
    work "$job" "$folder/$job/mutations" &
    workers+=($!)
done
for worker in "${workers[@]}"; do
    wait "$worker"
done

awk -F"$rs" -v folders="$folders" '
    $1 == "invalid" { ++invalid; next }
    { ++counted; ++of[$2] }
    $1 == "noticed" { ++noticed; ++noticedOf[$2] }
    $1 == "unnoticed" { missed[++misses] = $3 }
    function part(some, all) { return sprintf("noticed %d of %d (%d %%)", some, all, all ? int(100 * some / all) : 0) }
    END {
        if (misses > 0)
            print "\nunnoticed:"
        for (i = 1; i <= misses; ++i)
            print "  " missed[i]
        print ""
        n = split(folders, name, " ")
        for (i = 1; i <= n; ++i)
            if (of[name[i]] > 0)
                printf "%-9s %s\n", name[i], part(noticedOf[name[i]], of[name[i]])
        printf "%-9s %s; %d did not compile\n", "all", part(noticed, counted), invalid
        exit counted == 0 ? 2 : 10 * noticed < 9 * counted
    }' "$folder/results"
exit
}

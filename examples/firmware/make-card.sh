#!/usr/bin/env bash
# Makes the image of an SD card of 4 MB: a FAT16 file system without partitions, with files in its root directory.
#   make-card.sh IMAGE FILE…
# Names become capitals and have at most eight and three characters. The blocks of the files take turns, as on a card that
# has been in use for a while. (With dosfstools and mtools: mkfs.fat -F 16 -s 1 -C IMAGE 4096, then mcopy -i IMAGE FILE ::)
set -euo pipefail
export LC_ALL=C
(($# >= 2)) || { sed -n 's/^#   /usage: /p' "$0" >&2; exit 2; }
image=$1
shift
(($# <= 512)) || { echo "$0: the root directory has room for 512 files" >&2; exit 1; }

blocks=8192 reserved=1 fat_blocks=32 root_blocks=32 # of 512 bytes; a cluster is one block
root=$((reserved + 2 * fat_blocks))
data=$((root + root_blocks))

bytes() { # VALUE SIZE: little-endian, as printf reads it
    local value=$1 i
    for ((i = 0; i < $2; ++i)); do
        printf '\\x%02x' $((value >> 8 * i & 255))
    done
}
put() { # POSITION TEXT: the text as printf reads it
    # shellcheck disable=SC2059
    printf "$2" | dd of="$image" bs=1 seek="$1" conv=notrunc status=none
}

sizes=() names=()
for file; do
    [[ -f $file && -r $file ]] || { echo "$0: \"$file\" cannot be read" >&2; exit 1; }
    name=$(basename "$file" | tr "[:lower:]" "[:upper:]")
    [[ $name =~ ^([A-Z0-9_-]{1,8})(\.([A-Z0-9_-]{1,3}))?$ ]] ||
        { echo "$0: \"$file\" has no name of eight and three letters, digits, - or _" >&2; exit 1; }
    name=$(printf '%-8s%-3s' "${BASH_REMATCH[1]}" "${BASH_REMATCH[3]:-}")
    [[ " ${names[*]-} " != *" $name "* ]] || { echo "$0: two files named like \"$file\"" >&2; exit 1; }
    names+=("$name")
    sizes+=("$(wc -c <"$file")")
done

rm -f "$image"
truncate -s $((blocks * 512)) "$image"
put 0 '\xeb\x3c\x90EXAMPLE '"$(bytes 512 2)$(bytes 1 1)$(bytes $reserved 2)$(bytes 2 1)$(bytes $((root_blocks * 16)) 2)"
put 19 "$(bytes $blocks 2)"'\xf8'"$(bytes $fat_blocks 2)$(bytes 32 2)$(bytes 2 2)"
put 36 '\x80\x00\x29'"$(bytes 1 4)"'NO NAME    FAT16   '
put 510 '\x55\xaa'

# FAT entries are linked file by file while the files' blocks are dealt out.
next=2 # cluster
firsts=() lasts=() entries=()
entries[0]=0xfff8 entries[1]=0xffff
for ((block = 0, more = 1; more; ++block)); do
    more=0
    i=-1
    for file; do
        ((++i, 1))
        ((block * 512 < sizes[i])) || continue
        more=1
        ((data + next - 2 < blocks)) || { echo "$0: the files do not fit" >&2; rm -f "$image"; exit 1; }
        dd if="$file" of="$image" bs=512 skip=$block seek=$((data + next - 2)) count=1 conv=notrunc status=none
        if ((block > 0)); then entries[lasts[i]]=$next; else firsts[i]=$next; fi
        entries[next]=0xffff
        lasts[i]=$next
        ((++next))
    done
done
table=
for entry in "${entries[@]}"; do
    table+=$(bytes $((entry)) 2)
done
put $((reserved * 512)) "$table"
put $(((reserved + fat_blocks) * 512)) "$table"
for ((i = 0; i < $#; ++i)); do
    # An archived file, of the first of January 2024.
    put $((root * 512 + i * 32)) "${names[i]}"'\x20'"$(bytes 0 10)$(bytes 0 2)$(bytes 0x5821 2)$(bytes "${firsts[i]:-0}" 2)$(bytes "${sizes[i]}" 4)"
done

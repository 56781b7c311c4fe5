#!/usr/bin/env bash
# Tries the workflow of "orixm1 sweep --snakemake" on Slurm, on this machine alone: slurm.sh ORIXM1 PLAN [DATA]
# Needs to be root, and the Debian packages snakemake (7.21), slurm-wlm (22.05) and munge, which the other tests do not.
# Starts daemons of its own in a new folder and ends them again; the machine's configuration stays as it is.
set -euo pipefail

orixm1=$(realpath "$1")
plan=$(realpath "$2")
data=${3:+$(realpath "$3")}
folder=$(mktemp -d /tmp/sweep-slurm.XXXXXX)
pids=()
finish() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    for pid in "${pids[@]}"; do wait "$pid" 2>/dev/null || true; done
    rm -rf "$folder"
}
trap finish EXIT

# Slurm wants to know who asks. The folder of the socket is to be seen by all, the key by nobody else.
chmod 755 "$folder"
mkdir -m 700 "$folder/munge"
mkdir -m 755 "$folder/socket"
mkdir "$folder/state" "$folder/spool" "$folder/home"
(umask 077 && dd if=/dev/urandom of="$folder/munge/key" bs=1024 count=1 status=none)
munged --foreground --force --key-file="$folder/munge/key" --socket="$folder/socket/munge" \
    --pid-file="$folder/munge/pid" --log-file="$folder/munge/log" --seed-file="$folder/munge/seed" &
pids+=($!)
name=$(hostname -s)
cat >"$folder/slurm.conf" <<END
ClusterName=one
SlurmctldHost=$name(127.0.0.1)
SlurmUser=root
AuthType=auth/munge
AuthInfo=socket=$folder/socket/munge
CredType=cred/munge
SlurmctldPort=16817
SlurmdPort=16818
StateSaveLocation=$folder/state
SlurmdSpoolDir=$folder/spool
SlurmctldPidFile=$folder/slurmctld.pid
SlurmdPidFile=$folder/slurmd.pid
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_Core
MpiDefault=none
ReturnToService=2
NodeName=$name NodeAddr=127.0.0.1 CPUs=$(nproc) State=UNKNOWN
PartitionName=all Nodes=$name Default=YES MaxTime=INFINITE State=UP
END
export SLURM_CONF=$folder/slurm.conf
waitFor() { # SECONDS COMMAND …
    local left=$(($1 * 5))
    shift
    until "$@" >/dev/null 2>&1; do
        ((left-- > 0)) || { echo "slurm.sh: in vain: $*" >&2; tail -n 5 "$folder"/*.log >&2; exit 1; }
        sleep 0.2
    done
}
waitFor 20 test -S "$folder/socket/munge"
slurmctld -D >"$folder/slurmctld.log" 2>&1 &
pids+=($!)
slurmd -D -N "$name" >"$folder/slurmd.log" 2>&1 &
pids+=($!)
waitFor 60 bash -c 'sinfo -h -o %T | grep -q idle'

export HOME=$folder/home ORIXM1=$orixm1
if [[ -n $data ]]; then export ORIXM1_DATA=$data; fi
"$orixm1" ${data:+--data "$data"} sweep "$plan" --out "$folder/out" --snakemake >/dev/null
cd "$folder/out"
snakemake --cluster "sbatch --parsable" --jobs 4 --keep-going --latency-wait 30
open=$(grep -c ',not done,' sweep.csv || true)
done=$(grep -c ',done,' sweep.csv || true)
echo "slurm.sh: $done points done, $open not done"
((done > 0 && open == 0))

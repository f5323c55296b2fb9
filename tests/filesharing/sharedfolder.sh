#!/usr/bin/env bash
# The lock protocol on a real network file system, as many workstations use it
# over one shared folder: a private sshd on 127.0.0.1 (its own host key, port,
# configuration and client key) serves one folder, which sshfs mounts twice,
# once for each "workstation". tst_sharedfolder then runs the protocol across
# the two mounts, first with sshfs -o cache=no, then with sshfs's default
# caching. Everything is stopped and unmounted at the end, also on failure.
#
#   sharedfolder.sh TST_SHAREDFOLDER
#
# Exits 77 (CTest's skip code for this test) with the reason printed where
# FUSE, sshfs or sshd are not available or this is not root (other host names
# need a UTS namespace). The reason also goes into the figures:
#   ndxcom-figure-skipped: shared folder (sshfs): <reason>
set -uo pipefail

program=${1:?usage: sharedfolder.sh TST_SHAREDFOLDER}
SKIP=77

skip() {
    echo "ndxcom-figure-skipped: shared folder (sshfs): $*"
    echo "SKIPPED: $*"
    exit $SKIP
}

[ "$(id -u)" = 0 ] || skip "needs root (other host names need a UTS namespace, sshd its privilege separation)"
[ -e /dev/fuse ] || skip "no /dev/fuse: FUSE is not available on this machine"
sshd=$(command -v sshd || echo /usr/sbin/sshd)
[ -x "$sshd" ] || skip "no sshd (Debian package openssh-server)"
for tool in sshfs ssh ssh-keygen python3; do
    command -v "$tool" >/dev/null || skip "no $tool (scripts/setup installs it)"
done
if command -v fusermount3 >/dev/null; then
    unmount() { fusermount3 -u "$1" 2>/dev/null || fusermount3 -uz "$1" 2>/dev/null || umount -l "$1"; }
else
    unmount() { umount "$1" 2>/dev/null || umount -l "$1"; }
fi

work=$(mktemp -d /tmp/ndxcom-sshfs.XXXXXX) || exit 1
sshd_pid=""
mounts=()

cleanup() {
    local m
    for m in "${mounts[@]}"; do
        if grep -qs " $m fuse" /proc/mounts; then unmount "$m"; fi
    done
    if [ -n "$sshd_pid" ]; then
        kill "$sshd_pid" 2>/dev/null
        wait "$sshd_pid" 2>/dev/null
    fi
    # Never into a mount that did not go away.
    rm -rf --one-file-system "$work"
}
trap cleanup EXIT
trap 'exit 130' INT TERM

ssh-keygen -q -t ed25519 -N '' -C ndxcom-test-host -f "$work/host_key" || exit 1
ssh-keygen -q -t ed25519 -N '' -C ndxcom-test-client -f "$work/client_key" || exit 1
cp "$work/client_key.pub" "$work/authorized_keys"
chmod 600 "$work/authorized_keys"
mkdir -p "$work/server/nocache" "$work/server/default" /run/sshd

# A free port on the loopback; another program may take it before sshd does,
# so a few are tried.
started=""
for attempt in 1 2 3; do
    port=$(python3 -c 'import socket; s=socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
    cat >"$work/sshd_config" <<EOF
ListenAddress 127.0.0.1
Port $port
HostKey $work/host_key
PidFile none
AuthorizedKeysFile $work/authorized_keys
PubkeyAuthentication yes
PasswordAuthentication no
KbdInteractiveAuthentication no
PermitRootLogin prohibit-password
UsePAM no
StrictModes no
X11Forwarding no
AllowTcpForwarding no
Subsystem sftp internal-sftp
EOF
    : >"$work/sshd.log"
    "$sshd" -D -f "$work/sshd_config" -E "$work/sshd.log" &
    sshd_pid=$!
    for _ in $(seq 100); do
        if grep -q "Server listening" "$work/sshd.log"; then started=yes; break; fi
        kill -0 "$sshd_pid" 2>/dev/null || break
        sleep 0.1
    done
    [ -n "$started" ] && break
    kill "$sshd_pid" 2>/dev/null; wait "$sshd_pid" 2>/dev/null; sshd_pid=""
done
[ -n "$started" ] || skip "the private sshd did not start: $(tail -3 "$work/sshd.log" | tr '\n' ' ')"

# mount_share SERVER_FOLDER MOUNTPOINT [sshfs -o options]
mount_share() {
    mkdir -p "$2"
    local options=(-F /dev/null -p "$port" -o "IdentityFile=$work/client_key,IdentitiesOnly=yes"
                   -o StrictHostKeyChecking=no,UserKnownHostsFile=/dev/null,BatchMode=yes,LogLevel=ERROR)
    [ -n "${3:-}" ] && options+=(-o "$3")
    local error
    if ! error=$(timeout 30 sshfs "${options[@]}" "root@127.0.0.1:$1" "$2" 2>&1); then
        skip "sshfs could not mount over FUSE: ${error:-timed out}"
    fi
    mounts+=("$2")
}

SECONDS=0
mount_share "$work/server/nocache" "$work/a-nocache" cache=no
mount_share "$work/server/nocache" "$work/b-nocache" cache=no
mount_share "$work/server/default" "$work/a-default"
mount_share "$work/server/default" "$work/b-default"
echo "sshd on 127.0.0.1:$port, four sshfs mounts in ${SECONDS} s"

status=0
for cache in no default; do
    dir=nocache; [ "$cache" = default ] && dir=default
    echo "--- shared folder, sshfs cache=$cache ---"
    NDXCOM_SHARED_SERVER="$work/server/$dir" NDXCOM_SHARED_A="$work/a-$dir" \
        NDXCOM_SHARED_B="$work/b-$dir" NDXCOM_SHARED_CACHE=$cache \
        timeout -k 5 100 "$program" || status=1
done
exit $status

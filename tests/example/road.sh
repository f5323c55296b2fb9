#!/usr/bin/env bash
# The road "saving a new project", walked by the example application:
#   road.sh EXAMPLE WORK [SCREENSHOT.png]
# Every instance runs offscreen with a private home; nothing of the real
# settings is read or written.
set -u
ex=$1
work=$2
shot=${3:-$work/example.png}
rm -rf "$work"
mkdir -p "$work/home/.config/NdxComExample" "$work/projects" "$work/machine/help" "$work/runtime"
chmod 700 "$work/runtime"
export HOME=$work/home XDG_CONFIG_HOME=$work/home/.config XDG_DATA_HOME=$work/home/.local/share
export XDG_CACHE_HOME=$work/home/.cache XDG_RUNTIME_DIR=$work/runtime
export QT_QPA_PLATFORM=offscreen QT_QPA_PLATFORMTHEME=
unset LD_LIBRARY_PATH
conf=$XDG_CONFIG_HOME/NdxComExample/MdiApp.conf
project=$work/projects/Calza.ndx
lock=$work/projects/Calza.~lock
holder=

fail() {
    echo "FAIL: $*"
    for f in "$work"/*.log; do
        [ -f "$f" ] && { echo "--- $f"; cat "$f"; }
    done
    [ -n "$holder" ] && kill "$holder" 2>/dev/null
    exit 1
}
expect() { # FILE LINE
    grep -qxF -- "$2" "$1" || fail "missing in $(basename "$1"): $2"
}

# A workstation: its machine, with a help index, and its projects folder.
cat >"$conf" <<CONF
[Settings]
LastMachine=M1

[Machines]
M1\\Settings\\ProjectsPath=$work/projects
M1\\Settings\\MachinePath=$work/machine
CONF
printf 'QDlgHelpNodrix=nodrix.htm\n' >"$work/machine/help/HelpMac.ini"

# 1. This workstation: New, Save as (the library's dialog, then the claim of
# the path), F1; the project stays open until told.
"$ex" --new-save-as "$project" --press-f1 --screenshot "$shot" \
    --hold-until "$work/release" >"$work/first.log" 2>&1 &
holder=$!
for _ in $(seq 600); do
    grep -qx holding "$work/first.log" && break
    kill -0 "$holder" 2>/dev/null || fail "the first instance ended early"
    sleep 0.1
done
expect "$work/first.log" "new: Prg1.ndx"
expect "$work/first.log" "saved: $project"
expect "$work/first.log" "lock: $lock present"
expect "$work/first.log" "help: file://$work/machine/help/en/nodrix.htm"
expect "$work/first.log" "recent: $project"
[ -f "$project" ] || fail "no project file"
[ -f "$lock" ] || fail "no lock file"
grep -q "^box:" "$work/first.log" && fail "a box nobody expected"

# 2. Another computer opens the same project: it is asked, in the English of
# the library's catalogue, whether to open it read-only, says yes, and the
# lock stays the first one's.
if unshare --uts true 2>/dev/null; then
    before=$(od -An -tx1 "$lock")
    unshare --uts bash -c 'hostname other-pc && exec "$@"' _ \
        "$ex" --open "$project" --answer Yes >"$work/second.log" 2>&1 ||
        fail "the second instance failed"
    expect "$work/second.log" "box: The project is in use by: | Computer: $(hostname | cut -d. -f1)	User: $(id -un) | Do you want to open it read-only?"
    expect "$work/second.log" "answer: Yes"
    expect "$work/second.log" "opened: $project read-only"
    [ "$(od -An -tx1 "$lock")" = "$before" ] || fail "the second computer changed the lock"
else
    echo "SKIP another computer: unshare --uts is not permitted here (it needs root)"
fi

# 3. The first instance closes: the lock goes, the project stays, the
# placement is in the settings.
touch "$work/release"
wait "$holder" || fail "the first instance failed"
holder=
expect "$work/first.log" "closed"
[ -f "$lock" ] && fail "the lock is still there"
[ -f "$project" ] || fail "the project is gone"
for key in pos size state maximize; do
    grep -q "^M1\\\\MainWindow\\\\$key=" "$conf" || fail "no placement key $key in the settings"
done
[ -s "$shot" ] || fail "no screenshot"

# 4. Again on this computer: the project opens read-write, the recent-file
# list holds it, and the stored placement is restored.
sed -i -e 's/^M1\\MainWindow\\maximize=.*/M1\\MainWindow\\maximize=false/' \
    -e 's/^M1\\MainWindow\\size=.*/M1\\MainWindow\\size=@Size(640 480)/' "$conf"
"$ex" --open "$project" >"$work/third.log" 2>&1 || fail "the third instance failed"
expect "$work/third.log" "placement: 640x480, normal"
expect "$work/third.log" "opened: $project read-write"
expect "$work/third.log" "recent: $project"
[ -f "$lock" ] && fail "the lock outlived the third instance"
echo "road walked: $project saved, locked, shared read-only, released"

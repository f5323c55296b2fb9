#!/bin/sh
# reported.sh REPORT PROGRAM [ARGS...]: runs PROGRAM, keeps everything it
# printed in REPORT for the reliability gate, prints it and ends as PROGRAM
# ended.
report=$1
shift
"$@" >"$report" 2>&1
rc=$?
cat "$report"
exit $rc

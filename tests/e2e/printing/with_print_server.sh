#!/usr/bin/env bash
# Runs a command beside a print server of its own, whose queues write what they print to files:
#
#     with_print_server.sh PPD-FILE COMMAND...
#
# The command finds the server through CUPS_SERVER and the files, one a queue, in PRINTED_FILES:
#   color      takes pages, and is the default printer
#   gray       takes pages, but has no colour
#   stopped    keeps jobs without printing them
#   rejecting  takes no jobs
# Leaves nothing behind. Exit status 77 when no print server can run on this computer.
set -euo pipefail
PATH=$PATH:/usr/sbin:/sbin

ppd=$1
shift

skip() {
    echo "Not run: $*"
    exit 77
}

for tool in cupsd lpadmin lpstat cupsaccept cupsenable; do
    command -v "$tool" >/dev/null || skip "there is no $tool on this computer."
done

folder=$(mktemp -d /tmp/print-server.XXXXXX)
server=
cleanup() {
    if [ -n "$server" ]; then
        kill "$server" 2>/dev/null || true
        wait "$server" 2>/dev/null || true
    fi
    rm -rf "$folder"
}
trap cleanup EXIT
trap 'exit 1' INT TERM

mkdir -p "$folder"/{server,spool,cache,state,temp,home,printed}
user=$(id -un)
group=$(id -gn)
if [ "$(id -u)" -eq 0 ]; then
    # The server runs its helpers as an ordinary user.
    user=lp
    group=lp
    chgrp -R lp "$folder"
    chmod 755 "$folder"
fi

configure() {
    cat >"$folder/files.conf" <<END
ServerRoot $folder/server
RequestRoot $folder/spool
CacheDir $folder/cache
StateDir $folder/state
TempDir $folder/temp
ErrorLog $folder/error_log
AccessLog $folder/access_log
PageLog $folder/page_log
FileDevice Yes
User $user
Group $group
SystemGroup root
END
    cat >"$folder/cupsd.conf" <<END
Listen 127.0.0.1:$1
Browsing Off
DefaultAuthType None
WebInterface No
LogLevel warn
MaxJobs 0
<Location />
  Order allow,deny
  Allow 127.0.0.1
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  SubscriptionPrivateAccess all
  SubscriptionPrivateValues none
  <Limit All>
    AuthType None
    Order deny,allow
  </Limit>
</Policy>
END
}

# Starts the server on a free port.
start() {
    local port
    for port in $(shuf -i 20000-60000 -n 5); do
        configure "$port"
        cupsd -f -c "$folder/cupsd.conf" -s "$folder/files.conf" >"$folder/output" 2>&1 &
        server=$!
        export CUPS_SERVER=127.0.0.1:$port HOME=$folder/home
        local tries
        for tries in $(seq 50); do
            lpstat -r 2>/dev/null | grep -q 'is running' && return 0
            kill -0 "$server" 2>/dev/null || break
            sleep 0.1
        done
        kill "$server" 2>/dev/null || true
        wait "$server" 2>/dev/null || true
        server=
    done
    cat "$folder/output" "$folder/error_log" 2>/dev/null | tail -5
    skip "the print server did not start."
}

# add_queue NAME PPD-FILE
add_queue() {
    lpadmin -p "$1" -v "file://$folder/printed/$1.pdf" -P "$2" -o printer-error-policy=abort-job 2>"$folder/output" || {
        cat "$folder/output"
        exit 1
    }
    cupsaccept "$1"
    cupsenable "$1"
}

start
add_queue color "$ppd"
sed 's/^\*ColorDevice: True/*ColorDevice: False/' "$ppd" >"$folder/gray.ppd"
add_queue gray "$folder/gray.ppd"
add_queue stopped "$ppd"
add_queue rejecting "$ppd"
lpadmin -d color
cupsdisable stopped
cupsreject rejecting

export PRINTED_FILES=$folder/printed
status=0
"$@" || status=$?
exit "$status"

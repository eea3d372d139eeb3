#!/usr/bin/env bash
# Prints a report with the real window: adds a diagram seven times, opens the preview and prints from it.
# The script starts a print server on loopback, which keeps the print. The print must have as many pages
# as the preview shows, and sharp pictures. The first argument is the folder of the built program.
for tool in cupsd pdfinfo pdfimages; do
    PATH=$PATH:/usr/sbin command -v $tool >/dev/null || { echo "SKIPPED: needs cups-daemon and poppler-utils"; exit 77; }
done
. "$(dirname "$0")/desktop.sh"

start_print_server() {
    local house=$work/cups port
    mkdir -p "$house/bin/backend" "$house/cache" "$house/run" "$house/spool/tmp"
    ln -s /usr/lib/cups/daemon "$house/bin/daemon"
    printf '#!/bin/sh\n[ $# -eq 0 ] || { cat "$6" > "%s/new" && mv "%s/new" "%s/printed.pdf"; }\n' \
        "$work" "$work" "$work" > "$house/bin/backend/keep"
    chmod 700 "$house/bin/backend/keep"
    echo 'application/pdf pdf string(0,%PDF)' > "$house/mime.types"
    touch "$house/mime.convs"
    printf '<DefaultPrinter Sheets>\nDeviceURI keep:/\nState Idle\nAccepting Yes\n</DefaultPrinter>\n' > "$house/printers.conf"
    printf '%s\n' "ServerRoot $house" "ServerBin $house/bin" "CacheDir $house/cache" "StateDir $house/run" \
        "RequestRoot $house/spool" "TempDir $house/spool/tmp" "AccessLog $house/access" \
        "ErrorLog $house/error" "PageLog $house/page" > "$house/files.conf"
    while port=$((RANDOM + 20000)); (: <> /dev/tcp/127.0.0.1/$port) 2>/dev/null; do :; done
    printf '%s\n' "Listen 127.0.0.1:$port" 'Browsing Off' '<Location />' 'Order allow,deny' 'Allow all' '</Location>' \
        '<Policy default>' '<Limit All>' 'Order deny,allow' '</Limit>' '</Policy>' > "$house/cupsd.conf"
    PATH=$PATH:/usr/sbin cupsd -f -c "$house/cupsd.conf" -s "$house/files.conf" 2> "$work/cupsd-errors" &
    until_true bash -c ": <> /dev/tcp/127.0.0.1/$port"
    export CUPS_SERVER=127.0.0.1:$port
}
# Checks the number of visible windows: the main window and an open menu.
windows() { [ "$(xdotool search --onlyvisible --class trabeon | wc -l)" -eq "$1" ]; }
open_preview() {
    until_true windows 1  # with an open menu, a click would only close the menu
    click 597 53  # the menu of the report, beside the diagram
    until_true windows 2
    key Down Return
    until_true active "Print Preview"
}

start_print_server
start_program
open_example five-span-with-cantilever
key alt+d c b
key space shift+Down shift+Down shift+Down shift+Down alt+p
for _ in 1 2 3 4 5 6 7; do key alt+d c b alt+a; done
key alt+r v
open_preview

click 480 24  # the number of pages
key ctrl+a ctrl+c
click 40 24  # Print
until_true test -s "$work/printed.pdf"
until_true active "$name"

pages="Total $(pdfinfo "$work/printed.pdf" | sed -n 's/^Pages: *//p') pages"
save_as "$pages" eval "type_text '$work/'; key ctrl+v; type_text .TB"
leave
images=$(pdfimages -list "$work/printed.pdf" | awk 'NR > 2 {n += 1; if ($6 != "rgb" || $13 < 300) bad += 1} END {print n, bad}')
[ "$images" = "7 " ] || fail "not seven coloured pictures of 300 dots an inch: $images"
echo "The job was done."

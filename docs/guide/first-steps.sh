#!/bin/sh
# The site of "First steps" (first-steps.md), made from a shell instead of in the windows. Names, addresses and numbers are
# invented: put your own in their place. The data directory is that of ALERTING_DATA, else the user's.
set -eu

alertctl init

alertctl service set "Internet Mail" --server mail.example.org

alertctl provider add --company "City Paging" --region-a Springfield --region-b "Region 7" --phone 555-0160 \
  --baud-rate 2400 --parity even --data-bits 7 --stop-bits 1 --text-length 240
# The examples answer no call: nobody is to choose one.
alertctl provider list --where company="Example Paging" -q | while read -r example; do
  alertctl provider remove "$example"
done

alertctl modem add "Rack modem" --type "Generic 2400 bps modem" --machine "$(uname -n)" --port COM1 --baud-rate 2400 \
  --location "Main office"
alertctl service set "Alphanumeric Pager" --provider "City Paging" --modem "Rack modem"

alertctl user add "Ann Example"
alertctl entry set "Ann Example" "Internet Mail" ann@example.org
alertctl user add "Bob Example"
alertctl entry set "Bob Example" "Alphanumeric Pager" 5550177

alertctl response add "Internet Mail" --subject "Disk full"
alertctl response add "Alphanumeric Pager" --message "Disk full on <Workstation>"

alertctl manager add STANDBY
alertctl service disable "Wave File"
alertctl service enable "Wave File" --manager STANDBY

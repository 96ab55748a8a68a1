#!/usr/bin/env bash
# CPU seconds and memory of whole report commands, from start to finished CSV, beside a bare grouped query of the sqlite3
# shell on the same file: the best of several rounds, all of them taken in turn so that the machine's moods meet each.
#   bench/report_times.sh [ROUNDS]      (Debian packages: time, sqlite3; a release build of tallymere-cli)
set -euo pipefail
rounds=${1:-7}
cli=$(cd "$(dirname "$0")/.." && pwd)/build/release/bin/tallymere-cli
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
for company in Small:10000 Big:250000; do
  "$cli" demo "${company%:*}" --folder . --transactions "${company#*:}" --today 6/15/2026 >/dev/null
done

declare -A commands seconds memory
names=()
add() { names+=("$1"); commands[$1]=$2; }
grouped="SELECT Account, SUM(Debit), SUM(Credit) FROM Transactions"
year="WHERE Date BETWEEN '2025-01-01' AND '2025-12-31'"
add "bare query, last year" "sqlite3 Big.cmf \"$grouped $year GROUP BY Account\""
add "bare query, all time" "sqlite3 Big.cmf \"$grouped GROUP BY Account\""
for company in Big Small; do
  for key in PL PLCus; do
    for basis in accrual cash; do
      for period in "last year:1/1/2025:12/31/2025" "all time:1/1/2000:12/31/2026" "a month:5/1/2026:5/31/2026"; do
        IFS=: read -r name from to <<<"$period"
        add "$company, $key, $basis, $name" \
          "'$cli' report $key --company $company.cmf --from $from --to $to --basis $basis --format csv --out out.csv"
      done
    done
  done
done

for ((round = 0; round < rounds; ++round)); do
  for name in "${names[@]}"; do
    command time -o used -f "%U %S %M" bash -c "exec ${commands[$name]}" >/dev/null
    read -r user system kilobytes <used
    now=$(awk "BEGIN { print $user + $system }")
    best=${seconds[$name]:-9999}
    seconds[$name]=$(awk "BEGIN { print ($now < $best ? $now : $best) }")
    memory[$name]=$kilobytes
  done
done
for name in "${names[@]}"; do
  printf '%-40s %6.2f s %5d MB\n' "$name" "${seconds[$name]}" $((memory[$name] / 1024))
done

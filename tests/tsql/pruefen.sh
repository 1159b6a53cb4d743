#!/bin/sh
# pruefen.sh WORK_FOLDER FOLDER FILE...: checks the statements that tests wrote to the files of the folder.
# 0 all right, 1 not, 77 the check could not be made, and why.
set -u
hier=$(cd "$(dirname "$0")" && pwd)
arbeit=$1
shift
auslassen() {
  echo "skipped: no statement for SQL Server was checked by a T-SQL parser: $1"
  exit 77
}
command -v node >/dev/null 2>&1 || auslassen "node is not installed"
mkdir -p "$arbeit"
# Installed anew only when another version is wanted.
if [ ! -d "$arbeit/node_modules" ] || ! cmp -s "$hier/package-lock.json" "$arbeit/eingerichtet.json"; then
  command -v npm >/dev/null 2>&1 || auslassen "npm is not installed"
  cp "$hier/package.json" "$hier/package-lock.json" "$arbeit" || exit 1
  (cd "$arbeit" && timeout -k 5 120 npm ci --ignore-scripts --no-audit --no-fund --fetch-retries=1 </dev/null >npm.log 2>&1) ||
    auslassen "npm ci brings no parser (offline?): $(grep -m 1 'npm error' "$arbeit/npm.log" || echo "no answer in two minutes")"
  cp "$hier/package-lock.json" "$arbeit/eingerichtet.json"
fi
exec node "$hier/pruefen.mjs" "$arbeit" "$@"

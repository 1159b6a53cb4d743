#!/usr/bin/env bash
# Installs the build tree into an empty folder, builds the foreign host against it in all three ways and runs it on a
# client that the installed launcher makes. Usage: pruefen.sh SOURCE BUILD
set -euo pipefail
quelle=$1 bau=$2
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
still() { "$@" >"$ordner/ausgabe" 2>&1 || { cat "$ordner/ausgabe"; return 1; }; }

still cmake --install "$bau" --prefix "$ordner/ziel"
mv "$ordner/ziel" "$ordner/umgezogen"  # an installed tree may be moved
ziel=$ordner/umgezogen
lib=$(dirname "$(find "$ziel" -name libmarklink.so)")
export PKG_CONFIG_PATH=$lib/pkgconfig
still cmake -S "$quelle/tests/installation" -B "$ordner/host" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_PREFIX_PATH="$ziel"
still cmake --build "$ordner/host"

# The program folder is where the library lies.
"$ziel/bin/marklink" --ordner "$lib" mandant anlegen Muster
for host in host_paket host_pkgconfig host_laedt_zur_Laufzeit; do
  "$ziel/bin/marklink" --ordner "$lib" --mandant Muster einstellung schreiben Marklink project ''
  geschlossen=$("$ordner/host/$host" Muster Chef "$lib/libmarklink.so")
  "$ziel/bin/marklink" --ordner "$lib" --mandant Muster einstellung schreiben Marklink project Laden
  offen=$("$ordner/host/$host" Muster Chef "$lib/libmarklink.so")
  for paar in "$geschlossen:zu" "$offen:offen"; do
    [ "${paar%:*}" = "Schnittstelle für Marklink ab Version 1.0.8
${paar##*:}" ] || { echo "$host: ${paar%:*}, erwartet ${paar##*:}"; exit 1; }
  done
done

# Nothing but the factory and the class may be visible.
fremd=$(nm -DC --defined-only "$lib/libmarklink.so" | awk '{ $1 = ""; print }' | grep -vE 'marklink_common_(erzeugen|freigeben)|marklink::common::|(vtable|typeinfo|typeinfo name) for marklink::common$' | grep 'marklink::' || true)
[ -z "$fremd" ] || { echo "sichtbar, aber nicht öffentlich: $fremd"; exit 1; }

#!/bin/sh
# A short tour through qorgen, the command-line bridge to the qorGenLib library
# object: a few identifier checks, a text filter and a catalogue text in two
# languages. Results go to standard output; what the library shows the user
# (its message boxes) goes to standard error.
#
#   examples/tour.sh                      uses the qorgen of build/ (or QORGEN=path)
set -eu

here=$(cd "$(dirname "$0")" && pwd)
if [ -z "${QORGEN:-}" ]; then
    for candidate in "$here/../build/tools/qorgen/qorgen" "$here"/../build*/tools/qorgen/qorgen; do
        if [ -x "$candidate" ]; then QORGEN=$candidate; break; fi
    done
fi
QORGEN=${QORGEN:-qorgen}
if ! command -v "$QORGEN" >/dev/null 2>&1; then
    echo "tour.sh: qorgen not found; build the project first or set QORGEN" >&2
    exit 2
fi

# Shows the command, then runs it; a non-zero exit status stops the tour.
step() {
    title=$1
    shift
    printf '\n== %s\n$ qorgen' "$title"
    for word in "$@"; do
        case $word in
            *[\ \"]*) printf " '%s'" "$word" ;;
            *) printf ' %s' "$word" ;;
        esac
    done
    printf '\n'
    "$QORGEN" "$@"
}

step "A bank account number with a correct check" call ControleerBankNr 000-0000000-97
step "A wrong one: the library says so in a message box and returns nothing" \
    call ControleerBankNr 000-0000000-98
step "The same message in French (Offset 10000)" call --set Offset=10000 ControleerBankNr 000-0000000-98
step "An enterprise (VAT) number in its display notation" call ControleerVAT "BE 0123 456 749"
step "A structured payment reference made from an invoice number" call GetOGM 20240017
step "Only the digits of a typed text" call FilterNumeric "BE68 5390 0754 7034"
step "Catalogue text 1028 in Dutch" call LLGenLib 1028
step "The same text in French: id plus the language offset 10000" call LLGenLib 11028
step "A number typed the Belgian way" call --locale nl_BE CGetal "12,5"

printf '\n== The same bridge for programs: JSON Lines in, JSON Lines out\n'
printf '%s\n' "$ echo '{\"call\": \"SCase\", \"args\": [\"jAN de SMET\"]}' | qorgen batch"
echo '{"call": "SCase", "args": ["jAN de SMET"]}' | "$QORGEN" batch

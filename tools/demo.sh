#!/bin/bash
# Two roads through the samples, on copies. The first is that of one script: tell its values, set one of every
# kind, show that nothing else changed, and carry the values into a newer version. The second is that of a
# project: look into the catalogue, add a script, customize it, update another one, take scripts out again.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

brlv=$PWD/build/native/bin/brlv
samples=$PWD/samples
play=$(mktemp -d)
trap 'rm -rf "$play"' EXIT
cp -r samples/project samples/templates "$play"
cd "$play"

say() { printf '\n\033[1m%s\033[0m\n' "$*"; }
run() {
    printf '$ brlv'
    printf ' %q' "$@"
    printf '\n'
    "$brlv" "$@"
}

say '1. What a script lets its user set (a game project in samples/)'
run tags project/hero.brl

say '2. One value of every kind: whole number (beyond its limit), decimal, switch, file, string, list, entity, path, text'
cp project/hero.brl before.brl
run set project/hero.brl '#1=99' 'Turn rate=6.5' 'Double jump=off' 'Portrait=aro.pcx' '#15=Aro of Mill Street' \
    'Cloak=grey' 'Start=gate_lamp' 'Evening round=path_wall' 'Motto=Mind the step.'

say '3. Nothing but those values changed, byte for byte'
changed=$(diff --text before.brl project/hero.brl | grep --text -c '^>' || true)
total=$(wc -l <before.brl)
echo "lines that differ: $changed of $total; bytes before: $(wc -c <before.brl), after: $(wc -c <project/hero.brl)"
run set project/hero.brl '#1=14' 'Turn rate=7.25' 'Double jump=on' 'Portrait=mira.pcx' '#15=Mira of Well Lane' \
    'Cloak=red' 'Start=hero_start' 'Evening round=path_gate' 'Motto=Walk on the bright side.' >/dev/null
cmp before.brl project/hero.brl && echo 'after setting the old values again the file is the same as at the start'

say '4. The same as a diff, without writing'
run set project/weather.brl 'Weather at the start=storm' --dry-run

say '5. The values move into a newer version of the script, by their ids'
run carry project/hero.brl templates/template_6/hero.brl

say '6. What a script author should know'
run check "$samples"/broken/lost_entries.brl || true

say '7. What there is for a project: the catalogue of its templates (one class of it)'
cp -r "$samples" "$play/lamplight"
run catalogue lamplight --class World

say '8. What the project has installed'
run project lamplight show

say '9. A script that others need is not taken out before them'
run project lamplight remove Messages || echo "(exit status $?)"
run project lamplight remove Hero Messages

say '10. A script is added with what it needs; of a door each is a copy with its own number'
run project lamplight add Enemies Door

say '11. Enemies is customized: the first value that is set makes the project its own copy'
run project lamplight set Enemies 'Sight=450' 'Patience=20'

say '12. A newer Enemies comes out; the update keeps the values'
sed -i -e 's|^// ver: 35|// ver: 36|' -e 's|^// entry: Patience|// entry: Endurance|' \
    lamplight/templates/template_6/enemy.brl
run project lamplight update
run project lamplight update --all --yes

say '13. Back to the template: the copy goes, and with it the star'
run project lamplight restore Enemies --yes
run project lamplight show

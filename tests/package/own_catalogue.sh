#!/usr/bin/env bash
# Runs the example with its own catalogue in the build folder, then builds it with an installed module, installs it and
# moves it. Also changes its catalogue and makes errors in it. Does the same, without the changes, for a program with two
# catalogues of its own, and for two programs whose catalogues have the same name.
#   own_catalogue.sh CMAKE SOURCE_DIRECTORY BUILD_DIRECTORY CXX_COMPILER
set -euo pipefail
cmake=$1 source=$2 build=$3 compiler=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "$*" >&2; exit 1; }
expect() {  # expect NAME LINE COMMAND...: runs the command in another directory, and looks for the line in its output
  local output
  output=$(cd / && "${@:3}" 2>&1) || fail "$1: ended with $?: $output"
  grep -qxF -- "$2" <<<"$output" || fail "$1: not \"$2\", but: $output"
}
both="250 Spieler warten, 12 Abzeichen"  # one text of the program's own, one of the module's

expect "in the build folder" "$both" "$build/bin/own_catalogue" de-DE

"$cmake" --install "$build" --prefix "$work/module" >/dev/null
[ -z "$(find "$work/module/share" -name '*ConsoleTexts')" ] || fail "the example's tables are installed with the module"
cp -r "$source/examples/own-catalogue" "$work/app"
"$cmake" -G Ninja -S "$work/app" -B "$work/build" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_PREFIX_PATH="$work/module" \
  -DCMAKE_INSTALL_PREFIX="$work/first" -DCMAKE_INSTALL_RPATH_USE_LINK_PATH=ON >/dev/null
"$cmake" --build "$work/build" >/dev/null
expect "from an installation" "$both" "$work/build/own_catalogue" de-DE
"$cmake" --install "$work/build" >/dev/null
mv "$work/first" "$work/moved"
expect "installed and moved" "$both" "$work/moved/bin/own_catalogue" de-DE
expect "installed, in another language" "Bonsoir, Kim !" "$work/moved/bin/own_catalogue" fr-FR

two="Auf Sendung gehen, AUF SENDUNG, 12 Abzeichen"
expect "two, in the build folder" "$two" "$build/bin/two_catalogues"
"$cmake" -G Ninja -S "$source/tests/package/two-catalogues" -B "$work/two" -DCMAKE_CXX_COMPILER="$compiler" \
  -DCMAKE_PREFIX_PATH="$work/module" -DCMAKE_INSTALL_PREFIX="$work/two-installed" -DCMAKE_INSTALL_RPATH_USE_LINK_PATH=ON >/dev/null
"$cmake" --build "$work/two" >/dev/null
expect "two, from an installation" "$two" "$work/two/two_catalogues"
"$cmake" --install "$work/two" >/dev/null
expect "two, installed" "$two" "$work/two-installed/bin/two_catalogues"

entries=$work/app/texts/catalogue/entries.json
sed -i 's/{"key": "Go_live", "text": "Go live"}/{"key": "Go_live", "text": "Go live!"}/' "$entries"
sed -i '/Go_live/d' "$work/app/texts/resources/Base.lproj/Localizable.strings"
"$cmake" --build "$work/build" >/dev/null
expect "after a change of the catalogue" "[Go live!]  [End the show?]" "$work/build/own_catalogue" en

sed -i 's/"Camera_number_is_on"/"Camera_is_on"/' "$entries"
output=$("$cmake" --build "$work/build" 2>&1) && fail "a wrong catalogue is built"
grep -qF "texts/catalogue/entries.json:2:1: error: the key \"Camera_is_on\"" <<<"$output" || fail "the error is not reported: $output"

sed -i 's/NAMESPACE console/NAMESPACE other/' "$work/app/CMakeLists.txt"
output=$("$cmake" -S "$work/app" -B "$work/build" 2>&1) && fail "a namespace other than the catalogue's is accepted"
grep -qF 'catalogue.json:1:1: error: the namespace is "console" here and' <<<"$(tr -s ' \n' ' ' <<<"$output")" || fail "the namespace is not reported: $output"

sed -i 's/NAMESPACE other/NAMESPACE console/' "$work/app/CMakeLists.txt"
cp -r "$work/app/texts" "$work/app/more"
echo 'zk_add_catalogue(TARGET more ROOT more)' >>"$work/app/CMakeLists.txt"
output=$("$cmake" -S "$work/app" -B "$work/build" 2>&1) && fail "two catalogues have the same name"
grep -qF 'is named "ConsoleTexts" too;' <<<"$(tr -s ' \n' ' ' <<<"$output")" || fail "the name is not reported: $output"

# Two products with the same catalogue name, under one prefix.
for product in alpha beta; do
  cp -r "$source/examples/own-catalogue" "$work/$product"
  sed -i "s/project(OwnCatalogue/project($product/; s/own_catalogue/$product/" "$work/$product/CMakeLists.txt"
  sed -i "s/Guten Abend/$product/" "$work/$product/texts/resources/de.lproj/Localizable.strings"
  "$cmake" -G Ninja -S "$work/$product" -B "$work/build-$product" -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_PREFIX_PATH="$work/module" -DCMAKE_INSTALL_PREFIX="$work/both" -DCMAKE_INSTALL_RPATH_USE_LINK_PATH=ON >/dev/null
  "$cmake" --build "$work/build-$product" --target install >/dev/null
done
for product in alpha beta; do expect "under one prefix" "$product, Kim!" "$work/both/bin/$product" de-DE; done
